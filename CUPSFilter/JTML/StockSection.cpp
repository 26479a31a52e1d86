// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/StockSection.h"

#include <limits>

#include "CUPSFilter/Options/MediaSize.h"
#include "Source/Mappings.h"

namespace zarvo {
namespace {

constexpr CodePair kTypes[] = {{1, 0}, {2, 1}, {3, 6}, {8, 8}, {9, 5}, {10, 7}, {24, 2}};
constexpr CodePair kColors[] = {{1, 1}, {2, 4}, {3, 3}, {4, 5},  {5, 2},   {6, 0},
                                {7, 6}, {8, 7}, {9, 8}, {11, 9}, {12, 10}, {13, 11}};
constexpr int kNamedType = 9;
constexpr int kNamedColor = 12;
constexpr int kAnyAbove0 = std::numeric_limits<std::int32_t>::max();

/// Stocks that the customer set up go by name: "Custom1" to "Custom7".
bool IsCustom(std::int32_t code) { return code >= 15 && code <= 21; }

/// The number under `key`, or -1 when it is not `low` to `high`.
int InRange(const Dictionary& stock, std::string_view key, std::int32_t low, std::int32_t high) {
  const std::int32_t number = NumberOr(stock, key, -1);
  return number >= low && number <= high ? number : -1;
}

}  // namespace

_MEDIADATA MediaFromStock(const Dictionary& stock, EscapedTexts* texts) {
  _MEDIADATA media;
  media.strMediaName = texts->Take(stock, "Name");
  const std::int32_t type = NumberOr(stock, "Type", 0);
  media.nMediaType = IsCustom(type) ? kNamedType : MapCode(kTypes, type, -1);
  if (IsCustom(type)) media.strMediaType = TypeToString(type);
  const std::int32_t color = NumberOr(stock, "Color", 0);
  media.nMediaColor = IsCustom(color) ? kNamedColor : MapCode(kColors, color, -1);
  if (IsCustom(color)) media.strMediaColor = ColorToString(color);
  media.nWeight = InRange(stock, "Weight", 1, kAnyAbove0);
  media.strMediaDescription = texts->Take(stock, "Description");
  media.nHoleCount = InRange(stock, "Punched", 1, kAnyAbove0);
  media.nOrderCount = NumberOr(stock, "OrderCount", -1);
  media.nCoatingType = InRange(stock, "Coating", 1, 5);
  media.nSidesCoated = InRange(stock, "CoatedSides", 1, 3);
  media.nFinish = InRange(stock, "Finish", 1, 3);
  media.nGrain = InRange(stock, "Grain", 1, 2);
  media.nPrePrinted = InRange(stock, "PrePrinted", 0, 2);
  media.nRecycledType = InRange(stock, "Recycled", 0, 1);
  media.nSource = InRange(stock, "Source", 0, 9);
  FillMediaSize(&media, stock);
  return media;
}

}  // namespace zarvo
