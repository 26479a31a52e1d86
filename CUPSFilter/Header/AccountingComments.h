// SPDX-License-Identifier: Apache-2.0
// The PJL lines for accounting, the first cover's paper and transparency separators. Each writer
// writes whole lines; a missing ticket key ends it with what it has written so far.
#pragma once

#include <cstdio>

#include "Platform/Value.h"

namespace zarvo {

/// The accounting identity of the job. A line whose value is missing is left out by itself.
void WriteAccounting(FILE* output, const Dictionary& ticket);

/// The paper size of a front cover, unless the covers travel in the XML ticket.
void WriteCovers(FILE* output, const Dictionary& ticket);

/// Separator sheets between transparencies. The result carries no meaning.
int WriteSeparators(FILE* output, const Dictionary& ticket);

}  // namespace zarvo
