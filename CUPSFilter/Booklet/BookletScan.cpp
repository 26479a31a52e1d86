// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/BookletScan.h"

#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

namespace zarvo {
namespace {

constexpr char kSeparatorFile[] = "%!PS-Adobe-3.0 ZRV Separator File End Job Begin\r\n";
constexpr int kTableGrowth = 100;

const char* SkipWhiteSpace(const char* text) {
  while (IsWhiteSpace(*text)) ++text;
  return text;
}

/// The page size that one line sets, packed, or 0.
int PageSizeInLine(const char* line) {
  const char* text = std::strstr(line, "/PageSize");
  if (text) text = std::strchr(text, '[');
  if (!text) return 0;
  text = SkipWhiteSpace(text + 1);
  const auto width = static_cast<std::uint32_t>(std::strtol(text, nullptr, 10));
  while (*text != '\0' && !IsWhiteSpace(*text)) ++text;
  text = SkipWhiteSpace(text);
  const auto height = static_cast<std::uint32_t>(std::strtol(text, nullptr, 10));
  if (width == 0 || height == 0 || !std::strchr(text, ']')) return 0;
  return static_cast<int>((width << 16) + height);
}

/// Resizes a page table; entries from `used` on become zero. Returns false without memory.
template <class Table>
bool GrowTable(Table* table, int last_entry, int used) {
  try {
    table->resize(static_cast<std::size_t>(last_entry) + 1);
  } catch (const std::bad_alloc&) {
    return false;
  }
  std::fill(table->begin() + used, table->end(), 0);
  return true;
}

class PageScan {
 public:
  PageScan(BookletVars* vars, CommentReader* reader) : vars_(vars), reader_(reader) {}

  int Run();

 private:
  void RestartAfterSeparator();
  void HandleComment(const char* line);
  void HandlePageOrTrailer(const char* line);
  void HandleEmbedded(const char* line);
  void AddPage();
  void EndPlainText();
  bool GrowTables();

  /// Reads the page size of a section; a negative one ends the scan with `failure`.
  std::uint32_t SectionPageSize(const char* end, int failure) {
    const int size = xScanForPageSize(reader_, line_, end, &plain_);
    if (size < 0) status_ = failure;
    return size > 0 ? static_cast<std::uint32_t>(size) : 0;
  }

  std::size_t Count() const { return static_cast<std::size_t>(pages_); }

