// SPDX-License-Identifier: Apache-2.0
// Watermarks, negative and mirror image on jobs of any origin.
#pragma once

#include <string_view>

#include "CUPSFilter/JobOutput.h"
#include "CUPSFilter/JobSettings.h"
#include "CUPSFilter/Options/Ppd.h"

namespace zarvo {

/// Whether the PPD wants its jobs to be treated this way: *ZRVPageHooks: True. The landmarks that
/// watermarks are otherwise hung on are those of one family of print systems; in what converters
/// write they are missing, and what is inserted there is lost or stops the job.
bool PageHooksWanted(const Ppd& ppd);

/// What one pass over a job inserts: once, before the first page, procedures that the printer runs
/// at the start and at the end of every page. `settings` and `output` must outlive it.
class PageHooks {
 public:
  PageHooks(const JobSettings& settings, JobOutput& output);

  /// Whether the line is one that Copy() has to be given.
  bool IsLandmark(std::string_view line) const;
  /// Writes the line and what belongs to it.
  void Copy(std::string_view line);
  /// At the end of the job: tells in a log line when it had no place for the procedures.
  void LogIfUnused() const;

 private:
  void Insert();

  const JobSettings& settings_;
  JobOutput& output_;
  bool needed_;
  bool inserted_ = false;
  int nesting_ = 0;          // of embedded documents
  int pages_ = 0;            // begun so far
  bool page_set_up_ = true;  // this page's set-up has been seen
};

}  // namespace zarvo
