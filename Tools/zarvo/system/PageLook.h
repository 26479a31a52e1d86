// SPDX-License-Identifier: Apache-2.0
// Looks at the pages that an interpreter makes of a job, in a coarse raster that is kept nowhere.
//
// Only so it shows how many pages come out, and whether a watermark behind the page is hidden: the
// job is drawn twice at the same time, as it is and with page hooks that draw nothing behind, and
// a page on which both are the same shows nothing of its mark.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "Platform/ScratchFolder.h"
#include "Tools/zarvo/job/DocumentFacts.h"

namespace zarvo::tool {

/// What became of one PostScript job.
struct PageLook {
  std::uint64_t pages = 0;            ///< that come out
  std::string fault;                  ///< what stopped the interpreter; empty when nothing did
  bool whole = true;                  ///< false when it was not looked at to its end
  std::vector<std::uint64_t> hidden;  ///< the pages, from 1, on which the mark cannot be seen
};

/// Draws the file; the interpreter's temporary files go into the folder. Takes no longer than
/// `limit`; `whole` is false then, and when Ghostscript is missing (`fault` tells).
PageLook LookAtPages(const std::string& file, const PostScriptFacts& facts,
                     std::chrono::milliseconds limit, const ScratchFolder& scratch);

}  // namespace zarvo::tool
