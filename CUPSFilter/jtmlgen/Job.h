// SPDX-License-Identifier: Apache-2.0
// The job as a whole.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

JtmlGenError WriteJtmlJobNotes(LPWRITEDATA lpWriteData, LPJOBNOTEDATA lpJobNoteData);
/// How the printer keeps the job; a null name or location of a saved job is written empty.
JtmlGenError WriteJtmlJobTypes(LPWRITEDATA lpWriteData, LPJOBDATA lpJobData);
/// The accounting identities; a null text is written empty.
JtmlGenError WriteJtmlAccounting(LPWRITEDATA lpWriteData, const char* inUserID,
                                 const char* inAccountID);
/// The pages to print, counted from 1; always written.
JtmlGenError WriteJtmlPageRanges(LPWRITEDATA lpWriteData, std::int32_t fromPage,
                                 std::int32_t toPage);

}  // namespace zarvo
