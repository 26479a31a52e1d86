// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/common.h"

#include <strings.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <utility>

#include "Platform/Log.h"

namespace zarvo {

float PageWidth = 612;
float PageLength = 792;
float PageLeft = 18;
float PageRight = 594;
float PageBottom = 36;
float PageTop = 756;
int Orientation = 0;
int Duplex = 0;
int LanguageLevel = 1;
int ColorDevice = 1;

namespace {

// The PPD keywords under which makers offer two-sided printing.
constexpr const char* kDuplexOptions[] = {"Duplex", "JCLDuplex", "EFDuplex", "KD03Duplex"};
constexpr const char* kDuplexChoices[] = {"DuplexNoTumble", "DuplexTumble"};

// The four edges in the order in which a quarter turn moves a margin from one to the next.
enum Edge { kLeft, kBottom, kRight, kTop };

struct MarginOption {
  const char* name;
  Edge at_orientation[4];
};

constexpr MarginOption kMarginOptions[] = {
    {"page-left", {kLeft, kBottom, kRight, kTop}},
    {"page-right", {kRight, kTop, kLeft, kBottom}},
    {"page-bottom", {kBottom, kLeft, kTop, kRight}},
    {"page-top", {kTop, kRight, kBottom, kLeft}},
};

void SetMargin(Edge edge, float margin) {
  switch (edge) {
    case kLeft:
      PageLeft = margin;
      break;
    case kBottom:
      PageBottom = margin;
      break;
    case kRight:
      PageRight = PageWidth - margin;
      break;
    case kTop:
      PageTop = PageLength - margin;
      break;
  }
}

void SetOrientation(int num_options, cups_option_t* options) {
  if (const char* value = cupsGetOption("landscape", num_options, options)) {
    const bool off = strcasecmp(value, "no") == 0 || strcasecmp(value, "off") == 0 ||
                     strcasecmp(value, "false") == 0;
    if (!off) Orientation = 1;
  } else if (const char* requested = cupsGetOption("orientation-requested", num_options, options)) {
    // The attribute's values 3 to 6 are portrait, landscape, reverse landscape and reverse
    // portrait; the last two stand the other way round here.
    constexpr long kFarOutside = 1000000;  // keeps the arithmetic below free of overflow
    const long attribute = std::strtol(requested, nullptr, 10);
    Orientation = static_cast<int>(std::clamp(attribute, -kFarOutside, kFarOutside)) - 3;
    if (Orientation > 1) Orientation ^= 1;
  }
}

void SetPageSize(const PpdPageSize& size) {
  PageWidth = size.width;
  PageLength = size.length;
  PageLeft = size.left;
  PageBottom = size.bottom;
  PageRight = size.right;
  PageTop = size.top;
  LogLine("DEBUG: Page = %.0fx%.0f; %.0f,%.0f to %.0f,%.0f", PageWidth, PageLength, PageLeft,
          PageBottom, PageRight, PageTop);
}

}  // namespace

int WholePoints(float points) {
  constexpr float kLargest = 1000000;
  return std::isfinite(points) ? static_cast<int>(std::clamp(points, -kLargest, kLargest)) : 0;
}

int PageOrientation() { return ((Orientation % 4) + 4) % 4; }

void UpdatePageVars() {
  const int orientation = PageOrientation();
  if (orientation >= 2) {
    PageLeft = PageWidth - std::exchange(PageRight, PageWidth - PageLeft);
    PageBottom = PageLength - std::exchange(PageTop, PageLength - PageBottom);
  }
  if (orientation % 2 == 1) {
    std::swap(PageLeft, PageBottom);
    std::swap(PageRight, PageTop);
    std::swap(PageWidth, PageLength);
  }
}

Ppd SetCommonOptions(int num_options, cups_option_t* options, int change_size) {
  std::setlocale(LC_TIME, "");
  Ppd ppd = Ppd::Open(std::getenv("PPD"));
  if (ppd) {
    ppd.Mark(num_options, options);
    if (const std::optional<PpdPageSize> size = ppd.MarkedPageSize()) SetPageSize(*size);
    ColorDevice = ppd.ColorDevice();
    LanguageLevel = ppd.LanguageLevel();
  }
  SetOrientation(num_options, options);
  for (const MarginOption& margin : kMarginOptions) {
    if (const char* value = cupsGetOption(margin.name, num_options, options)) {
      const auto points = static_cast<float>(std::strtod(value, nullptr));
      if (std::isfinite(points)) SetMargin(margin.at_orientation[PageOrientation()], points);
    }
  }
  if (change_size != 0) UpdatePageVars();
  for (const char* option : kDuplexOptions) {
    for (const char* choice : kDuplexChoices) {
      if (ppd.IsMarked(option, choice)) Duplex = 1;
    }
  }
  return ppd;
}

}  // namespace zarvo
