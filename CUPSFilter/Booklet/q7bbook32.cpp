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
bool AllocateBuffers(BookletVars* bv) {
  try {
    bv->pBlock.assign(kBookletBlockSize, '\0');
    bv->aPageFilePos.assign(kFirstPageAlloc + 1, 0);
    bv->adwPageSize.assign(kFirstPageAlloc + 1, 0);
    bv->aPlainTextEnd.assign(kFirstPageAlloc + 1, 0);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void FreeBuffers(BookletVars* bv) {
  bv->pBlock = {};
  bv->aPageFilePos = {};
  bv->adwPageSize = {};
  bv->aPlainTextEnd = {};
}

}  // namespace

int xPostProcessAndRespoolJob(BookletVars* bv) {
  FreeBuffers(bv);
  bv->iPass1Result = 0;
  bv->iPass2Result = 0;
  bv->iPages = 0;
  bv->iSepFileDiscardLineCount = 0;
  bv->iCurPageAlloc = kFirstPageAlloc;
  bv->iImagesPerSheet = 1;
  if (!bv->hPrinter) return -1000;
  if (bv->bDoBooklet && bv->bDoAutoPaperSaver) return -1001;
  if (!AllocateBuffers(bv)) {
    FreeBuffers(bv);
    return -1002;
  }
  if (bv->bRightToLeft) {
    // Turning each page and the sheet puts the first page on the other half.
    bv->bRotBooklet180 = !bv->bRotBooklet180;
    bv->bRotPagelets180 = !bv->bRotPagelets180;
  }
  int result = bv->iPass1Result = xScanFileForPages(bv);
  if (result > 0) {
    bv->iPages = bv->iPass1Result;
    result = bv->iPass2Result = xProcessAndRespoolFile(bv);
  }
  FreeBuffers(bv);
  return result < 0 ? result : bv->iPages;
}

}  // namespace zarvo
