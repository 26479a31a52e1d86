// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/BookletRespool.h"

#include <unistd.h>
#include <algorithm>

#include <algorithm>
#include <cstring>
#include <string_view>

#include "CUPSFilter/Booklet/BookletCopier.h"
#include "CUPSFilter/Booklet/BookletScan.h"
#include "CUPSFilter/CopyPass/psgets.h"
#include "CUPSFilter/JobOutput.h"

namespace zarvo {

extern const std::string_view BookletProcset;

namespace {

constexpr int kImposedImagesPerSheet = 4;

/// From this length on, text goes to the output without passing through this process.
constexpr off_t kLongText = 32768;
/// What is read of a page with such text: its set-up begins well within.
constexpr std::int64_t kHeadSize = 4096;

bool Write(BookletVars* bv, const char* text) {
  return xWriteSpool(bv->hPrinter, text, std::strlen(text)) != 0;
}

bool WriteDsc(BookletVars* bv) {
  return xWriteSpool(bv->hPrinter, bv->szDsc, static_cast<unsigned long>(bv->iDscCurChar)) != 0;
}

/// Reads one line, at most 1023 bytes of it, into `line`.
template <std::size_t size>
bool ReadLine(char (&line)[size], std::FILE* file) {
  unsigned long length = size;
  return psgets(line, &length, file) != nullptr;
}

/// How far the pages of this slot's sheet move away from the fold, in points: the outer sheets of
/// a folded stack reach less far out than the inner ones, whose excess is trimmed.
struct Creep {
  unsigned maximum;
  unsigned offset;
};

Creep CreepOfSlot(const BookletVars* bv, int slot) {
  const std::int64_t sheets = (std::int64_t{bv->iPages} + 3) / 4;
  const std::int64_t sheet = (std::int64_t{slot} + 3) / 4;
  const std::int64_t maximum = (sheets - 1) * bv->iCreep10thPoints / 10;
  const std::int64_t step = (bv->iMode == 1 ? sheets - sheet : sheet - 1) * bv->iCreep10thPoints;
  return {static_cast<unsigned>(maximum), static_cast<unsigned>((maximum - step / 10) / 2)};
}

bool WriteSetup(BookletVars* bv, unsigned maximum_creep) {
  return std::fprintf(bv->hPrinter, "%u %u %u %u %u %u %u %u %u %s %s %d Q7BBMi\n\n",
                      static_cast<unsigned>(bv->iOverrideNumCopies),
                      static_cast<unsigned>(bv->bForceCollateOn),
                      static_cast<unsigned>(bv->iDuplexSetpagedevice),
                      static_cast<unsigned>(bv->iDestXPoints),
                      static_cast<unsigned>(bv->iDestYPoints),
                      static_cast<unsigned>(bv->iDestXMargPoints),
                      static_cast<unsigned>(bv->iDestYMargPoints),
                      static_cast<unsigned>(bv->iGutterPoints) + maximum_creep,
                      static_cast<unsigned>(bv->iOutlineStyle), xPSBool(bv->bRotBooklet180),
                      xPSBool(bv->bRotPagelets180),
                      bv->bDoAutoPaperSaver ? -bv->iPageletsPerPage : bv->iPageletsPerPage) > 0;
}

/// Writes what goes ahead of an imposed page's own text.
bool WritePageletHead(BookletVars* bv, int source, int slot, unsigned maximum_creep) {
  const bool first_of_side = slot % 2 != 0;
  if (first_of_side && std::fprintf(bv->hPrinter, "%%%%Page: %u %u\n",
                                    static_cast<unsigned>(source == -1 ? 0 : source),
                                    static_cast<unsigned>(slot / 2 + 1)) < 0) {
    return false;
  }
  if (std::fprintf(bv->hPrinter, "%%%%ZRVPagelet: %u of 2\n", first_of_side ? 1U : 2U) < 0) {
    return false;
  }
  return slot != 1 || WriteSetup(bv, maximum_creep);
}

/// Writes the page set-up of a blank pagelet and ends it.
bool WriteBlank(BookletVars* bv, unsigned creep_offset) {
  if (!Write(bv, "%%BeginPageSetup\n")) return false;
  if (bv->iImagesPerSheet == kImposedImagesPerSheet &&
      std::fprintf(bv->hPrinter, "%%ZRVPageletSetup\n%s %u Q7BBMps\n\n",
                   xPSBool(bv->bInclInsertedBlanksWhenOutlining), creep_offset) < 0) {
    return false;
  }
  // A page may have left a dictionary behind that holds a showpage of its own.
  return Write(bv, "%%EndPageSetup\n\n") &&
         Write(bv, bv->pPageHooks ? "userdict /showpage get exec\n\n" : "showpage\n\n");
}

/// The beginning of a page's program, after its comment. The file's place stays as it is.
std::string_view ReadPageHead(const BookletVars* bv, std::FILE* file, int source,
                              char (&head)[kPageHead]) {
  const auto page = static_cast<std::size_t>(source);
  const ssize_t got = pread(fileno(file), head, sizeof head, bv->aPageFilePos[page - 1]);
  const std::string_view text(head, got > 0 ? static_cast<std::size_t>(got) : 0);
  return text.substr(std::min(text.find_first_of("\r\n"), text.size()));
}

/// Writes what follows a page's "%%BeginPageSetup": its size and its place on the sheet.
bool WritePageSetup(BookletVars* bv, std::FILE* file, int source, unsigned creep_offset) {
  const bool imposed = bv->iImagesPerSheet == kImposedImagesPerSheet;
  if ((bv->bPagesReordered || imposed) && bv->adwPageSize[0] != 0) {
    const std::uint32_t size = bv->adwPageSize[static_cast<std::size_t>(source) - 1];
    const unsigned width = size >> 16;
    const unsigned height = size & 0xFFFF;
    const bool unchanged = static_cast<int>(width) == bv->iLastPageWidth &&
                           static_cast<int>(height) == bv->iLastPageLen;
    if ((imposed || !unchanged) &&
        std::fprintf(bv->hPrinter, "%%%s\n<< /PageSize [%u %u] >> setpagedevice\n",
                     imposed ? "ZRVPageletSetup" : "ZRVPageSize", width, height) < 0) {
      return false;
    }
    bv->iLastPageWidth = static_cast<int>(width);
    bv->iLastPageLen = static_cast<int>(height);
  }
  if (imposed && std::fprintf(bv->hPrinter, "true %u Q7BBMps\n\n", creep_offset) < 0) return false;
  if (bv->pPageHooks) {
    char head[kPageHead];
    bv->pPageHooks->WritePageStart(source - 1, ReadPageHead(bv, file, source, head));
  }
  return true;
}

/// Hands on a long page's text unseen, up to the first comment that has a meaning. Returns 1 when
/// it did and the file was repositioned, 0 when there is too little text or the system cannot, -1
/// when the file could not be repositioned.
int SkipPlainText(BookletVars* bv, std::FILE* file, int source) {
  const auto page = static_cast<std::size_t>(source);
  const off_t end = bv->aPlainTextEnd[page - 1];
  const off_t start = CopierPosition(bv, file);
  const off_t next_page = bv->aPageFilePos[page];
  // One byte more than the next page's comment shows that its line is complete.
  bv->iSectionBytesLeft = next_page - ftello(file) + 1;
  if (start < 0 || end - start < kLongText) return 0;
  JobOutput output(bv->hPrinter);
  const auto length = static_cast<std::size_t>(end - start);
  const std::size_t moved = output.Transfer(fileno(file), &start, length);
  if (moved == 0) return 0;
  // What stopped it early stops the copier too, whose failures show on the stream.
  const off_t reached = start + static_cast<off_t>(moved);
  if (fseeko(file, reached, SEEK_SET) != 0) return -1;
  bv->iSectionBytesLeft = next_page - reached + 1;
  return 1;
}

/// Copies one page from the present place of the file. Returns as xProcessAndRespoolOnePage().
int CopyPage(BookletVars* bv, std::FILE* file, int source, unsigned creep_offset) {
  enumRespoolOnePageState state = rpsScanningForBeginPageSetupAndSettingUpPage;
  for (int new_section = 1;;) {
    const int status = xWritePdlUntilNextDSC(bv, file, new_section);
    new_section = 0;
    if (status <= 0) return status;
    if (bv->bEndOfFile) return 1;
    if (state == rpsScanningForBeginPageSetupAndSettingUpPage) {
      if (!WriteDsc(bv)) return 0;
      if (xIsItThisDSC("%%BeginPageSetup", bv->szDsc)) {
        if (!WritePageSetup(bv, file, source, creep_offset)) return 0;
        state = rpsSpoolingPage;
        new_section = SkipPlainText(bv, file, source);
        if (new_section < 0) return -301;
      }
      continue;
    }
    if (xIsItThisDSC("%%BeginDocument", bv->szDsc)) {
      ++bv->iEpsNestingLevel;
    } else if (xIsItThisDSC("%%EndDocument", bv->szDsc)) {
      --bv->iEpsNestingLevel;
    } else if (bv->iEpsNestingLevel == 0) {
      if (IsPageComment(bv->szDsc)) return 1;
      if (xIsItThisDSC("%%Trailer", bv->szDsc) || xIsItThisDSC("%%EOF", bv->szDsc)) return 2;
    }
    if (!WriteDsc(bv)) return 0;
  }
}

class FileRespooler {
 public:
  FileRespooler(BookletVars* vars, std::FILE* file) : bv_(vars), file_(file) {
    if (bv_->iImagesPerSheet == kImposedImagesPerSheet) state_ = rsScanningForBeginProlog;
  }

