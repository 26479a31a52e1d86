// SPDX-License-Identifier: Apache-2.0
// zarvo accounting: a line of JSON for each job that has ended, once.
//
// The log itself tells what is in it: the state holds the mark of the jobs that were taken, and how
// long the log was then. Lines behind that were written by a run that did not get to its end; they
// are taken into the mark, and one that is not whole is cut off. So it is across one rotation by
// renaming.
#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>

#include "CUPSFilter/Options/HouseTicketOption.h"
#include "Platform/AtomicFile.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/commands/FinishedJobs.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/ticket/JobTicket.h"
#include "Tools/zarvo/ticket/WrittenJob.h"

namespace zarvo::tool {
namespace {

using Json = nlohmann::ordered_json;

struct AccountingOptions {
  std::string log = "/var/log/zarvo/accounting.log";
  std::string state = "/var/lib/zarvo-tools/accounting.json";
};

/// Written down together; what is lost with the power is at most as much to do again.
constexpr std::size_t kBatch = 200;
/// Who looks after printers may read the log.
constexpr char kReaders[] = "lpadmin";
constexpr char kTime[] = "%Y-%m-%dT%H:%M:%SZ";

std::string TimeText(std::time_t time) {
  std::tm parts{};
  gmtime_r(&time, &parts);
  char text[32];
  return {text, std::strftime(text, sizeof text, kTime, &parts)};
}

std::time_t TimeOf(const std::string& text) {
  std::tm parts{};
  return strptime(text.c_str(), kTime, &parts) != nullptr ? timegm(&parts) : 0;
}

/// The first of these options, without what marks a PPD's own choice.
std::string OptionOf(const OptionList& options, std::initializer_list<const char*> names) {
  constexpr std::string_view kCustom = "Custom.";
  for (const char* name : names) {
    const char* value = cupsGetOption(name, options.size(), options.data());
    if (value == nullptr || *value == '\0') continue;
    const std::string_view text = value;
    return std::string(text.starts_with(kCustom) ? text.substr(kCustom.size()) : text);
  }
  return "";
}

/// What a job costs beside its sheets.
struct Settings {
  Json colour = nullptr;  ///< of those that say so: "color" or "gray"
  Json sides = nullptr;
  Json finishing = Json::array();
};

/// Finds settings as the filter does, and remembers them: most jobs are sent with the same.
class SettingsFinder {
 public:
  Settings Of(const FinishedJob& job) {
    OptionList rest;
    std::string key = job.queue;
    for (const cups_option_t& option : job.options.span()) {
      const std::string_view name = option.name;
      // Whose it is, and what it is called, costs nothing.
      if (name.starts_with("Account") || name.starts_with("com.zarvo.Act.") ||
          name.find("PIN") != name.npos || name.find("ob-uuid") != name.npos ||
          name.starts_with("document-") || name.starts_with("time-") || name.starts_with("date-"))
        continue;
      rest.Add(option.name, option.value);
      key += std::string(1, '\0') + option.name + "=" + option.value;
    }
    const auto known = known_.find(key);
    if (known != known_.end()) return known->second;
    return known_[key] = Find(job.queue, rest);
  }

 private:
  Settings Find(const std::string& queue, const OptionList& options) {
    QueuePpd& ppd = ppds_[queue];
    if (ppd.path().empty()) ppd.Fetch(queue);
    std::vector<std::string> others, kept;
    ResolvedHouseTicket house;
    const std::string named = OptionOf(options, {kHouseTicketOption});
    // Without the ticket the job's own settings are still true.
    if (!named.empty() && named != "None") LoadHouseTicket(named, &house);
    const Dictionary ticket = TicketOfJob(options, ppd.path(), house, &others, &kept);
    Settings found;
    std::int32_t colour = 0;
    CFDictionaryGetNumber(ticket, key::kFinishingOutputColor, &colour);
    if (colour != 0) found.colour = colour == 1 ? "gray" : "color";
    for (const Saying& saying : WriteJob(ticket).job) {
      if (saying.path == "sides") found.sides = saying.text;
      if (saying.path.starts_with("finishings/") &&
          saying.text.find_first_not_of("0123456789") == saying.text.npos)
        found.finishing.push_back(ippEnumString("finishings", std::atoi(saying.text.c_str())));
    }
    return found;
  }

