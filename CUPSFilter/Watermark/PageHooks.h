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

/// What one pass over a job inserts: into every document, before its prolog, procedures that the
/// printer runs at the start and at the end of every page, and at the end of its set-up a call that
/// has them run even where that changed the page device. In a booklet, where the device sees
/// sheets, the procedures go after the imposition's own, and each page's set-up calls them.
/// `settings` and `output` must outlive it.
class PageHooks {
 public:
  PageHooks(const JobSettings& settings, JobOutput& output);

  /// A document begins; its first line comes next.
  void BeginDocument();
  /// Whether it has to be given the next line, whatever that holds,
  bool WatchesEveryLine() const;
  /// and whether it has to be given this one.
  bool IsLandmark(std::string_view line) const;
  /// Write what goes before and after a line. `own` says that it is the document's own, not
  /// something embedded's.
  void BeforeLine(std::string_view line, bool own);
  void AfterLine(std::string_view line, bool own);

 private:
  void Insert();

  const JobSettings& settings_;
  JobOutput& output_;
  bool needed_;
  bool inserted_ = true;     // into this document
  int pages_ = 0;            // of this document, begun so far
  bool page_set_up_ = true;  // this page's set-up has been seen
};

}  // namespace zarvo
