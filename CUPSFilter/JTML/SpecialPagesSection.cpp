// SPDX-License-Identifier: Apache-2.0
#include <utility>

#include "CUPSFilter/JTML/ColorSection.h"
#include "CUPSFilter/JTML/Sections.h"
#include "CUPSFilter/JTML/StockSection.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"
#include "Source/CFAdditions.h"

namespace zarvo {
namespace {

/// The two lists of special pages, by their writers' codes.
enum List { kExceptions = 0, kInserts = 1 };

/// The medium of a special page; without a stock it is the page's size that is known.
_MEDIADATA MediaOf(const Dictionary& special, EscapedTexts* texts) {
  const Dictionary* stock = DictionaryGetDictionary(special, "Stock");
  return MediaFromStock(stock != nullptr ? *stock : Dictionary(), texts);
}

void WriteCover(const Dictionary& ticket, std::string_view key, int which) {
  const Dictionary* cover = DictionaryGetDictionary(ticket, key);
  if (cover == nullptr) return;
  std::int32_t type = NumberOr(*cover, "SidesImaged", 1);
  if (type < 1 || type > 4) type = 1;
  EscapedTexts texts;
  const _MEDIADATA media = MediaOf(*cover, &texts);
  WriteJtmlCovers(&writeData, which, type, &media);
}

void WriteInsert(const Dictionary& insert) {
  EscapedTexts texts;
  const _MEDIADATA media = MediaOf(insert, &texts);
  WriteJtmlInserts(&writeData, NumberOr(insert, "StartPage", 0), NumberOr(insert, "Quantity", 1),
                   &media);
}

void FillShift(_PAGEDATA* page, const Dictionary& exception) {
  const Dictionary* options =
      DictionaryGetDictionary(exception, "com.zarvo.print.ImageShiftOptionsPage");
  if (options == nullptr) return;
  const ImageShift shift = FillImageShift(*options);
  page->bImageShift = true;
  page->nXSide1ImgShift = shift.x1;
  page->nXSide2ImgShift = shift.x2;
  page->nYSide1ImgShift = shift.y1;
  page->nYSide2ImgShift = shift.y2;
}

void WriteException(const Dictionary& exception) {
  constexpr CodePair kSides[] = {{1, 0}, {2, 1}, {3, 2}};
  EscapedTexts texts;
  _PAGEDATA page;
  page.nInDocLB = page.nInDocUB = 1;
  page.nPagesLB = NumberOr(exception, "StartPage", 1);
  page.nPagesUB = NumberOr(exception, "EndPage", page.nPagesLB);
  if (page.nPagesUB < page.nPagesLB) std::swap(page.nPagesLB, page.nPagesUB);
  page.nSides = MapCode(kSides, NumberOr(exception, "SidesImaged", 0), -1);
  page.bIsLightenDark = CFDictionaryGetNumber(exception, "LightenDarken", &page.nAdjustLightness);
  FillShift(&page, exception);
  if (const auto* color = DictionaryGetDictionary(exception, "FullColorOptionsPage")) {
    FillFullColor(&page, &texts, *color);
  }
  // The exception's own choices outrank those of its colour settings.
  CFDictionaryGetNumber(exception, "Antialiasing", &page.fcAntiAliasing);
  CFDictionaryGetNumber(exception, "HalftoneScreen", &page.fcHalftone);
  CFDictionaryGetNumber(exception, "OutputColor", &page.fcOutputColor);
  const _MEDIADATA media = MediaOf(exception, &texts);
  WriteJtmlPageExceptions(&writeData, &page, &media);
}

void WriteList(const Dictionary& ticket, std::string_view key, List list,
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

void WriteJTMLJobLevelStock(const Dictionary& ticket) {
  const Dictionary* stock = DictionaryGetDictionary(ticket, "com.zarvo.print.JobLevelStock");
  if (stock == nullptr) return;
  EscapedTexts texts;
  const _MEDIADATA media = MediaFromStock(*stock, &texts);
  WriteJtmlMedia(&writeData, &media);
}

void WriteJTMLFrontCover(const Dictionary& ticket) {
  WriteCover(ticket, "com.zarvo.print.SpecialPages.FrontCover", 0);
}

void WriteJTMLBackCover(const Dictionary& ticket) {
  WriteCover(ticket, "com.zarvo.print.SpecialPages.BackCover", 1);
}

void WriteJTMLInserts(const Dictionary& ticket) {
  WriteList(ticket, "com.zarvo.print.SpecialPages.InsertList", kInserts, &WriteInsert);
}

void WriteJTMLExceptions(const Dictionary& ticket) {
  WriteList(ticket, "com.zarvo.print.SpecialPages.ExceptionList", kExceptions, &WriteException);
}

}  // namespace zarvo
