// SPDX-License-Identifier: Apache-2.0
// The copies of a job, and the sheets that it takes.
//
// The printer makes the copies: the converters ahead of the filter write their number, and whether
// sets are collated, into each document's set-up, which is what the PPD's option Collate is for.
// Two things they cannot know are added at the end of the set-up: that a fax is sent once, and that
// sheets which are stapled, bound or wrapped in covers are sets, even where nobody said so.
//
// The spooler's page log, its quotas and what it tells of a finished job all come from "PAGE:"
// lines. The last filter of a job owes them, and this is it; the spooler halves the figure for jobs
// whose option "sides" is anything but "one-sided", so it gets twice their number then. Sheets that
// the printer adds by itself (banners, covers, inserts) are its own to count.
#pragma once

#include <cups/cups.h>

#include <span>
#include <string_view>

#include "CUPSFilter/JobOutput.h"
#include "CUPSFilter/Options/Ppd.h"
#include "Platform/Value.h"

namespace zarvo {

struct CopyPlan {
  bool counted = false;   ///< *ZRVPageLog: True; without it none of this is done
  int copies = 1;         ///< that the printer will make
  bool once = false;      ///< a fax: whatever the set-up says, one copy
  bool sets = false;      ///< sets are to be collated although the job does not say so
  bool chosen = false;    ///< the job asks for some of the document's pages
  bool booklet = false;   ///< its sheets are known only when it has been imposed
  int pagesPerSheet = 1;  ///< 2 for two-sided jobs
  int logged = 1;         ///< what the spooler has to be given for one sheet
  /// Of the page device, for sides that the page description does not know; or null.
  const char* sides = nullptr;
};

/// `copies` is the spooler's argument, a number from 1 on; anything else counts as 1. The PPD's
/// choices must be marked and the page variables set.
CopyPlan ReadCopyPlan(const Ppd& ppd, const Dictionary& ticket,
                      std::span<const cups_option_t> options, const char* copies);

/// Tells the spooler how many sheets of one copy have been written so far.
void LogSheets(const CopyPlan& plan, long sheets);

/// Follows one pass over a job, sheet by sheet unless it is a booklet. The output must outlive it.
class Copies {
 public:
  Copies(const CopyPlan& plan, JobOutput& output) : plan_(plan), output_(output) {}

  void BeginDocument();
  /// Ahead of each of the document's own structure comments.
  void BeforeLine(std::string_view line);
  void Finish();
  /// The document has none of the pages that the job asks for.
  bool ChoseNone() const { return plan_.counted && plan_.chosen && Sheets() == 0; }

 private:
  long Sheets() const;
  void Set(const char* request);

  CopyPlan plan_;
  JobOutput& output_;
  bool set_up_ = false;  // this document has been told
  long pages_ = 0;       // of this document
  long sheets_ = 0;      // of the documents before it
  long told_ = 0;
};

}  // namespace zarvo
