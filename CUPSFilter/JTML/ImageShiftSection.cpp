// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/ImageShiftSection.h"

#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/PageImage.h"
#include "Source/TicketNames.h"

namespace zarvo {

ImageShift FillImageShift(const Dictionary& options) {
  double factor = NumberOr(options, key::shift::kInches, 0) != 0 ? 25.4 : 10;
  if (HasFullPrecision(options)) factor = 1;
  const auto read = [&](const char* key) { return Scaled(NumberOr(options, key, 0), factor); };
  return {.x1 = read(key::shift::kX1),
          .x2 = read(key::shift::kX2),
          .y1 = read(key::shift::kY1),
          .y2 = read(key::shift::kY2)};
}

void WriteJTMLImageShift(const Dictionary& options) {
  const ImageShift shift = FillImageShift(options);
  WriteJtmlImageShift(&writeData, shift.x1, shift.x2, shift.y1, shift.y2);
}

}  // namespace zarvo
