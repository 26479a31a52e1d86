// SPDX-License-Identifier: Apache-2.0
// The first pass over a spooled booklet job: finds its pages.
#pragma once

#include "CUPSFilter/Booklet/CommentReader.h"
#include "CUPSFilter/Booklet/q7bbook32.h"

namespace zarvo {

/// Where the scan stands in the structure of the document.
enum enumScanPagesState {
  spsValidatingPctBang,
  spsScanningForBeginProlog,
  spsScanningForBeginSetup,
  spsScanningForPageOrTrailer,
  spsValidatingPageFound,
  spsInEmbeddedEPS
};

/// Whether lpszLine is the comment lpszDSC and nothing else but white space. "%%BeginDocument" may
/// be followed by anything, because a document's name comes after it.
bool xIsItThisDSC(const char* lpszDSC, const char* lpszLine);

/// Whether lpszLine begins with "%%Page:", in any case.
bool IsPageComment(const char* lpszLine);

/// Whether the comment can end a page or change the nesting of embedded documents.
bool EndsOrNestsPage(const char* lpszLine);

/// Reads up to and including the line szEndingDSC, through lpBuf, and returns the last page size
/// set on the way, packed as in adwPageSize; 0 when there is none, -401 when the file ends first.
/// A width of 32768 or more comes out negative.
/// Clears *plain when a line on the way would end or nest a page. `plain` may be null.
int xScanForPageSize(CommentReader* fpPDL, char (&lpBuf)[CommentReader::kLineSize],
                     const char* szEndingDSC, bool* plain = nullptr);

/// Fills the page tables, bIsBadMsBinderPS and iSepFileDiscardLineCount from the spooled job. The
/// tables hold iCurPageAlloc + 1 entries and grow with the pages. Returns the number of pages or
/// a negative code: -101 no memory, -102 the file cannot be opened, -103 a read error, -104 the
/// job is imposed already, -105 no memory or a bad size in the document's setup, -106 no memory,
/// -107 and -108 the file has no positions, -109 and -110 a bad size in the setup of an embedded
/// document or of a page.
int xScanFileForPages(BookletVars* bv);

}  // namespace zarvo
