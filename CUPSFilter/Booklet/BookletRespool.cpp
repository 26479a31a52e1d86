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

bool Write(_tag_Q7B_PS_BOOKLET_VARS* v, const char* text) {
  return xWriteSpool(v->hPrinter, text, std::strlen(text)) != 0;
}

bool WriteDsc(_tag_Q7B_PS_BOOKLET_VARS* v) {
  return xWriteSpool(v->hPrinter, v->szDsc, static_cast<unsigned long>(v->iDscCurChar)) != 0;
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

Creep CreepOfSlot(const _tag_Q7B_PS_BOOKLET_VARS* v, int slot) {
  const std::int64_t sheets = (std::int64_t{v->iPages} + 3) / 4;
  const std::int64_t sheet = (std::int64_t{slot} + 3) / 4;
  const std::int64_t maximum = (sheets - 1) * v->iCreep10thPoints / 10;
  const std::int64_t step = (v->iMode == 1 ? sheets - sheet : sheet - 1) * v->iCreep10thPoints;
  return {static_cast<unsigned>(maximum), static_cast<unsigned>((maximum - step / 10) / 2)};
}

bool WriteSetup(_tag_Q7B_PS_BOOKLET_VARS* v, unsigned maximum_creep) {
  return std::fprintf(
             v->hPrinter, "%u %u %u %u %u %u %u %u %u %s %s %d Q7BBMi\n\n",
             static_cast<unsigned>(v->iOverrideNumCopies),
             static_cast<unsigned>(v->bForceCollateOn),
             static_cast<unsigned>(v->iDuplexSetpagedevice), static_cast<unsigned>(v->iDestXPoints),
             static_cast<unsigned>(v->iDestYPoints), static_cast<unsigned>(v->iDestXMargPoints),
             static_cast<unsigned>(v->iDestYMargPoints),
             static_cast<unsigned>(v->iGutterPoints) + maximum_creep,
             static_cast<unsigned>(v->iOutlineStyle), xPSBool(v->bRotBooklet180),
             xPSBool(v->bRotPagelets180),
             v->bDoAutoPaperSaver ? -v->iPageletsPerPage : v->iPageletsPerPage) > 0;
}

/// Writes what goes ahead of an imposed page's own text.
bool WritePageletHead(_tag_Q7B_PS_BOOKLET_VARS* v, int source, int slot, unsigned maximum_creep) {
  const bool first_of_side = slot % 2 != 0;
  if (first_of_side && std::fprintf(v->hPrinter, "%%%%Page: %u %u\n",
                                    static_cast<unsigned>(source == -1 ? 0 : source),
                                    static_cast<unsigned>(slot / 2 + 1)) < 0) {
    return false;
  }
  if (std::fprintf(v->hPrinter, "%%%%ZRVPagelet: %u of 2\n", first_of_side ? 1U : 2U) < 0) {
    return false;
  }
  return slot != 1 || WriteSetup(v, maximum_creep);
}

/// Writes the page set-up of a blank pagelet and ends it.
bool WriteBlank(_tag_Q7B_PS_BOOKLET_VARS* v, unsigned creep_offset) {
  if (!Write(v, "%%BeginPageSetup\n")) return false;
  if (v->iImagesPerSheet == kImposedImagesPerSheet &&
      std::fprintf(v->hPrinter, "%%ZRVPageletSetup\n%s %u Q7BBMps\n\n",
                   xPSBool(v->bInclInsertedBlanksWhenOutlining), creep_offset) < 0) {
    return false;
  }
  // A page may have left a dictionary behind that holds a showpage of its own.
  return Write(v, "%%EndPageSetup\n\n") &&
         Write(v, v->pPageHooks ? "userdict /showpage get exec\n\n" : "showpage\n\n");
}

/// The beginning of a page's program, after its comment. The file's place stays as it is.
std::string_view ReadPageHead(const _tag_Q7B_PS_BOOKLET_VARS* v, std::FILE* file, int source,
                              char (&head)[kPageHead]) {
  const auto page = static_cast<std::size_t>(source);
  const ssize_t got = pread(fileno(file), head, sizeof head, v->aPageFilePos[page - 1]);
  const std::string_view text(head, got > 0 ? static_cast<std::size_t>(got) : 0);
  return text.substr(std::min(text.find_first_of("\r\n"), text.size()));
}

/// Writes what follows a page's "%%BeginPageSetup": its size and its place on the sheet.
bool WritePageSetup(_tag_Q7B_PS_BOOKLET_VARS* v, std::FILE* file, int source,
                    unsigned creep_offset) {
  const bool imposed = v->iImagesPerSheet == kImposedImagesPerSheet;
  if ((v->bPagesReordered || imposed) && v->adwPageSize[0] != 0) {
    const std::uint32_t size = v->adwPageSize[static_cast<std::size_t>(source) - 1];
    const unsigned width = size >> 16;
    const unsigned height = size & 0xFFFF;
    const bool unchanged =
        static_cast<int>(width) == v->iLastPageWidth && static_cast<int>(height) == v->iLastPageLen;
    if ((imposed || !unchanged) &&
        std::fprintf(v->hPrinter, "%%%s\n<< /PageSize [%u %u] >> setpagedevice\n",
                     imposed ? "ZRVPageletSetup" : "ZRVPageSize", width, height) < 0) {
      return false;
    }
    v->iLastPageWidth = static_cast<int>(width);
    v->iLastPageLen = static_cast<int>(height);
  }
  if (imposed && std::fprintf(v->hPrinter, "true %u Q7BBMps\n\n", creep_offset) < 0) return false;
  if (v->pPageHooks) {
    char head[kPageHead];
    v->pPageHooks->WritePageStart(source - 1, ReadPageHead(v, file, source, head));
  }
  return true;
}

/// Hands on a long page's text unseen, up to the first comment that has a meaning. Returns 1 when
/// it did and the file was repositioned, 0 when there is too little text or the system cannot, -1
/// when the file could not be repositioned.
int SkipPlainText(_tag_Q7B_PS_BOOKLET_VARS* v, std::FILE* file, int source) {
  const auto page = static_cast<std::size_t>(source);
  const off_t end = v->aPlainTextEnd[page - 1];
  const off_t start = CopierPosition(v, file);
  const off_t next_page = v->aPageFilePos[page];
  // One byte more than the next page's comment shows that its line is complete.
  v->iSectionBytesLeft = next_page - ftello(file) + 1;
  if (start < 0 || end - start < kLongText) return 0;
  JobOutput output(v->hPrinter);
  const auto length = static_cast<std::size_t>(end - start);
  const std::size_t moved = output.Transfer(fileno(file), &start, length);
  if (moved == 0) return 0;
  // What stopped it early stops the copier too, whose failures show on the stream.
  const off_t reached = start + static_cast<off_t>(moved);
  if (fseeko(file, reached, SEEK_SET) != 0) return -1;
  v->iSectionBytesLeft = next_page - reached + 1;
  return 1;
}

/// Copies one page from the present place of the file. Returns as xProcessAndRespoolOnePage().
int CopyPage(_tag_Q7B_PS_BOOKLET_VARS* v, std::FILE* file, int source, unsigned creep_offset) {
  enumRespoolOnePageState state = rpsScanningForBeginPageSetupAndSettingUpPage;
  for (int new_section = 1;;) {
    const int status = xWritePdlUntilNextDSC(v, file, new_section);
    new_section = 0;
    if (status <= 0) return status;
    if (v->bEndOfFile) return 1;
    if (state == rpsScanningForBeginPageSetupAndSettingUpPage) {
      if (!WriteDsc(v)) return 0;
      if (xIsItThisDSC("%%BeginPageSetup", v->szDsc)) {
        if (!WritePageSetup(v, file, source, creep_offset)) return 0;
        state = rpsSpoolingPage;
        new_section = SkipPlainText(v, file, source);
        if (new_section < 0) return -301;
      }
      continue;
    }
    if (xIsItThisDSC("%%BeginDocument", v->szDsc)) {
      ++v->iEpsNestingLevel;
    } else if (xIsItThisDSC("%%EndDocument", v->szDsc)) {
      --v->iEpsNestingLevel;
    } else if (v->iEpsNestingLevel == 0) {
      if (IsPageComment(v->szDsc)) return 1;
      if (xIsItThisDSC("%%Trailer", v->szDsc) || xIsItThisDSC("%%EOF", v->szDsc)) return 2;
    }
    if (!WriteDsc(v)) return 0;
  }
}

class FileRespooler {
 public:
  FileRespooler(_tag_Q7B_PS_BOOKLET_VARS* vars, std::FILE* file) : v_(vars), file_(file) {
    if (v_->iImagesPerSheet == kImposedImagesPerSheet) state_ = rsScanningForBeginProlog;
  }

  int Run() {
    if (v_->iDocumentStart > 0 && !CopyWhatIsAhead()) return -205;
    for (int line = 0; line < v_->iSepFileDiscardLineCount; ++line) {
      if (!ReadLine(line_, file_) && std::ferror(file_)) return -205;
    }
    v_->iSectionBytesLeft = 0;
    int status = 1;
    while (status > 0) {
      status = xWritePdlUntilNextDSC(v_, file_, new_section_);
      new_section_ = 0;
      if (status <= 0 || v_->bEndOfFile) break;
      status = HandleComment();
    }
    return status;
  }

 private:
  bool CopyWhatIsAhead() {
    off_t left = v_->iDocumentStart;
    while (left > 0) {
      const auto wanted =
          static_cast<std::size_t>(std::min(left, static_cast<off_t>(v_->pBlock.size())));
      const std::size_t got = std::fread(v_->pBlock.data(), 1, wanted, file_);
      if (got == 0) return false;
      xWriteSpool(v_->hPrinter, v_->pBlock.data(), got);
      left -= static_cast<off_t>(got);
    }
    return true;
  }

  int HandleComment() {
    if (state_ == rsScanningForBeginProlog && xIsItThisDSC("%%BeginProlog", v_->szDsc)) {
      state_ = rsFinding1stPageStartAndSpoolingAllPages;
      return StartProlog();
    }
    if (state_ == rsFinding1stPageStartAndSpoolingAllPages && IsPageComment(v_->szDsc)) {
      state_ = rsSpoolingFileTrailer;
      const int status = SpoolAllPages();
      return status > 0 ? StartTrailer() : status;
    }
    if (v_->pPageHooks && state_ != rsSpoolingFileTrailer)
      v_->pPageHooks->TakeOrientation(v_->szDsc);
    return WriteDsc(v_) ? 1 : 0;
  }

  int StartProlog() {
    if (v_->bIsBadMsBinderPS) {
      // The outer job's prolog is left out, up to that of the job inside.
      if (fseeko(file_, v_->iCurReadPos - v_->iBytesRead, SEEK_CUR) != 0) return -206;
      do {
        if (!ReadLine(line_, file_)) return -206;
      } while (!xIsItThisDSC("%%BeginProlog", line_));
      new_section_ = 1;
    }
    if (!(new_section_ ? Write(v_, line_) : WriteDsc(v_))) return 0;
    if (v_->pPageHooks) v_->pPageHooks->WriteFont();
    return xOutputPSProc(v_->hInstPSRes, v_->iIDBMProcset, v_->hPrinter) ? 1 : -207;
  }

  /// Writes every slot. A slot that fails does not keep the others from being printed; only the
  /// last one's result counts. Once nothing can be written any more, the rest is not read either.
  int SpoolAllPages() {
    const int sheets = (v_->iPages - 1) / v_->iImagesPerSheet + 1;
    const int slots = sheets * v_->iImagesPerSheet;
    int status = 1;
    if (v_->pPageHooks) {
      xWriteSpool(v_->hPrinter, v_->szFeatures.data(), v_->szFeatures.size());
      v_->pPageHooks->WriteForBooklet();
    }
    for (int slot = 1; slot <= slots && std::ferror(v_->hPrinter) == 0; ++slot) {
      const int source = xMapToSrcPageNum(v_, slots, slot);
      status = xProcessAndRespoolOnePage(v_, file_, line_, sizeof line_, v_->iPages,
                                         source > v_->iPages ? -1 : source, slot);
    }
    return status;
  }

  int StartTrailer() {
    new_section_ = 1;
    v_->iSectionBytesLeft = 0;
    const off_t trailer = v_->aPageFilePos[static_cast<std::size_t>(v_->iPages)];
    if (trailer == 0) return fseeko(file_, 0, SEEK_END) == 0 ? 1 : -210;
    if (fseeko(file_, trailer, SEEK_SET) != 0) return -209;
    return Write(v_, "%%Trailer\n") ? 1 : 0;
  }

  _tag_Q7B_PS_BOOKLET_VARS* v_;
  std::FILE* file_;
  char line_[1024] = {};
  enumRespoolFileState state_ = rsFinding1stPageStartAndSpoolingAllPages;
  int new_section_ = 1;
};

int DuplexCode(const _tag_Q7B_PS_BOOKLET_VARS* v) {
  if (v->bDoBooklet) return 2;
  if (!v->bDoAutoPaperSaver) return v->dmDuplex;
  const int code = v->dmDuplex != 1 ? v->dmDuplex : 3;
  if (v->iImagesPerSheet != kImposedImagesPerSheet) return code;
  return code == 2 ? 3 : 2;
}

int ImagesPerSheet(const _tag_Q7B_PS_BOOKLET_VARS* v) {
  if (v->bDoBooklet) return kImposedImagesPerSheet;
  if (v->bDoAutoPaperSaver) return v->iPages < 3 ? 2 : kImposedImagesPerSheet;
  return v->dmDuplex != 1 ? 2 : 1;
}

}  // namespace

