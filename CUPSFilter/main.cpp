// SPDX-License-Identifier: Apache-2.0
// The filter: one job from the spooler's arguments to the exit status.
#include <cups/cups.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "CUPSFilter/Booklet/ImposeJob.h"
#include "CUPSFilter/CopyPass/CopyPass.h"
#include "CUPSFilter/CopyPass/CopyRules.h"
#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JobNotices.h"
#include "CUPSFilter/JobOutput.h"
#include "CUPSFilter/JobSettings.h"
#include "CUPSFilter/Options/HouseTicketOption.h"
#include "CUPSFilter/Options/JudgeRequest.h"
#include "CUPSFilter/Options/ParseOptions.h"
#include "CUPSFilter/Options/PpdTicket.h"
#include "CUPSFilter/Options/QueuePolicy.h"
#include "CUPSFilter/Options/SchedulerRequest.h"
#include "CUPSFilter/Options/StandardOptions.h"
#include "CUPSFilter/Options/common.h"
#include "CUPSFilter/SpoolFile.h"
#include "CUPSFilter/Watermark/PageHooks.h"
#include "HouseTicket/HouseTicketStore.h"
#include "Platform/Log.h"
#include "Platform/Phrase.h"
#include "Platform/Process.h"
#include "Platform/ScratchFolder.h"
#include "Platform/SpoolerUser.h"
#include "Platform/UniqueFd.h"
#include "Source/CFAdditions.h"
#include "Source/DrawHelper.h"
#include "Source/FaxCover.h"
#include "Source/Preferences.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr int kSuccess = 0;
constexpr int kFailure = 1;

/// What the attributes ask for themselves, without what only keeps defaults from showing through.
OptionList Asked(const StandardTicket& standard) {
  OptionList asked;
  for (const StandardSetting& setting : standard.settings)
    if (!setting.quiet) asked.Add(setting.name.c_str(), setting.value.c_str());
  return asked;
}

/// Replaces the ticket of a job that names a house ticket. Gives why the job must not be printed.
std::string PutHouseTicketBelow(const NamedHouseTicket& named, const PpdChoices& chosen,
                                const StandardTicket& standard, const OptionList& options,
                                Dictionary* ticket, JobNotices* notices) {
  if (!named.fault.empty() || named.name.empty()) return named.fault;
  ResolvedHouseTicket house;
  if (std::string fault = LoadHouseTicket(named.name, &house); !fault.empty()) return fault;
  const auto decode = [](std::initializer_list<const OptionList*> lists) {
    const std::vector<cups_option_t> ordered = TicketOrder(lists);
    return ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
  };
  const OptionList asked = Asked(standard);
  std::vector<std::string> kept;
  *ticket = ApplyHouseTicket(house,
                             {QueueDefaults(std::getenv("PPD")), decode({&chosen.others}),
                              decode({&asked, &chosen.named}), decode({&options})},
                             &kept);
  for (const std::string& path : kept)
    notices->Add(
        Phrase("%1: house ticket \"%2\" does not let jobs change it, it was left as it is there",
               {path, named.name}));
  return "";
}

/// The sides that a house ticket asks for, wherever the filter acts on them itself. Gives what
/// a page description that knows nothing of them has to ask the page device for, or null.
const char* ReadHouseSides(const Dictionary& ticket, JobSettings* settings) {
  std::int32_t sides = 0;
  if (!CFDictionaryGetNumber(ticket, key::kFinishingDuplex, &sides)) return nullptr;
  const bool tumble = sides == kShortEdge;
  const bool duplex = tumble || sides == kLongEdge;
  const bool is_known = std::exchange(Duplex, duplex ? 1 : 0) == (duplex ? 1 : 0) && !tumble;
  settings->sides = !duplex ? "one-sided" : tumble ? "two-sided-short-edge" : "two-sided-long-edge";
  if (is_known || settings->booklet) return nullptr;
  return !duplex  ? "<</Duplex false>>"
         : tumble ? "<</Duplex true/Tumble true>>"
                  : "<</Duplex true/Tumble false>>";
}

struct Job {
  Dictionary ticket;
  JobSettings settings;
};