  BookletVars* vars_;
  CommentReader* reader_;
  char line_[CommentReader::kLineSize];
  enumScanPagesState state_ = spsValidatingPctBang;
  int status_ = 1;
  int pages_ = 0;
  int trailers_ = 0;
  int nesting_ = 0;
  bool just_entered_ = false;
  bool plain_ = false;  ///< no line since the page's set-up began ends or nests it
  /// Lines have to be counted only where a separator file ends, which hardly any job has. So the
  /// scan skips lines unseen, and starts over without skipping when it meets such a place.
  bool counting_ = false;
  int line_number_ = 0;
};

int PageScan::Run() {
  while (status_ > 0) {
    if (!counting_ && state_ != spsValidatingPctBang) reader_->SkipToComment();
    if (!reader_->ReadLine(line_)) {
      if (reader_->Failed()) status_ = -103;
      break;
    }
    ++line_number_;
    const char* line = line_;
    while (IsSkippedBeforeComment(*line)) ++line;
    if (state_ != spsValidatingPctBang && *line != '%') continue;
    if (vars_->iSepFileDiscardLineCount == 0 && xIsItThisDSC(kSeparatorFile, line)) {
      RestartAfterSeparator();
    } else {
      HandleComment(line);
    }
  }
  return status_ < 1 ? status_ : pages_;
}

void PageScan::RestartAfterSeparator() {
  std::fill(vars_->aPageFilePos.begin(), vars_->aPageFilePos.end(), 0);
  std::fill(vars_->adwPageSize.begin(), vars_->adwPageSize.end(), 0);
  std::fill(vars_->aPlainTextEnd.begin(), vars_->aPlainTextEnd.end(), 0);
  vars_->bIsBadMsBinderPS = 0;
  state_ = spsValidatingPctBang;
  pages_ = 0;
  trailers_ = 0;
  just_entered_ = false;
  plain_ = false;
  if (counting_) {
    vars_->iSepFileDiscardLineCount = line_number_;
    counting_ = false;
  } else {
    counting_ = true;
    line_number_ = 0;
    nesting_ = 0;
    if (!reader_->Rewind()) status_ = -103;
  }
}

void PageScan::HandleComment(const char* line) {
  switch (state_) {
    case spsValidatingPctBang:
      if (std::strstr(line, "%!")) state_ = spsScanningForBeginProlog;
      break;
    case spsScanningForBeginProlog:
      if (xIsItThisDSC("%%BeginProlog", line)) state_ = spsScanningForBeginSetup;
      break;
    case spsScanningForBeginSetup:
      if (xIsItThisDSC("%%ZRV Q7BBMIncluded", line)) {
        status_ = -104;
      } else if (xIsItThisDSC("%%BeginSetup", line)) {
        const std::uint32_t size = SectionPageSize("%%EndSetup", -105);
        if (size != 0) vars_->adwPageSize[0] = size;
        state_ = spsScanningForPageOrTrailer;
      } else {
        HandlePageOrTrailer(line);
      }
      break;
    case spsScanningForPageOrTrailer:
      HandlePageOrTrailer(line);
      break;
    case spsValidatingPageFound:
      if (xIsItThisDSC("%%BeginPageSetup", line)) {
        std::uint32_t& entry = vars_->adwPageSize[Count() - 1];
        plain_ = true;
        const std::uint32_t size = SectionPageSize("%%EndPageSetup", -110);
        if (size != 0) {
          entry = size;
        } else if (entry == 0 && pages_ >= 2) {
          entry = vars_->adwPageSize[Count() - 2];
        }
        state_ = spsScanningForPageOrTrailer;
      }
      break;
    case spsInEmbeddedEPS:
      HandleEmbedded(line);
      break;
  }
}

void PageScan::HandlePageOrTrailer(const char* line) {
  if (EndsOrNestsPage(line)) EndPlainText();
  if (IsPageComment(line)) {
    AddPage();
  } else if (xIsItThisDSC("%%Trailer", line)) {
    // With several trailers none can be told to be the document's own.
    off_t position = 0;
    if (++trailers_ == 1) position = reader_->Tell();
    if (position < 0) {
      status_ = -108;
    } else {
      vars_->aPageFilePos[Count()] = position;
    }
  } else if (xIsItThisDSC("%%BeginDocument", line)) {
    ++nesting_;
    just_entered_ = true;
    state_ = spsInEmbeddedEPS;
  }
}

/// Notes the place of the line read last, the first of its page that has a meaning. The copier can
/// take over where a line begins, but not amid a long one.
void PageScan::EndPlainText() {
  const off_t after = reader_->Tell();
  if (plain_ && reader_->LineIsWhole() && after > 0)
    vars_->aPlainTextEnd[Count() - 1] = after - static_cast<off_t>(reader_->LineLength());
  plain_ = false;
}

void PageScan::AddPage() {
  const off_t position = reader_->Tell();
  if (position < 0) {
    status_ = -107;
    return;
  }
  vars_->aPageFilePos[Count()] = position;
  vars_->aPlainTextEnd[Count()] = 0;
  ++pages_;
  if (GrowTables()) state_ = spsValidatingPageFound;
}

bool PageScan::GrowTables() {
  if (vars_->iCurPageAlloc > pages_) return true;
  if (vars_->iCurPageAlloc > std::numeric_limits<int>::max() - 2 * kTableGrowth) {
    status_ = -105;
    return false;
  }
  vars_->iCurPageAlloc += kTableGrowth;
  if (!GrowTable(&vars_->aPageFilePos, vars_->iCurPageAlloc, pages_)) {
    status_ = -105;
  } else if (!GrowTable(&vars_->adwPageSize, vars_->iCurPageAlloc, pages_)) {
    status_ = -106;
  } else if (!GrowTable(&vars_->aPlainTextEnd, vars_->iCurPageAlloc, pages_)) {
    status_ = -106;
  }
  return status_ > 0;
}

void PageScan::HandleEmbedded(const char* line) {
  const bool first = just_entered_;
  just_entered_ = false;
  if (xIsItThisDSC("%%BeginDocument", line)) {
    ++nesting_;
  } else if (xIsItThisDSC("%%EndDocument", line)) {
    if (--nesting_ == 0) state_ = spsScanningForPageOrTrailer;
  } else if (first && vars_->bChk4BadMSBinderPS && strncasecmp(line, "%!PS-Adobe-", 11) == 0) {
    state_ = spsScanningForPageOrTrailer;
    if (!vars_->bIsBadMsBinderPS && pages_ == 1) {
      // The "page" is a whole job of its own, with the real pages inside.
      vars_->bIsBadMsBinderPS = 1;
      --pages_;
    } else {
      const std::uint32_t size = SectionPageSize("%%EndSetup", -109);
      if (size != 0) vars_->adwPageSize[Count()] = size;
    }
  }
}

}  // namespace

bool xIsItThisDSC(const char* lpszDSC, const char* lpszLine) {
  const std::size_t length = std::strlen(lpszDSC);
  if (std::strncmp(lpszDSC, lpszLine, length) != 0) return false;
  if (strcasecmp(lpszDSC, "%%BeginDocument") == 0) return true;
  return *SkipWhiteSpace(lpszLine + length) == '\0';
}

bool IsPageComment(const char* lpszLine) { return strncasecmp(lpszLine, "%%Page:", 7) == 0; }

bool EndsOrNestsPage(const char* lpszLine) {
  return IsPageComment(lpszLine) || xIsItThisDSC("%%Trailer", lpszLine) ||
         xIsItThisDSC("%%EOF", lpszLine) || xIsItThisDSC("%%BeginDocument", lpszLine) ||
         xIsItThisDSC("%%EndDocument", lpszLine);
}

int xScanForPageSize(CommentReader* fpPDL, char (&lpBuf)[CommentReader::kLineSize],
                     const char* szEndingDSC, bool* plain) {
  int size = 0;
  while (fpPDL->ReadLine(lpBuf)) {
    if (xIsItThisDSC(szEndingDSC, lpBuf)) return size;
    if (plain && EndsOrNestsPage(lpBuf)) *plain = false;
    if (const int found = PageSizeInLine(lpBuf); found != 0) size = found;
  }
  return -401;
}

int xScanFileForPages(BookletVars* bv) {
  bv->bIsBadMsBinderPS = 0;
  bv->adwPageSize[0] = 0;
  try {
    CommentReader reader(bv->pwstrPSFileIn, bv->iDocumentStart);
    if (!reader.IsOpen()) return -102;
    return PageScan(bv, &reader).Run();
  } catch (const std::bad_alloc&) {
    return -101;
  }
}

}  // namespace zarvo
