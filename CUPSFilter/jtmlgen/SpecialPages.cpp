// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/SpecialPages.h"

#include "CUPSFilter/jtmlgen/Commands.h"
#include "CUPSFilter/jtmlgen/Emit.h"
#include "CUPSFilter/jtmlgen/FullColor.h"
#include "CUPSFilter/jtmlgen/Media.h"

namespace zarvo {
namespace {

constexpr Keyword kSections[] = {{kJtmlExceptions, "page-overrides"},
                                 {kJtmlInserts, "insert-sheet"}};
constexpr Keyword kCovers[] = {{kJtmlFrontCover, "cover-front"}, {kJtmlBackCover, "cover-back"}};
constexpr Keyword kCoverTypes[] = {{kJtmlNoCover, "no-cover"},
                                   {kJtmlCoverBlank, "print-none"},
                                   {kJtmlCoverFront, "print-front"},
                                   {kJtmlCoverBack, "print-back"},
                                   {kJtmlCoverBothSides, "print-both"}};

/// A set that holds one range of numbers, three tabs deep.
std::string Range(const char* element, std::int32_t low, std::int32_t high) {
  return StartLine(3, element, Syntax::kSetOf) + StartLine(4, "value", Syntax::kRangeOfInteger) +
         Element(5, "lower-bound", low) + Element(5, "upper-bound", high) + EndLine(4, "value") +
         EndLine(3, element);
}

}  // namespace

JtmlGenError WriteJtmlSpecialPagesStart(LPWRITEDATA lpWriteData, int nSPOption) {
  if (const char* section = FindKeyword(kSections, nSPOption)) {
    Send(lpWriteData, StartLine(2, section, Syntax::kSetOf));
  }
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlSpecialPagesEnd(LPWRITEDATA lpWriteData, int nSPOption) {
  if (const char* section = FindKeyword(kSections, nSPOption)) {
    Send(lpWriteData, EndLine(2, section));
  }
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlCovers(LPWRITEDATA lpWriteData, int nCovers, int nCoverType,
                             LPMEDIADATA lpMediaData) {
  const char* cover = FindKeyword(kCovers, nCovers);
  const char* type = FindKeyword(kCoverTypes, nCoverType);
  std::string start;
  if (cover != nullptr) start += StartLine(2, cover, Syntax::kCollection);
  if (type != nullptr) start += Element(3, "cover-type", Syntax::kKeyword, type);
  Send(lpWriteData, start);
  WriteJtmlMedia(lpWriteData, lpMediaData);
  Send(lpWriteData, cover != nullptr ? EndLine(2, cover) : "");
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlInserts(LPWRITEDATA lpWriteData, int nInsertAfter, int nInsertCount,
                              LPMEDIADATA lpMediaData) {
  Send(lpWriteData, StartLine(3, "value", Syntax::kCollection) +
                        Element(3, "insert-after-page-number", nInsertAfter) +
                        Element(3, "insert-count", nInsertCount));
  WriteJtmlMedia(lpWriteData, lpMediaData);
  Send(lpWriteData, EndLine(3, "value"));
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlPageExceptions(LPWRITEDATA lpWriteData, LPPAGEDATA lpPageData,
                                     LPMEDIADATA lpMediaData) {
  const _PAGEDATA& page = *lpPageData;
  Send(lpWriteData, StartLine(3, "value", Syntax::kCollection) +
                        Range("input-documents", page.nInDocLB, page.nInDocUB));
  Send(lpWriteData, Range("pages", page.nPagesLB, page.nPagesUB));
  WriteJtmlCommands(lpWriteData, kJtmlSides, page.nSides);
  // A page range takes its lightness as a black-and-white darkness, not as adjust-lightness.
  if (page.bIsLightenDark) {
    WriteJtmlCommands(lpWriteData, kJtmlDarknessValue, page.nAdjustLightness);
  }
  if (page.bImageShift) {
    Send(lpWriteData, Element(3, "x-side1-image-shift", page.nXSide1ImgShift) +
                          Element(3, "x-side2-image-shift", page.nXSide2ImgShift) +
                          Element(3, "y-side1-image-shift", page.nYSide1ImgShift));
    Send(lpWriteData, Element(3, "y-side2-image-shift", page.nYSide2ImgShift));
  }
  WriteJtmlMedia(lpWriteData, lpMediaData);
  WriteJtmlFullColor(lpWriteData, lpPageData);
  Send(lpWriteData, EndLine(3, "value"));
  return JTML_SUCCESS;
}

}  // namespace zarvo
