// SPDX-License-Identifier: Apache-2.0
// Booklets: a spooled job is printed two pages on each sheet side, in folding order.
//
// Eight pages on two sheets (four source pages a sheet), the outermost sheet first:
//
//      sheet 1, front        sheet 1, back         sheet 2, front        sheet 2, back
//    +--------+--------+   +--------+--------+   +--------+--------+   +--------+--------+
//    |        :        |   |        :        |   |        :        |   |        :        |
//    |   8    :   1    |   |   2    :   7    |   |   6    :   3    |   |   4    :   5    |
//    |        :        |   |        :        |   |        :        |   |        :        |
//    +--------+--------+   +--------+--------+   +--------+--------+   +--------+--------+
//      slot 1   slot 2       slot 3   slot 4       slot 5   slot 6       slot 7   slot 8
//
// A slot is a place in that order; xMapToSrcPageNum tells its page, and a page beyond the last is
// a blank. Each page ("pagelet") is scaled into its half of the sheet and turned by 90 degrees:
//
//    <---------------- sheet: iDestYPoints ---------------->
//    +---------------------------+---------------------------+  ^
//    | margin                  gutter                 margin |  |  sheet: iDestXPoints
//    |  +--------------------+ : : : +--------------------+  |  |
//    |  |  pagelet           | : : : |  pagelet           |  |  |
//    |  +--------------------+ : : : +--------------------+  |  |
//    +---------------------------+---------------------------+  v
//
// Creep widens the gutter of the outer sheets, because the inner ones of a folded stack reach
// further out and are trimmed.
//
// Two passes over the spooled file. The first (BookletScan, with CommentReader) finds where each
// page begins and what size it sets. The second (BookletRespool, with BookletCopier) writes the
// document's head with the imposition procedures of Booklet.ps, then page after page in the order
// of the slots, seeking to each, then the trailer. ImposeJob is the caller. The names and the codes
// that come back are those of the printer's own code.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "CUPSFilter/Watermark/PageHooks.h"

namespace zarvo {

/// Where the copier stands in its search for comment lines.
enum enumDscState { dsScanningForPercentSgn, dsInsidePossiblePsComment, dsTerminatingPsComment };

/// Everything one booklet job needs. The driver fills the upper part, leaves what it does not know
/// at zero, and hands the record to xPostProcessAndRespoolJob(), which owns the rest.
/// Sizes and margins are in points; booleans are 0 or non-zero.
struct _tag_Q7B_PS_BOOKLET_VARS {
  // Set by the driver.
  std::FILE* hPrinter = nullptr;        ///< where the imposed job goes; not owned
  void* hInstPSRes = nullptr;           ///< passed to xOutputPSProc(), which ignores it
  int iIDBMProcset = 0;                 ///< likewise
  const char* pwstrPSFileIn = nullptr;  ///< path of the spooled job; not owned
  const char* pwstrDestPort = nullptr;  ///< not read
  const char* pwstrJobName = nullptr;   ///< not read
  int dmDuplex = 0;                     ///< 1 simplex, 2 and 3 the bindings (short, long edge)
  int bDoBooklet = 0;
  int bDoAutoPaperSaver = 0;  ///< n-up; not together with bDoBooklet
  int bDoReversePgOrder = 0;
  int iOverrideNumCopies = 0;  ///< copies to force; 0 leaves them
  int bForceCollateOn = 0;
  int bTryToUsePg1SizeFromPS = 0;  ///< take the sheet size from the first page
  int iDestXPoints = 0;            ///< sheet width
  int iDestYPoints = 0;            ///< sheet height
  int iDestXMargPoints = 0;
  int iDestYMargPoints = 0;
  int iGutterPoints = 0;     ///< between the two pages of a sheet side, not negative
  int iCreep10thPoints = 0;  ///< per sheet, in tenths of a point, not negative
  int bRightToLeft = 0;      ///< reading order
  int iOutlineStyle = 0;     ///< 0 none, 1 line between the pages, 2 frame around each page
  int bInclInsertedBlanksWhenOutlining = 0;  ///< also frame blank filler pages
  int bRotBooklet180 = 0;                    ///< turn the whole sheet side
  int bRotPagelets180 = 0;                   ///< turn each page in its place
  int iPageletsPerPage = 0;                  ///< pages per sheet side
  int iMode = 0;                             ///< 1 outermost sheet first, 2 innermost sheet first
  int bChk4BadMSBinderPS = 0;  ///< look for jobs whose first page holds a whole second job
  /// Of jobs that any program may have written; null for those of the printers' own dialog, which
  /// keep their bytes. Not owned.
  PageHooks* pPageHooks = nullptr;
  off_t iDocumentStart = 0;  ///< where the document begins; what is ahead is copied as it is
  std::string szFeatures;    ///< code for the printer's features, ahead of the first page