/// Nothing when the job must not be printed, which is told. `arguments` are the filter's.
std::optional<Job> ReadJob(char** arguments, std::optional<JobNotices>* notices) {
  // Never given back: freeing the list one option at a time would cost more than decoding it.
  static OptionList& options = *new OptionList(OptionList::Parse(arguments[5]));
  Ppd ppd = SetCommonOptions(options.size(), options.data(), 1);
  const QueuePolicy policy = ReadQueuePolicy(ppd);
  notices->emplace(policy.failClosed || policy.standardTicket);
  (*notices)->Begin();
  StandardJob standard;
  if (policy.standardTicket)
    standard = ReadStandardJob(arguments[1], arguments[2], options, &ppd);
  else if (policy.failClosed || policy.hidden != Ppd::Hidden::kNo)
    standard = ReadLeftOutOptions(arguments[1], arguments[2], options, &ppd);
  if (!policy.standardTicket && ppd.HasOption(kHouseTicketOption))
    for (const cups_option_t& option : options.span()) standard.ownNames.insert(option.name);
  options.AddMissing(standard.leftOut);
  std::vector<std::string> faults;
  PpdChoices chosen = PpdTicketOptions(ppd, standard.ownNames, &faults);
  for (const std::string& dictionary : standard.ticket.without)
    chosen.others.RemoveBelow(dictionary);
  const OptionList attributes = StandardOptions(&standard.ticket, &chosen.named, options);
  const std::vector<cups_option_t> ordered =
      TicketOrder({&chosen.others, &attributes, &chosen.named, &options});
  std::vector<std::string_view> left_out;
  Job job;
  job.ticket =
      ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()), &left_out);
  std::string refusal = standard.ticket.refusal;
  const NamedHouseTicket house = FindHouseTicketName(options, chosen, standard, ppd);
  if (refusal.empty())
    refusal = PutHouseTicketBelow(house, chosen, standard.ticket, options, &job.ticket, &**notices);
  const std::vector<cups_option_t> choices = TicketOrder({&chosen.others, &chosen.named});
  const JobRequest request = {options.span(), choices, left_out};
  const Judgement verdict = JudgeRequest(request, policy, ppd, &job.ticket);
  if (refusal.empty()) refusal = verdict.refusal;
  if (!verdict.refusal.empty() || !verdict.notices.empty()) (*notices)->Tell();
  for (const std::string& text : verdict.notices) (*notices)->Add(text);
  // The spooler shows people the first of all errors.
  if (!refusal.empty()) {
    (*notices)->TellFailure(kRefusal + refusal);
    (*notices)->MarkRefused();
  }
  for (const std::string& fault : faults) LogLine("ERROR: %s", fault.c_str());
  if (!refusal.empty()) return std::nullopt;
  for (const NotHonoured& lost : standard.ticket.not_honoured)
    (*notices)->Add(lost.attribute + ": not honoured, " + lost.reason);
  options.AddMissing(chosen.named);
  options.AddMissing(attributes);
  options.AddMissing(chosen.others);
  job.settings = ReadJobSettings(job.ticket, options.size(), options.data(), &**notices);
  const char* sides = house.name.empty() ? nullptr : ReadHouseSides(job.ticket, &job.settings);
  job.settings.pageHooks = PageHooksWanted(ppd);
  job.settings.failClosed = policy.failClosed;
  job.settings.copies = ReadCopyPlan(ppd, job.ticket, options.span(), arguments[4]);
  job.settings.copies.sides = sides;
  return job;
}

/// The log line and status of a copy pass that could not read its input to the end.
int ReportInput(CopyResult result, int error, const char* input_name) {
  if (result == CopyResult::kEarlyEnd) {
    LogLine("ERROR: Early end-of-file while reading binary data: %s", std::strerror(0));
  } else {
    LogLine("ERROR: unable to read print file \"%s\" - %s", input_name, std::strerror(error));
  }
  return kFailure;
}

/// The status of a job that was read to its end. A job that is cut short is told, or the spooler
/// would report it as printed. `spooled` is `printer` when the job was not spooled.
int ReportWrites(JobOutput& spooled, JobOutput& printer) {
  if (&spooled != &printer && spooled.error() != 0) {
    LogLine("ERROR: unable to spool the job - %s; make room in TMPDIR and send it again",
            std::strerror(spooled.error()));
    return kFailure;
  }
  if (printer.error() != 0) {
    LogLine("ERROR: unable to write the job - %s; it was cut short",
            std::strerror(printer.error()));
    return kFailure;
  }
  return kSuccess;
}

