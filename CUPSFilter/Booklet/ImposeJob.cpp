// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/ImposeJob.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <string>

#include "CUPSFilter/Booklet/PageRewriter.h"
#include "CUPSFilter/Booklet/PageStructure.h"
#include "CUPSFilter/Booklet/q7bbook32.h"
#include "CUPSFilter/Watermark/PageHooks.h"
#include "Platform/Log.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr int kBookletMargin = 12;  // points, on each side of a sheet

struct Stage {
  int lowest;  // of its codes; those of the next row are higher
  const char* failure;
  const char* remedy;
};
constexpr char kBadSetUp[] =
    "a set-up section of the job has no end, or sets an impossible page size; nothing was printed";
constexpr char kNoPages[] = "looking for the pages failed, nothing was printed";
constexpr char kPrintPlainly[] = "print the job without booklet layout";
constexpr char kTryAgain[] = "make room in TMPDIR and memory, and send the job again";
constexpr Stage kStages[] = {
    {-1002, "setting up failed, nothing was printed", kTryAgain},
    {-501, "reading the spooled job failed, the output is cut short", kTryAgain},
    {-401, "a set-up section of the job has no end, nothing was printed", kPrintPlainly},
    {-301, "a page was not found again, the output is cut short", kTryAgain},
    {-210, "copying the pages failed, the output is cut short", kTryAgain},
    {-110, kBadSetUp, kPrintPlainly},
    {-108, kNoPages, kTryAgain},
    {-105, kBadSetUp, kPrintPlainly},
    {-104, "the job is imposed already, nothing was printed", kPrintPlainly},
    {-103, kNoPages, kTryAgain},
    {0, "the job has no page comments, nothing was printed", kPrintPlainly},
};

const Stage& StageOf(int code) {
  const auto* above =
      std::upper_bound(std::begin(kStages), std::end(kStages), code,
                       [](int value, const Stage& row) { return value < row.lowest; });
  return above == std::begin(kStages) ? kStages[0] : above[-1];
}

/// A distance of the booklet, which the printer's code counts unsigned.
int BookletDistance(const Dictionary& ticket, const char* key, int otherwise) {
  std::int32_t value = otherwise;
  CFDictionaryGetNumber(ticket, key, &value);
  if (value >= 0) return value;
  LogLine("DEBUG: %s is %d; a negative distance counts as 0", key, value);
  return 0;
}

int DuplexCode(const std::string& sides) {
  if (sides == "two-sided-long-edge") return 3;
  return sides == "two-sided-short-edge" ? 2 : 1;
}

/// A booklet that takes its document from `spool`; that must outlive the record.
BookletVars Booklet(const Dictionary& ticket, const JobSettings& settings, const SpoolFile& spool,
                    JobOutput& output) {
  BookletVars bv;
  bv.bDoBooklet = 1;
  bv.hPrinter = output.stream();
  bv.pwstrPSFileIn = spool.path().c_str();
  bv.dmDuplex = DuplexCode(settings.sides);
  bv.bRotBooklet180 = DictionaryGetBoolean(ticket, key::kRotateBooklet180Degrees) == true;
  std::int32_t outlines = 0;
  CFDictionaryGetNumber(ticket, key::kBookletDrawOutlines, &outlines);
  bv.iOutlineStyle = outlines != 0 ? 2 : 0;
  std::int32_t order = 0;
  if (CFDictionaryGetNumber(ticket, key::kBookletReadingOrder, &order))
    bv.bRightToLeft = order != kLeftToRight;
  bv.bForceCollateOn = 1;
  bv.iDestXPoints = settings.mediaWidth;
  bv.iDestYPoints = settings.mediaLength;
  bv.iDestXMargPoints = kBookletMargin;
  bv.iDestYMargPoints = kBookletMargin;
  bv.iPageletsPerPage = 2;
  bv.iMode = 1;
  bv.iGutterPoints = BookletDistance(ticket, key::kGutter, 2 * kBookletMargin);
  bv.iCreep10thPoints = BookletDistance(ticket, key::kCreep, 0);
  return bv;
}

/// Tells why a job was not imposed. A failed write is told by whoever owns the output, and once is
/// enough.
void LogFailure(int code, JobOutput& output) {
  if (output.error() == 0)
    LogLine("ERROR: booklet: %s (code %d); %s", StageOf(code).failure, code, StageOf(code).remedy);
}

/// Copies the bytes at [begin, end) of a spooled job; returns whether they were there.
bool CopyRange(const SpoolFile& spool, off_t begin, off_t end, JobOutput& output) {
  char block[1 << 16];
  while (begin < end) {
    const auto wanted =
        static_cast<std::size_t>(std::min(end - begin, static_cast<off_t>(sizeof block)));
    const ssize_t got = pread(fileno(spool.stream()), block, wanted, begin);
    if (got <= 0) return false;
    output.Write({block, static_cast<std::size_t>(got)});
    begin += got;
  }
  return true;
}

/// The sheets of a booklet of that many pages, two on each side. A negative code has none.
long Sheets(int pages) { return pages > 0 ? (pages + 3L) / 4 : 0; }

/// The documents of one job that cannot be imposed as they are.
class RewrittenJob {
  using Clock = std::chrono::steady_clock;

 public:
  RewrittenJob(const Dictionary& ticket, const JobSettings& settings, const SpoolFile& spool,
               JobOutput& output, JobNotices* notices)
      : ticket_(ticket),
        settings_(settings),
        spool_(spool),
        output_(output),
        notices_(notices),
        deadline_(Clock::now() + rewriter_.limit) {
    rewriter_.width = settings.mediaWidth;
    rewriter_.height = settings.mediaLength;
  }

