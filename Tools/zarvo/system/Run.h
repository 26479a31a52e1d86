// SPDX-License-Identifier: Apache-2.0
// Programs that the tool lets work for it.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "Tools/zarvo/job/JobFile.h"

namespace zarvo::tool {

/// A folder for intermediate files, for the user's eyes only, removed with all it holds.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  /// False when it could not be made.
  explicit operator bool() const { return !path_.empty(); }
  std::string File(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

struct ChildRun {
  std::vector<std::string> arguments;  ///< the program's path first
  std::string input;                   ///< file that it reads as standard input; empty for none
  std::string output;                  ///< file that its standard output goes to; empty for none
  std::chrono::milliseconds limit = std::chrono::minutes(10);
};

/// Runs a program to its end. True when it ended with 0. `log` gets what it wrote to standard
/// error (and to standard output, when that goes to no file), at most a megabyte, or why it could
/// not be started.
bool RunChild(const ChildRun& run, std::string* log);

/// The path of a program in PATH, or an empty text.
std::string FindProgram(const std::string& name);

/// The filter: beside the tool (a build tree), else where the spooler has it.
std::string FilterPath();

/// The lines of a log that tell of errors, without their prefix; its end when there are none.
std::string ErrorLines(const std::string& log);

/// What the filter has to say about a job that it took: what it left out, and why. Without the
/// lines' prefixes; empty when all went well.
std::string Complaints(const std::string& log);

/// Renders a PostScript or PDF file by Ghostscript. `device` is "pdfwrite" or "png16m"; a PNG
/// `output` holds "%d" for the page's number and has `resolution` dots per inch. Returns an empty
/// text, or why it failed.
std::string Render(const std::string& input, const std::string& device, int resolution,
                   const std::string& output);

/// Takes the PostScript out of a job that the filter wrote, into the file `postscript`. `facts`
/// tells what the job holds. Returns an empty text, or why it failed.
std::string TakePostScript(const std::string& job, const std::string& postscript, JobFile* facts);

/// Copies a file to `target`, or to standard output for "-". Returns an exit status.
int Deliver(const std::string& file, const std::string& target);

}  // namespace zarvo::tool
