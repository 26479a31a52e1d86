// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/FinishingSection.h"

#include "CUPSFilter/JTML/CommandsSection.h"
#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/Commands.h"
#include "CUPSFilter/jtmlgen/Finishing.h"
#include "Platform/Log.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr CodePair kStaples[] = {
    {kStapleTopLeft, kJtmlStapleTopLeft},           {kStapleBottomLeft, kJtmlStapleBottomLeft},
    {kStapleTopRight, kJtmlStapleTopRight},         {kStapleBottomRight, kJtmlStapleBottomRight},
    {kStapleDualLeft, kJtmlStapleDualLeft},         {kStapleDualTop, kJtmlStapleDualTop},
    {kStapleDualBottom, kJtmlStapleDualBottom},     {kStapleDualRight, kJtmlStapleDualRight},
    {kStapleTripleLeft, kJtmlStapleTripleLeft},     {kStapleTripleTop, kJtmlStapleTripleTop},
    {kStapleTripleBottom, kJtmlStapleTripleBottom}, {kStapleTripleRight, kJtmlStapleTripleRight}};
// The choice without a word repeats the line before it.
constexpr CodePair kPunches[] = {{kPunchLeft, kJtmlPunchLeft},
                                 {kPunchTop, kJtmlPunchTop},
                                 {kPunchRight, kJtmlPunchRight},
                                 {kPunchBottom, kJtmlPunchBottom},
                                 {kPunchWithoutWord, kJtmlPunchWithoutWord}};
constexpr CodePair kZFolds[] = {{kZFold1011, kJtmlZFold1011}, {kZFold1008, kJtmlZFold1008}};
constexpr CodePair kBinds[] = {{kBindLeft, kJtmlBindLeft}, {kBindRight, kJtmlBindRight}};
constexpr CodePair kLetterFolds[] = {{kFoldC, kJtmlFoldC}, {kFoldZ, kJtmlFoldZ}};
constexpr CodePair kFolds[] = {
    {kFold1003, kJtmlFold1003},   {kFold1004, kJtmlFold1004},
    {kFoldHalf, kJtmlFoldHalf},   {kFoldHalfAndStaple, kJtmlFoldHalfAndStaple},
    {kFoldCAlso, kJtmlFoldCAlso}, {kFold1005, kJtmlFold1005},
    {kFoldZAlso, kJtmlFoldZAlso}, {kFold1012, kJtmlFold1012}};
constexpr CodePair kHoles[] = {
    {kTwoHoles, kJtmlTwoHoles}, {kThreeHoles, kJtmlThreeHoles}, {kFourHoles, kJtmlFourHoles}};

/// What the print dialog chose; 0 where it chose nothing.
struct Choices {
  std::int32_t finishingOptions;  ///< the preset, which says what the others mean
  std::int32_t foldOptions;       ///< Z-fold
  std::int32_t stapleValue;
  std::int32_t holePunchValue;
  std::int32_t simpleFoldValue;
  std::int32_t bindValue;
  std::int32_t bookletValue;
  std::int32_t holePunchOptions;  ///< the number of holes
};

Choices ReadChoices(const Dictionary& ticket) {
  const auto read = [&ticket](const char* key) { return NumberOr(ticket, key, 0); };
  Choices choices = {};
  choices.finishingOptions = read(key::kFinishingOptions);
  choices.foldOptions = read(key::kFinishingZFoldValue);
  for (const char* key : {key::kFinishingStaple1Value, key::kFinishingStaple2Value,
                          key::kFinishingStapleCenterValue}) {
    if (choices.stapleValue == 0) choices.stapleValue = read(key);
  }
  choices.holePunchValue = read(key::kFinishingHolePunchValue);
  choices.simpleFoldValue = read(key::kFinishingFoldValue);
  choices.bindValue = read(key::kFinishingBindValue);
  choices.bookletValue = read(key::kBookletFoldStaple);
  choices.holePunchOptions = NumberOr(ticket, key::kFinishingHolePunchOptions, kThreeHoles);
  return choices;
}