  std::map<std::string, Settings> known_;
  std::map<std::string, QueuePpd> ppds_;
};

/// A job's line. No title: what people print is nobody's account.
std::string LineOf(const FinishedJob& job, SettingsFinder* finder) {
  const Settings settings = finder->Of(job);
  const Json line = {
      {"job", job.queue + "-" + std::to_string(job.end.number)},
      {"uuid", job.uuid},
      {"ended", TimeText(job.end.ended)},
      {"created", TimeText(job.created)},
      {"queue", job.queue},
      {"user", job.user},
      {"host", job.host},
      {"account", OptionOf(job.options, {"job-account-id", "com.zarvo.Act.AID",
                                         "com.zarvo.Act.jtml.AID", "AccountID"})},
      {"account_user", OptionOf(job.options, {"job-accounting-user-id", "com.zarvo.Act.UID",
                                              "com.zarvo.Act.jtml.UID", "AccountUser"})},
      {"sheets", job.sheets},
      {"pages", job.sides},
      {"copies", job.copies},
      {"colour", settings.colour},
      {"sides", settings.sides},
      {"finishing", settings.finishing},
      {"outcome", OutcomeOf(job)}};
  return line.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

/// The log, and how much of it the state knows of.
class Log {
 public:
  explicit Log(std::string path) : path_(std::move(path)) {}

  /// Opens the log, or makes it, and takes into the mark what is in it and not in the state.
  bool Open(const nlohmann::json& state, HistoryMark* mark) {
    const auto known = [&](const char* name) { return state.value(name, std::int64_t{0}); };
    file_.reset(::open(path_.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0640));
    struct stat info {};
    if (!file_ || ::fstat(file_.get(), &info) != 0) return false;
    if (info.st_size == 0) {
      const group* readers = ::getgrnam(kReaders);
      if (readers != nullptr && ::geteuid() == 0 &&
          ::fchown(file_.get(), static_cast<uid_t>(-1), readers->gr_gid) != 0)
        return false;
      if (::fchmod(file_.get(), S_IRUSR | S_IWUSR | S_IRGRP) != 0) return false;
    }
    const std::int64_t inode = known("inode");
    if (static_cast<std::int64_t>(info.st_ino) == inode)
      return TakeFrom(file_.get(), known("size"), mark);
    const UniqueFd rotated(::open((path_ + ".1").c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
    if (inode != 0 && rotated && ::fstat(rotated.get(), &info) == 0 &&
        static_cast<std::int64_t>(info.st_ino) == inode &&
        !TakeFrom(rotated.get(), known("size"), mark))
      return false;
    return TakeFrom(file_.get(), 0, mark);
  }

  /// Puts lines at the end, down to the disk.
  bool Append(std::string_view lines) {
    while (!lines.empty()) {
      const ssize_t written = ::write(file_.get(), lines.data(), lines.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      lines.remove_prefix(static_cast<std::size_t>(written));
    }
    return ::fsync(file_.get()) == 0;
  }

  /// For the state: which file it is, and its length.
  void Describe(nlohmann::json* state) const {
    struct stat info {};
    if (::fstat(file_.get(), &info) != 0) return;
    (*state)["inode"] = static_cast<std::int64_t>(info.st_ino);
    (*state)["size"] = static_cast<std::int64_t>(info.st_size);
  }

 private:
  static bool TakeFrom(int file, std::int64_t start, HistoryMark* mark) {
    if (::lseek(file, start, SEEK_SET) < 0) return false;
    std::string text;
    char piece[1 << 16];
    for (ssize_t size; (size = ::read(file, piece, sizeof piece)) != 0;) {
      if (size < 0) return false;
      text.append(piece, static_cast<std::size_t>(size));
      std::size_t begin = 0;
      for (std::size_t end; (end = text.find('\n', begin)) != text.npos; begin = end + 1) {
        const nlohmann::json line =
            nlohmann::json::parse(text.substr(begin, end - begin), nullptr, false);
        if (!line.is_object()) continue;
        mark->Take({JobNumber(line.value("job", "")), TimeOf(line.value("ended", ""))});
      }
      start += static_cast<std::int64_t>(begin);
      text.erase(0, begin);
    }
    return text.empty() || ::ftruncate(file, start) == 0;
  }

  std::string path_;
  UniqueFd file_;
};

int Account(const AccountingOptions& options) {
  HistoryState state(options.state);
  if (!state.locked()) return Fail(state.folder(), std::strerror(errno), kWhoMay);
  Log log(options.log);
  std::error_code error;  // opening the log says what is wrong
  std::filesystem::create_directories(std::filesystem::path(options.log).parent_path(), error);
  if (!log.Open(state.content, &state.mark))
    return Fail(options.log, std::strerror(errno), "Run it as root");

  const SpoolerConnection spooler = ConnectToSpooler();
  if (!spooler) return Fail("spooler", kNoAnswer);
  std::vector<EndedJob> ended;
  if (const Failure failure = ListEnded(spooler.get(), state.mark, &ended); !failure.empty())
    return Fail("spooler", failure);
  SettingsFinder finder;
  for (std::size_t done = 0; done < ended.size();) {
    std::string lines;
    for (const std::size_t end = std::min(done + kBatch, ended.size()); done < end; ++done) {
      FinishedJob job;
      const Failure failure = DescribeJob(spooler.get(), ended[done], &job);
      if (!failure.empty() && lines.empty() && done == 0)
        return Fail("job " + std::to_string(ended[done].number), failure);
      if (failure.empty()) lines += LineOf(job, &finder);
      state.mark.Take(ended[done]);
    }
    if (!log.Append(lines)) return Fail(options.log, std::strerror(errno));
    log.Describe(&state.content);
    if (!state.Save()) return Fail(options.state, std::strerror(errno));
  }
  return kExitOk;
}

}  // namespace

void SetUpAccounting(CLI::App& app, Action* action) {
  const auto options = std::make_shared<AccountingOptions>();
  app.add_option("--log", options->log, "the file that gets a line of JSON for each job")
      ->capture_default_str();
  app.add_option("--state", options->state, "the file that holds how far it has come")
      ->capture_default_str();
  app.callback([=] { *action = [=] { return Account(*options); }; });
}

}  // namespace zarvo::tool