/// Whether the input ends before its first byte; waits until one of both is there. The spooler
/// takes no empty documents, so whoever should have sent this one could not, as for want of room,
/// or was asked for pages that it has not.
bool IsEmpty(int input) {
  struct stat status {};
  if (fstat(input, &status) == 0 && S_ISREG(status.st_mode))
    return lseek(input, 0, SEEK_CUR) >= status.st_size;
  pollfd ready{input, POLLIN, 0};
  return poll(&ready, 1, -1) == 1 && ready.revents == POLLHUP;
}

int RunJob(const Job& job, const char* input_name, JobNotices* notices) {
  UniqueFd file;
  int input = STDIN_FILENO;
  if (input_name != nullptr) {
    file = UniqueFd(open(input_name, O_RDONLY | O_CLOEXEC));
    if (file.get() < 0) {
      LogLine("ERROR: unable to open print file \"%s\" - %s", input_name, std::strerror(errno));
      return kFailure;
    }
    input = file.get();
  }
  if (job.settings.failClosed && IsEmpty(input)) {
    const std::string_view cause =
        job.settings.copies.chosen
            ? PhraseText(
                  "not a byte of it came: the document has none of these pages "
                  "(page-ranges, page-set), or a program before this filter failed; choose "
                  "others, or look what it says")
            : PhraseText(
                  "not a byte of it came; look for what the programs before this filter "
                  "say, make room on their disk and send it again");
    notices->TellFailure(std::string(kRefusal).append(cause));
    return kFailure;
  }
  std::unique_ptr<SpoolFile> spool;
  if (job.settings.booklet) {
    spool = SpoolFile::Create();
    if (!spool) {
      const int error = errno;
      LogLine("ERROR: unable to get tmpnam");
      LogLine(
          "ERROR: no file can be made in TMPDIR, \"%s\" - %s; let TMPDIR name a folder that the "
          "spooler's user may write",
          TemporaryFolder().c_str(), std::strerror(error));
      return kFailure;
    }
  }
  JobOutput printer(stdout);
  std::optional<JobOutput> spooled;
  if (spool) spooled.emplace(spool->stream());
  JobOutput& output = spooled ? *spooled : printer;
  CopyRules rules(job.settings, job.ticket, output, notices);
  if (!rules.Prepare()) return kFailure;
  if (job.settings.emitJTML == 1) WriteJTML(output.stream(), job.ticket);

  CopyPass pass(input, rules, output);
  const CopyResult result = pass.Run();
  output.Flush();
  if (!rules.refusal().empty()) {
    notices->TellFailure(rules.refusal());
    return kFailure;
  }
  if (result == CopyResult::kGrownTooMuch) {
    notices->TellFailure("the job grew past " + std::to_string(kMostGrowth >> 20) + " MiB and " +
                         std::to_string(kMostTimes) +
                         " times its size; it was cut short. Print it without watermark and cover, "
                         "or by another program");
    return kFailure;
  }
  if (result == CopyResult::kEarlyEnd || result == CopyResult::kReadFailed)
    return ReportInput(result, pass.error(), input_name != nullptr ? input_name : "(stdin)");
  if (spool && output.error() == 0) {
    const std::optional<long> sheets =
        job.settings.pageHooks
            ? ImposeDocuments(job.ticket, job.settings, *spool, rules.documents(), printer, notices)
            : ImposeJob(job.ticket, job.settings, *spool, printer);
    printer.Flush();
    if (sheets) LogSheets(job.settings.copies, *sheets);
    // Of old such a job counted as printed, so that the queue went on.
    if (!sheets && (job.settings.failClosed || job.settings.pageHooks)) return kFailure;
  }
  return ReportWrites(output, printer);
}

/// Asks for more room in the pipes to our neighbours, so that neither waits for the other at every
/// 64 KiB. What the system does not grant is only slower.
void WidenPipes() {
  constexpr int kPipeSize = 1 << 20;
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO})
    fcntl(descriptor, F_SETPIPE_SZ, kPipeSize);
}

