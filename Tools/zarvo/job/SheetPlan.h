// SPDX-License-Identifier: Apache-2.0
// The sheets that a job is delivered on: what is on each side, and which paper it is.
//
// The plan is made from what the filter wrote, not from the settings, so it holds for every job,
// however its settings were given. It draws nothing and starts nothing; zarvo preview puts the
// drawn pages into its order, and the desktop program lays its sheets out by it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Tools/zarvo/job/Findings.h"
#include "Tools/zarvo/job/Notes.h"
#include "Tools/zarvo/job/Sheets.h"
#include "Tools/zarvo/system/DrawSheets.h"

namespace zarvo::tool {

/// One side of a delivered sheet. The back of a sheet stands there only when a page is on it.
struct PlannedSide {
  enum class Kind : std::uint8_t { kPage, kCover, kInsert, kSlipSheet };
  Kind kind = Kind::kPage;
  std::uint64_t page = 0;  ///< which of the pages that come out, from 1; 0 where nothing is printed
  std::uint64_t sheet =
      0;  ///< of the set, from 1; an insert of several sheets takes as many numbers
  bool front = true;
  unsigned count = 1;     ///< sheets that are all alike
  std::string stock;      ///< its paper in words, a line each, where it is not the job's
  std::string text;       ///< what a sheet is on which nothing is printed
  std::string exception;  ///< what else is other than for the rest of the job, a line each
  int width = 612;        ///< points, as the page lies in the printer
  int height = 792;
  int turn = 0;  ///< how far the page is turned to stand upright: 0, 90 (to the right), 270
};

/// What the finisher does to all sheets, as numbers of the printer's "finishings".
using FinishingCodes = std::vector<int>;

struct SheetPlan {
  std::vector<PlannedSide> sides;  ///< of one set, in the order of delivery
  std::vector<SpecialSheet> special;
  FinishingCodes finishings;
  std::uint64_t pages = 0;
  std::uint64_t sheets = 0;
  bool booklet = false;
  bool two_sided = false;
  int copies = 1;
};

/// Whether the job is printed on both sides of its sheets.
bool IsTwoSided(const JobReport& report);

/// The plan of a job of which so many pages come out. In a booklet these are the sides of its
/// sheets, which is what the printer counts: inserts and exceptions are placed by them.
SheetPlan PlanSheets(const JobReport& report, std::uint64_t pages);

/// The sides of the plan with the drawn pages on them, for a picture: each blank cover and insert
/// is named, slip sheets are left out, and a page that is not drawn yet has no file. The notes
/// stand at the pages that they concern.
std::vector<SheetSide> SidesOf(const SheetPlan& plan, const std::vector<DrawnPage>& pages,
                               const std::vector<PageNote>& notes);

}  // namespace zarvo::tool
