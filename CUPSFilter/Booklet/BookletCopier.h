// SPDX-License-Identifier: Apache-2.0
// Copies a spooled job in blocks and stops at its comment lines.
#pragma once

#include <cstdio>

#include "CUPSFilter/Booklet/q7bbook32.h"

namespace zarvo {

/// The size the copier's block, pBlock, should have.
constexpr std::size_t kBookletBlockSize = 128 * 1024;

/// Copies from fpPDL to hPrinter up to the next comment line: "%" after a line end, with at most
/// 255 more bytes before the line end, and no NUL. Leaves that line in szDsc, unwritten. A line
/// feed after the line's end is taken into it too. At the end of the file, where an unfinished
/// comment line is dropped, sets bEndOfFile. bNewPageOrSection says that fpPDL was opened or
/// repositioned since the last call. Returns 1, 0 on a write error, -501 on a read error.
int xWritePdlUntilNextDSC(BookletVars* bv, std::FILE* fpPDL, int bNewPageOrSection);

/// The place in fpPDL of the next byte that the copier will examine, or -1.
off_t CopierPosition(const BookletVars* bv, std::FILE* fpPDL);

/// Writes stChars bytes. Returns stChars, 9999 when that is 0, or 0 on a write error.
unsigned long xWriteSpool(std::FILE* hPrinter, const char* szString, unsigned long stChars);

}  // namespace zarvo