  int Run() {
    if (bv_->iDocumentStart > 0 && !CopyWhatIsAhead()) return -205;
    for (int line = 0; line < bv_->iSepFileDiscardLineCount; ++line) {
      if (!ReadLine(line_, file_) && std::ferror(file_)) return -205;
    }
    bv_->iSectionBytesLeft = 0;
    int status = 1;
    while (status > 0) {
      status = xWritePdlUntilNextDSC(bv_, file_, new_section_);
      new_section_ = 0;
      if (status <= 0 || bv_->bEndOfFile) break;
      status = HandleComment();
    }
    return status;
  }

 private:
  bool CopyWhatIsAhead() {
    off_t left = bv_->iDocumentStart;
    while (left > 0) {
      const auto wanted =
          static_cast<std::size_t>(std::min(left, static_cast<off_t>(bv_->pBlock.size())));
      const std::size_t got = std::fread(bv_->pBlock.data(), 1, wanted, file_);
      if (got == 0) return false;
      xWriteSpool(bv_->hPrinter, bv_->pBlock.data(), got);
      left -= static_cast<off_t>(got);
    }
    return true;
  }

  int HandleComment() {
    if (state_ == rsScanningForBeginProlog && xIsItThisDSC("%%BeginProlog", bv_->szDsc)) {
      state_ = rsFinding1stPageStartAndSpoolingAllPages;
      return StartProlog();
    }
    if (state_ == rsFinding1stPageStartAndSpoolingAllPages && IsPageComment(bv_->szDsc)) {
      state_ = rsSpoolingFileTrailer;
      const int status = SpoolAllPages();
      return status > 0 ? StartTrailer() : status;
    }
    if (bv_->pPageHooks && state_ != rsSpoolingFileTrailer)
      bv_->pPageHooks->TakeOrientation(bv_->szDsc);
    return WriteDsc(bv_) ? 1 : 0;
  }

