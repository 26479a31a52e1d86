// SPDX-License-Identifier: Apache-2.0
// Shifts of the image on the page, of the job or of a page exception.
#pragma once

#include <cstdint>

#include "Platform/Value.h"

namespace zarvo {

/// Shifts per side and axis in the ticket format's unit.
struct ImageShift {
  std::int32_t x1 = 0, x2 = 0, y1 = 0, y2 = 0;
};
/// Reads the shifts of the job or of a page exception. A shift that leaves the 32-bit range is
/// held at its end.
ImageShift FillImageShift(const Dictionary& options);
void WriteJTMLImageShift(const Dictionary& options);

}  // namespace zarvo
