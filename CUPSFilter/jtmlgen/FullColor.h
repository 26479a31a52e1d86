// SPDX-License-Identifier: Apache-2.0
// Full colour.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// Every full-colour field (`fc`) of the record that is set.
JtmlGenError WriteJtmlFullColor(const JtmlSink* sink, const PageData* page);
JtmlGenError WriteJtmlTRC(const JtmlSink* sink, const char* szTRCName);
// The profile writers write one element named `szJTMLName`. `nSource` is the code of a profile
// that the printer knows, or 0 for the profile named `szName` (none when null).
JtmlGenError WriteJtmlRGBSource(const JtmlSink* sink, int nSource, const char* szJTMLName,
                                const char* szName);
JtmlGenError WriteJtmlCMYKSource(const JtmlSink* sink, int nSource, const char* szJTMLName,
                                 const char* szName);
JtmlGenError WriteJtmlGraySource(const JtmlSink* sink, const char* szJTMLName, const char* szName);
/// Any code but 0 leaves the choice to the printer; that form ends without a line feed.
JtmlGenError WriteJtmlColorDestination(const JtmlSink* sink, int nSource, const char* szJTMLName,
                                       const char* szName);

}  // namespace zarvo
