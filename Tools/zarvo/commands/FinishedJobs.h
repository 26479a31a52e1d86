// SPDX-License-Identifier: Apache-2.0
// The jobs that have ended on this machine, each taken once, for figures and accounts.
//
// Design. No program of ours watches jobs: the spooler keeps those that have ended
// (PreserveJobHistory), newest first, each with the second in which it did. Whoever gathers
// something from them keeps a mark, takes what has ended since, and saves the mark with what it has
// gathered. A job that is printed again ends again, and is taken again. Jobs that end in the second
// of the mark, or after the clock was set back by minutes, are told from those that were taken by
// their numbers.
#pragma once

#include <ctime>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "CUPSFilter/Options/OptionList.h"
#include "CUPSFilter/Options/SchedulerRequest.h"
#include "Platform/AtomicFile.h"
#include "Tools/zarvo/system/Spooler.h"
#include "Tools/zarvo/system/SpoolerJobs.h"

namespace zarvo::tool {

struct EndedJob {
  int number = 0;
  std::time_t ended = 0;
};

/// How far the history has been taken.
class HistoryMark {
 public:
  bool Has(const EndedJob& job) const;
  void Take(const EndedJob& job);
  /// The end of the newest job that was taken; 0 before the first.
  std::time_t newest() const { return newest_; }
  /// No job older than that is asked for.
  std::time_t oldest() const;

  nlohmann::json ToJson() const;
  /// Anything else than what ToJson gave is a mark that nothing was taken before.
  static HistoryMark FromJson(const nlohmann::json& json);

 private:
  std::time_t newest_ = 0;
  std::map<int, std::time_t> taken_;  ///< that ended shortly before the newest, by their number
};

/// Told when the state cannot be had.
inline constexpr char kWhoMay[] = "Run it as root, and once at a time";

/// What is remembered between runs: a JSON object in a file of the owner's only, with the mark in
/// it. One process at a time has it; a file that holds anything else is a beginning anew.
class HistoryState {
 public:
  /// Makes the file's folder where it is missing, locks it and reads the file; `locked` says
  /// whether that could be done, errno otherwise why not.
  explicit HistoryState(std::string file);
  bool locked() const { return static_cast<bool>(lock_); }
  const std::string& folder() const { return folder_; }

  /// Writes it with the mark, at once or not at all; false with errno.
  bool Save();

  nlohmann::json content;
  HistoryMark mark;

 private:
  std::string file_, folder_;
  FolderLock lock_;
};

/// What the spooler kept of a job that has ended.
struct FinishedJob {
  EndedJob end;
  JobState state = JobState::kDone;  ///< kCanceled, kAborted or kDone
  std::string uuid, queue, user, host, message;
  int sheets = 0;  ///< of all copies; printers' own, such as covers, are not among them
  int sides = 0;   ///< printed ones, as the page log has them
  int copies = 1;
  std::time_t created = 0, started = 0;  ///< seconds since 1970; 0 for never
  OptionList options;                    ///< what it was sent with, secrets among it
};

/// What may become of a job: printed but for something that was left out is "not-as-asked";
/// "refused" is what the filter did not print, for a reason.
inline constexpr const char* kOutcomes[] = {"printed", "not-as-asked", "canceled", "refused",
                                            "failed"};

/// One of kOutcomes.
const char* OutcomeOf(const FinishedJob& job);

/// A request about all queues, in this user's name.
IppMessage NewSpoolerRequest(ipp_op_t operation);

/// Those that have ended since the mark, the earliest first.
Failure ListEnded(http_t* spooler, const HistoryMark& mark, std::vector<EndedJob>* jobs);

/// All about one. It fails when the spooler does not know it any more, or does not tell this user.
Failure DescribeJob(http_t* spooler, const EndedJob& end, FinishedJob* job);

}  // namespace zarvo::tool
