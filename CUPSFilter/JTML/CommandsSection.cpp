// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/Sections.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"
#include "Source/CFAdditions.h"

namespace zarvo {
namespace {

constexpr CodePair kSides[] = {{2, 1}, {3, 2}};
constexpr CodePair kOutputBins[] = {{1, 0}, {2, 1}, {3, 1}, {4, 2}, {5, 6}, {6, 7}, {8, 4}, {9, 5}};
constexpr CodePair kOffsets[] = {{2, 0}, {3, 1}, {4, 2}, {5, 3}};
constexpr CodePair kRotations[] = {{1, 1}, {2, 0}};
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
  constexpr char kDuplex[] = "com.zarvo.print.FinishingDuplex";
  const char* key =
      DictionaryContains(ticket, kDuplex) ? kDuplex : "com.apple.print.PrintSettings.PMDuplexing";
  WriteJtmlCommands(&writeData, kJtmlSides, MapCode(kSides, NumberOr(ticket, key, 0), 0));
}

void WriteJTMLOutputDestination(const Dictionary& ticket) {
  const std::int32_t bin = NumberOr(ticket, "com.zarvo.print.FinishingOutputDestination", 0);
  WriteJtmlCommands(&writeData, kJtmlOutputBin, MapCode(kOutputBins, bin, -1));
}

void WriteJTMLLightenDarken(const Dictionary& ticket) {
  WriteNumber(ticket, "com.zarvo.print.LightenDarken", kJtmlDarknessValue);
}

void WriteJTMLTonerSaver(const Dictionary& ticket) {
  constexpr char kTonerSaver[] = "com.zarvo.print.TonerSaver";
  if (!DictionaryContains(ticket, kTonerSaver)) return;
  const bool on = DictionaryGetBoolean(ticket, kTonerSaver).value_or(false);
  WriteJtmlCommands(&writeData, kJtmlTonerSaver, on ? 1 : 0);
}

void WriteJTMLOffset(const Dictionary& ticket) {
  WriteCode(ticket, "com.zarvo.print.FinishingOffset", kJtmlJobOffset, kOffsets);
  if (NumberOr(ticket, "com.zarvo.print.FinishingOffsetEnableSubset", 0) != 0) {
    WriteNumber(ticket, "com.zarvo.print.FinishingOffsetPagesPerSubset", kJtmlPagesPerSubset);
  }
}

void WriteJTMLPrinterEmulation(const Dictionary& ticket) {
  WriteNumber(ticket, "com.zarvo.print.CorvantaEmulation", kJtmlDarknessMode);
}

void WriteJTMLImageRotation(const Dictionary& ticket) {
  WriteCode(ticket, "com.zarvo.print.AdvancedRotateImage180", kJtmlPageRotation, kRotations);
}

void WriteJTMLOPISubsitution(const Dictionary& ticket) {
  WriteNumber(ticket, "com.zarvo.print.OPISubsitution", kJtmlOpiInsertion, kFirstOpiChoice);
}

void WriteJTMLOPIPreScan(const Dictionary& ticket) {
  WriteNumber(ticket, "com.zarvo.print.OPIPrescan", kJtmlOpiPreScan, kFirstOpiChoice);
}

void WriteJTMLAntiAliasing(const Dictionary& ticket) {
  WriteNumber(ticket, "com.zarvo.print.Antialiasing", kJtmlAntiAliasing);
}

void WriteJTMLOutputOrder(const Dictionary& ticket) {
  WriteNumber(ticket, "com.zarvo.print.OutputOrder", kJtmlPageDelivery);
}

void WriteJTMLOutputColor(const Dictionary& ticket) {
  WriteNumber(ticket, "com.zarvo.print.FinishingOutputColor", kJtmlColorEffects);
}

void WriteJTMLResolution(const Dictionary& ticket) {
  constexpr _RESOLUTIONDATA kResolutions[] = {
      {0, 0, 3}, {300, 300, 3}, {600, 600, 3}, {1200, 600, 3}, {1200, 1200, 3}};
  if (const auto choice = NumberIfPresent(ticket, "com.zarvo.print.Resolution")) {
    WriteJtmlResolution(&writeData, &kResolutions[*choice >= 1 && *choice <= 4 ? *choice : 0]);
  }
}

void WriteJTMLHalftone(const Dictionary& ticket) {
  if (const auto screen = NumberIfPresent(ticket, "com.zarvo.print.HalftoneScreen")) {
    WriteJtmlHalfTone(&writeData, *screen);
  }
}

}  // namespace zarvo
