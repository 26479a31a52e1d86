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

/// What is inserted into a job: into every document, before its prolog, procedures that the printer
/// runs at the start and at the end of every page, and at the end of its set-up a call that has
/// them run even where that changed the page device. In a booklet, where the device sees sheets,
/// the copy pass inserts nothing; the imposition does, after its own procedures and at each page.
/// `settings` and `output` must outlive it.
class PageHooks {
 public:
  /// `notices` is told of an image that is left out; null for nobody.
  PageHooks(const JobSettings& settings, JobOutput& output, JobNotices* notices = nullptr);

  /// A document begins; its first line comes next.
  void BeginDocument();
  /// Whether BeforeLine and AfterLine are to be called for every line, whatever it holds; they are
  /// for what divides a document.
  bool WatchesEveryLine() const { return !inserted_; }
  /// Write what goes before and after a line. `own` says that it is the document's own, not
  /// something embedded's.
  void BeforeLine(std::string_view line, bool own);
  void AfterLine(std::string_view line);

  /// Ahead of a booklet's first page, and in the set-up of each page (counted from 0).
  void WriteForBooklet();
  void WritePageStart(int page);

 private:
  void Insert();

  const JobSettings& settings_;
  JobOutput& output_;
  JobNotices* notices_;
  bool needed_;
  bool inserted_ = true;  // into this document
};

}  // namespace zarvo
