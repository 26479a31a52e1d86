// SPDX-License-Identifier: Apache-2.0
// The PJL lines for the banner page and for the offset in the tray. A missing key writes no line.
#pragma once

#include <cstdio>

#include "Platform/Value.h"

namespace zarvo {

void WriteBannerPage(FILE* output, const Dictionary& ticket);
void WriteRequestOffset(FILE* output, const Dictionary& ticket);

}  // namespace zarvo
