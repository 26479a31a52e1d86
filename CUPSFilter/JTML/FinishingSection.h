// SPDX-License-Identifier: Apache-2.0
// Finishing: the set of staples, folds and holes, or a template.
#pragma once

#include "Platform/Value.h"

namespace zarvo {

/// Slip sheets, the finishing element, then the job offset.
void WriteJTMLFinishing(const Dictionary& ticket);

}  // namespace zarvo
