// SPDX-License-Identifier: Apache-2.0
#include "Desk/model/Finishing.h"

#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo::desk {
namespace {

std::int32_t NumberOf(const Dictionary& ticket, const char* name) {
  std::int32_t number = 0;
  CFDictionaryGetNumber(ticket, name, &number);
  return number;
}

bool IsZFold(std::int32_t fold) { return fold == kZFold1011 || fold == kZFold1008; }

/// Which values a preset makes count.
struct Preset {
  FinishingPreset preset;
  bool staple, punch, zfold, fold, bind, booklet;
};
constexpr Preset kPresets[] = {
    {kPresetStaple, true, false, false, false, false, false},
    {kPresetTwoStaples, true, false, false, false, false, false},
    {kPresetStaplesInFold, true, false, false, false, false, false},
    {kPresetPunch, false, true, false, false, false, false},
    {kPresetPunchStaple, true, true, false, false, false, false},
    {kPresetZFold, false, false, true, false, false, false},
    {kPresetZFoldStaple, true, false, true, false, false, false},
    {kPresetZFoldPunch, false, true, true, false, false, false},
    {kPresetZFoldPunchStaple, true, true, true, false, false, false},
    {kPresetLetterFold, false, false, false, true, false, false},
    {kPresetFold, false, false, false, true, false, false},
    {kPresetBind, false, false, false, false, true, false},
    {kPresetBooklet, false, false, false, false, false, true},
    {kPresetNone, false, false, false, false, false, true},
};

const Preset* PresetFor(const Finishing& wanted) {
  for (const Preset& row : kPresets) {
    const bool fits = row.staple == (wanted.staple != 0) && row.punch == (wanted.punch != 0) &&
                      row.zfold == IsZFold(wanted.fold) &&
                      row.fold == (wanted.fold != 0 && !IsZFold(wanted.fold)) &&
                      row.bind == (wanted.bind != 0) && row.booklet == (wanted.booklet != 0);
    if (!fits) continue;
    if (row.preset == kPresetStaple && wanted.staple >= kStapleDualLeft) continue;
    if (row.preset == kPresetLetterFold && wanted.fold > kFoldZ) continue;
    return &row;
  }
  return nullptr;
}

}  // namespace

Finishing FinishingOf(const Dictionary& ticket) {
  Finishing finishing;
  const std::int32_t preset = NumberOf(ticket, key::kFinishingOptions);
  if (preset >= kPresetPunchLeft && preset <= kPresetPunchBottom) finishing.punch = preset;
  for (const Preset& row : kPresets) {
    if (row.preset != preset) continue;
    for (const char* name : {key::kFinishingStaple1Value, key::kFinishingStaple2Value,
                             key::kFinishingStapleCenterValue}) {
      if (row.staple && finishing.staple == 0) finishing.staple = NumberOf(ticket, name);
    }
    if (row.punch) finishing.punch = NumberOf(ticket, key::kFinishingHolePunchValue);
    if (row.zfold) finishing.fold = NumberOf(ticket, key::kFinishingZFoldValue);
    if (row.fold) finishing.fold = NumberOf(ticket, key::kFinishingFoldValue);
    if (row.bind) finishing.bind = NumberOf(ticket, key::kFinishingBindValue);
    if (row.booklet) finishing.booklet = NumberOf(ticket, key::kBookletFoldStaple);
  }
  if (finishing.punch != 0) {
    finishing.holes = NumberOf(ticket, key::kFinishingHolePunchOptions);
    if (finishing.holes == 0) finishing.holes = kThreeHoles;
  }
  return finishing;
}

bool CanFinish(const Finishing& finishing) {
  return finishing == Finishing{} || PresetFor(finishing) != nullptr;
}

void PutFinishing(const Finishing& finishing, Dictionary* ticket) {
  if (!CanFinish(finishing)) return;
  for (const char* name :
       {key::kFinishingOptions, key::kFinishingStaple1Value, key::kFinishingStaple2Value,
        key::kFinishingStapleCenterValue, key::kFinishingHolePunchValue,
        key::kFinishingHolePunchOptions, key::kFinishingZFoldValue, key::kFinishingFoldValue,
        key::kFinishingBindValue, key::kBookletFoldStaple})
    ticket->erase(name);
  if (finishing == Finishing{}) return;
  const Preset& preset = *PresetFor(finishing);
  const auto put = [ticket](const char* name, std::int32_t value) {
    if (value != 0) CFDictionarySetNumber(*ticket, name, &value);
  };
  put(key::kFinishingOptions, preset.preset);
  put(preset.preset == kPresetTwoStaples ? key::kFinishingStaple2Value
                                         : key::kFinishingStaple1Value,
      finishing.staple);
  put(key::kFinishingHolePunchValue, finishing.punch);
  if (finishing.punch != 0) put(key::kFinishingHolePunchOptions, finishing.holes);
  put(preset.zfold ? key::kFinishingZFoldValue : key::kFinishingFoldValue, finishing.fold);
  put(key::kFinishingBindValue, finishing.bind);
  put(key::kBookletFoldStaple, finishing.booklet);
}

}  // namespace zarvo::desk
