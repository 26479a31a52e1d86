// SPDX-License-Identifier: Apache-2.0
// The PJL lines for accounting.
#pragma once

#include <cstdio>

#include "Platform/Value.h"

namespace zarvo {

/// The accounting identity of the job. A line whose value is missing is left out by itself.
void WriteAccounting(FILE* output, const Dictionary& ticket);

}  // namespace zarvo
