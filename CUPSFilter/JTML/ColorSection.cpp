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
  std::int32_t _PAGEDATA::*field;
};
constexpr NumberKey kNumbers[] = {
    {key::full_color::kLightness, &_PAGEDATA::fcLightness},
    {key::full_color::kContrast, &_PAGEDATA::fcContrast},
    {key::full_color::kSaturation, &_PAGEDATA::fcSaturation},
    {key::full_color::kCyanRed, &_PAGEDATA::fcCyanRed},
    {key::full_color::kMagentaGreen, &_PAGEDATA::fcMagentaGreen},
    {key::full_color::kYellowBlue, &_PAGEDATA::fcYellowBlue},
    {key::full_color::kTrapping, &_PAGEDATA::fcTrapping},
    {key::full_color::kTrappingFastDirection, &_PAGEDATA::fcTrappingFastDirection},
    {key::full_color::kTrappingSlowDirection, &_PAGEDATA::fcTrappingSlowDirection},
    {key::full_color::kBlackOverprint, &_PAGEDATA::fcBlackOverprint},
    {key::full_color::kImageRendering, &_PAGEDATA::fcImageRendering},
    {key::full_color::kTextRendering, &_PAGEDATA::fcTextRendering},
    {key::full_color::kGraphicsRendering, &_PAGEDATA::fcGraphicsRendering},
    {key::full_color::kAntiAliasing, &_PAGEDATA::fcAntiAliasing},
    {key::full_color::kHalftone, &_PAGEDATA::fcHalftone},
    {key::full_color::kOutputColor, &_PAGEDATA::fcOutputColor},
};

struct TextKey {
  const char* key;
  const char* _PAGEDATA::*field;
};
constexpr TextKey kTexts[] = {
    {key::full_color::kTRC, &_PAGEDATA::fcTRC},
    {key::full_color::kGrayImages, &_PAGEDATA::fcGrayImagesString},
    {key::full_color::kGrayTextGraphics, &_PAGEDATA::fcGrayTextGraphicsString},
};

/// A profile: a number is the printer's code for it, a string its name.
struct ProfileKey {
  const char* key;
  std::int32_t _PAGEDATA::*number;
  const char* _PAGEDATA::*name;
};
constexpr ProfileKey kProfiles[] = {
    {key::full_color::kRGBImages, &_PAGEDATA::fcRGBImagesNumber, &_PAGEDATA::fcRGBImagesString},
    {key::full_color::kRGBTextGraphics, &_PAGEDATA::fcRGBTextGraphicsNumber,
     &_PAGEDATA::fcRGBTextGraphicsString},
    {key::full_color::kCMYKImages, &_PAGEDATA::fcCMYKImagesNumber, &_PAGEDATA::fcCMYKImagesString},
    {key::full_color::kCMYKTextGraphics, &_PAGEDATA::fcCMYKTextGraphicsNumber,
     &_PAGEDATA::fcCMYKTextGraphicsString},
    {key::full_color::kDestination, &_PAGEDATA::fcDestinationNumber,
     &_PAGEDATA::fcDestinationString},
};

/// The choice under `key` counted from 0, or -1 when it is not one of `count`.
int Choice(const Dictionary& options, std::string_view key, int count) {
  const std::int32_t number = NumberOr(options, key, 0);
  return number >= 1 && number <= count ? number - 1 : -1;
}

void FillHighlightColor(_PAGEDATA* page, const Dictionary& options) {
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

void FillFullColor(_PAGEDATA* page, EscapedTexts* texts, const Dictionary& options) {
  for (const NumberKey& row : kNumbers) page->*row.field = NumberOr(options, row.key, kNotSet);
  for (const TextKey& row : kTexts) page->*row.field = texts->Take(options, row.key);
  for (const ProfileKey& row : kProfiles) {
    const std::int32_t code = NumberOr(options, row.key, 0);
    if (code != 0) page->*row.number = code;
    page->*row.name = texts->Take(options, row.key);
  }
}

void WriteJTMLHighlightColor(const Dictionary& options) {
  _PAGEDATA page;
  FillHighlightColor(&page, options);
  WriteJtmlHLC(&writeData, &page);
}

void WriteJTMLFullColor(const Dictionary& options) {
  EscapedTexts texts;
  _PAGEDATA page;
  FillFullColor(&page, &texts, options);
  WriteJtmlFullColor(&writeData, &page);
}

}  // namespace zarvo
