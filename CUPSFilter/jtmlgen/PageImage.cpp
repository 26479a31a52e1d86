// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/PageImage.h"

#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {
JtmlGenError WriteJtmlResolution(const JtmlSink* sink, const ResolutionData* resolution) {
  Send(sink, StartLine(2, "printer-resolution", Syntax::kResolution) +
                 Element(3, "cross-feed", resolution->nCrossFeed) +
                 Element(3, "feed-direction", resolution->nFeedDir) +
                 Element(3, "units", resolution->nUnit) + EndLine(2, "printer-resolution"));
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlImageShift(const JtmlSink* sink, std::int32_t nXside1, std::int32_t nXside2,
                                 std::int32_t nYside1, std::int32_t nYside2) {
  Send(sink,
       Element(2, "x-side1-image-shift", nXside1) + Element(2, "x-side2-image-shift", nXside2));
  Send(sink,
       Element(2, "y-side1-image-shift", nYside1) + Element(2, "y-side2-image-shift", nYside2));
  return JTML_SUCCESS;
}

}  // namespace zarvo
