// SPDX-License-Identifier: Apache-2.0
// Highlight colour.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// Every highlight-colour field (`hlc`) of the record that is set. A code that the format has no
/// word for repeats the word written last.
JtmlGenError WriteJtmlHLC(const JtmlSink* sink, const PageData* page);

}  // namespace zarvo
