// SPDX-License-Identifier: Apache-2.0
// What a job asked for and does not get: one line of the log for each, and, by what the spooler
// keeps of a job, an answer to the person who sent it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zarvo {

/// Of a finished job the spooler keeps one message, its first ERROR line or else its last WARNING
/// line, and the queue's states of that moment. Both are read by "lpstat -l", print dialogs and
/// "zarvo why", without any right but to ask.
inline constexpr char kRefusedState[] = "com.zarvo.job-refused-warning";
inline constexpr char kNotAsAskedState[] = "com.zarvo.not-as-asked-report";
/// What stands before the reason of a job of which nothing is printed.
inline constexpr char kRefusal[] = "the job was not printed: ";
/// What stands before several notices in one line, each after its number: "(1) ... (2) ...".
inline constexpr char kSummaryStart[] = "Not as asked: ";

class JobNotices {
 public:
  /// With `told` false nothing is told, as with PPDs from before this was known.
  explicit JobNotices(bool told) : told_(told) {}

  bool told() const { return told_; }
  bool empty() const { return notices_.empty(); }

  /// From now on all is told.
  void Tell() { told_ = true; }
  /// Takes back what the queue shows of the job before.
  void Begin() const;
  /// A setting that is dropped, cut or replaced: one WARNING line with its name, the cause and what
  /// to do, without any secret.
  void Add(const std::string& text);
  /// The job is not printed, or not to its end: one ERROR line, which holds the notices too,
  /// because the spooler keeps no other.
  void TellFailure(const std::string& text) const;
  /// The queue's state of a job that is not printed, or not to its end; a line tells that already.
  void MarkRefused() const;
  /// At the end of the job: the line that holds all notices, when there are several. Where it has
  /// no room for them, those with one reason stand together, and for the last there are the names
  /// only.
  void Finish() const;

 private:
  /// Behind so many bytes of the line.
  std::string Summary(std::size_t before) const;

  bool told_;
  std::vector<std::string> notices_;
};

}  // namespace zarvo
