// SPDX-License-Identifier: Apache-2.0
// Covers, inserts and page exceptions.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// Start and end of a list of special pages; `nSPOption` is a JtmlSpecialPages.
JtmlGenError WriteJtmlSpecialPagesStart(LPWRITEDATA lpWriteData, int nSPOption);
JtmlGenError WriteJtmlSpecialPagesEnd(LPWRITEDATA lpWriteData, int nSPOption);
/// A cover; `nCovers` is a JtmlCover, `nCoverType` a JtmlCoverType.
JtmlGenError WriteJtmlCovers(LPWRITEDATA lpWriteData, int nCovers, int nCoverType,
                             LPMEDIADATA lpMediaData);
/// `nInsertCount` sheets behind page `nInsertAfter`.
JtmlGenError WriteJtmlInserts(LPWRITEDATA lpWriteData, int nInsertAfter, int nInsertCount,
                              LPMEDIADATA lpMediaData);
/// A range of pages with settings of its own.
JtmlGenError WriteJtmlPageExceptions(LPWRITEDATA lpWriteData, LPPAGEDATA lpPageData,
                                     LPMEDIADATA lpMediaData);

}  // namespace zarvo
