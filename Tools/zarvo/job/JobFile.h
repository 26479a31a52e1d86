// SPDX-License-Identifier: Apache-2.0
// Takes a job that the filter wrote apart again: XML ticket, PJL lines, PostScript.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Tools/zarvo/job/DocumentFacts.h"
#include "Tools/zarvo/job/JobKind.h"

namespace zarvo::tool {

/// Limits: a longer ticket or more lines than a real job can have is damage or malice.
constexpr std::size_t kMaxTicketBytes = 64 << 20;
constexpr std::size_t kMaxPjlLines = 100'000;
constexpr std::size_t kMaxPjlBytes = 64 << 20;
constexpr std::size_t kMaxPostScriptJobs = 1000;

struct JobFile {
  std::string start;                  ///< of the file, kKindBytes or a little more
  std::string ticket;                 ///< the XML ticket, empty when there is none
  bool ticket_cut = false;            ///< it did not end, or not within kMaxTicketBytes
  std::vector<std::string> pjl;       ///< lines that begin "@PJL", without their ends
  bool pjl_cut = false;               ///< there were more than kMaxPjlLines or kMaxPjlBytes
  int stray_lines = 0;                ///< lines among them that are no PJL
  int envelopes = 0;                  ///< "@PJL JOB" lines
  int ends = 0;                       ///< "@PJL EOJ" lines
  std::vector<PostScriptFacts> jobs;  ///< each in an interpreter of its own; kMaxPostScriptJobs
  bool jobs_cut = false;              ///< there were more
  PostScriptFacts postscript;         ///< all of them taken together
};

/// Where the PostScript of a job goes. `begin` opens the next file; `write` adds to it.
struct PostScriptSink {
  std::function<void()> begin;
  std::function<void(std::string_view)> write;
};

/// Reads a job to its end in one pass; memory does not grow with the job. The PostScript is split
/// where the printer starts an interpreter anew: at each universal exit, and at a line that begins
/// with Ctrl-D. Check ferror() of the input afterwards.
JobFile ReadJobFile(std::FILE* input, const PostScriptSink& sink);

}  // namespace zarvo::tool