void FillCodes(FinisherData* data, const Choices& choices) {
  const auto staple = [&] { data->nStapleOptions = MapCode(kStaples, choices.stapleValue, -1); };
  const auto punch = [&] {
    data->nHolePunchOptions = MapCode(kPunches, choices.holePunchValue, -1);
  };
  const auto fold = [&](std::span<const CodePair> table, std::int32_t value) {
    data->nFoldOptions = MapCode(table, value, -1);
  };
  switch (choices.finishingOptions) {
    case kPresetNone:
    case kPresetBooklet:
      if (choices.bookletValue == kBookletFold) data->nFoldOptions = kJtmlFoldBooklet;
      if (choices.bookletValue == kBookletFoldAndStaple) data->nStapleOptions = kJtmlStapleBooklet;
      break;
    case kPresetPlain:
      data->nFoldOptions = kJtmlNoFinishing;
      break;
    case kPresetBookletMaker:
      data->nFoldOptions = kJtmlBookletMaker;
      break;
    case kPresetStaple:
    case kPresetTwoStaples:
    case kPresetStaplesInFold:
      staple();
      break;
    case kPresetBind:
      fold(kBinds, choices.bindValue);
      break;
    case kPresetLetterFold:
      fold(kLetterFolds, choices.simpleFoldValue);
      break;
    case kPresetPunch:
      if (choices.holePunchValue != kPunchWithoutWord) punch();
      break;
    case kPresetPunchLeft:
    case kPresetPunchTop:
    case kPresetPunchRight:
    case kPresetPunchBottom:
      data->nHolePunchOptions = MapCode(kPunches, choices.finishingOptions, -1);
      break;
    case kPresetZFold:
      fold(kZFolds, choices.foldOptions);
      break;
    case kPresetFold:
      fold(kFolds, choices.simpleFoldValue);
      break;
    case kPresetPunchStaple:
      punch();
      staple();
      break;
    case kPresetZFoldPunchStaple:
      fold(kZFolds, choices.foldOptions);
      punch();
      staple();
      break;
    case kPresetZFoldStaple:
      fold(kZFolds, choices.foldOptions);
      staple();
      break;
    case kPresetZFoldPunch:
      fold(kZFolds, choices.foldOptions);
      punch();
      break;
    default:
      break;
  }
}

bool PunchesHoles(std::int32_t preset) {
  return preset == kPresetPunch || (preset >= kPresetPunchLeft && preset <= kPresetPunchBottom) ||
         preset == kPresetPunchStaple || preset == kPresetZFoldPunchStaple ||
         preset == kPresetZFoldPunch;
}

void WriteSlipSheets(const Dictionary& ticket) {
  const std::optional<std::int32_t> slip_sheet = NumberIfPresent(ticket, key::kFinishingSlipSheet);
  if (!slip_sheet) return;
  LogLine("DEBUG: ************ SLIPSHEET ************");
  if (*slip_sheet != kSlipSheetsOn) return;
  LogLine("DEBUG: ************** SLIPSHEET ON ****************");
  WriteJtmlCommands(&writeData, kJtmlSeparatorSheets, 0);
}

}  // namespace

void WriteJTMLFinishing(const Dictionary& ticket) {
  const Choices choices = ReadChoices(ticket);
  LogLine(
      "DEBUG: ******* finishingOptions = %d, foldOptions = %d, stapleValue = %d, holePunchValue = "
      "%d, simpleFoldValue = %d, bindValue = %d, bookletValue = %d",
      choices.finishingOptions, choices.foldOptions, choices.stapleValue, choices.holePunchValue,
      choices.simpleFoldValue, choices.bindValue, choices.bookletValue);
  WriteSlipSheets(ticket);

  EscapedTexts texts;
  FinisherData data;
  FillCodes(&data, choices);
  if (choices.finishingOptions == kPresetTemplate) {
    data.szFinishingStr = texts.Take(ticket, key::kFinishingCustom);
  }
  if (PunchesHoles(choices.finishingOptions)) {
    data.nHolePunchNumHoles = MapCode(kHoles, choices.holePunchOptions, -1);
  }
  WriteJtmlFinishing(&writeData, &data);
  WriteJTMLOffset(ticket);
}

}  // namespace zarvo
