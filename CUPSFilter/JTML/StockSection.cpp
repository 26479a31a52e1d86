// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/StockSection.h"

#include <limits>

#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/Options/MediaSize.h"
#include "CUPSFilter/jtmlgen/Media.h"
#include "Source/CFAdditions.h"
#include "Source/Mappings.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr CodePair kTypes[] = {
    {kStandardStock, kJtmlStationery},   {kTransparencyStock, kJtmlTransparency},
    {kPreprintedStock, kJtmlPrePrinted}, {kEnvelopeStock, kJtmlEnvelope},
    {kLabelStock, kJtmlLabels},          {kRecycledStock, kJtmlRecycled},
    {kTabStock, kJtmlTabStock}};
constexpr CodePair kColors[] = {
    {kWhite, kJtmlWhite}, {kBlue, kJtmlBlue},           {kYellow, kJtmlYellow},
    {kGreen, kJtmlGreen}, {kPink, kJtmlPink},           {kClear, kJtmlNoColor},
    {kBuff, kJtmlBuff},   {kGoldenrod, kJtmlGoldenrod}, {kRed, kJtmlRed},
    {kIvory, kJtmlIvory}, {kGray, kJtmlGray},           {kOrange, kJtmlOrange}};
constexpr int kAnyAbove0 = std::numeric_limits<std::int32_t>::max();

/// Stocks that the customer set up go by name.
bool IsCustom(std::int32_t code) { return code >= kFirstCustomStock && code <= kLastCustomStock; }

/// The number under `key`, or -1 when it is not `low` to `high`.
int InRange(const Dictionary& stock, std::string_view key, std::int32_t low, std::int32_t high) {
  const std::int32_t number = NumberOr(stock, key, -1);
  return number >= low && number <= high ? number : -1;
}

}  // namespace

MediaData MediaFromStock(const Dictionary& stock, EscapedTexts* texts) {
  MediaData media;
  media.strMediaName = texts->Take(stock, key::stock::kName);
  const std::int32_t type = NumberOr(stock, key::stock::kType, 0);
  media.nMediaType = IsCustom(type) ? kJtmlNamedType : MapCode(kTypes, type, -1);
  if (IsCustom(type)) media.strMediaType = TypeToString(type);
  const std::int32_t color = NumberOr(stock, key::stock::kColor, 0);
  media.nMediaColor = IsCustom(color) ? kJtmlNamedColor : MapCode(kColors, color, -1);
  if (IsCustom(color)) media.strMediaColor = ColorToString(color);
  media.nWeight = InRange(stock, key::stock::kWeight, 1, kAnyAbove0);
  media.strMediaDescription = texts->Take(stock, key::stock::kDescription);
  media.nHoleCount = InRange(stock, key::stock::kPunched, 1, kAnyAbove0);
  media.nOrderCount = NumberOr(stock, key::stock::kOrderCount, -1);
  media.nCoatingType = InRange(stock, key::stock::kCoating, 1, 5);
  media.nSidesCoated = InRange(stock, key::stock::kCoatedSides, 1, 3);
  media.nFinish = InRange(stock, key::stock::kFinish, 1, 3);
  media.nGrain = InRange(stock, key::stock::kGrain, 1, 2);
  media.nPrePrinted = InRange(stock, key::stock::kPrePrinted, 0, 2);
  media.nRecycledType = InRange(stock, key::stock::kRecycled, 0, 1);
  media.nSource = InRange(stock, key::stock::kSource, 0, 9);
  FillMediaSize(&media, stock);
  return media;
}

void WriteJTMLJobLevelStock(const Dictionary& ticket) {
  const Dictionary* stock = DictionaryGetDictionary(ticket, key::kJobLevelStock);
  if (stock == nullptr) return;
  EscapedTexts texts;
  const MediaData media = MediaFromStock(*stock, &texts);
  WriteJtmlMedia(&writeData, &media);
}

}  // namespace zarvo
