// SPDX-License-Identifier: Apache-2.0
// Halftone screens.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// One halftone screen, by its code 1 to 47, for graphics, images and text.
JtmlGenError WriteJtmlHalfTone(const JtmlSink* sink, int nSelection);

}  // namespace zarvo
