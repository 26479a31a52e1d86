// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Emit.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"

namespace zarvo {
namespace {

// Media types that write no type line, or one that is not in the table.
enum MediaType {
  kPrePrintedMedia = 6,
  kRecycledMedia = 7,
  kNamedMedia = 9,
  kNamedMediaAlso = 10,
  kLetterHeadMedia = 13,
};
constexpr int kNamedColor = 12;

constexpr Keyword kMediaTypes[] = {{0, "stationery"},   {1, "transparency"},  {2, "tab-stock"},
                                   {3, "pre-cut-tabs"}, {4, "full-cut-tabs"}, {5, "labels"},
                                   {8, "envelope"},     {11, "other"},        {12, "bond"}};
constexpr Keyword kMediaColors[] = {{0, "no-color"}, {1, "white"}, {2, "pink"},  {3, "yellow"},
                                    {4, "blue"},     {5, "green"}, {6, "buff"},  {7, "goldenrod"},
                                    {8, "red"},      {9, "ivory"}, {10, "gray"}, {11, "orange"}};
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
std::string TypeLines(const _MEDIADATA& media) {
  switch (media.nMediaType) {
    case kPrePrintedMedia:
      return Coded("media-pre-printed", kPrePrinted, 1);
    case kLetterHeadMedia:
      return Coded("media-pre-printed", kPrePrinted, 2);
    case kRecycledMedia:
      return Coded("media-recycled", kRecycled, 1);
    default:
      break;
  }
  const bool named = media.nMediaType == kNamedMedia || media.nMediaType == kNamedMediaAlso;
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

std::string CoatingLines(const _MEDIADATA& media) {
  const char* coating = FindKeyword(kCoatings, media.nCoatingType);
  if (coating == nullptr) return "";
  constexpr int kFrontOnly = 2;
  constexpr int kBackOnly = 3;
  return Element(3, "media-front-coating", Syntax::kKeyword,
                 media.nSidesCoated == kBackOnly ? "none" : coating) +
         Element(3, "media-back-coating", Syntax::kKeyword,
                 media.nSidesCoated == kFrontOnly ? "none" : coating);
}

std::string Members(const _MEDIADATA& media) {
  if (media.strMediaName != nullptr && *media.strMediaName != '\0') {
    return Text("media-key", Syntax::kName, media.strMediaName);
  }
  const bool tabs = media.nMediaType >= 2 && media.nMediaType <= 4;
  return TypeLines(media) + (tabs ? Counted("media-order-count", media.nOrderCount) : "") +
         Counted("media-weight-metric", media.nWeight) +
         Text("media-description", Syntax::kText, media.strMediaDescription) +
         Counted("media-hole-count", media.nHoleCount) +
         (media.nMediaColor == kNamedColor
              ? Text("media-color", Syntax::kName, media.strMediaColor)
              : Coded("media-color", kMediaColors, media.nMediaColor)) +
         SizeLines(media.MediaSize) + CoatingLines(media) +
         Coded("media-tooth", kTeeth, media.nFinish) + Coded("media-grain", kGrains, media.nGrain);
}

}  // namespace

JtmlGenError WriteJtmlMedia(LPWRITEDATA lpWriteData, LPMEDIADATA lpMediaData) {
  const _MEDIADATA& media = *lpMediaData;
  if (media.nSource >= 0) {
    const std::string tray =
        media.nSource == 0 ? "post-fuser-inserter" : "tray-" + std::to_string(media.nSource);
    Send(lpWriteData, Element(2, "media", Syntax::kKeyword, tray));
    return JTML_SUCCESS;
  }
  Send(lpWriteData,
       StartLine(2, "media-col", Syntax::kCollection) + Members(media) + EndLine(2, "media-col"));
  return JTML_SUCCESS;
}

}  // namespace zarvo
