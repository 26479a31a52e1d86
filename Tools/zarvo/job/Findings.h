// SPDX-License-Identifier: Apache-2.0
// What is wrong with a job as a whole; explain and preview tell the same.
#pragma once

#include <string>
#include <vector>

#include "Tools/zarvo/job/JobFile.h"
#include "Tools/zarvo/job/Words.h"
#include "Tools/zarvo/system/PageLook.h"

namespace zarvo::tool {

/// A job, taken apart and explained.
struct JobReport {
  JobFile job;
  Explanation header;
  Explanation ticket;
  std::vector<PageLook> looks;  ///< one for each of job.jobs; empty when nothing was drawn
};

/// Explains the parts of a job.
JobReport ReportOn(JobFile job);

/// Everything that looks wrong: the frame, the header, the ticket, how they go together, and what
/// the interpreter made of the pages.
std::vector<std::string> Findings(const JobReport& report);

/// How many pages come out, as far as that is known.
std::uint64_t DrawnPages(const JobReport& report);

/// "1 to 3, 5 and 7", at most ten ranges of them.
std::string PageList(const std::vector<std::uint64_t>& pages);

}  // namespace zarvo::tool
