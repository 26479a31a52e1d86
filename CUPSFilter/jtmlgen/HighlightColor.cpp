// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/HighlightColor.h"

#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {
namespace {

constexpr Keyword kColorants[] = {
    {0, "red"}, {1, "green"}, {2, "blue"}, {3, "royal"}, {4, "use-ready"}};
constexpr Keyword kMapColors[] = {{0, "red"},
                                  {1, "green"},
                                  {2, "blue"},
                                  {3, "cyan"},
                                  {4, "magenta"},
                                  {5, "yellow"},
                                  {6, "cardinal"},
                                  {7, "royal"},
                                  {8, "black"},
                                  {9, "ruby"},
                                  {10, "violet"},
                                  {11, "brown"},
                                  {kJtmlCustomMapColor, "other"}};
constexpr Keyword kMismatchActions[] = {{0, "use-ready"}, {1, "abort"}, {2, "hold"}};
constexpr Keyword kMappings[] = {{0, "object-based"},
                                 {1, "pictorial"},
                                 {2, "presentation"},
                                 {3, "color-to-highlight"},
                                 {4, "monochrome-grayscale"}};

void SendCustomColor(const JtmlSink* sink, const PageData& page) {
  static constexpr const char* kRGBNames[] = {"color-srgb-red", "color-srgb-green",
                                              "color-srgb-blue"};
  static constexpr const char* kHSVNames[] = {"color-hsv-hue", "color-hsv-saturation",
                                              "color-hsv-value"};
  const char* space = page.isRGB ? "color-srgb-col" : "color-hsv-col";
  const auto& names = page.isRGB ? kRGBNames : kHSVNames;
  const auto& values = page.isRGB ? page.hlcRGB : page.hlcHSV;
  SendUncounted(sink, StartLine(2, "highlight-map-color-custom-col", Syntax::kCollection));
  SendUncounted(sink, StartLine(3, space, Syntax::kCollection));
  for (int i = 0; i < 3; ++i) SendUncounted(sink, Element(4, names[i], values[i]));
  SendUncounted(sink, EndLine(3, space));
  SendUncounted(sink, EndLine(2, "highlight-map-color-custom-col"));
}

}  // namespace

JtmlGenError WriteJtmlHLC(const JtmlSink* sink, const PageData* page) {
  const char* keyword = nullptr;  // a code without a word repeats the one before it
  const auto send = [&](const char* element, std::span<const Keyword> table, int code) {
    if (code == -1) return;
    if (const char* found = FindKeyword(table, code)) keyword = found;
    if (keyword != nullptr) {
      SendUncounted(sink, Element(2, element, Syntax::kKeyword, keyword));
    }
  };
  send("highlight-colorant", kColorants, page->hlcPrintingColor);
  if (page->hlcMappingColor == kJtmlCustomMapColor) SendCustomColor(sink, *page);
  send("highlight-map-color", kMapColors, page->hlcMappingColor);
  send("highlight-colorant-mismatch", kMismatchActions, page->hlcMismatchAction);
  send("highlight-map", kMappings, page->hlcMappingAlgorithm);
  return JTML_SUCCESS;
}

}  // namespace zarvo
