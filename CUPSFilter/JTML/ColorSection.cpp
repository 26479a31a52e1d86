// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/ColorSection.h"

#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/jtmlgen/FullColor.h"
#include "CUPSFilter/jtmlgen/HighlightColor.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

struct NumberKey {
  const char* key;
  std::int32_t PageData::*field;
};
constexpr NumberKey kNumbers[] = {
    {key::full_color::kLightness, &PageData::fcLightness},
    {key::full_color::kContrast, &PageData::fcContrast},
    {key::full_color::kSaturation, &PageData::fcSaturation},
    {key::full_color::kCyanRed, &PageData::fcCyanRed},
    {key::full_color::kMagentaGreen, &PageData::fcMagentaGreen},
    {key::full_color::kYellowBlue, &PageData::fcYellowBlue},
    {key::full_color::kTrapping, &PageData::fcTrapping},
    {key::full_color::kTrappingFastDirection, &PageData::fcTrappingFastDirection},
    {key::full_color::kTrappingSlowDirection, &PageData::fcTrappingSlowDirection},
    {key::full_color::kBlackOverprint, &PageData::fcBlackOverprint},
    {key::full_color::kImageRendering, &PageData::fcImageRendering},
    {key::full_color::kTextRendering, &PageData::fcTextRendering},
    {key::full_color::kGraphicsRendering, &PageData::fcGraphicsRendering},
    {key::full_color::kAntiAliasing, &PageData::fcAntiAliasing},
    {key::full_color::kHalftone, &PageData::fcHalftone},
    {key::full_color::kOutputColor, &PageData::fcOutputColor},
};

struct TextKey {
  const char* key;
  const char* PageData::*field;
};
constexpr TextKey kTexts[] = {
    {key::full_color::kTRC, &PageData::fcTRC},
    {key::full_color::kGrayImages, &PageData::fcGrayImagesString},
    {key::full_color::kGrayTextGraphics, &PageData::fcGrayTextGraphicsString},
};

/// A profile: a number is the printer's code for it, a string its name.
struct ProfileKey {
  const char* key;
  std::int32_t PageData::*number;
  const char* PageData::*name;
};
constexpr ProfileKey kProfiles[] = {
    {key::full_color::kRGBImages, &PageData::fcRGBImagesNumber, &PageData::fcRGBImagesString},
    {key::full_color::kRGBTextGraphics, &PageData::fcRGBTextGraphicsNumber,
     &PageData::fcRGBTextGraphicsString},
    {key::full_color::kCMYKImages, &PageData::fcCMYKImagesNumber, &PageData::fcCMYKImagesString},
    {key::full_color::kCMYKTextGraphics, &PageData::fcCMYKTextGraphicsNumber,
     &PageData::fcCMYKTextGraphicsString},
    {key::full_color::kDestination, &PageData::fcDestinationNumber, &PageData::fcDestinationString},
};

/// The choice under `key` counted from 0, or -1 when it is not one of `count`.
int Choice(const Dictionary& options, std::string_view key, int count) {
  const std::int32_t number = NumberOr(options, key, 0);
  return number >= 1 && number <= count ? number - 1 : -1;
}

void FillHighlightColor(PageData* page, const Dictionary& options) {
  page->hlcPrintingColor = Choice(options, key::highlight::kPrintingColor, 5);
  page->hlcMappingColor = Choice(options, key::highlight::kMappingColor, 13);
  page->hlcMappingAlgorithm = Choice(options, key::highlight::kMappingAlgorithm, 5);
  page->hlcMismatchAction = Choice(options, key::highlight::kMismatchAction, 3);
  if (page->hlcMappingColor != kJtmlCustomMapColor) return;
  static constexpr const char* kRGB[] = {key::highlight::kColorR, key::highlight::kColorG,
                                         key::highlight::kColorB};
  static constexpr const char* kHSV[] = {key::highlight::kColorH, key::highlight::kColorS,
                                         key::highlight::kColorV};
  page->isRGB = NumberOr(options, key::highlight::kColorRGB, 0) != 0;
  for (int i = 0; i < 3; ++i) {
    (page->isRGB ? page->hlcRGB : page->hlcHSV)[i] =
        NumberOr(options, (page->isRGB ? kRGB : kHSV)[i], 0);
  }
}

}  // namespace

void FillFullColor(PageData* page, EscapedTexts* texts, const Dictionary& options) {
  for (const NumberKey& row : kNumbers) page->*row.field = NumberOr(options, row.key, kNotSet);
  for (const TextKey& row : kTexts) page->*row.field = texts->Take(options, row.key);
  for (const ProfileKey& row : kProfiles) {
    const std::int32_t code = NumberOr(options, row.key, 0);
    if (code != 0) page->*row.number = code;
    page->*row.name = texts->Take(options, row.key);
  }
}

void WriteJTMLHighlightColor(const Dictionary& options) {
  PageData page;
  FillHighlightColor(&page, options);
  WriteJtmlHLC(&writeData, &page);
}

void WriteJTMLFullColor(const Dictionary& options) {
  EscapedTexts texts;
  PageData page;
  FillFullColor(&page, &texts, options);
  WriteJtmlFullColor(&writeData, &page);
}

}  // namespace zarvo
