// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Finishing.h"

#include "CUPSFilter/jtmlgen/Emit.h"
#include "Platform/Log.h"

namespace zarvo {
namespace {

// The words are the enumeration values of the printer's `finishings` attribute.
constexpr Keyword kStaples[] = {
    {kJtmlStapleTopLeft, "20"},    {kJtmlStapleTopRight, "22"},     {kJtmlStapleBottomLeft, "21"},
    {kJtmlStapleDualLeft, "28"},   {kJtmlStapleDualTop, "29"},      {kJtmlStapleDualBottom, "31"},
    {kJtmlStapleDualRight, "30"},  {kJtmlStapleBooklet, "110"},     {kJtmlStapleTripleLeft, "32"},
    {kJtmlStapleTripleTop, "33"},  {kJtmlStapleTripleBottom, "35"}, {kJtmlStapleTripleRight, "34"},
    {kJtmlStapleBottomRight, "23"}};
constexpr Keyword kFolds[] = {
    {kJtmlNoFinishing, "3"},   {kJtmlFoldBooklet, "111"},       {kJtmlFoldC, "1000"},
    {kJtmlFoldZ, "1001"},      {kJtmlBindLeft, "50"},           {kJtmlBindRight, "52"},
    {kJtmlBookletMaker, "13"}, {kJtmlFold1003, "1003"},         {kJtmlFold1004, "1004"},
    {kJtmlFoldHalf, "111"},    {kJtmlFoldHalfAndStaple, "110"}, {kJtmlZFold1011, "1011"},
    {kJtmlZFold1008, "1008"},  {kJtmlFoldCAlso, "1000"},        {kJtmlFold1005, "1005"},
    {kJtmlFoldZAlso, "1001"},  {kJtmlFold1012, "1012"}};
constexpr Keyword kPunches[] = {{kJtmlPunchLeft, "93"},
                                {kJtmlPunchTop, "94"},
                                {kJtmlPunchRight, "95"},
                                {kJtmlPunchBottom, "96"}};
constexpr Keyword kPunchHoles[] = {
    {kJtmlTwoHoles, "90"}, {kJtmlThreeHoles, "91"}, {kJtmlFourHoles, "92"}};

}  // namespace

JtmlGenError WriteJtmlFinishing(const JtmlSink* sink, const FinisherData* finisher) {
  if (finisher->szFinishingStr != nullptr) {
    SendUncounted(sink, StartLine(2, "finishings-col", Syntax::kCollection));
    SendUncounted(sink, Element(3, "finishing-template", Syntax::kName, finisher->szFinishingStr));
    SendUncounted(sink, EndLine(2, "finishings-col"));
    return JTML_SUCCESS;
  }
  if (finisher->nStapleOptions == -1 && finisher->nFoldOptions == -1 &&
      finisher->nHolePunchOptions == -1) {
    return JTML_SUCCESS;
  }
  LogLine(
      "DEBUG: WriteJtmlFinishing: nStapleOptions = %d, nFoldOptions = %d, nHolePunchOptions = %d, "
      "nHolePunchNumHoles = %d",
      finisher->nStapleOptions, finisher->nFoldOptions, finisher->nHolePunchOptions,
      finisher->nHolePunchNumHoles);

  std::string line = StartLine(2, "finishings", Syntax::kSetOf);
  SendUncounted(sink, line);
  const auto member = [](const char* keyword) {
    return Element(3, "value", Syntax::kEnum, keyword);
  };
  // A code without a word leaves the line as it is, so that it goes out again.
  const auto add = [&](std::span<const Keyword> table, int code) {
    if (code == -1) return;
    if (const char* keyword = FindKeyword(table, code)) line = member(keyword);
    SendUncounted(sink, line);
  };
  add(kStaples, finisher->nStapleOptions);
  add(kFolds, finisher->nFoldOptions);
  add(kPunches, finisher->nHolePunchOptions);
  if (finisher->nHolePunchOptions != -1) {
    const char* holes = FindKeyword(kPunchHoles, finisher->nHolePunchNumHoles);
    SendUncounted(sink, holes != nullptr ? member(holes) : "");
  }
  SendUncounted(sink, EndLine(2, "finishings"));
  return JTML_SUCCESS;
}

}  // namespace zarvo