  int StartProlog() {
    if (bv_->bIsBadMsBinderPS) {
      // The outer job's prolog is left out, up to that of the job inside.
      if (fseeko(file_, bv_->iCurReadPos - bv_->iBytesRead, SEEK_CUR) != 0) return -206;
      do {
        if (!ReadLine(line_, file_)) return -206;
      } while (!xIsItThisDSC("%%BeginProlog", line_));
      new_section_ = 1;
    }
    if (!(new_section_ ? Write(bv_, line_) : WriteDsc(bv_))) return 0;
    if (bv_->pPageHooks) bv_->pPageHooks->WriteFont();
    return xOutputPSProc(bv_->hInstPSRes, bv_->iIDBMProcset, bv_->hPrinter) ? 1 : -207;
  }

  /// Writes every slot. A slot that fails does not keep the others from being printed; only the
  /// last one's result counts. Once nothing can be written any more, the rest is not read either.
  int SpoolAllPages() {
    const int sheets = (bv_->iPages - 1) / bv_->iImagesPerSheet + 1;
    const int slots = sheets * bv_->iImagesPerSheet;
    int status = 1;
    if (bv_->pPageHooks) {
      xWriteSpool(bv_->hPrinter, bv_->szFeatures.data(), bv_->szFeatures.size());
      bv_->pPageHooks->WriteForBooklet();
    }
    for (int slot = 1; slot <= slots && std::ferror(bv_->hPrinter) == 0; ++slot) {
      const int source = xMapToSrcPageNum(bv_, slots, slot);
      status = xProcessAndRespoolOnePage(bv_, file_, line_, sizeof line_, bv_->iPages,
                                         source > bv_->iPages ? -1 : source, slot);
    }
    return status;
  }

  int StartTrailer() {
    new_section_ = 1;
    bv_->iSectionBytesLeft = 0;
    const off_t trailer = bv_->aPageFilePos[static_cast<std::size_t>(bv_->iPages)];
    if (trailer == 0) return fseeko(file_, 0, SEEK_END) == 0 ? 1 : -210;
    if (fseeko(file_, trailer, SEEK_SET) != 0) return -209;
    return Write(bv_, "%%Trailer\n") ? 1 : 0;
  }