  /// Writes the whole job, each document as a booklet of its own. When that
  /// fails the output holds a part of it.
  Failure Write(const std::vector<DocumentRange>& documents) {
    off_t copied = 0;
    int pages = 0;
    for (const DocumentRange& document : documents) {
      if (!CopyRange(spool_, copied, document.begin, output_)) return kReadFailed;
      copied = document.end;
      // Each leaves the next one a printer as it found it.
      const bool last = &document == &documents.back();
      if (!last) output_.Write("%!PS-Adobe-3.0\nuserdict /ZRVdocument save put\n");
      Failure failure = WriteDocument(document, &pages);
      if (!failure.empty()) return failure;
      if (!last) output_.Write("clear cleardictstack userdict /ZRVdocument get restore\n");
    }
    const off_t end = lseek(fileno(spool_.stream()), 0, SEEK_END);
    if (!CopyRange(spool_, copied, end, output_)) return kReadFailed;
    return pages > 0 ? "" : "no page comes out of the job; print it without booklet layout";
  }

  long sheets() const { return sheets_; }

 private:
  Failure WriteDocument(const DocumentRange& document, int* pages) {
    const std::unique_ptr<SpoolFile> source = SpoolFile::Create();
    const std::unique_ptr<SpoolFile> rewritten = SpoolFile::Create();
    if (!source || !rewritten) return std::strerror(errno) + std::string(kMakeRoom);
    JobOutput slice(source->stream());
    if (!CopyRange(spool_, document.begin, document.end, slice)) return kReadFailed;
    if (!slice.Flush()) return std::strerror(errno) + std::string(kMakeRoom);
    lseek(fileno(source->stream()), 0, SEEK_SET);
    rewriter_.limit =
        std::max(std::chrono::milliseconds(1),
                 std::chrono::duration_cast<std::chrono::milliseconds>(deadline_ - Clock::now()));
    Failure failure = RewritePages(fileno(source->stream()), rewriter_, rewritten->stream());
    if (!failure.empty()) return failure;

    PageHooks hooks(settings_, output_, notices_);
    BookletVars bv = Booklet(ticket_, settings_, *rewritten, output_);
    bv.pPageHooks = &hooks;
    bv.szFeatures = ReadPageStructure(spool_.path().c_str(), document.begin, document.end).features;
    const int imposed = xPostProcessAndRespoolJob(&bv);
    if (imposed < 0) return "code " + std::to_string(imposed) + kMakeRoom;
    hooks.Finish();
    *pages += imposed;
    sheets_ += Sheets(imposed);
    return "";
  }

  static constexpr char kReadFailed[] = "reading the spooled job failed; send it again";
  static constexpr char kMakeRoom[] = "; make room in TMPDIR and send the job again";

  const Dictionary& ticket_;
  const JobSettings& settings_;
  const SpoolFile& spool_;
  JobOutput& output_;
  JobNotices* notices_;
  PageRewriter rewriter_;
  Clock::time_point deadline_;  // of all documents together
  long sheets_ = 0;
};

}  // namespace

std::optional<long> ImposeJob(const Dictionary& ticket, const JobSettings& settings,
                              const SpoolFile& spool, JobOutput& output) {
  BookletVars bv = Booklet(ticket, settings, spool, output);
  const int pages = xPostProcessAndRespoolJob(&bv);
  if (pages > 0) return Sheets(pages);
  LogFailure(pages, output);
  return std::nullopt;
}

std::optional<long> ImposeDocuments(const Dictionary& ticket, const JobSettings& settings,
                                    const SpoolFile& spool,
                                    const std::vector<DocumentRange>& documents, JobOutput& output,
                                    JobNotices* notices) {
  if (documents.size() == 1 &&
      ReadPageStructure(spool.path().c_str(), documents[0].begin, documents[0].end).reliable) {
    PageHooks hooks(settings, output, notices);
    BookletVars bv = Booklet(ticket, settings, spool, output);
    bv.pPageHooks = &hooks;
    bv.iDocumentStart = documents[0].begin;
    const int pages = xPostProcessAndRespoolJob(&bv);
    if (pages > 0) {
      hooks.Finish();
      return Sheets(pages);
    }
    if (bv.iPass1Result > 0) {  // something has been written
      LogFailure(pages, output);
      return std::nullopt;
    }
  }
  // A job without any document has nothing that could be imposed.
  if (documents.empty()) {
    if (!const_cast<SpoolFile&>(spool).CopyTo(output)) output.Fail(errno);
    return 0;
  }
  LogLine(
      "INFO: booklet: the page comments of the job cannot be relied on, so its pages are written "
      "anew first; that takes time");
  std::vector<std::vector<DocumentRange> > attempts = {documents};
  // What seems to be a document may be the beginning of the next one.
  if (documents.size() > 1) attempts.push_back({{documents.front().begin, documents.back().end}});
  Failure failure;
  for (const std::vector<DocumentRange>& attempt : attempts) {
    const std::unique_ptr<SpoolFile> imposed = SpoolFile::Create();
    if (!imposed) {
      failure = std::string(std::strerror(errno)) + "; make room in TMPDIR and send the job again";
      break;
    }
    JobOutput whole(imposed->stream());
    RewrittenJob job(ticket, settings, spool, whole, notices);
    failure = job.Write(attempt);
    if (!whole.Flush() && failure.empty())
      failure = std::string(std::strerror(errno)) + "; make room in TMPDIR and send the job again";
    if (!failure.empty()) continue;
    if (!imposed->CopyTo(output)) output.Fail(errno);
    return job.sheets();
  }
  LogLine("ERROR: booklet: the pages could not be written anew, nothing was printed: %s",
          failure.c_str());
  return std::nullopt;
}

}  // namespace zarvo
