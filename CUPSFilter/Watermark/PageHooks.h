// SPDX-License-Identifier: Apache-2.0
// Watermarks, negative and mirror image on jobs of any origin.
//
// There are two ways to put something on every page of a job:
//
// - Line by line (CopyRules): drawing code is written next to the landmarks of the printers' own
//   dialog: definitions at "%%EndProlog", the image or font at "%%EndSetup", a background behind
//   "%%BeginPageSetup", a foreground before "ep" or "endp". It relies on what those jobs define,
//   and does nothing where a job has no such lines.
// - By page hooks, when the PPD says *ZRVPageHooks: True: a procedure set (PageHooks.ps) goes into
//   the document's head, and the page device itself runs it at the start and the end of each page.
//   So it does not matter what the page descriptions look like.
//
// Both draw with WatermarkText (texts) and outputPICT (images; the drawing helper decodes them).
#pragma once

#include <optional>
#include <string_view>

#include "CUPSFilter/JobOutput.h"
#include "CUPSFilter/JobSettings.h"
#include "CUPSFilter/Options/Ppd.h"
#include "CUPSFilter/Watermark/PageTurn.h"

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
  /// `notices` is told of an image that is left out, and by Finish(); null for nobody.
  PageHooks(const JobSettings& settings, JobOutput& output, JobNotices* notices = nullptr);

  /// A document begins; its first line comes next.
  void BeginDocument();
  /// Whether BeforeLine and AfterLine are to be called for every line, whatever it holds; they are
  /// for what divides a document.
  bool WatchesEveryLine() const { return !inserted_; }
  /// Whether the line begins a page whose program tells how the watermark has to lie, and that
  /// program's beginning, up to kPageHead bytes.
  bool LooksAhead(std::string_view line) const;
  void ShowAhead(std::string_view head);
  /// A comment may tell how the pages lie that do not; some programs write it into their prolog.
  bool TellsOrientation(std::string_view line) const;
  void TakeOrientation(std::string_view line);
  /// Write what goes before and after a line. `own` says that it is the document's own, not
  /// something embedded's.
  void BeforeLine(std::string_view line, bool own);
  void AfterLine(std::string_view line, bool own);

  /// At the end of the job: tells of a watermark whose direction is a mere guess.
  void Finish();

  /// Ahead of a booklet's prolog.
  void WriteFont();
  /// Ahead of a booklet's first page, and in the set-up of each page (counted from 0), whose
  /// program begins with `head`.
  void WriteForBooklet();
  void WritePageStart(int page, std::string_view head);

 private:
  void Insert();
  void WriteTurn();

  const JobSettings& settings_;
  JobOutput& output_;
  JobNotices* notices_;
  bool needed_;
  std::optional<int> turned_;  // how all pages lie, when the job says it
  bool inserted_ = true;       // into this document
  bool told_ = false;          // a page of this document has been shown
  int document_turn_ = 0;      // how pages lie that tell nothing; see PageTurn.h
  int page_turn_ = 0;          // how this page lies
  bool turn_known_ = false;    // from any page so far, or what was said of them
  bool guessed_ = false;       // of a picture ahead of that,
  bool guess_failed_ = false;  // and other pages lie otherwise
};

}  // namespace zarvo
