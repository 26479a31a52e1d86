// SPDX-License-Identifier: Apache-2.0
// The PJL lines for the first cover's paper and for transparency separators.
#pragma once

#include <cstdio>

#include "Platform/Value.h"

namespace zarvo {

/// The paper size of a front cover, unless the covers travel in the XML ticket.
void WriteCovers(FILE* output, const Dictionary& ticket);

/// Separator sheets between transparencies. The result carries no meaning.
int WriteSeparators(FILE* output, const Dictionary& ticket);

}  // namespace zarvo
