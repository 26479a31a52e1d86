// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"
#include "Platform/Value.h"

namespace zarvo {

/// Fills the record's MediaSize (hundredths of a millimetre) from a stock dictionary: the stock
/// size of its "Size", else its "Width" and "Length", else the stock size that has the job's page
/// size. It stays 0 x 0 when nothing fits. No other field is touched.
void FillMediaSize(MediaData* media, const Dictionary& stockTicket);

}  // namespace zarvo