const char* xPSBool(int b) { return b ? "true" : "false"; }

int xOutputPSProc(void* /*hInst*/, int /*iID*/, std::FILE* hPrinter) {
  return xWriteSpool(hPrinter, BookletProcset.data(), BookletProcset.size()) != 0;
}

int xMapToSrcPageNum(const _tag_Q7B_PS_BOOKLET_VARS* lpbv, int iDestSlots, int iDestSlot) {
  const int images = lpbv->iImagesPerSheet;
  const int place = iDestSlot % images == 0 ? images : iDestSlot % images;
  int page = iDestSlot;
  if (lpbv->bDoReversePgOrder) {
    page = iDestSlots - iDestSlot;
    if (images == 1) page += 1;
    if (images == 2) page += place == 1 ? 0 : 2;
    if (images == 4) page += 2 * place - 4;
  }
  if (!lpbv->bDoBooklet) return page;
  if (lpbv->iMode != 2) {
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

int xProcessAndRespoolOnePage(_tag_Q7B_PS_BOOKLET_VARS* lpbv, std::FILE* fpPDL, char* lpBuf,
                              int /*cchBufSizeChar*/, int /*iPages*/, int iSrcPage, int iDestSlot) {
  lpbv->iEpsNestingLevel = 0;
  const Creep creep = CreepOfSlot(lpbv, iDestSlot);
  if (iSrcPage != -1) {
    const auto page = static_cast<std::size_t>(iSrcPage);
    const off_t start = lpbv->aPageFilePos[page - 1];
    if (fseeko(fpPDL, start, SEEK_SET) != 0) return -301;
    // Only what comes before a long text has to be read here. Elsewhere, one byte more than the
    // next page's comment shows that its line is complete.
    const bool long_text = lpbv->aPlainTextEnd[page - 1] - start >= 2 * kLongText;
    lpbv->iSectionBytesLeft = long_text ? kHeadSize : lpbv->aPageFilePos[page] - start + 1;
  }
  const bool head_written = lpbv->iImagesPerSheet == kImposedImagesPerSheet
                                ? WritePageletHead(lpbv, iSrcPage, iDestSlot, creep.maximum)
                                : Write(lpbv, lpBuf);
  if (!head_written) return 0;
  if (iSrcPage == -1) return WriteBlank(lpbv, creep.offset) ? 1 : 0;
  return CopyPage(lpbv, fpPDL, iSrcPage, creep.offset);
}

int xProcessAndRespoolFile(_tag_Q7B_PS_BOOKLET_VARS* lpbv) {
  const std::uint32_t first_size = lpbv->adwPageSize[0];
  lpbv->iLastPageWidth = static_cast<int>(first_size >> 16);
  lpbv->iLastPageLen = static_cast<int>(first_size & 0xFFFF);
  if (lpbv->bTryToUsePg1SizeFromPS && first_size != 0) {
    lpbv->iDestXPoints = lpbv->iLastPageWidth;
    lpbv->iDestYPoints = lpbv->iLastPageLen;
  }
  lpbv->iImagesPerSheet = ImagesPerSheet(lpbv);
  lpbv->bPagesReordered = lpbv->bDoBooklet || lpbv->bDoReversePgOrder;
  lpbv->iDuplexSetpagedevice = DuplexCode(lpbv);
  const FilePtr file(std::fopen(lpbv->pwstrPSFileIn, "rb"));
  if (!file) return -204;
  return FileRespooler(lpbv, file.get()).Run();
}

}  // namespace zarvo
