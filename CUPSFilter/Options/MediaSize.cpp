// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/MediaSize.h"

#include <cstdint>
#include <utility>

#include "CUPSFilter/Options/common.h"
#include "Source/CFAdditions.h"
#include "Source/Mappings.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

XSIZE Size(std::int32_t width, std::int32_t height) {
  return {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)};
}

XSIZE SizeOfPage() {
  const bool sideways = Orientation == 1 || Orientation == 3;
  const float width = sideways ? PageLength : PageWidth;
  const float length = sideways ? PageWidth : PageLength;
  const StockSize* row = CompleteStockSizeMap;
  while (row->code != 0 && !(static_cast<float>(row->widthPts) == width &&
                             static_cast<float>(row->heightPts) == length))
    ++row;
  if (row->code == 0) return {};
  if (sideways) return Size(row->height, row->width);
  if (Orientation == 0 || Orientation == 2) return Size(row->width, row->height);
  return {};
}

}  // namespace

void FillMediaSize(MediaData* media, const Dictionary& stockTicket) {
  std::int32_t size = kNotSet;
  CFDictionaryGetNumber(stockTicket, key::stock::kSize, &size);
  std::int32_t width = 0;
  std::int32_t height = 0;
  if (!GetStockDimensionsForSize(size, &width, &height)) {
    CFDictionaryGetNumber(stockTicket, key::stock::kWidth, &width);
    CFDictionaryGetNumber(stockTicket, key::stock::kLength, &height);
  }
  const bool known = width != kNotSet && height != kNotSet;
  media->MediaSize = known ? Size(width, height) : XSIZE{};
  if (media->MediaSize.cx == 0 && media->MediaSize.cy == 0) media->MediaSize = SizeOfPage();
}

}  // namespace zarvo
