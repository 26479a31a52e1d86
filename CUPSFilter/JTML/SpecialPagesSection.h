// SPDX-License-Identifier: Apache-2.0
// Covers, inserts and page exceptions.
#pragma once

#include "Platform/Value.h"

namespace zarvo {

void WriteJTMLFrontCover(const Dictionary& ticket);
void WriteJTMLBackCover(const Dictionary& ticket);
void WriteJTMLInserts(const Dictionary& ticket);
void WriteJTMLExceptions(const Dictionary& ticket);

}  // namespace zarvo
