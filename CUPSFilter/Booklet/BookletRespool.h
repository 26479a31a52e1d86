// SPDX-License-Identifier: Apache-2.0
// The second pass over a spooled booklet job: writes its pages in imposed order.
#pragma once

#include <cstdio>

#include "CUPSFilter/Booklet/q7bbook32.h"

namespace zarvo {

/// Where the respooling of the file stands.
enum enumRespoolFileState {
  rsScanningForBeginProlog,
  rsFinding1stPageStartAndSpoolingAllPages,
  rsSpoolingFileTrailer
};

/// Where the respooling of one page stands.
enum enumRespoolOnePageState { rpsScanningForBeginPageSetupAndSettingUpPage, rpsSpoolingPage };

/// Writes the whole job: the file with the imposition procset, a pagelet for every slot, and the
/// trailer. Needs the page tables of xScanFileForPages(). Returns a positive value on success, 0
/// on a write error, or a negative code: -201 no memory, -204 the file cannot be opened, -205 and
/// -206 a read error, -207 the procset cannot be written, -209 and -210 the trailer or the end
/// cannot be sought, and the codes of xProcessAndRespoolOnePage().
int xProcessAndRespoolFile(BookletVars* bv);

/// Writes destination slot iDestSlot (1-based) with the source page iSrcPage (1-based, -1 for a
/// blank) out of iPages. lpBuf, of cchBufSizeChar bytes, is written ahead of a page that is not
/// imposed. Returns 1 at the next page and at the end of the file, 2 at the trailer or the
/// document's end, 0 on a write error, -301 when the page cannot be sought, -501 on a read error.
int xProcessAndRespoolOnePage(BookletVars* bv, std::FILE* fpPDL, char* lpBuf, int cchBufSizeChar,
                              int iPages, int iSrcPage, int iDestSlot);

/// The source page (1-based, possibly beyond the last) that goes into slot iDestSlot (1-based) of
/// iDestSlots. Reads bDoBooklet, bDoReversePgOrder, iMode and iImagesPerSheet.
int xMapToSrcPageNum(const BookletVars* bv, int iDestSlots, int iDestSlot);

/// Writes the imposition procset and a line feed. The first two arguments are ignored. Returns
/// non-zero on success.
int xOutputPSProc(void* hInst, int iID, std::FILE* hPrinter);

/// "true" or "false".
const char* xPSBool(int b);

}  // namespace zarvo
