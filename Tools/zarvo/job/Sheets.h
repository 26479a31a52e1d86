// SPDX-License-Identifier: Apache-2.0
// Covers and inserts: what the printer adds to the pages of a job.
#pragma once

#include <string>
#include <vector>

#include "Tools/zarvo/job/Words.h"

namespace zarvo::tool {

/// Sheets that the printer takes from elsewhere.
struct SpecialSheet {
  enum class Place { kFront, kBack, kInsert };
  Place place;
  unsigned after_page = 0;  ///< of an insert; 0 is before the first page
  unsigned count = 1;
  bool blank = true;  ///< nothing of the job is printed on it
  std::string text;   ///< "front cover, A4, blue"
};

/// The covers and inserts of an explained XML ticket.
std::vector<SpecialSheet> FindSpecialSheets(const Explanation& ticket);

}  // namespace zarvo::tool
