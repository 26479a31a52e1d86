// SPDX-License-Identifier: Apache-2.0
// Turns the decoded job ticket into the printer's XML job ticket (JTML).
#pragma once

#include <cstdio>

#include "Platform/Value.h"

namespace zarvo {

/// Writes the sections that the ticket's "JTMLOptions" ask for to `ofp`, ahead of
/// the job; nothing when that dictionary is missing. A missing or wrongly typed key leaves its
/// section out or takes the section's default; output errors show on the stream. `ofp` is not
/// owned.
void WriteJTML(std::FILE* ofp, const Dictionary& ticket);

}  // namespace zarvo
