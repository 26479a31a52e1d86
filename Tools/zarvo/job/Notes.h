// SPDX-License-Identifier: Apache-2.0
// What a picture of the pages cannot show: staples, holes, folds, page exceptions, a missing PIN.
#pragma once

#include <string>
#include <vector>

#include "Tools/zarvo/job/Findings.h"

namespace zarvo::tool {

struct PageNote {
  std::uint64_t page = 1;  ///< at which it stands
  std::string text;
};

/// The notes of a job, those of the whole job at its first page.
std::vector<PageNote> NotesOn(const JobReport& report);

}  // namespace zarvo::tool
