// SPDX-License-Identifier: Apache-2.0
// Takes a job that the filter wrote apart again: XML ticket, PJL lines, PostScript.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace zarvo::tool {

/// Limits: a longer ticket or more lines than a real job can have is damage or malice.
constexpr std::size_t kMaxTicketBytes = 64 << 20;
constexpr std::size_t kMaxPjlLines = 100'000;
constexpr std::size_t kMaxPjlBytes = 64 << 20;
constexpr std::size_t kMaxPageSizes = 100;

/// What the PostScript of a job shows without being run.
struct PostScriptFacts {
  std::uint64_t bytes = 0;
  std::uint64_t pages = 0;  ///< page comments outside embedded documents
  int documents = 0;        ///< "%!PS-Adobe" headers, embedded ones aside
  bool ended = false;       ///< the last document has its "%%EOF"
  bool booklet = false;     ///< imposed; `pages` then counts sheet sides
  bool text_overlay = false;
  bool image_watermark = false;
  std::map<std::pair<int, int>, std::uint64_t> page_sizes;  ///< points; how often each is set
};

struct JobFile {
  std::string ticket;            ///< the XML ticket, empty when there is none
  bool ticket_cut = false;       ///< it did not end, or not within kMaxTicketBytes
  std::vector<std::string> pjl;  ///< lines that begin "@PJL", without their ends
  bool pjl_cut = false;          ///< there were more than kMaxPjlLines or kMaxPjlBytes
  int stray_lines = 0;           ///< lines among them that are no PJL
  int envelopes = 0;             ///< "@PJL JOB" lines
  int ends = 0;                  ///< "@PJL EOJ" lines
  PostScriptFacts postscript;
};

/// Reads a job to its end in one pass; memory does not grow with the job. The PostScript is copied
/// to `postscript` unless that is null. Check ferror() of both afterwards.
JobFile ReadJobFile(std::FILE* input, std::FILE* postscript);

}  // namespace zarvo::tool