  // Set by the two passes.
  int bIsBadMsBinderPS = 0;  ///< such a job was found
  int iPass1Result = 0;
  int iPass2Result = 0;
  int iPages = 0;
  int bPagesReordered = 0;
  int iImagesPerSheet = 0;  ///< source pages per physical sheet: 1, 2 or 4
  int iCurPageAlloc = 0;    ///< entries of the two page tables, less one
  /// For page n, at n - 1, the file offset just after its "%%Page:" line; at iPages the offset
  /// after "%%Trailer", 0 when there is none to use.
  std::vector<off_t> aPageFilePos;
  /// For page n, at n - 1, the size it sets: width in the high 16 bits, height in the low 16
  /// bits, 0 when it sets none.
  std::vector<std::uint32_t> adwPageSize;
  /// For page n, at n - 1, the offset of the first comment after its set-up begins that ends or
  /// nests it. Up to there it can be copied unseen. 0 when that place is not certain.
  std::vector<off_t> aPlainTextEnd;
  int iLastPageWidth = 0;  ///< page size last set on the output
  int iLastPageLen = 0;
  int iDuplexSetpagedevice = 0;  ///< duplex code of the imposed job
  /// Leading lines that belong to a separator file and are dropped.
  int iSepFileDiscardLineCount = 0;

  // The block copier.
  std::vector<char> pBlock;
  int iBytesRead = 0;    ///< bytes in pBlock
  int iCurReadPos = 0;   ///< next byte to examine
  int iCurWritePos = 0;  ///< first byte not yet written
  /// Bytes from the last repositioning to the end that is known of the section, so that no more
  /// than it is read; not positive when nothing is known.
  std::int64_t iSectionBytesLeft = 0;
  char cPrevChar = 0;      ///< last byte examined
  char cPrevPrevChar = 0;  ///< the one before; not read
  enumDscState eDscState = dsScanningForPercentSgn;
  char szDsc[260] = {};  ///< the comment line just caught, with its line end
  int iDscCurChar = 0;   ///< characters in szDsc
  int bEndOfFile = 0;
  int iEpsNestingLevel = 0;
  // Diagnostic counters since the last repositioning; they wrap.
  int iDiagCntBytesRead = 0;
  int iDiagCntBytesReturned = 0;
  int iDiagCntBytesWritten = 0;
};
/// The name of the record everywhere else; its parameter is called `bv`.
using BookletVars = _tag_Q7B_PS_BOOKLET_VARS;

/// Imposes the spooled job bv->pwstrPSFileIn onto bv->hPrinter. Returns the number of pages,
/// 0 when the job has none (then nothing is written), or a negative code:
/// -1000 no output stream; -1001 booklet and paper saver both asked for; -1002 no memory;
/// -101 to -110 the page scan, -401 a set-up section without end; -201 to -210 the second pass;
/// -301 a page that cannot be sought; -501 a block that cannot be read.
int xPostProcessAndRespoolJob(BookletVars* bv);

}  // namespace zarvo
