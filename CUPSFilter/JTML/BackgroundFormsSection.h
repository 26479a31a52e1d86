// SPDX-License-Identifier: Apache-2.0
// Background forms.
#pragma once

#include "Platform/Value.h"

namespace zarvo {

void WriteJTMLBackgroundForms(const Dictionary& ticket);

}  // namespace zarvo
