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

JtmlGenError WriteNamed(const JtmlSink* sink, const char* element, const char* name) {
  if (name != nullptr) Send(sink, Element(2, element, Syntax::kName, name));
  return JTML_SUCCESS;
}

JtmlGenError WriteProfile(const JtmlSink* sink, std::span<const Profile> table, int code,
                          const char* element, const char* name) {
  if (code == 0) return WriteNamed(sink, element, name);
  for (const Profile& row : table) {
    if (row.code == code) Send(sink, Element(2, element, row.syntax, row.text));
  }
  return JTML_SUCCESS;
}

/// A full-colour number and the command that writes it.
struct Adjustment {
  std::int32_t PageData::*field;
  JtmlCommand command;
};

constexpr Adjustment kAdjustments[] = {
    {&PageData::fcLightness, kJtmlLightness},
    {&PageData::fcContrast, kJtmlContrast},
    {&PageData::fcSaturation, kJtmlSaturation},
    {&PageData::fcCyanRed, kJtmlCyanRed},
    {&PageData::fcMagentaGreen, kJtmlMagentaGreen},
    {&PageData::fcYellowBlue, kJtmlYellowBlue},
    {&PageData::fcTrapping, kJtmlTrapping},
    {&PageData::fcTrappingFastDirection, kJtmlTrapWidthFast},
    {&PageData::fcTrappingSlowDirection, kJtmlTrapWidthSlow},
    {&PageData::fcBlackOverprint, kJtmlBlackOverprint},
};

// Written behind the profiles. A halftone choice writes nothing here: screens are job-wide.
constexpr Adjustment kRenderings[] = {
    {&PageData::fcImageRendering, kJtmlRenderingImages},
    {&PageData::fcTextRendering, kJtmlRenderingText},
    {&PageData::fcGraphicsRendering, kJtmlRenderingGraphics},
    {&PageData::fcAntiAliasing, kJtmlAntiAliasing},
    {&PageData::fcHalftone, kJtmlHalftone},
    {&PageData::fcOutputColor, kJtmlColorEffects},
};

void WriteAdjustments(const JtmlSink* sink, const PageData& page,
                      std::span<const Adjustment> rows) {
  for (const Adjustment& row : rows) {
    if (page.*row.field != kNotSet) WriteJtmlCommands(sink, row.command, page.*row.field);
  }
}

using ProfileWriter = JtmlGenError (*)(const JtmlSink*, int, const char*, const char*);

/// A profile given by code, by name or by both, and the elements that it goes into.
struct ProfileChoice {
  ProfileWriter writer;
  std::int32_t PageData::*number;
  const char* PageData::*name;
  const char* elements[2];  ///< the second may be null
};

constexpr ProfileChoice kSourceChoices[] = {
    {&WriteJtmlRGBSource,
     &PageData::fcRGBImagesNumber,
     &PageData::fcRGBImagesString,
     {"undefined-source-rgb-images", nullptr}},
    {&WriteJtmlRGBSource,
     &PageData::fcRGBTextGraphicsNumber,
     &PageData::fcRGBTextGraphicsString,
     {"undefined-source-rgb-text", "undefined-source-rgb-graphics"}},
    {&WriteJtmlCMYKSource,
     &PageData::fcCMYKImagesNumber,
     &PageData::fcCMYKImagesString,
     {"undefined-source-cmyk-images", nullptr}},
    {&WriteJtmlCMYKSource,
     &PageData::fcCMYKTextGraphicsNumber,
     &PageData::fcCMYKTextGraphicsString,
     {"undefined-source-cmyk-text", "undefined-source-cmyk-graphics"}},
};

constexpr ProfileChoice kDestinationChoice = {
    &WriteJtmlColorDestination,
    &PageData::fcDestinationNumber,
    &PageData::fcDestinationString,
    {"color-destination-profile-front", "color-destination-profile-back"}};

void WriteChoice(const JtmlSink* sink, const PageData& page, const ProfileChoice& choice) {
  const auto write = [&](int code, const char* name) {
    for (const char* element : choice.elements) {
      if (element != nullptr) choice.writer(sink, code, element, name);
    }
  };
  if (page.*choice.number != kNotSet) write(page.*choice.number, nullptr);
  if (page.*choice.name != nullptr) write(0, page.*choice.name);
}

}  // namespace

JtmlGenError WriteJtmlFullColor(const JtmlSink* sink, const PageData* page) {
  WriteAdjustments(sink, *page, kAdjustments);
  if (page->fcTRC != nullptr) WriteJtmlTRC(sink, page->fcTRC);
  for (const ProfileChoice& choice : kSourceChoices) WriteChoice(sink, *page, choice);
  WriteJtmlGraySource(sink, "undefined-source-gray-images", page->fcGrayImagesString);
  WriteJtmlGraySource(sink, "undefined-source-gray-text", page->fcGrayTextGraphicsString);
  WriteJtmlGraySource(sink, "undefined-source-gray-graphics", page->fcGrayTextGraphicsString);
  WriteChoice(sink, *page, kDestinationChoice);
  WriteAdjustments(sink, *page, kRenderings);
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlTRC(const JtmlSink* sink, const char* szTRCName) {
  Send(sink, StartLine(2, "trc", Syntax::kCollection) +
                 Element(3, "trc-name", Syntax::kName, TextOrEmpty(szTRCName)) + EndLine(2, "trc"));
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlRGBSource(const JtmlSink* sink, int nSource, const char* szJTMLName,
                                const char* szName) {
  return WriteProfile(sink, kRGBProfiles, nSource, szJTMLName, szName);
}

JtmlGenError WriteJtmlCMYKSource(const JtmlSink* sink, int nSource, const char* szJTMLName,
                                 const char* szName) {
  return WriteProfile(sink, kCMYKProfiles, nSource, szJTMLName, szName);
}

JtmlGenError WriteJtmlGraySource(const JtmlSink* sink, const char* szJTMLName, const char* szName) {
  return WriteNamed(sink, szJTMLName, szName);
}

JtmlGenError WriteJtmlColorDestination(const JtmlSink* sink, int nSource, const char* szJTMLName,
                                       const char* szName) {
  if (nSource == 0) return WriteNamed(sink, szJTMLName, szName);
  std::string text = Element(2, szJTMLName, Syntax::kKeyword, "system-specified");
  text.pop_back();  // this form has no line feed
  Send(sink, text);
  return JTML_SUCCESS;
}

}  // namespace zarvo
