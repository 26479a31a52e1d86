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

JtmlGenError WriteJtmlSpecialPagesStart(const JtmlSink* sink, int nSPOption) {
  if (const char* section = FindKeyword(kSections, nSPOption)) {
    Send(sink, StartLine(2, section, Syntax::kSetOf));
  }
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlSpecialPagesEnd(const JtmlSink* sink, int nSPOption) {
  if (const char* section = FindKeyword(kSections, nSPOption)) {
    Send(sink, EndLine(2, section));
  }
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlCovers(const JtmlSink* sink, int nCovers, int nCoverType,
                             const MediaData* media) {
  const char* cover = FindKeyword(kCovers, nCovers);
  const char* type = FindKeyword(kCoverTypes, nCoverType);
  std::string start;
  if (cover != nullptr) start += StartLine(2, cover, Syntax::kCollection);
  if (type != nullptr) start += Element(3, "cover-type", Syntax::kKeyword, type);
  Send(sink, start);
  WriteJtmlMedia(sink, media);
  Send(sink, cover != nullptr ? EndLine(2, cover) : "");
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlInserts(const JtmlSink* sink, int nInsertAfter, int nInsertCount,
                              const MediaData* media) {
  Send(sink, StartLine(3, "value", Syntax::kCollection) +
                 Element(3, "insert-after-page-number", nInsertAfter) +
                 Element(3, "insert-count", nInsertCount));
  WriteJtmlMedia(sink, media);
  Send(sink, EndLine(3, "value"));
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlPageExceptions(const JtmlSink* sink, const PageData* page,
                                     const MediaData* media) {
  Send(sink, StartLine(3, "value", Syntax::kCollection) +
                 Range("input-documents", page->nInDocLB, page->nInDocUB));
  Send(sink, Range("pages", page->nPagesLB, page->nPagesUB));
  WriteJtmlCommands(sink, kJtmlSides, page->nSides);
  // A page range takes its lightness as a black-and-white darkness, not as adjust-lightness.
  if (page->bIsLightenDark) {
    WriteJtmlCommands(sink, kJtmlDarknessValue, page->nAdjustLightness);
  }
  if (page->bImageShift) {
    Send(sink, Element(3, "x-side1-image-shift", page->nXSide1ImgShift) +
                   Element(3, "x-side2-image-shift", page->nXSide2ImgShift) +
                   Element(3, "y-side1-image-shift", page->nYSide1ImgShift));
    Send(sink, Element(3, "y-side2-image-shift", page->nYSide2ImgShift));
  }
  WriteJtmlMedia(sink, media);
  WriteJtmlFullColor(sink, page);
  Send(sink, EndLine(3, "value"));
  return JTML_SUCCESS;
}

}  // namespace zarvo
