// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Emit.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"
#include "Platform/Log.h"

namespace zarvo {
namespace {

// The words are the enumeration values of the printer's `finishings` attribute.
constexpr Keyword kStaples[] = {{0, "20"},  {1, "22"},  {2, "21"},  {3, "28"},  {4, "29"},
                                {5, "31"},  {6, "30"},  {7, "110"}, {16, "32"}, {17, "33"},
                                {18, "35"}, {19, "34"}, {20, "23"}};
constexpr Keyword kFolds[] = {{9, "3"},     {10, "111"},  {11, "1000"}, {12, "1001"}, {13, "50"},
                              {14, "52"},   {15, "13"},   {21, "1003"}, {22, "1004"}, {23, "111"},
                              {24, "110"},  {25, "1011"}, {26, "1008"}, {27, "1000"}, {28, "1005"},
                              {29, "1001"}, {30, "1012"}};
constexpr Keyword kPunches[] = {{31, "93"}, {32, "94"}, {33, "95"}, {34, "96"}};
constexpr Keyword kPunchHoles[] = {{35, "90"}, {36, "91"}, {37, "92"}};

}  // namespace

JtmlGenError WriteJtmlFinishing(LPWRITEDATA lpWriteData, LPFINISHERDATA lpFinisherData) {
  const _FINISHERDATA& data = *lpFinisherData;
  if (data.szFinishingStr != nullptr) {
    SendUncounted(lpWriteData, StartLine(2, "finishings-col", Syntax::kCollection));
    SendUncounted(lpWriteData,
                  Element(3, "finishing-template", Syntax::kName, data.szFinishingStr));
    SendUncounted(lpWriteData, EndLine(2, "finishings-col"));
    return JTML_SUCCESS;
  }
  if (data.nStapleOptions == -1 && data.nFoldOptions == -1 && data.nHolePunchOptions == -1) {
    return JTML_SUCCESS;
  }
  LogLine(
      "DEBUG: WriteJtmlFinishing: nStapleOptions = %d, nFoldOptions = %d, nHolePunchOptions = %d, "
      "nHolePunchNumHoles = %d",
      data.nStapleOptions, data.nFoldOptions, data.nHolePunchOptions, data.nHolePunchNumHoles);

  std::string line = StartLine(2, "finishings", Syntax::kSetOf);
  SendUncounted(lpWriteData, line);
  const auto member = [](const char* keyword) {
    return Element(3, "value", Syntax::kEnum, keyword);
  };
  // A code without a word leaves the line as it is, so that it goes out again.
  const auto add = [&](std::span<const Keyword> table, int code) {
    if (code == -1) return;
    if (const char* keyword = FindKeyword(table, code)) line = member(keyword);
    SendUncounted(lpWriteData, line);
  };
  add(kStaples, data.nStapleOptions);
  add(kFolds, data.nFoldOptions);
  add(kPunches, data.nHolePunchOptions);
  if (data.nHolePunchOptions != -1) {
    const char* holes = FindKeyword(kPunchHoles, data.nHolePunchNumHoles);
    SendUncounted(lpWriteData, holes != nullptr ? member(holes) : "");
  }
  SendUncounted(lpWriteData, EndLine(2, "finishings"));
  return JTML_SUCCESS;
}

}  // namespace zarvo
