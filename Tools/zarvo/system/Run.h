// SPDX-License-Identifier: Apache-2.0
// Programs that the tool lets work for it.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/ScratchFolder.h"
#include "Tools/zarvo/job/JobFile.h"

namespace zarvo::tool {

struct StreamCloser {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, StreamCloser>;

/// Makes the folder of a command's intermediate files. Null when that fails, which is told. From
/// now on a signal that asks the tool to end is noted, so that the command clears away what it has
/// made.
std::unique_ptr<ScratchFolder> MakeScratchFolder();

/// This program's environment for a child whose temporary files go into the folder; the filter is
/// given this PPD file, or none.
std::vector<std::string> ChildEnvironment(const ScratchFolder& scratch,
                                          const std::string& ppd = "");

/// The time that a program of ours may take at most.
constexpr std::chrono::milliseconds kLongestRun = std::chrono::minutes(10);

struct ChildRun {
  std::vector<std::string> arguments;  ///< the program's path first
  /// Its environment; nothing gives it this program's.
  std::optional<std::vector<std::string>> environment = {};
  std::string input;   ///< file that it reads as standard input; empty for none
  std::string output;  ///< file that its standard output goes to; empty for none
  /// Gets each line of its standard output, without its end, when that goes to no file.
  std::function<void(std::string_view)> line = {};
  std::chrono::milliseconds limit = kLongestRun;
  unsigned cpu_seconds = 0;         ///< 0 for no limit
  std::uint64_t address_space = 0;  ///< bytes; 0 for no limit
};

/// Runs a program to its end. True when it ended with 0. `log` gets what it wrote to standard
/// error (and to standard output, when that goes to no file), at most a megabyte, or why it could
/// not be started.
bool RunChild(const ChildRun& run, std::string* log);

/// The path of a program in PATH, or an empty text.
std::string FindProgram(const std::string& name);

/// The filter: beside the tool (a build tree), else where the spooler has it.
std::string FilterPath();

/// What a program wrote into a file for its standard error, at most a megabyte.
std::string ReadLog(int file);

/// The lines of a log that tell of errors, without their prefix; its end when there are none.
std::string ErrorLines(const std::string& log);

/// What the filter has to say about a job that it took: what it left out, and why.
struct Complaint {
  bool fault;        ///< the job is not what was asked for
  std::string text;  ///< without the line's prefix
};
std::vector<Complaint> Complaints(const std::string& log);

/// A job's PostScript, taken apart as the printer does.
struct PostScriptFiles {
  JobFile facts;
  std::vector<std::string> files;  ///< one for each of facts.jobs
};

/// Takes the PostScript out of a job, each job into a file of its own. `page` (may be empty) hears
/// of each page comment: how many there were, and how many the document announces or 0.
Failure SplitJob(std::FILE* job, const ScratchFolder& scratch,
                 const std::function<void(std::uint64_t, std::uint64_t)>& page,
                 PostScriptFiles* split);

/// Copies all of `input`. False when either side fails.
bool CopyAll(std::FILE* input, std::FILE* output);

/// Copies a file to `target`, or to standard output for "-". Returns an exit status.
int Deliver(const std::string& file, const std::string& target);

}  // namespace zarvo::tool