  BookletVars* bv_;
  std::FILE* file_;
  char line_[1024] = {};
  enumRespoolFileState state_ = rsFinding1stPageStartAndSpoolingAllPages;
  int new_section_ = 1;
};

int DuplexCode(const BookletVars* bv) {
  if (bv->bDoBooklet) return 2;
  if (!bv->bDoAutoPaperSaver) return bv->dmDuplex;
  const int code = bv->dmDuplex != 1 ? bv->dmDuplex : 3;
  if (bv->iImagesPerSheet != kImposedImagesPerSheet) return code;
  return code == 2 ? 3 : 2;
}

int ImagesPerSheet(const BookletVars* bv) {
  if (bv->bDoBooklet) return kImposedImagesPerSheet;
  if (bv->bDoAutoPaperSaver) return bv->iPages < 3 ? 2 : kImposedImagesPerSheet;
  return bv->dmDuplex != 1 ? 2 : 1;
}

}  // namespace

const char* xPSBool(int b) { return b ? "true" : "false"; }

int xOutputPSProc(void* /*hInst*/, int /*iID*/, std::FILE* hPrinter) {
  return xWriteSpool(hPrinter, BookletProcset.data(), BookletProcset.size()) != 0;
}

int xMapToSrcPageNum(const BookletVars* bv, int iDestSlots, int iDestSlot) {
  const int images = bv->iImagesPerSheet;
  const int place = iDestSlot % images == 0 ? images : iDestSlot % images;
  int page = iDestSlot;
  if (bv->bDoReversePgOrder) {
    page = iDestSlots - iDestSlot;
    if (images == 1) page += 1;
    if (images == 2) page += place == 1 ? 0 : 2;
    if (images == 4) page += 2 * place - 4;
  }
  if (!bv->bDoBooklet) return page;
  if (bv->iMode != 2) {
    switch (place) {
      case 1:
        return iDestSlots - (page - 1) / 2;
      case 2:
        return page / 2;
      case 3:
        return (page + 1) / 2;
      default:
        return iDestSlots - (page - 2) / 2;
    }
  }
  switch (place) {
    case 1:
      return (iDestSlots - page + 1) / 2;
    case 2:
      return (iDestSlots + page) / 2;
    case 3:
      return (page + iDestSlots + 1) / 2;
    default:
      return (iDestSlots - page + 2) / 2;
  }
}

int xProcessAndRespoolOnePage(BookletVars* bv, std::FILE* fpPDL, char* lpBuf,
                              int /*cchBufSizeChar*/, int /*iPages*/, int iSrcPage, int iDestSlot) {
  bv->iEpsNestingLevel = 0;
  const Creep creep = CreepOfSlot(bv, iDestSlot);
  if (iSrcPage != -1) {
    const auto page = static_cast<std::size_t>(iSrcPage);
    const off_t start = bv->aPageFilePos[page - 1];
    if (fseeko(fpPDL, start, SEEK_SET) != 0) return -301;
    // Only what comes before a long text has to be read here. Elsewhere, one byte more than the
    // next page's comment shows that its line is complete.
    const bool long_text = bv->aPlainTextEnd[page - 1] - start >= 2 * kLongText;
    bv->iSectionBytesLeft = long_text ? kHeadSize : bv->aPageFilePos[page] - start + 1;
  }
  const bool head_written = bv->iImagesPerSheet == kImposedImagesPerSheet
                                ? WritePageletHead(bv, iSrcPage, iDestSlot, creep.maximum)
                                : Write(bv, lpBuf);
  if (!head_written) return 0;
  if (iSrcPage == -1) return WriteBlank(bv, creep.offset) ? 1 : 0;
  return CopyPage(bv, fpPDL, iSrcPage, creep.offset);
}

int xProcessAndRespoolFile(BookletVars* bv) {
  const std::uint32_t first_size = bv->adwPageSize[0];
  bv->iLastPageWidth = static_cast<int>(first_size >> 16);
  bv->iLastPageLen = static_cast<int>(first_size & 0xFFFF);
  if (bv->bTryToUsePg1SizeFromPS && first_size != 0) {
    bv->iDestXPoints = bv->iLastPageWidth;
    bv->iDestYPoints = bv->iLastPageLen;
  }
  bv->iImagesPerSheet = ImagesPerSheet(bv);
  bv->bPagesReordered = bv->bDoBooklet || bv->bDoReversePgOrder;
  bv->iDuplexSetpagedevice = DuplexCode(bv);
  const FilePtr file(std::fopen(bv->pwstrPSFileIn, "rb"));
  if (!file) return -204;
  return FileRespooler(bv, file.get()).Run();
}

}  // namespace zarvo
