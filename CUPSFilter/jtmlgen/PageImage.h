// SPDX-License-Identifier: Apache-2.0
// Resolution and image shift.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// The printer resolution; always written.
JtmlGenError WriteJtmlResolution(const JtmlSink* sink, const ResolutionData* resolution);
/// The image shift of the job, in the ticket's own unit; always written.
JtmlGenError WriteJtmlImageShift(const JtmlSink* sink, std::int32_t nXside1, std::int32_t nXside2,
                                 std::int32_t nYside1, std::int32_t nYside2);

}  // namespace zarvo
