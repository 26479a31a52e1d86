// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Commands.h"

#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {
namespace {

constexpr Keyword kSides[] = {{kJtmlOneSided, "one-sided"},
                              {kJtmlLongEdge, "two-sided-long-edge"},
                              {kJtmlShortEdge, "two-sided-short-edge"}};
constexpr Keyword kOrientations[] = {{0, "3"}, {1, "4"}, {2, "5"}, {3, "6"}};
constexpr Keyword kOutputBins[] = {
    {kJtmlBinAutomatic, "automatic"}, {kJtmlBinTop, "top"},           {kJtmlBinStacker, "stacker"},
    {kJtmlBinSide, "side"},           {kJtmlBinTop1, "top-1"},        {kJtmlBinTop2, "top-2"},
    {kJtmlBinStacker1, "stacker-1"},  {kJtmlBinStacker2, "stacker-2"}};
constexpr Keyword kTonerSavers[] = {{0, "none"}, {1, "standard"}};
constexpr Keyword kDarknessModes[] = {{2, "normal"}, {3, "corvanta180-adjustable"}};
constexpr Keyword kRotations[] = {{kJtmlRotate0, "rotate-0"}, {kJtmlRotate180, "rotate-180"}};
constexpr Keyword kOpiInsertions[] = {{0, "insert"}, {1, "do-not-insert"}};
constexpr Keyword kOpiPreScans[] = {
    {0, "no-pre-scan"}, {1, "pre-scan"}, {2, "pre-scan-and-gather"}};
constexpr Keyword kAntiAliasing[] = {{1, "none"}, {2, "standard"}};
constexpr Keyword kTrapping[] = {{1, "all"}, {2, "off"}};
constexpr Keyword kOverprints[] = {{1, "black-overprint-on"}, {2, "black-overprint-off"}};
constexpr Keyword kRenderingIntents[] = {{1, "saturation"},
                                         {2, "relative-colorimetric"},
                                         {3, "absolute-colorimetric"},
                                         {4, "perceptual"},
                                         {5, "pure-text"},
                                         {6, "automatic"}};
constexpr Keyword kPageDeliveries[] = {{2, "same-order-face-down"},
                                       {3, "reverse-order-face-up"},
                                       {4, "same-order-face-up"},
                                       {5, "reverse-order-face-down"}};
constexpr Keyword kColorEffects[] = {{1, "monochrome-grayscale"}, {2, "color"}};

/// A command that writes the value itself (no keywords) or the word of its code.
struct CommandRow {
  JtmlCommand command;
  const char* element;
  Syntax syntax;
  std::span<const Keyword> keywords;
};

constexpr CommandRow kCommands[] = {
    {kJtmlCopies, "copies", Syntax::kInteger, {}},
    {kJtmlSides, "sides", Syntax::kKeyword, kSides},
    {kJtmlOrientation, "orientation-requested", Syntax::kEnum, kOrientations},
    {kJtmlOutputBin, "output-bin", Syntax::kKeyword, kOutputBins},
    {kJtmlDarknessValue, "adjust-bw-darkness-value", Syntax::kInteger, {}},
    {kJtmlTonerSaver, "toner-saver", Syntax::kKeyword, kTonerSavers},
    {kJtmlDarknessMode, "adjust-bw-darkness-mode", Syntax::kKeyword, kDarknessModes},
    {kJtmlPageRotation, "page-rotation", Syntax::kKeyword, kRotations},
    {kJtmlOpiInsertion, "opi-image-insertion", Syntax::kKeyword, kOpiInsertions},
    {kJtmlOpiPreScan, "opi-image-pre-scan", Syntax::kKeyword, kOpiPreScans},
    {kJtmlAntiAliasing, "anti-aliasing", Syntax::kKeyword, kAntiAliasing},
    {kJtmlLightness, "adjust-lightness", Syntax::kSpacedInteger, {}},
    {kJtmlContrast, "adjust-contrast", Syntax::kSpacedInteger, {}},
    {kJtmlSaturation, "adjust-saturation", Syntax::kSpacedInteger, {}},
    {kJtmlCyanRed, "adjust-cyan-red", Syntax::kSpacedInteger, {}},
    {kJtmlMagentaGreen, "adjust-magenta-green", Syntax::kSpacedInteger, {}},
    {kJtmlYellowBlue, "adjust-yellow-blue", Syntax::kSpacedInteger, {}},
    {kJtmlTrapping, "trapping", Syntax::kKeyword, kTrapping},
    {kJtmlTrapWidthFast, "trap-width-fast", Syntax::kInteger, {}},
    {kJtmlTrapWidthSlow, "trap-width-slow", Syntax::kInteger, {}},
    {kJtmlBlackOverprint, "black-overprint", Syntax::kKeyword, kOverprints},
    {kJtmlRenderingImages, "rendering-intent-images", Syntax::kKeyword, kRenderingIntents},
    {kJtmlRenderingText, "rendering-intent-text", Syntax::kKeyword, kRenderingIntents},
    {kJtmlRenderingGraphics, "rendering-intent-graphics", Syntax::kKeyword, kRenderingIntents},
    {kJtmlPageDelivery, "page-delivery", Syntax::kKeyword, kPageDeliveries},
    {kJtmlColorEffects, "color-effects-type", Syntax::kKeyword, kColorEffects},
};

std::string JobOffset(int value) {
  std::string text = StartLine(2, "job-offset", Syntax::kSetOf);
  const auto add = [&text](const char* keyword) {
    text += Element(3, "value", Syntax::kKeyword, keyword);
  };
  if (value == kJtmlOffsetNone) add("none");
  if (value == kJtmlOffsetSets || value == kJtmlOffsetSetsAndSubsets) add("offset-set");
  if (value == kJtmlOffsetSubsets || value == kJtmlOffsetSetsAndSubsets) add("offset-subset");
  if (value == kJtmlOffsetJob) add("offset-job");
  return text + EndLine(2, "job-offset");
}

std::string CommandText(int command, int value) {
  switch (command) {
    case kJtmlSheetCollate:
      return Element(2, "sheet-collate", Syntax::kKeyword, value == 1 ? "collated" : "uncollated");
    case kJtmlJobOffset:
      return JobOffset(value);
    case kJtmlPagesPerSubset:
      return StartLine(2, "pages-per-subset", Syntax::kSetOf) + Element(3, "value", value) +
             EndLine(2, "pages-per-subset");
    case kJtmlSeparatorSheets:
      return StartLine(2, "separator-sheets", Syntax::kCollection) +
             Element(3, "separator-sheets-type", Syntax::kKeyword, "slip-sheets") +
             EndLine(2, "separator-sheets");
    default:
      break;
  }
  for (const CommandRow& row : kCommands) {
    if (row.command != command) continue;
    if (row.keywords.empty()) return Element(2, row.element, row.syntax, std::to_string(value));
    const char* keyword = FindKeyword(row.keywords, value);
    return keyword != nullptr ? Element(2, row.element, row.syntax, keyword) : "";
  }
  return "";
}

}  // namespace

JtmlGenError WriteJtmlCommands(const JtmlSink* sink, int enumCommand, int value) {
  Send(sink, CommandText(enumCommand, value));  // also when there is nothing to write
  return JTML_SUCCESS;
}

}  // namespace zarvo
