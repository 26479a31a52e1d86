// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/Sections.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"
#include "Platform/Log.h"

namespace zarvo {
namespace {

constexpr CodePair kStaples[] = {{5, 0},  {6, 2},  {7, 1},   {8, 20},  {10, 3},  {11, 4},
                                 {12, 5}, {13, 6}, {26, 16}, {27, 17}, {28, 18}, {29, 19}};
// The printer has no word for 38; the choice repeats the line before it.
constexpr CodePair kPunches[] = {{32, 31}, {33, 32}, {34, 33}, {35, 34}, {49, 38}};
constexpr CodePair kZFolds[] = {{38, 25}, {39, 26}};
constexpr CodePair kBinds[] = {{15, 13}, {16, 14}};
constexpr CodePair kHalfFolds[] = {{19, 11}, {20, 12}};
constexpr CodePair kSimpleFolds[] = {{41, 21}, {42, 22}, {43, 23}, {44, 24},
                                     {45, 27}, {46, 28}, {47, 29}, {48, 30}};
constexpr CodePair kHoles[] = {{4, 36}, {5, 37}, {3, 35}};

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
  choices.finishingOptions = read("com.zarvo.print.FinishingOptions");
  choices.foldOptions = read("com.zarvo.print.FinishingZFoldValue");
  for (const char* key :
       {"com.zarvo.print.FinishingStaple1Value", "com.zarvo.print.FinishingStaple2Value",
        "com.zarvo.print.FinishingStapleCenterValue"}) {
    if (choices.stapleValue == 0) choices.stapleValue = read(key);
  }
  choices.holePunchValue = read("com.zarvo.print.FinishingHolePunchValue");
  choices.simpleFoldValue = read("com.zarvo.print.FinishingFoldValue");
  choices.bindValue = read("com.zarvo.print.FinishingBindValue");
  choices.bookletValue = read("com.zarvo.print.BookletFoldStaple");
  choices.holePunchOptions = NumberOr(ticket, "com.zarvo.print.FinishingHolePunchOptions", 4);
  return choices;
}

void FillCodes(_FINISHERDATA* data, const Choices& choices) {
  const auto staple = [&] { data->nStapleOptions = MapCode(kStaples, choices.stapleValue, -1); };
  const auto punch = [&] {
    data->nHolePunchOptions = MapCode(kPunches, choices.holePunchValue, -1);
  };
  const auto fold = [&](std::span<const CodePair> table, std::int32_t value) {
    data->nFoldOptions = MapCode(table, value, -1);
  };
  switch (choices.finishingOptions) {
    case 0:
    case 24:
      if (choices.bookletValue == 7) data->nFoldOptions = 10;
      if (choices.bookletValue == 8) data->nStapleOptions = 7;
      break;
    case 1:
      data->nFoldOptions = 9;
      break;
    case 3:
      data->nFoldOptions = 15;
      break;
    case 4:
    case 9:
    case 25:
      staple();
      break;
    case 14:
      fold(kBinds, choices.bindValue);
      break;
    case 18:
      fold(kHalfFolds, choices.simpleFoldValue);
      break;
    case 30:
      if (choices.holePunchValue != 49) punch();
      break;
    case 32:
    case 33:
    case 34:
    case 35:
      data->nHolePunchOptions = MapCode(kPunches, choices.finishingOptions, -1);
      break;
    case 36:
      fold(kZFolds, choices.foldOptions);
      break;
    case 40:
      fold(kSimpleFolds, choices.simpleFoldValue);
      break;
    case 49:
      punch();
      staple();
      break;
    case 50:
      fold(kZFolds, choices.foldOptions);
      punch();
      staple();
      break;
    case 51:
      fold(kZFolds, choices.foldOptions);
      staple();
      break;
    case 52:
      fold(kZFolds, choices.foldOptions);
      punch();
      break;
    default:
      break;
  }
}

bool PunchesHoles(std::int32_t preset) {
  return preset == 30 || (preset >= 32 && preset <= 35) || preset == 49 || preset == 50 ||
         preset == 52;
}

void WriteSlipSheets(const Dictionary& ticket) {
  const std::optional<std::int32_t> slip_sheet =
      NumberIfPresent(ticket, "com.zarvo.print.FinishingSlipSheet");
  if (!slip_sheet) return;
  LogLine("DEBUG: ************ SLIPSHEET ************");
  if (*slip_sheet != 2) return;
  LogLine("DEBUG: ************** SLIPSHEET ON ****************");
  WriteJtmlCommands(&writeData, kJtmlSeparatorSheets, 0);
}

}  // namespace

void WriteJTMLFinishing(const Dictionary& ticket) {
  constexpr std::int32_t kTemplate = 22;
  const Choices choices = ReadChoices(ticket);
  LogLine(
      "DEBUG: ******* finishingOptions = %d, foldOptions = %d, stapleValue = %d, holePunchValue = "
      "%d, simpleFoldValue = %d, bindValue = %d, bookletValue = %d",
      choices.finishingOptions, choices.foldOptions, choices.stapleValue, choices.holePunchValue,
      choices.simpleFoldValue, choices.bindValue, choices.bookletValue);
  WriteSlipSheets(ticket);

  EscapedTexts texts;
  _FINISHERDATA data;
  FillCodes(&data, choices);
  if (choices.finishingOptions == kTemplate) {
    data.szFinishingStr = texts.Take(ticket, "com.zarvo.print.FinishingCustom");
  }
  if (PunchesHoles(choices.finishingOptions)) {
    data.nHolePunchNumHoles = MapCode(kHoles, choices.holePunchOptions, -1);
  }
  WriteJtmlFinishing(&writeData, &data);
  WriteJTMLOffset(ticket);
}

}  // namespace zarvo
