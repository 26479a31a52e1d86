// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/FullColor.h"

#include "CUPSFilter/jtmlgen/Commands.h"
#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {
namespace {

/// A profile that the printer knows under a keyword or under a name.
struct Profile {
  int code;
  Syntax syntax;
  const char* text;
};

constexpr Profile kRGBProfiles[] = {
    {1, Syntax::kKeyword, "kvc-mode-rgb"}, {2, Syntax::kKeyword, "kvc-mode-rgb-gamma1"},
    {3, Syntax::kKeyword, "Smpte-240m"},   {4, Syntax::kKeyword, "sRGB"},
    {6, Syntax::kName, "Adobe RGB"},
};

constexpr Profile kCMYKProfiles[] = {
    {1, Syntax::kKeyword, "native-cmyk"},
    {2, Syntax::kKeyword, "swop"},
    {4, Syntax::kName, "FOGRA Gloss Coated CMYK"},
    {5, Syntax::kName, "FOGRA Matte Coated CMYK"},
    {6, Syntax::kName, "FOGRA Uncoated CMYK"},
    {7, Syntax::kName, "Japan Color 2001 Plus CMYK"},
    {8, Syntax::kName, "Japan Color 2001 (Type1:Art) CMYK"},
    {9, Syntax::kName, "Japan Color 2001 (Type2:Matte) CMYK"},
    {10, Syntax::kName, "Japan Color 2001 (Type3:Coated) CMYK"},
    {11, Syntax::kName, "Japan Color 2001 (Type4:Uncoated) CMYK"},
    {12, Syntax::kName, "FOGRA Web Offset CMYK"},
    {13, Syntax::kName, "FOGRA Plus CMYK"},
    {14, Syntax::kName, "Commercial CMYK"},
    {15, Syntax::kName, "Swop Plus CMYK"},
};

JtmlGenError WriteNamed(LPWRITEDATA sink, const char* element, const char* name) {
  if (name != nullptr) Send(sink, Element(2, element, Syntax::kName, name));
  return JTML_SUCCESS;
}

JtmlGenError WriteProfile(LPWRITEDATA sink, std::span<const Profile> table, int code,
                          const char* element, const char* name) {
  if (code == 0) return WriteNamed(sink, element, name);
  for (const Profile& row : table) {
    if (row.code == code) Send(sink, Element(2, element, row.syntax, row.text));
  }
  return JTML_SUCCESS;
}

/// A full-colour number and the command that writes it.
struct Adjustment {
  std::int32_t _PAGEDATA::*field;
  JtmlCommand command;
};

constexpr Adjustment kAdjustments[] = {
    {&_PAGEDATA::fcLightness, kJtmlLightness},
    {&_PAGEDATA::fcContrast, kJtmlContrast},
    {&_PAGEDATA::fcSaturation, kJtmlSaturation},
    {&_PAGEDATA::fcCyanRed, kJtmlCyanRed},
    {&_PAGEDATA::fcMagentaGreen, kJtmlMagentaGreen},
    {&_PAGEDATA::fcYellowBlue, kJtmlYellowBlue},
    {&_PAGEDATA::fcTrapping, kJtmlTrapping},
    {&_PAGEDATA::fcTrappingFastDirection, kJtmlTrapWidthFast},
    {&_PAGEDATA::fcTrappingSlowDirection, kJtmlTrapWidthSlow},
    {&_PAGEDATA::fcBlackOverprint, kJtmlBlackOverprint},
};

// Written behind the profiles. A halftone choice writes nothing here: screens are job-wide.
constexpr Adjustment kRenderings[] = {
    {&_PAGEDATA::fcImageRendering, kJtmlRenderingImages},
    {&_PAGEDATA::fcTextRendering, kJtmlRenderingText},
    {&_PAGEDATA::fcGraphicsRendering, kJtmlRenderingGraphics},
    {&_PAGEDATA::fcAntiAliasing, kJtmlAntiAliasing},
    {&_PAGEDATA::fcHalftone, kJtmlHalftone},
    {&_PAGEDATA::fcOutputColor, kJtmlColorEffects},
};

void WriteAdjustments(LPWRITEDATA sink, const _PAGEDATA& page, std::span<const Adjustment> rows) {
  for (const Adjustment& row : rows) {
    if (page.*row.field != kNotSet) WriteJtmlCommands(sink, row.command, page.*row.field);
  }
}

using ProfileWriter = JtmlGenError (*)(LPWRITEDATA, int, const char*, const char*);

/// A profile given by code, by name or by both, and the elements that it goes into.
struct ProfileChoice {
  ProfileWriter writer;
  std::int32_t _PAGEDATA::*number;
  const char* _PAGEDATA::*name;
  const char* elements[2];  ///< the second may be null
};

constexpr ProfileChoice kSourceChoices[] = {
    {&WriteJtmlRGBSource,
     &_PAGEDATA::fcRGBImagesNumber,
     &_PAGEDATA::fcRGBImagesString,
     {"undefined-source-rgb-images", nullptr}},
    {&WriteJtmlRGBSource,
     &_PAGEDATA::fcRGBTextGraphicsNumber,
     &_PAGEDATA::fcRGBTextGraphicsString,
     {"undefined-source-rgb-text", "undefined-source-rgb-graphics"}},
    {&WriteJtmlCMYKSource,
     &_PAGEDATA::fcCMYKImagesNumber,
     &_PAGEDATA::fcCMYKImagesString,
     {"undefined-source-cmyk-images", nullptr}},
    {&WriteJtmlCMYKSource,
     &_PAGEDATA::fcCMYKTextGraphicsNumber,
     &_PAGEDATA::fcCMYKTextGraphicsString,
     {"undefined-source-cmyk-text", "undefined-source-cmyk-graphics"}},
};

constexpr ProfileChoice kDestinationChoice = {
    &WriteJtmlColorDestination,
    &_PAGEDATA::fcDestinationNumber,
    &_PAGEDATA::fcDestinationString,
    {"color-destination-profile-front", "color-destination-profile-back"}};

void WriteChoice(LPWRITEDATA sink, const _PAGEDATA& page, const ProfileChoice& choice) {
  const auto write = [&](int code, const char* name) {
    for (const char* element : choice.elements) {
      if (element != nullptr) choice.writer(sink, code, element, name);
    }
  };
  if (page.*choice.number != kNotSet) write(page.*choice.number, nullptr);
  if (page.*choice.name != nullptr) write(0, page.*choice.name);
}

}  // namespace