/// A standard descriptor that is not open would be given to the next file that is opened, and the
/// job would be mixed into it. What takes its place can be neither read nor written.
void OpenStandardDescriptors() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(descriptor, F_GETFD) < 0)
      open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  }
}

/// Options, and with them a PIN, are in this process's memory: it is dumped nowhere, and shown to
/// no other process of the spooler's user.
void HideMemory() {
  const rlimit none{0, 0};
  setrlimit(RLIMIT_CORE, &none);
#ifndef __SANITIZE_ADDRESS__
  // (The leak sanitizer looks into its own process.)
  prctl(PR_SET_DUMPABLE, 0);
#endif
}

/// The spooler hears of a filter's end by a signal and of its reasons through a pipe. When the end
/// comes first, all that people ever read of the job is "Filter failed".
void LetReasonsBeRead() {
  constexpr timespec kLongEnough{0, 200'000'000};
  if (UnderScheduler()) nanosleep(&kLongEnough, nullptr);
}

/// Whether all that a job started by hand names is open to the user.
bool ReachesEverything(const SpoolerUser& user, const char* input_name) {
  const auto is_open = [&user](const std::string& path, int access) {
    return ::access(path.c_str(), F_OK) != 0 || SpoolerMay(user, path, access);
  };
  const char* ppd = std::getenv("PPD");
  return (input_name == nullptr || is_open(input_name, R_OK)) &&
         (ppd == nullptr || is_open(ppd, R_OK)) && is_open(TemporaryFolder(), W_OK | X_OK) &&
         is_open(CopyPreferenceFileURL(kWatermarkCollection).value_or("/"), R_OK) &&
         is_open(CopyPreferenceFileURL(kHouseTicketFile).value_or("/"), R_OK) &&
         is_open(CopyPreferenceFileURL(kFaxImageCollection).value_or("/"), R_OK) &&
         is_open(DrawHelperPath(), X_OK);
}

/// Goes to the spooler's user when root has started this. Only root itself can have done so by
/// hand, on files of its own: then it stays root when the job could not be printed otherwise.
/// False, and one log line, when it cannot.
bool LeaveRoot(const char* input_name) {
  if (geteuid() != 0) return true;
  const std::optional<SpoolerUser> user = FindSpoolerUser();
  const bool by_spooler = std::getenv("SOFTWARE") != nullptr;  // which sets it for all its filters
  if (!by_spooler && (!user || !ReachesEverything(*user, input_name))) return true;
  if (user && BecomeSpoolerUser(*user)) return true;
  LogLine(
      "ERROR: unable to leave root - %s; correct User and Group in cups-files.conf, they name the "
      "spooler's user",
      user ? std::strerror(errno) : "no such user");
  return false;
}

int Main(int argc, char** argv) {
  std::setvbuf(stderr, nullptr, _IONBF, 0);
  OpenStandardDescriptors();
  if (!LeaveRoot(argc == 7 ? argv[6] : nullptr)) return kFailure;
  HideMemory();
  // A printer connection that goes away, or a file at its limit, shows as a failed write, not as a
  // silent death.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  EndChildrenOnTermination();
  if (argc != 6 && argc != 7) {
    LogLine("ERROR: pstops job-id user title copies options [file]");
    return kFailure;
  }
  WidenPipes();
  static char output_buffer[1 << 16];
  std::setvbuf(stdout, output_buffer, _IOFBF, sizeof output_buffer);
  std::optional<JobNotices> notices;
  const std::optional<Job> job = ReadJob(argv, &notices);
  if (!job) {
    LetReasonsBeRead();
    return kFailure;
  }
  const int status = RunJob(*job, argc == 7 ? argv[6] : nullptr, &*notices);
  if (status == kSuccess) {
    notices->Finish();
  } else {
    notices->MarkRefused();
    LetReasonsBeRead();
  }
  if (status == kSuccess) LogLine("DEBUG: leaving Zarvo cups filter");
  return status;
}

}  // namespace
}  // namespace zarvo

int main(int argc, char** argv) {
  try {
    return zarvo::Main(argc, argv);
  } catch (const std::bad_alloc&) {
    constexpr char kText[] = "ERROR: out of memory; the job was cut short. Send it again\n";
    [[maybe_unused]] const auto written = write(STDERR_FILENO, kText, sizeof kText - 1);
    return zarvo::kFailure;
  }
}
