// SPDX-License-Identifier: Apache-2.0
// Media.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// A medium: its tray alone when that is set, else its name alone when there is one, else all
/// that is known of it.
JtmlGenError WriteJtmlMedia(const JtmlSink* sink, const MediaData* media);

}  // namespace zarvo
