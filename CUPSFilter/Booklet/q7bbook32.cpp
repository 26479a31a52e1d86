// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/q7bbook32.h"

#include <new>

#include "CUPSFilter/Booklet/BookletCopier.h"
#include "CUPSFilter/Booklet/BookletRespool.h"
#include "CUPSFilter/Booklet/BookletScan.h"

namespace zarvo {
namespace {

constexpr int kFirstPageAlloc = 100;

/// Sets the buffers up, all zero. Returns false without memory.
bool AllocateBuffers(_tag_Q7B_PS_BOOKLET_VARS* v) {
  try {
    v->pBlock.assign(kBookletBlockSize, '\0');
    v->aPageFilePos.assign(kFirstPageAlloc + 1, 0);
    v->adwPageSize.assign(kFirstPageAlloc + 1, 0);
    v->aPlainTextEnd.assign(kFirstPageAlloc + 1, 0);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void FreeBuffers(_tag_Q7B_PS_BOOKLET_VARS* v) {
  v->pBlock = {};
  v->aPageFilePos = {};
  v->adwPageSize = {};
  v->aPlainTextEnd = {};
}

}  // namespace

int xPostProcessAndRespoolJob(_tag_Q7B_PS_BOOKLET_VARS* lpbv) {
  FreeBuffers(lpbv);
  lpbv->iPass1Result = 0;
  lpbv->iPass2Result = 0;
  lpbv->iPages = 0;
  lpbv->iSepFileDiscardLineCount = 0;
  lpbv->iCurPageAlloc = kFirstPageAlloc;
  lpbv->iImagesPerSheet = 1;
  if (!lpbv->hPrinter) return -1000;
  if (lpbv->bDoBooklet && lpbv->bDoAutoPaperSaver) return -1001;
  if (!AllocateBuffers(lpbv)) {
    FreeBuffers(lpbv);
    return -1002;
  }
  if (lpbv->bRightToLeft) {
    // Turning each page and the sheet puts the first page on the other half.
    lpbv->bRotBooklet180 = !lpbv->bRotBooklet180;
    lpbv->bRotPagelets180 = !lpbv->bRotPagelets180;
  }
  int result = lpbv->iPass1Result = xScanFileForPages(lpbv);
  if (result > 0) {
    lpbv->iPages = lpbv->iPass1Result;
    result = lpbv->iPass2Result = xProcessAndRespoolFile(lpbv);
  }
  FreeBuffers(lpbv);
  return result < 0 ? result : lpbv->iPages;
}

}  // namespace zarvo
