// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JobSettings.h"

#include <cmath>
#include <memory>
#include <string_view>
#include <vector>

#include "CUPSFilter/Options/MediaSize.h"
#include "CUPSFilter/Options/common.h"
#include "Platform/Phrase.h"
#include "Source/CFAdditions.h"
#include "Source/FaxCover.h"
#include "Source/NearestName.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr std::size_t kLongestSides = 127;
constexpr double kPointsPerInch = 72;
constexpr double kHundredthsMillimetrePerInch = 2540;

int HundredthsToPoints(std::uint32_t hundredths) {
  return static_cast<int>(
      std::nearbyint(kPointsPerInch * hundredths / kHundredthsMillimetrePerInch));
}

void ReadBooklet(const Dictionary& ticket, JobSettings* settings) {
  settings->booklet = DictionaryGetBoolean(ticket, key::kBookletLayout) == true;
  if (!settings->booklet || DictionaryGetBoolean(ticket, key::kBookletForceNewSize) != true) return;
  if (const Dictionary* stock = DictionaryGetDictionary(ticket, key::kJobLevelStock)) {
    MediaData media;
    FillMediaSize(&media, *stock);
    settings->mediaWidth = HundredthsToPoints(media.MediaSize.cx);
    settings->mediaLength = HundredthsToPoints(media.MediaSize.cy);
  }
}

/// The entry of the stored list that a 1-based index names; nothing past the list's end or where
/// the entry is no text.
std::optional<std::string> WatermarkAtIndex(std::int32_t index, JobNotices* notices) {
  Array names;
  if (loadWatermarkList(kWatermarkCollection, nullptr, &names) == 0) names.clear();
  const auto position = static_cast<std::size_t>(index) - 1;
  const std::string* name = position < names.size() ? names[position].AsString() : nullptr;
  if (name != nullptr) return *name;
  notices->Add(
      Phrase("watermark %1 was left out: the store has %2; \"zarvo watermark list\" shows them",
             {std::to_string(index), std::to_string(names.size())}));
  return std::nullopt;
}

/// Loads a watermark and notes one that is missing, unless the log tells it already.
void LoadWatermark(const char* collection, const char* what, const std::string& name,
                   WatermarkData* data, JobNotices* notices) {
  if (loadWatermarkData(collection, &name, data) != 0 || !notices->told()) return;
  Array entries;
  loadWatermarkList(collection, nullptr, &entries);
  std::vector<std::string> names;
  for (const Value& entry : entries)
    if (const std::string* text = entry.AsString()) names.push_back(*text);
  const std::string nearest = NearestName(name, names);
  notices->Add(Phrase("%1 \"%2\" was left out: the store has none of that name", {what, name}) +
               "; " +
               (nearest.empty() ? Phrase("\"zarvo watermark list\" shows them")
                                : Phrase("did you mean %1?", {nearest})));
}

/// The cover is drawn much later; its watermark is looked for now, with everything else that may be
/// missing.
void CheckCoverWatermark(const Dictionary& ticket, JobNotices* notices) {
  const Dictionary* fax = DictionaryGetDictionary(ticket, key::kFaxOptions);
  if (fax == nullptr || !notices->told()) return;
  const auto wanted = [fax](std::string_view key) {
    return DictionaryGetBoolean(*fax, key) == true;
  };
  const std::string* name = DictionaryGetString(*fax, kFaxCoverWatermarkNameProperty);
  if (!wanted(kFaxPrintCoverSheetProperty) || !wanted(kFaxCoverShowWatermarkProperty) ||
      name == nullptr)
    return;
  const auto data = std::make_unique<WatermarkData>();
  LoadWatermark(kFaxImageCollection, "the cover's watermark", *name, data.get(), notices);
}

std::optional<WatermarkChoice> ReadWatermark(const Dictionary& ticket, JobNotices* notices) {
  WatermarkChoice choice;
  std::optional<std::string> name;
  std::int32_t first_page_only = 0;
  if (DictionaryContains(ticket, key::kWatermark)) {
    if (const std::string* chosen = DictionaryGetString(ticket, key::kWatermark)) name = *chosen;
    CFDictionaryGetNumber(ticket, key::kWatermarkPlace, &choice.watermark_option);
    CFDictionaryGetNumber(ticket, key::kWatermarkFirstPageOnly, &first_page_only);
  } else {
    std::int32_t index = 1;  // the list's first entry stands for "none"
    CFDictionaryGetNumber(ticket, key::kListedWatermark, &index);
    if (index < 2) return std::nullopt;
    if (DictionaryContains(ticket, key::kListedWatermarkForeground)) {
      std::int32_t foreground = 0;
      CFDictionaryGetNumber(ticket, key::kListedWatermarkForeground, &foreground);
      choice.watermark_option = foreground != 0 ? kWatermarkForeground : kWatermarkBackground;
    }
    CFDictionaryGetNumber(ticket, key::kListedWatermarkFirstPage, &first_page_only);
    name = WatermarkAtIndex(index, notices);
  }
  if (!name) return std::nullopt;
  choice.watermarkFirstPageOnly = first_page_only != 0;
  constexpr int kRightAngle = 90;
  std::int32_t degrees = -1;
  if (CFDictionaryGetNumber(ticket, key::kWatermarkTurn, &degrees) && degrees >= 0 &&
      degrees < 4 * kRightAngle && degrees % kRightAngle == 0)
    choice.turn = degrees / kRightAngle;
  LoadWatermark(kWatermarkCollection, "watermark", *name, &choice.watermarkData, notices);
  return choice;
}

bool IsOne(const Dictionary& dictionary, const char* key) {
  std::int32_t value = 0;
  return CFDictionaryGetNumber(dictionary, key, &value) && value == 1;
}

}  // namespace

JobSettings ReadJobSettings(const Dictionary& ticket, int num_options, cups_option_t* options,
                            JobNotices* notices) {
  JobSettings settings;
  settings.mediaWidth = WholePoints(PageWidth);
  settings.mediaLength = WholePoints(PageLength);
  CFDictionaryGetNumber(ticket, key::kEmitJTML, &settings.emitJTML);
  ReadBooklet(ticket, &settings);
  settings.watermark = ReadWatermark(ticket, notices);
  CheckCoverWatermark(ticket, notices);
  if (const Dictionary* job = DictionaryGetDictionary(ticket, key::kJobType)) {
    std::int32_t type = kJobTypeNormal;
    CFDictionaryGetNumber(*job, key::job_type::kJobType, &type);
    settings.keepsSecret =
        type == kJobTypeFax || DictionaryContains(*job, key::job_type::kSecurePrintPassword);
  }
  if (const Dictionary* image = DictionaryGetDictionary(ticket, key::kInvertImageOptions)) {
    settings.invertImage = IsOne(*image, key::invert::kNegativeImage);
    settings.flipHorizontal = IsOne(*image, key::invert::kMirrorImage);
  }
  const auto option = [&](const char* name) -> std::optional<std::string> {
    const char* value = cupsGetOption(name, num_options, options);
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
  };
  settings.sides = option("sides").value_or(settings.sides).substr(0, kLongestSides);
  settings.zarvoJobName = option("ZRVJobName");
  settings.zarvoJobPassword = option("ZRVJobPassword");
  return settings;
}

}  // namespace zarvo
