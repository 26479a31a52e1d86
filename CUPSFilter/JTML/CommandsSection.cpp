// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/CommandsSection.h"

#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/Commands.h"
#include "CUPSFilter/jtmlgen/HalfTone.h"
#include "CUPSFilter/jtmlgen/PageImage.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr CodePair kSides[] = {{kLongEdge, kJtmlLongEdge}, {kShortEdge, kJtmlShortEdge}};
constexpr CodePair kOutputBins[] = {
    {kBinAutomatic, kJtmlBinAutomatic}, {kBinTop, kJtmlBinTop},
    {kBinTopAlso, kJtmlBinTop},         {kBinStacker, kJtmlBinStacker},
    {kBinStacker1, kJtmlBinStacker1},   {kBinStacker2, kJtmlBinStacker2},
    {kBinTop1, kJtmlBinTop1},           {kBinTop2, kJtmlBinTop2}};
constexpr CodePair kOffsets[] = {{kOffsetNone, kJtmlOffsetNone},
                                 {kOffsetSets, kJtmlOffsetSets},
                                 {kOffsetSubsets, kJtmlOffsetSubsets},
                                 {kOffsetSetsAndSubsets, kJtmlOffsetSetsAndSubsets}};
constexpr CodePair kRotations[] = {{kRotate0, kJtmlRotate0}, {kRotate180, kJtmlRotate180}};
/// What the print dialog's OPI choices count from.
constexpr std::int32_t kFirstOpiChoice = 2;

/// Writes the number under `key`, counted from `first`.
void WriteNumber(const Dictionary& ticket, std::string_view key, JtmlCommand command,
                 std::int32_t first = 0) {
  if (const auto value = NumberIfPresent(ticket, key)) {
    WriteJtmlCommands(&writeData, command, static_cast<int>(std::int64_t{*value} - first));
  }
}

/// Writes the code of the number under `key`; nothing when the table does not list it.
void WriteCode(const Dictionary& ticket, std::string_view key, JtmlCommand command,
               std::span<const CodePair> table) {
  const int code = MapCode(table, NumberOr(ticket, key, 0), -1);
  if (code != -1) WriteJtmlCommands(&writeData, command, code);
}

}  // namespace

void WriteJTMLDuplex(const Dictionary& ticket) {
  const char* key = DictionaryContains(ticket, key::kFinishingDuplex) ? key::kFinishingDuplex
                                                                      : key::kSystemDuplexing;
  WriteJtmlCommands(&writeData, kJtmlSides,
                    MapCode(kSides, NumberOr(ticket, key, 0), kJtmlOneSided));
}

void WriteJTMLOutputDestination(const Dictionary& ticket) {
  const std::int32_t bin = NumberOr(ticket, key::kFinishingOutputDestination, 0);
  WriteJtmlCommands(&writeData, kJtmlOutputBin, MapCode(kOutputBins, bin, -1));
}

void WriteJTMLLightenDarken(const Dictionary& ticket) {
  WriteNumber(ticket, key::kLightenDarken, kJtmlDarknessValue);
}

void WriteJTMLTonerSaver(const Dictionary& ticket) {
  if (!DictionaryContains(ticket, key::kTonerSaver)) return;
  const bool on = DictionaryGetBoolean(ticket, key::kTonerSaver).value_or(false);
  WriteJtmlCommands(&writeData, kJtmlTonerSaver, on ? 1 : 0);
}

void WriteJTMLOffset(const Dictionary& ticket) {
  WriteCode(ticket, key::kFinishingOffset, kJtmlJobOffset, kOffsets);
  if (NumberOr(ticket, key::kFinishingOffsetEnableSubset, 0) != 0) {
    WriteNumber(ticket, key::kFinishingOffsetPagesPerSubset, kJtmlPagesPerSubset);
  }
}

void WriteJTMLPrinterEmulation(const Dictionary& ticket) {
  WriteNumber(ticket, key::kCorvantaEmulation, kJtmlDarknessMode);
}

void WriteJTMLImageRotation(const Dictionary& ticket) {
  WriteCode(ticket, key::kAdvancedRotateImage180, kJtmlPageRotation, kRotations);
}

void WriteJTMLOPISubsitution(const Dictionary& ticket) {
  WriteNumber(ticket, key::kOPISubsitution, kJtmlOpiInsertion, kFirstOpiChoice);
}

void WriteJTMLOPIPreScan(const Dictionary& ticket) {
  WriteNumber(ticket, key::kOPIPrescan, kJtmlOpiPreScan, kFirstOpiChoice);
}

void WriteJTMLAntiAliasing(const Dictionary& ticket) {
  WriteNumber(ticket, key::kAntialiasing, kJtmlAntiAliasing);
}

void WriteJTMLOutputOrder(const Dictionary& ticket) {
  WriteNumber(ticket, key::kOutputOrder, kJtmlPageDelivery);
}

void WriteJTMLOutputColor(const Dictionary& ticket) {
  WriteNumber(ticket, key::kFinishingOutputColor, kJtmlColorEffects);
}

void WriteJTMLResolution(const Dictionary& ticket) {
  constexpr ResolutionData kResolutions[] = {
      {0, 0, 3}, {300, 300, 3}, {600, 600, 3}, {1200, 600, 3}, {1200, 1200, 3}};
  if (const auto choice = NumberIfPresent(ticket, key::kResolution)) {
    WriteJtmlResolution(&writeData, &kResolutions[*choice >= 1 && *choice <= 4 ? *choice : 0]);
  }
}

void WriteJTMLHalftone(const Dictionary& ticket) {
  if (const auto screen = NumberIfPresent(ticket, key::kHalftoneScreen)) {
    WriteJtmlHalfTone(&writeData, *screen);
  }
}

}  // namespace zarvo
