// SPDX-License-Identifier: Apache-2.0
// Staples, folds and holes.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// The finishing template, or the set of the staple, fold and punch codes. A code that the format
/// has no word for repeats the line written last. Logs the codes of a set.
JtmlGenError WriteJtmlFinishing(const JtmlSink* sink, const FinisherData* finisher);

}  // namespace zarvo
