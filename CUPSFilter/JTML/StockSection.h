// SPDX-License-Identifier: Apache-2.0
// Stock: the job's own, and the dictionaries of all others.
#pragma once

#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/Jtmlgen.h"
#include "Platform/Value.h"

namespace zarvo {

/// The medium that a stock dictionary describes. A number out of its range and a value of a wrong
/// type leave their field unset; a stock without a size has that of the page. The record's texts
/// live in `texts`.
MediaData MediaFromStock(const Dictionary& stock, EscapedTexts* texts);

void WriteJTMLJobLevelStock(const Dictionary& ticket);

}  // namespace zarvo