JtmlGenError WriteJtmlFullColor(LPWRITEDATA lpWriteData, LPPAGEDATA lpPageData) {
  const _PAGEDATA& page = *lpPageData;
  WriteAdjustments(lpWriteData, page, kAdjustments);
  if (page.fcTRC != nullptr) WriteJtmlTRC(lpWriteData, page.fcTRC);
  for (const ProfileChoice& choice : kSourceChoices) WriteChoice(lpWriteData, page, choice);
  WriteJtmlGraySource(lpWriteData, "undefined-source-gray-images", page.fcGrayImagesString);
  WriteJtmlGraySource(lpWriteData, "undefined-source-gray-text", page.fcGrayTextGraphicsString);
  WriteJtmlGraySource(lpWriteData, "undefined-source-gray-graphics", page.fcGrayTextGraphicsString);
  WriteChoice(lpWriteData, page, kDestinationChoice);
  WriteAdjustments(lpWriteData, page, kRenderings);
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlTRC(LPWRITEDATA lpWriteData, const char* szTRCName) {
  Send(lpWriteData, StartLine(2, "trc", Syntax::kCollection) +
                        Element(3, "trc-name", Syntax::kName, TextOrEmpty(szTRCName)) +
                        EndLine(2, "trc"));
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlRGBSource(LPWRITEDATA lpWriteData, int nSource, const char* szJTMLName,
                                const char* szName) {
  return WriteProfile(lpWriteData, kRGBProfiles, nSource, szJTMLName, szName);
}

JtmlGenError WriteJtmlCMYKSource(LPWRITEDATA lpWriteData, int nSource, const char* szJTMLName,
                                 const char* szName) {
  return WriteProfile(lpWriteData, kCMYKProfiles, nSource, szJTMLName, szName);
}

JtmlGenError WriteJtmlGraySource(LPWRITEDATA lpWriteData, const char* szJTMLName,
                                 const char* szName) {
  return WriteNamed(lpWriteData, szJTMLName, szName);
}

JtmlGenError WriteJtmlColorDestination(LPWRITEDATA lpWriteData, int nSource, const char* szJTMLName,
                                       const char* szName) {
  if (nSource == 0) return WriteNamed(lpWriteData, szJTMLName, szName);
  std::string text = Element(2, szJTMLName, Syntax::kKeyword, "system-specified");
  text.pop_back();  // this form has no line feed
  Send(lpWriteData, text);
  return JTML_SUCCESS;
}

}  // namespace zarvo
