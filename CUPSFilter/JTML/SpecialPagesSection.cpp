// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/SpecialPagesSection.h"

#include <utility>

#include "CUPSFilter/JTML/ColorSection.h"
#include "CUPSFilter/JTML/ImageShiftSection.h"
#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JTML/StockSection.h"
#include "CUPSFilter/jtmlgen/SpecialPages.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr CodePair kCoverTypes[] = {{kCoverBlank, kJtmlCoverBlank},
                                    {kCoverFront, kJtmlCoverFront},
                                    {kCoverBack, kJtmlCoverBack},
                                    {kCoverBothSides, kJtmlCoverBothSides}};
constexpr CodePair kSides[] = {
    {kOneSided, kJtmlOneSided}, {kLongEdge, kJtmlLongEdge}, {kShortEdge, kJtmlShortEdge}};

/// The medium of a special page; without a stock it is the page's size that is known.
MediaData MediaOf(const Dictionary& special, EscapedTexts* texts) {
  const Dictionary* stock = DictionaryGetDictionary(special, key::special_page::kStock);
  return MediaFromStock(stock != nullptr ? *stock : Dictionary(), texts);
}

void WriteCover(const Dictionary& ticket, std::string_view key, int which) {
  const Dictionary* cover = DictionaryGetDictionary(ticket, key);
  if (cover == nullptr) return;
  const int type =
      MapCode(kCoverTypes, NumberOr(*cover, key::special_page::kSidesImaged, 0), kJtmlCoverBlank);
  EscapedTexts texts;
  const MediaData media = MediaOf(*cover, &texts);
  WriteJtmlCovers(&writeData, which, type, &media);
}

void WriteInsert(const Dictionary& insert) {
  EscapedTexts texts;
  const MediaData media = MediaOf(insert, &texts);
  WriteJtmlInserts(&writeData, NumberOr(insert, key::special_page::kStartPage, 0),
                   NumberOr(insert, key::special_page::kQuantity, 1), &media);
}

void FillShift(PageData* page, const Dictionary& exception) {
  const Dictionary* options = DictionaryGetDictionary(exception, key::special_page::kImageShift);
  if (options == nullptr) return;
  const ImageShift shift = FillImageShift(*options);
  page->bImageShift = true;
  page->nXSide1ImgShift = shift.x1;
  page->nXSide2ImgShift = shift.x2;
  page->nYSide1ImgShift = shift.y1;
  page->nYSide2ImgShift = shift.y2;
}

void WriteException(const Dictionary& exception) {
  EscapedTexts texts;
  PageData page;
  page.nInDocLB = page.nInDocUB = 1;
  page.nPagesLB = NumberOr(exception, key::special_page::kStartPage, 1);
  page.nPagesUB = NumberOr(exception, key::special_page::kEndPage, page.nPagesLB);
  if (page.nPagesUB < page.nPagesLB) std::swap(page.nPagesLB, page.nPagesUB);
  page.nSides = MapCode(kSides, NumberOr(exception, key::special_page::kSidesImaged, 0), -1);
  page.bIsLightenDark =
      CFDictionaryGetNumber(exception, key::special_page::kLightenDarken, &page.nAdjustLightness);
  FillShift(&page, exception);
  if (const auto* color = DictionaryGetDictionary(exception, key::special_page::kFullColor)) {
    FillFullColor(&page, &texts, *color);
  }
  // The exception's own choices outrank those of its colour settings.
  CFDictionaryGetNumber(exception, key::special_page::kAntialiasing, &page.fcAntiAliasing);
  CFDictionaryGetNumber(exception, key::special_page::kHalftoneScreen, &page.fcHalftone);
  CFDictionaryGetNumber(exception, key::special_page::kOutputColor, &page.fcOutputColor);
  const MediaData media = MediaOf(exception, &texts);
  WriteJtmlPageExceptions(&writeData, &page, &media);
}

void WriteList(const Dictionary& ticket, std::string_view key, JtmlSpecialPages list,
               void (*write)(const Dictionary&)) {
  const Array* elements = DictionaryGetArray(ticket, key);
  if (elements == nullptr) return;
  WriteJtmlSpecialPagesStart(&writeData, list);
  for (const Value& element : *elements) {
    if (const Dictionary* special = element.AsDictionary()) write(*special);
  }
  WriteJtmlSpecialPagesEnd(&writeData, list);
}

}  // namespace

void WriteJTMLFrontCover(const Dictionary& ticket) {
  WriteCover(ticket, key::kFrontCover, kJtmlFrontCover);
}

void WriteJTMLBackCover(const Dictionary& ticket) {
  WriteCover(ticket, key::kBackCover, kJtmlBackCover);
}

void WriteJTMLInserts(const Dictionary& ticket) {
  WriteList(ticket, key::kInsertList, kJtmlInserts, &WriteInsert);
}

void WriteJTMLExceptions(const Dictionary& ticket) {
  WriteList(ticket, key::kExceptionList, kJtmlExceptions, &WriteException);
}

}  // namespace zarvo
