// SPDX-License-Identifier: Apache-2.0
// The spooler's queues and their PPD files.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Failure.h"

namespace zarvo::tool {

/// A queue's PPD file as the spooler hands it out: a temporary copy, removed with the object.
class QueuePpd {
 public:
  QueuePpd() = default;
  ~QueuePpd();
  QueuePpd(const QueuePpd&) = delete;
  QueuePpd& operator=(const QueuePpd&) = delete;

  Failure Fetch(const std::string& queue);
  /// Empty until it has been fetched.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

/// The names of the spooler's queues.
Failure ListQueues(std::vector<std::string>* names);

/// Why nothing can be had from a queue: that there is none of this name, and which may have been
/// meant, or else the spooler's last answer.
std::string QueueFault(const std::string& queue);

/// The queue that jobs go to when none is named, or an empty text.
std::string DefaultQueue();

/// The PPD's options as "lp -o" takes them: "Name=" for each, or with `values` "Name=Choice" for
/// each choice. Nothing when the file cannot be read.
std::vector<std::string> OptionWords(const std::string& path, bool values);

/// What turns PDF files into PostScript, as the spooler's option "pdftops-renderer" has it. Its own
/// default can take minutes for a drawing that is see-through, and makes one picture of the page.
inline constexpr const char* kRendererOption = "pdftops-renderer";
inline constexpr const char* kBestRenderer = "pdftops";

/// The queue's own default of an option, or an empty text when it has none.
std::string QueueDefault(const std::string& queue, const std::string& option);

/// Whether the queue has a job under way; false also when the spooler does not answer.
bool IsPrinting(const std::string& queue);

/// Whether settings say already what an option is about, under its name or the one that the PPD or
/// the spooler has for the same: what a user keeps for a queue goes below it. `has` tells whether
/// they have an option of that name.
bool IsSaid(std::string_view option, const std::function<bool(const char*)>& has);

/// Why the PPD file cannot be used, with its line.
Failure PpdFault(const std::string& path);

/// Whether the PPD file has jobs pass through our filter.
bool UsesOurFilter(const std::string& path);

}  // namespace zarvo::tool
