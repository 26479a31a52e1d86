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

bool Write(_tag_Q7B_PS_BOOKLET_VARS* v, const char* bytes, int count) {
  const auto length = static_cast<unsigned long>(count);
  Count(&v->iDiagCntBytesWritten, length);
  return xWriteSpool(v->hPrinter, bytes, length) != 0;
}

/// Writes what was examined and not yet written.
bool WriteExamined(_tag_Q7B_PS_BOOKLET_VARS* v) {
  const int start = v->iCurWritePos;
  v->iCurWritePos = v->iCurReadPos;
  return Write(v, v->pBlock.data() + start, v->iCurReadPos - start);
}

/// Reads the next block. Returns false at the end of the file and on a read error.
bool ReadBlock(_tag_Q7B_PS_BOOKLET_VARS* v, std::FILE* file) {
  std::size_t wanted = v->pBlock.size();
  if (v->iSectionBytesLeft > 0) {
    wanted = static_cast<std::size_t>(
        std::min<std::int64_t>(v->iSectionBytesLeft, static_cast<std::int64_t>(wanted)));
  }
  const std::size_t count = std::fread(v->pBlock.data(), 1, wanted, file);
  v->iSectionBytesLeft -= static_cast<std::int64_t>(count);
  v->iBytesRead = static_cast<int>(count);
  v->iCurReadPos = v->iCurWritePos = 0;
  Count(&v->iDiagCntBytesRead, count);
  return count > 0;
}

/// Examines plain bytes up to a "%" after a line end, which it takes as the start of a comment
/// line, or to the end of the block.
bool ScanForPercentSign(_tag_Q7B_PS_BOOKLET_VARS* v) {
  const char* const block = v->pBlock.data();
  const char* const end = block + v->iBytesRead;
  const char* from = block + v->iCurReadPos;
  const char* found = nullptr;
  while ((found = static_cast<const char*>(
              std::memchr(from, '%', static_cast<std::size_t>(end - from)))) != nullptr &&
         !IsLineEnd(found == block + v->iCurReadPos ? v->cPrevChar : found[-1])) {
    from = found + 1;
  }
  v->iCurReadPos = static_cast<int>((found ? found : end) - block);
  if (!found) {
    v->cPrevChar = end[-1];
    return true;
  }
  if (!WriteExamined(v)) return false;
  v->cPrevChar = '%';
  v->szDsc[0] = '%';
  v->szDsc[1] = '\0';
  v->iDscCurChar = 1;
  v->iCurWritePos = ++v->iCurReadPos;
  v->eDscState = dsInsidePossiblePsComment;
  return true;
}

void AppendToDsc(_tag_Q7B_PS_BOOKLET_VARS* v, char byte) {
  v->szDsc[v->iDscCurChar++] = byte;
  v->szDsc[v->iDscCurChar] = '\0';
  v->cPrevChar = byte;
  v->iCurWritePos = ++v->iCurReadPos;
}

/// Takes bytes of the block into szDsc up to the line end. What is no comment line after all (too
/// long, or with a NUL) is written as plain data.
bool CollectComment(_tag_Q7B_PS_BOOKLET_VARS* v) {
  while (v->iCurReadPos < v->iBytesRead) {
    const char byte = v->pBlock[static_cast<std::size_t>(v->iCurReadPos)];
    if (byte == '\0' || v->iDscCurChar >= kMaxDscLength) {
      v->eDscState = dsScanningForPercentSgn;
      return Write(v, v->szDsc, v->iDscCurChar);
    }
    AppendToDsc(v, byte);
    if (IsLineEnd(byte)) {
      v->eDscState = dsTerminatingPsComment;
      return true;
    }
  }
  return true;
}

}  // namespace

off_t CopierPosition(const _tag_Q7B_PS_BOOKLET_VARS* lpbv, std::FILE* fpPDL) {
  const off_t read = ftello(fpPDL);
  return read < 0 ? -1 : read - (lpbv->iBytesRead - lpbv->iCurReadPos);
}

unsigned long xWriteSpool(std::FILE* hPrinter, const char* szString, unsigned long stChars) {
  if (stChars == 0) return 9999;
  return std::fwrite(szString, 1, stChars, hPrinter) == stChars ? stChars : 0;
}

int xWritePdlUntilNextDSC(_tag_Q7B_PS_BOOKLET_VARS* lpbv, std::FILE* fpPDL, int bNewPageOrSection) {
  lpbv->bEndOfFile = 0;
  lpbv->eDscState = dsScanningForPercentSgn;
  lpbv->szDsc[0] = '\0';
  lpbv->iDscCurChar = 0;
  if (bNewPageOrSection) {
    // Bytes that were read before the file was repositioned belong to another place.
    lpbv->iBytesRead = lpbv->iCurReadPos = lpbv->iCurWritePos = 0;
    lpbv->cPrevChar = '\n';
    lpbv->iDiagCntBytesRead = lpbv->iDiagCntBytesReturned = lpbv->iDiagCntBytesWritten = 0;
  }
  for (;;) {
    if (lpbv->iCurReadPos >= lpbv->iBytesRead) {
      if (lpbv->eDscState == dsScanningForPercentSgn && !WriteExamined(lpbv)) return 0;
      if (!ReadBlock(lpbv, fpPDL)) {
        if (std::ferror(fpPDL)) return -501;
        lpbv->bEndOfFile = 1;
        return 1;
      }
    }
    switch (lpbv->eDscState) {
      case dsScanningForPercentSgn:
        if (!ScanForPercentSign(lpbv)) return 0;
        break;
      case dsInsidePossiblePsComment:
        if (!CollectComment(lpbv)) return 0;
        break;
      case dsTerminatingPsComment:
        if (lpbv->pBlock[static_cast<std::size_t>(lpbv->iCurReadPos)] == '\n') {
          AppendToDsc(lpbv, '\n');
        }
        Count(&lpbv->iDiagCntBytesReturned, static_cast<unsigned long>(lpbv->iDscCurChar));
        return 1;
    }
  }
}

}  // namespace zarvo
