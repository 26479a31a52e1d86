// SPDX-License-Identifier: Apache-2.0
// zarvo print: like lp, with settings in the readable form. It speaks to the spooler itself,
// because the arguments of a program, and so a PIN, can be read by everybody on the machine.
#include <cups/cups.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "CUPSFilter/Options/OptionList.h"
#include "Platform/Log.h"
#include "Platform/UniqueFd.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/job/JobKind.h"
#include "Tools/zarvo/job/JobOptions.h"
#include "Tools/zarvo/job/OptionFaults.h"
#include "Tools/zarvo/system/Office.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

struct Options {
  std::string file;
  std::string queue;
  int copies = 0;
  std::string title;
  JobOptions options;
};

/// The user's own defaults for the queue, as lp takes them too.
void AddDefaults(const std::string& queue, OptionList* options) {
  const std::unique_ptr<cups_dest_t, void (*)(cups_dest_t*)> destination(
      cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.c_str(), nullptr),
      [](cups_dest_t* found) { cupsFreeDests(1, found); });
  if (!destination) return;
  for (int i = 0; i < destination->num_options; ++i) {
    const cups_option_t& option = destination->options[i];
    if (cupsGetOption(option.name, options->size(), options->data()) == nullptr)
      options->Add(option.name, option.value);
  }
}

int SpoolerFault(const std::string& queue) {
  return Fail(queue, cupsLastErrorString(), "\"lpstat -e\" lists the queues");
}

/// Hands the file to the spooler's job.
int SendFile(const Options& options, int job, int file) {
  const std::string name = options.file == "-" ? "(stdin)" : options.file;
  http_status_t status = cupsStartDocument(CUPS_HTTP_DEFAULT, options.queue.c_str(), job,
                                           name.c_str(), CUPS_FORMAT_AUTO, 1);
  char block[1 << 16];
  ssize_t count = 0;
  int error = 0;
  while (status == HTTP_STATUS_CONTINUE) {
    count = read(file, block, sizeof block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) error = errno;
    if (count <= 0) break;
    status = cupsWriteRequestData(CUPS_HTTP_DEFAULT, block, static_cast<std::size_t>(count));
  }
  const ipp_status_t finished = cupsFinishDocument(CUPS_HTTP_DEFAULT, options.queue.c_str());
  if (error == 0 && status == HTTP_STATUS_CONTINUE && finished <= IPP_STATUS_OK_CONFLICTING)
    return kExitOk;
  const int fault = error != 0 ? Fail(name, std::strerror(error)) : SpoolerFault(options.queue);
  cupsCancelJob2(CUPS_HTTP_DEFAULT, options.queue.c_str(), job, 0);  // half a file must not print
  return fault;
}

int Print(const Options& options) {
  const std::optional<std::string> text = OptionTextOf(options.options);
  if (!text) return kExitFailure;
  if (const std::string fault = SecretFault(TicketOfOptions(*text)); !fault.empty())
    return Fail(options.options.settings.empty() ? "options" : options.options.settings, fault);
  UniqueFd opened;
  if (options.file != "-") {
    opened = UniqueFd(open(options.file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!opened) return Fail(options.file, std::strerror(errno));
  }
  OptionList list = OptionList::Parse(text->c_str());
  if (options.copies > 0) list.Add("copies", std::to_string(options.copies).c_str());
  AddDefaults(options.queue, &list);
  const std::string base =
      options.file == "-" ? "(stdin)" : options.file.substr(options.file.rfind('/') + 1);
  const std::string& title = options.title.empty() ? base : options.title;
  const int job = cupsCreateJob(CUPS_HTTP_DEFAULT, options.queue.c_str(), title.c_str(),
                                list.size(), list.data());
  if (job == 0) return SpoolerFault(options.queue);
  const int status = SendFile(options, job, opened ? opened.get() : STDIN_FILENO);
  if (status == kExitOk)
    std::printf("request id is %s-%d (1 file(s))\n", options.queue.c_str(), job);
  return status;
}

/// What has something wrong is not printed unless that is wanted; an office document becomes a PDF
/// file first.
int CheckAndPrint(Options options, bool force) {
  bool doubtful = false;
  const std::optional<std::string> text = OptionTextOf(options.options, &doubtful);
  if (!text) return kExitFailure;
  std::string error;
  const QueuePpd ppd(options.queue, &error);
  std::vector<std::string> faults;
  if (!ppd.path().empty() && UsesOurFilter(ppd.path())) faults = OptionFaults(*text, ppd.path());
  for (const std::string& fault : faults)
    std::fprintf(stderr, "zarvo: %s\n", PrintableText(fault).c_str());
  if ((doubtful || !faults.empty()) && !force)
    return Fail(options.file, "is not printed with such settings",
                "Correct them, or give --force to print it all the same");
  // They have been told of.
  options.options = {{*text}, ""};
  std::string start(kKindBytes, '\0');
  const Stream file(options.file != "-" ? std::fopen(options.file.c_str(), "rbe") : nullptr);
  start.resize(file ? std::fread(start.data(), 1, start.size(), file.get()) : 0);
  if (KindOfJob(start, options.file) != JobKind::kOffice) return Print(options);
  const ScratchFolder scratch;
  if (!scratch) return Fail("TMPDIR", "no folder for temporary files can be made");
  std::string pdf;
  const std::string failure = ConvertOfficeDocument(options.file, scratch, &pdf);
  if (!failure.empty()) return Fail(options.file, failure);
  if (options.title.empty()) options.title = options.file.substr(options.file.rfind('/') + 1);
  options.file = pdf;
  return Print(options);
}

}  // namespace

void SetUpPrint(CLI::App& app, Action* action) {
  const auto options = std::make_shared<Options>();
  app.add_option("file", options->file, "file to print; - for standard input")->required();
  app.add_option("settings", options->options.settings, "settings in the readable form");
  app.add_option("-d,--queue", options->queue, "queue")->required();
  app.add_option("-o", options->options.options, "an option, as for lp; may be repeated")
      ->allow_extra_args(false);
  app.add_option("-n,--copies", options->copies, "number of copies")->check(CLI::PositiveNumber);
  app.add_option("-t,--title", options->title, "title of the job");
  const auto force = std::make_shared<bool>(false);
  app.add_flag("--force", *force, "print even when something is wrong with the settings");
  app.callback([=] { *action = [=] { return CheckAndPrint(*options, *force); }; });
}

}  // namespace zarvo::tool
