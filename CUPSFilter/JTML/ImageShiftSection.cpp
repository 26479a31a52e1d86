// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/Sections.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"

namespace zarvo {

ImageShift FillImageShift(const Dictionary& options) {
  double factor = NumberOr(options, "Inches", 0) != 0 ? 25.4 : 10;
  if (HasFullPrecision(options)) factor = 1;
  const auto read = [&](const char* key) { return Scaled(NumberOr(options, key, 0), factor); };
  return {.x1 = read("X1"), .x2 = read("X2"), .y1 = read("Y1"), .y2 = read("Y2")};
}

void WriteJTMLImageShift(const Dictionary& options) {
  const ImageShift shift = FillImageShift(options);
  WriteJtmlImageShift(&writeData, shift.x1, shift.x2, shift.y1, shift.y2);
}

}  // namespace zarvo
