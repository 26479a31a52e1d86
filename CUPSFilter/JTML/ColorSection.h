// SPDX-License-Identifier: Apache-2.0
// Full colour, of the job or of a page exception, and highlight colour.
#pragma once

#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/Jtmlgen.h"
#include "Platform/Value.h"

namespace zarvo {

/// Fills the full-colour fields (`fc`) of a record that has none of them set. The record's texts
/// live in `texts`.
void FillFullColor(PageData* page, EscapedTexts* texts, const Dictionary& options);

void WriteJTMLHighlightColor(const Dictionary& options);
void WriteJTMLFullColor(const Dictionary& options);

}  // namespace zarvo
