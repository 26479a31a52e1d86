// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/PrintJob.h"

#include <cups/cups.h>
#include <fcntl.h>
#include <unistd.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>

#include "CUPSFilter/Options/OptionList.h"
#include "CUPSFilter/Options/SchedulerRequest.h"
#include "Platform/Log.h"
#include "Platform/Phrase.h"
#include "Platform/Process.h"
#include "Platform/UniqueFd.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/job/JobKind.h"
#include "Tools/zarvo/job/OptionFaults.h"
#include "Tools/zarvo/system/Office.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"
#include "Tools/zarvo/system/Spooler.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

/// The user's own defaults for the queue, as lp takes them too.
void AddDefaults(const std::string& queue, OptionList* options) {
  const Destination destination = FindDestination(queue);
  if (!destination) return;
  OptionList defaults;
  for (int i = 0; i < destination->num_options; ++i) {
    const cups_option_t& option = destination->options[i];
    const auto has = [options](const char* name) {
      return cupsGetOption(name, options->size(), options->data()) != nullptr;
    };
    if (!IsSaid(option.name, has)) defaults.Add(option.name, option.value);
  }
  options->AddMissing(defaults);
}

int SpoolerFault(const std::string& queue) {
  return Fail(queue, QueueFault(queue), Phrase("\"lpstat -e\" lists the queues"));
}

std::string BaseName(const std::string& file) {
  return file == "-" ? "(stdin)" : file.substr(file.rfind('/') + 1);
}

/// The spooler's word on the document, or nothing: the library calls it a success when the
/// connection breaks before the spooler has said anything.
std::optional<ipp_status_t> FinishDocument(const std::string& queue) {
  const IppMessage answer(cupsGetResponse(CUPS_HTTP_DEFAULT, ("/printers/" + queue).c_str()));
  return answer ? std::optional(ippGetStatusCode(answer.get())) : std::nullopt;
}

/// Hands the file to the spooler's job of this number.
int SendFile(const PrintJob& job, int number, int file) {
  const std::string name = job.file == "-" ? "(stdin)" : job.file;
  http_status_t status = cupsStartDocument(CUPS_HTTP_DEFAULT, job.queue.c_str(), number,
                                           name.c_str(), CUPS_FORMAT_AUTO, 1);
  char block[1 << 16];
  ssize_t count = 0;
  int error = 0;
  while (status == HTTP_STATUS_CONTINUE && NotedTermination() == 0) {
    count = read(file, block, sizeof block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) error = errno;
    if (count <= 0) break;
    status = cupsWriteRequestData(CUPS_HTTP_DEFAULT, block, static_cast<std::size_t>(count));
  }
  const bool whole = error == 0 && status == HTTP_STATUS_CONTINUE;
  const std::optional<ipp_status_t> taken = FinishDocument(job.queue);
  const bool stopped = NotedTermination() != 0;
  if (whole && !stopped && taken && *taken <= IPP_STATUS_OK_CONFLICTING) return kExitOk;
  const bool silent = whole && !stopped && !taken;
  const int fault = stopped || silent ? kExitFailure
                    : error != 0      ? Fail(name, std::strerror(error))
                                      : SpoolerFault(job.queue);
  // Half a file must not print, nor a whole one that is sent again.
  const bool canceled =
      cupsCancelJob2(CUPS_HTTP_DEFAULT, job.queue.c_str(), number, 0) <= IPP_STATUS_OK_CONFLICTING;
  if (!silent) return fault;
  return Fail(job.queue + "-" + std::to_string(number),
              Phrase("the spooler did not say that it has the document"),
              canceled ? Phrase("It was canceled: print again")
                       : Phrase("\"lpstat -o\" lists it, with 0 bytes if the document is missing"));
}

int Send(const PrintJob& job, const std::string& text) {
  UniqueFd opened;
  if (job.file != "-") {
    opened = UniqueFd(open(job.file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!opened) return Fail(job.file, std::strerror(errno));
  }
  OptionList list = OptionList::Parse(text.c_str());
  if (job.copies > 0) list.Add("copies", std::to_string(job.copies).c_str());
  AddDefaults(job.queue, &list);
  NoteTermination();  // whoever stops the command wants no half a job either
  const std::string title = job.title.empty() ? BaseName(job.file) : job.title;
  const int number =
      cupsCreateJob(CUPS_HTTP_DEFAULT, job.queue.c_str(), title.c_str(), list.size(), list.data());
  if (number == 0) return SpoolerFault(job.queue);
  const int status = SendFile(job, number, opened ? opened.get() : STDIN_FILENO);
  if (status == kExitOk)
    std::printf("request id is %s-%d (1 file(s))\n", job.queue.c_str(), number);
  return status;
}

}  // namespace

void AddPrintOptions(CLI::App& app, PrintJob* job) {
  app.add_option("-d,--queue", job->queue, "queue")->required();
  app.add_option("-t,--title", job->title, "title of the job");
  app.add_flag("--force", job->force, "print even when something is wrong with the settings");
}

int PrintChecked(PrintJob job, const std::string& options, const std::vector<std::string>& told) {
  QueuePpd ppd;
  ppd.Fetch(job.queue);
  std::vector<std::string> faults;
  if (!ppd.path().empty() && UsesOurFilter(ppd.path())) faults = OptionFaults(options, ppd.path());
  for (const std::string& fault : faults) {
    if (std::find(told.begin(), told.end(), fault) == told.end())
      std::fprintf(stderr, "zarvo: %s\n", PrintableText(fault).c_str());
  }
  if ((!told.empty() || !faults.empty()) && !job.force)
    return Fail(job.file, Phrase("is not printed with such settings"),
                Phrase("Correct them, or give --force to print it all the same"));
  if (const std::string fault = SecretFault(TicketOfOptions(options)); !fault.empty())
    return Fail("settings", fault);
  std::string start(kKindBytes, '\0');
  const Stream file(job.file != "-" ? std::fopen(job.file.c_str(), "rbe") : nullptr);
  start.resize(file ? std::fread(start.data(), 1, start.size(), file.get()) : 0);
  if (KindOfJob(start, job.file) != JobKind::kOffice) return Send(job, options);
  const std::unique_ptr<ScratchFolder> scratch = MakeScratchFolder();
  if (!scratch) return kExitFailure;
  std::string pdf;
  const Failure failure = ConvertOfficeDocument(job.file, *scratch, &pdf);
  if (!failure.empty()) return Fail(job.file, failure);
  if (job.title.empty()) job.title = BaseName(job.file);
  job.file = pdf;
  return Send(job, options);
}

}  // namespace zarvo::tool
