// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/ImposeJob.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

#include "CUPSFilter/Booklet/q7bbook32.h"
#include "Platform/Log.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr int kBookletMargin = 12;  // points, on each side of a sheet

struct Stage {
  int lowest;  // of its codes; those of the next row are higher
  const char* failure;
  const char* remedy;
};
constexpr char kBadSetUp[] =
    "a set-up section of the job has no end, or sets an impossible page size; nothing was printed";
constexpr char kNoPages[] = "looking for the pages failed, nothing was printed";
constexpr char kPrintPlainly[] = "print the job without booklet layout";
constexpr char kTryAgain[] = "make room in TMPDIR and memory, and send the job again";
constexpr Stage kStages[] = {
    {-1002, "setting up failed, nothing was printed", kTryAgain},
    {-501, "reading the spooled job failed, the output is cut short", kTryAgain},
    {-401, "a set-up section of the job has no end, nothing was printed", kPrintPlainly},
    {-301, "a page was not found again, the output is cut short", kTryAgain},
    {-210, "copying the pages failed, the output is cut short", kTryAgain},
    {-110, kBadSetUp, kPrintPlainly},
    {-108, kNoPages, kTryAgain},
    {-105, kBadSetUp, kPrintPlainly},
    {-104, "the job is imposed already, nothing was printed", kPrintPlainly},
    {-103, kNoPages, kTryAgain},
    {0, "the job has no page comments, nothing was printed", kPrintPlainly},
};

const Stage& StageOf(int code) {
  const auto* above =
      std::upper_bound(std::begin(kStages), std::end(kStages), code,
                       [](int value, const Stage& row) { return value < row.lowest; });
  return above == std::begin(kStages) ? kStages[0] : above[-1];
}

/// A distance of the booklet, which the printer's code counts unsigned.
int BookletDistance(const Dictionary& ticket, const char* key, int otherwise) {
  std::int32_t value = otherwise;
  CFDictionaryGetNumber(ticket, key, &value);
  if (value >= 0) return value;
  LogLine("DEBUG: %s is %d; a negative distance counts as 0", key, value);
  return 0;
}

int DuplexCode(const std::string& sides) {
  if (sides == "two-sided-long-edge") return 3;
  return sides == "two-sided-short-edge" ? 2 : 1;
}

}  // namespace

bool ImposeJob(const Dictionary& ticket, const JobSettings& settings, const SpoolFile& spool,
               JobOutput& output) {
  _tag_Q7B_PS_BOOKLET_VARS bv;
  bv.bDoBooklet = 1;
  bv.hPrinter = output.stream();
  bv.pwstrPSFileIn = spool.path().c_str();
  bv.dmDuplex = DuplexCode(settings.sides);
  bv.bRotBooklet180 = DictionaryGetBoolean(ticket, key::kRotateBooklet180Degrees) == true;
  std::int32_t outlines = 0;
  CFDictionaryGetNumber(ticket, key::kBookletDrawOutlines, &outlines);
  bv.iOutlineStyle = outlines != 0 ? 2 : 0;
  std::int32_t order = 0;
  if (CFDictionaryGetNumber(ticket, key::kBookletReadingOrder, &order))
    bv.bRightToLeft = order != kLeftToRight;
  bv.bForceCollateOn = 1;
  bv.iDestXPoints = settings.mediaWidth;
  bv.iDestYPoints = settings.mediaLength;
  bv.iDestXMargPoints = kBookletMargin;
  bv.iDestYMargPoints = kBookletMargin;
  bv.iPageletsPerPage = 2;
  bv.iMode = 1;
  bv.iGutterPoints = BookletDistance(ticket, key::kGutter, 2 * kBookletMargin);
  bv.iCreep10thPoints = BookletDistance(ticket, key::kCreep, 0);

  const int pages = xPostProcessAndRespoolJob(&bv);
  // A failed write is told by whoever owns the output, and once is enough.
  if (pages <= 0 && output.error() == 0)
    LogLine("ERROR: booklet: %s (code %d); %s", StageOf(pages).failure, pages,
            StageOf(pages).remedy);
  return pages > 0;
}

}  // namespace zarvo
