// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Media.h"

#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {
namespace {

constexpr Keyword kMediaTypes[] = {{kJtmlStationery, "stationery"},
                                   {kJtmlTransparency, "transparency"},
                                   {kJtmlTabStock, "tab-stock"},
                                   {kJtmlPreCutTabs, "pre-cut-tabs"},
                                   {kJtmlFullCutTabs, "full-cut-tabs"},
                                   {kJtmlLabels, "labels"},
                                   {kJtmlEnvelope, "envelope"},
                                   {kJtmlOtherType, "other"},
                                   {kJtmlBond, "bond"}};
constexpr Keyword kMediaColors[] = {
    {kJtmlNoColor, "no-color"}, {kJtmlWhite, "white"},         {kJtmlPink, "pink"},
    {kJtmlYellow, "yellow"},    {kJtmlBlue, "blue"},           {kJtmlGreen, "green"},
    {kJtmlBuff, "buff"},        {kJtmlGoldenrod, "goldenrod"}, {kJtmlRed, "red"},
    {kJtmlIvory, "ivory"},      {kJtmlGray, "gray"},           {kJtmlOrange, "orange"}};
constexpr Keyword kPrePrinted[] = {{0, "blank"}, {1, "pre-printed"}, {2, "letter-head"}};
constexpr Keyword kRecycled[] = {{0, "none"}, {1, "standard"}};
constexpr Keyword kCoatings[] = {
    {1, "glossy"}, {2, "high-gloss"}, {3, "semi-gloss"}, {4, "satin"}, {5, "matte"}};
constexpr Keyword kTeeth[] = {{1, "fine"}, {2, "medium"}, {3, "coarse"}};
constexpr Keyword kGrains[] = {{1, "y-grain"}, {2, "x-grain"}};

/// The element of a code that the table lists, else nothing.
std::string Coded(const char* element, std::span<const Keyword> table, int code) {
  const char* keyword = FindKeyword(table, code);
  return keyword != nullptr ? Element(3, element, Syntax::kKeyword, keyword) : "";
}

std::string Counted(const char* element, int number) {
  return number != -1 ? Element(3, element, number) : "";
}

std::string Text(const char* element, Syntax syntax, const char* text) {
  return text != nullptr ? Element(3, element, syntax, text) : "";
}

/// The type, and what a type says of its being pre-printed or recycled.
std::string TypeLines(const MediaData& media) {
  switch (media.nMediaType) {
    case kJtmlPrePrinted:
      return Coded("media-pre-printed", kPrePrinted, 1);
    case kJtmlLetterHead:
      return Coded("media-pre-printed", kPrePrinted, 2);
    case kJtmlRecycled:
      return Coded("media-recycled", kRecycled, 1);
    default:
      break;
  }
  const bool named = media.nMediaType == kJtmlNamedType || media.nMediaType == kJtmlNamedTypeAlso;
  return (named ? Text("media-type", Syntax::kName, media.strMediaType)
                : Coded("media-type", kMediaTypes, media.nMediaType)) +
         Coded("media-pre-printed", kPrePrinted, media.nPrePrinted) +
         Coded("media-recycled", kRecycled, media.nRecycledType);
}

std::string SizeLines(const XSIZE& size) {
  if (size.cx == 0 || size.cy == 0) return "";
  return StartLine(3, "media-size", Syntax::kCollection) + Element(4, "x-dimension", size.cx) +
         Element(4, "y-dimension", size.cy) + EndLine(3, "media-size");
}

std::string CoatingLines(const MediaData& media) {
  const char* coating = FindKeyword(kCoatings, media.nCoatingType);
  if (coating == nullptr) return "";
  constexpr int kFrontOnly = 2;
  constexpr int kBackOnly = 3;
  return Element(3, "media-front-coating", Syntax::kKeyword,
                 media.nSidesCoated == kBackOnly ? "none" : coating) +
         Element(3, "media-back-coating", Syntax::kKeyword,
                 media.nSidesCoated == kFrontOnly ? "none" : coating);
}

std::string Members(const MediaData& media) {
  if (media.strMediaName != nullptr && *media.strMediaName != '\0') {
    return Text("media-key", Syntax::kName, media.strMediaName);
  }
  const bool tabs = media.nMediaType >= kJtmlTabStock && media.nMediaType <= kJtmlFullCutTabs;
  return TypeLines(media) + (tabs ? Counted("media-order-count", media.nOrderCount) : "") +
         Counted("media-weight-metric", media.nWeight) +
         Text("media-description", Syntax::kText, media.strMediaDescription) +
         Counted("media-hole-count", media.nHoleCount) +
         (media.nMediaColor == kJtmlNamedColor
              ? Text("media-color", Syntax::kName, media.strMediaColor)
              : Coded("media-color", kMediaColors, media.nMediaColor)) +
         SizeLines(media.MediaSize) + CoatingLines(media) +
         Coded("media-tooth", kTeeth, media.nFinish) + Coded("media-grain", kGrains, media.nGrain);
}

}  // namespace

JtmlGenError WriteJtmlMedia(const JtmlSink* sink, const MediaData* media) {
  if (media->nSource >= 0) {
    const std::string tray =
        media->nSource == 0 ? "post-fuser-inserter" : "tray-" + std::to_string(media->nSource);
    Send(sink, Element(2, "media", Syntax::kKeyword, tray));
    return JTML_SUCCESS;
  }
  Send(sink,
       StartLine(2, "media-col", Syntax::kCollection) + Members(*media) + EndLine(2, "media-col"));
  return JTML_SUCCESS;
}

}  // namespace zarvo
