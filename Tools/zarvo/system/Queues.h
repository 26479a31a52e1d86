// SPDX-License-Identifier: Apache-2.0
// The spooler's queues and their PPD files.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace zarvo::tool {

/// A queue's PPD file as the spooler hands it out: a temporary copy, removed with the object.
class QueuePpd {
 public:
  /// Fetches it. On failure path() is empty and `error` tells why.
  QueuePpd(const std::string& queue, std::string* error);
  ~QueuePpd();
  QueuePpd(const QueuePpd&) = delete;
  QueuePpd& operator=(const QueuePpd&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

/// The names of the spooler's queues. False, with the reason in `error`, when it does not answer.
bool ListQueues(std::vector<std::string>* names, std::string* error);

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

/// Why the PPD file cannot be used, with its line, or an empty text.
std::string PpdFault(const std::string& path);

/// Whether the PPD file has jobs pass through our filter.
bool UsesOurFilter(const std::string& path);

}  // namespace zarvo::tool
