// SPDX-License-Identifier: Apache-2.0
// Background forms.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// Form names are cut to 255 bytes, the longest name that the form repository takes, without
/// leaving half a character or half an entity.
JtmlGenError WriteJtmlBackgroundForms(const JtmlSink* sink, const FormsData* forms);

}  // namespace zarvo
