// SPDX-License-Identifier: Apache-2.0
// Puts drawn pages together to a PDF of sheets: in their order, upright, with the sheets that the
// printer adds and, in a margin below the page, what no picture can show.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Platform/Failure.h"

namespace zarvo::tool {

/// One side that somebody will look at.
struct SheetSide {
  std::string file;      ///< PDF that holds the page; empty for a sheet that is only named
  std::size_t page = 0;  ///< which one of it, counted from 0
  std::string text;      ///< of a sheet that is only named
  int width = 612;       ///< of the same, in points
  int height = 792;
  int turn = 0;  ///< how far the page is turned to stand upright: 0, 90 (to the right), 270
  std::vector<std::string> notes;  ///< a line each
};

/// How many pages each file has; 0 for one that holds none or is no PDF.
std::size_t CountPdfPages(const std::string& file);

/// Writes the sides `first` to `last` (not included) to the file.
Failure WriteSheetPdf(const std::vector<SheetSide>& sides, std::size_t first, std::size_t last,
                      const std::string& output);

}  // namespace zarvo::tool
