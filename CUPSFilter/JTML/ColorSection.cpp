// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/ColorSection.h"

#include "CUPSFilter/JTML/Sections.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"
#include "Source/CFAdditions.h"

namespace zarvo {
namespace {

constexpr int kCustomColor = 12;

struct NumberKey {
  const char* key;
  std::int32_t _PAGEDATA::*field;
};
constexpr NumberKey kNumbers[] = {
    {"Lightness", &_PAGEDATA::fcLightness},
    {"Contrast", &_PAGEDATA::fcContrast},
    {"Saturation", &_PAGEDATA::fcSaturation},
    {"CyanRed", &_PAGEDATA::fcCyanRed},
    {"MagentaGreen", &_PAGEDATA::fcMagentaGreen},
    {"YellowBlue", &_PAGEDATA::fcYellowBlue},
    {"Trapping", &_PAGEDATA::fcTrapping},
    {"TrappingFastDirection", &_PAGEDATA::fcTrappingFastDirection},
    {"TrappingSlowDirection", &_PAGEDATA::fcTrappingSlowDirection},
    {"BlackOverprint", &_PAGEDATA::fcBlackOverprint},
    {"ImageRendering", &_PAGEDATA::fcImageRendering},
    {"TextRendering", &_PAGEDATA::fcTextRendering},
    {"GraphicsRendering", &_PAGEDATA::fcGraphicsRendering},
    {"AntiAliasing", &_PAGEDATA::fcAntiAliasing},
    {"Halftone", &_PAGEDATA::fcHalftone},
    {"OutputColor", &_PAGEDATA::fcOutputColor},
};

struct TextKey {
  const char* key;
  const char* _PAGEDATA::*field;
};
constexpr TextKey kTexts[] = {
    {"TRC", &_PAGEDATA::fcTRC},
    {"GrayImages", &_PAGEDATA::fcGrayImagesString},
    {"GrayTextGraphics", &_PAGEDATA::fcGrayTextGraphicsString},
};

/// A profile: a number is the printer's code for it, a string its name.
struct ProfileKey {
  const char* key;
  std::int32_t _PAGEDATA::*number;
  const char* _PAGEDATA::*name;
};
constexpr ProfileKey kProfiles[] = {
    {"RGBImages", &_PAGEDATA::fcRGBImagesNumber, &_PAGEDATA::fcRGBImagesString},
    {"RGBTextGraphics", &_PAGEDATA::fcRGBTextGraphicsNumber, &_PAGEDATA::fcRGBTextGraphicsString},
    {"CMYKImages", &_PAGEDATA::fcCMYKImagesNumber, &_PAGEDATA::fcCMYKImagesString},
    {"CMYKTextGraphics", &_PAGEDATA::fcCMYKTextGraphicsNumber,
     &_PAGEDATA::fcCMYKTextGraphicsString},
    {"Destination", &_PAGEDATA::fcDestinationNumber, &_PAGEDATA::fcDestinationString},
};

/// The choice under `key` counted from 0, or -1 when it is not one of `count`.
int Choice(const Dictionary& options, std::string_view key, int count) {
  const std::int32_t number = NumberOr(options, key, 0);
  return number >= 1 && number <= count ? number - 1 : -1;
}

void FillHighlightColor(_PAGEDATA* page, const Dictionary& options) {
  page->hlcPrintingColor = Choice(options, "HiglightPrintingColor", 5);  // the dialog's spelling
  page->hlcMappingColor = Choice(options, "HighlightMappingColor", 13);
  page->hlcMappingAlgorithm = Choice(options, "HighlightMappingAlgorithm", 5);
  page->hlcMismatchAction = Choice(options, "HighlightMismatchAction", 3);
  if (page->hlcMappingColor != kCustomColor) return;
  static constexpr const char* kRGB[] = {"HighlightColorR", "HighlightColorG", "HighlightColorB"};
  static constexpr const char* kHSV[] = {"HighlightColorH", "HighlightColorS", "HighlightColorV"};
  page->isRGB = NumberOr(options, "HighlightColorRGB", 0) != 0;
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
