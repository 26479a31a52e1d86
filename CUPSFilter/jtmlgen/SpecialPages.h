// SPDX-License-Identifier: Apache-2.0
// Covers, inserts and page exceptions.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// Start and end of a list of special pages; `nSPOption` is a JtmlSpecialPages.
JtmlGenError WriteJtmlSpecialPagesStart(const JtmlSink* sink, int nSPOption);
JtmlGenError WriteJtmlSpecialPagesEnd(const JtmlSink* sink, int nSPOption);
/// A cover; `nCovers` is a JtmlCover, `nCoverType` a JtmlCoverType.
JtmlGenError WriteJtmlCovers(const JtmlSink* sink, int nCovers, int nCoverType,
                             const MediaData* media);
/// `nInsertCount` sheets behind page `nInsertAfter`.
JtmlGenError WriteJtmlInserts(const JtmlSink* sink, int nInsertAfter, int nInsertCount,
                              const MediaData* media);
/// A range of pages with settings of its own.
JtmlGenError WriteJtmlPageExceptions(const JtmlSink* sink, const PageData* page,
                                     const MediaData* media);

}  // namespace zarvo
