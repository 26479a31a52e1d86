// SPDX-License-Identifier: Apache-2.0
// Draws the PostScript jobs of a job as PDF pages, and sheets of them as pictures, on all
// processors.
//
// Each PostScript job has an interpreter of its own, as in the printer. A long one is drawn by
// several: each reads all of it and draws only its pages, which takes most of the time.
#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "Platform/Failure.h"
#include "Tools/zarvo/system/PageLook.h"
#include "Tools/zarvo/system/Run.h"
#include "Tools/zarvo/system/SheetPdf.h"

namespace zarvo::tool {

/// A page of a job: the file that holds it and its place in there.
struct DrawnPage {
  std::string file;
  std::size_t page;
};

/// Runs the tasks in their order on as many threads as there are processors, at most four at a
/// time. A task that fails keeps no other from running.
void RunTasks(const std::vector<std::function<void()>>& tasks);

/// Draws the first pages of a long job ahead of the others, so that there is something to see.
/// Gives nothing when the job is not that long.
std::vector<DrawnPage> DrawFirstPages(const PostScriptFiles& split, const ScratchFolder& scratch);

/// Draws all pages of all jobs. `looks` gets what became of each job; `page` hears of each page,
/// one call at a time.
std::vector<DrawnPage> DrawPages(const PostScriptFiles& split, const ScratchFolder& scratch,
                                 const std::function<void()>& page, std::vector<PageLook>* looks);

/// Draws sides as PNG files and hands each over as soon as it is there and those before it in the
/// same batch are: its index among the sides and its file. `deliver` is called by one thread at a
/// time.
Failure DrawPictures(const std::vector<SheetSide>& sides, std::size_t first, std::size_t last,
                     int resolution, const ScratchFolder& scratch,
                     const std::function<void(std::size_t, const std::string&)>& deliver);

}  // namespace zarvo::tool
