// SPDX-License-Identifier: Apache-2.0
// The job as a whole.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

JtmlGenError WriteJtmlJobNotes(const JtmlSink* sink, const JobNoteData* notes);
/// How the printer keeps the job; a null name or location of a saved job is written empty.
JtmlGenError WriteJtmlJobTypes(const JtmlSink* sink, const JobData* job);
/// The accounting identities; a null text is written empty.
JtmlGenError WriteJtmlAccounting(const JtmlSink* sink, const char* inUserID,
                                 const char* inAccountID);
/// The pages to print, counted from 1; always written.
JtmlGenError WriteJtmlPageRanges(const JtmlSink* sink, std::int32_t fromPage, std::int32_t toPage);

}  // namespace zarvo
