// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/BookletCopier.h"

#include <algorithm>
#include <cstring>

namespace zarvo {
namespace {

constexpr int kMaxDscLength = 256;

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

/// Counts that only serve diagnosis wrap instead of overflowing.
void Count(int* counter, unsigned long bytes) {
  *counter = static_cast<int>(static_cast<unsigned>(*counter) + static_cast<unsigned>(bytes));
}

bool Write(BookletVars* bv, const char* bytes, int count) {
  const auto length = static_cast<unsigned long>(count);
  Count(&bv->iDiagCntBytesWritten, length);
  return xWriteSpool(bv->hPrinter, bytes, length) != 0;
}

/// Writes what was examined and not yet written.
bool WriteExamined(BookletVars* bv) {
  const int start = bv->iCurWritePos;
  bv->iCurWritePos = bv->iCurReadPos;
  return Write(bv, bv->pBlock.data() + start, bv->iCurReadPos - start);
}

/// Reads the next block. Returns false at the end of the file and on a read error.
bool ReadBlock(BookletVars* bv, std::FILE* file) {
  std::size_t wanted = bv->pBlock.size();
  if (bv->iSectionBytesLeft > 0) {
    wanted = static_cast<std::size_t>(
        std::min<std::int64_t>(bv->iSectionBytesLeft, static_cast<std::int64_t>(wanted)));
  }
  const std::size_t count = std::fread(bv->pBlock.data(), 1, wanted, file);
  bv->iSectionBytesLeft -= static_cast<std::int64_t>(count);
  bv->iBytesRead = static_cast<int>(count);
  bv->iCurReadPos = bv->iCurWritePos = 0;
  Count(&bv->iDiagCntBytesRead, count);
  return count > 0;
}

/// Examines plain bytes up to a "%" after a line end, which it takes as the start of a comment
/// line, or to the end of the block.
bool ScanForPercentSign(BookletVars* bv) {
  const char* const block = bv->pBlock.data();
  const char* const end = block + bv->iBytesRead;
  const char* from = block + bv->iCurReadPos;
  const char* found = nullptr;
  while ((found = static_cast<const char*>(
              std::memchr(from, '%', static_cast<std::size_t>(end - from)))) != nullptr &&
         !IsLineEnd(found == block + bv->iCurReadPos ? bv->cPrevChar : found[-1])) {
    from = found + 1;
  }
  bv->iCurReadPos = static_cast<int>((found ? found : end) - block);
  if (!found) {
    bv->cPrevChar = end[-1];
    return true;
  }
  if (!WriteExamined(bv)) return false;
  bv->cPrevChar = '%';
  bv->szDsc[0] = '%';
  bv->szDsc[1] = '\0';
  bv->iDscCurChar = 1;
  bv->iCurWritePos = ++bv->iCurReadPos;
  bv->eDscState = dsInsidePossiblePsComment;
  return true;
}

void AppendToDsc(BookletVars* bv, char byte) {
  bv->szDsc[bv->iDscCurChar++] = byte;
  bv->szDsc[bv->iDscCurChar] = '\0';
  bv->cPrevChar = byte;
  bv->iCurWritePos = ++bv->iCurReadPos;
}

/// Takes bytes of the block into szDsc up to the line end. What is no comment line after all (too
/// long, or with a NUL) is written as plain data.
bool CollectComment(BookletVars* bv) {
  while (bv->iCurReadPos < bv->iBytesRead) {
    const char byte = bv->pBlock[static_cast<std::size_t>(bv->iCurReadPos)];
    if (byte == '\0' || bv->iDscCurChar >= kMaxDscLength) {
      bv->eDscState = dsScanningForPercentSgn;
      return Write(bv, bv->szDsc, bv->iDscCurChar);
    }
    AppendToDsc(bv, byte);
    if (IsLineEnd(byte)) {
      bv->eDscState = dsTerminatingPsComment;
      return true;
    }
  }
  return true;
}

}  // namespace

off_t CopierPosition(const BookletVars* bv, std::FILE* fpPDL) {
  const off_t read = ftello(fpPDL);
  return read < 0 ? -1 : read - (bv->iBytesRead - bv->iCurReadPos);
}

unsigned long xWriteSpool(std::FILE* hPrinter, const char* szString, unsigned long stChars) {
  if (stChars == 0) return 9999;
  return std::fwrite(szString, 1, stChars, hPrinter) == stChars ? stChars : 0;
}

int xWritePdlUntilNextDSC(BookletVars* bv, std::FILE* fpPDL, int bNewPageOrSection) {
  bv->bEndOfFile = 0;
  bv->eDscState = dsScanningForPercentSgn;
  bv->szDsc[0] = '\0';
  bv->iDscCurChar = 0;
  if (bNewPageOrSection) {
    // Bytes that were read before the file was repositioned belong to another place.
    bv->iBytesRead = bv->iCurReadPos = bv->iCurWritePos = 0;
    bv->cPrevChar = '\n';
    bv->iDiagCntBytesRead = bv->iDiagCntBytesReturned = bv->iDiagCntBytesWritten = 0;
  }
  for (;;) {
    if (bv->iCurReadPos >= bv->iBytesRead) {
      if (bv->eDscState == dsScanningForPercentSgn && !WriteExamined(bv)) return 0;
      if (!ReadBlock(bv, fpPDL)) {
        if (std::ferror(fpPDL)) return -501;
        bv->bEndOfFile = 1;
        return 1;
      }
    }
    switch (bv->eDscState) {
      case dsScanningForPercentSgn:
        if (!ScanForPercentSign(bv)) return 0;
        break;
      case dsInsidePossiblePsComment:
        if (!CollectComment(bv)) return 0;
        break;
      case dsTerminatingPsComment:
        if (bv->pBlock[static_cast<std::size_t>(bv->iCurReadPos)] == '\n') {
          AppendToDsc(bv, '\n');
        }
        Count(&bv->iDiagCntBytesReturned, static_cast<unsigned long>(bv->iDscCurChar));
        return 1;
    }
  }
}

}  // namespace zarvo
