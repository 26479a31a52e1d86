// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/FaxCover/FaxCoverOutput.h"

#include <sys/wait.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Platform/Log.h"
#include "Source/DrawHelper.h"
#include "Source/FaxCover.h"

namespace zarvo {
namespace {

constexpr std::size_t kMaxPdfBytes = 256u << 20;
constexpr int kLetterHeight = 792;
constexpr int kHelperFailed = 1;  // and has logged why

void LogLeftOut(const std::string& why) { LogLine("ERROR: %s%s", kCoverLeftOut, why.c_str()); }

/// Copies what is left of `input`. False when it is longer than `max_bytes` or than there is room
/// for, or when either side fails.
bool CopyStream(FILE* input, FILE* output, std::size_t max_bytes) {
  char block[1 << 16];
  std::size_t total = 0;
  const FileRoom room(::fileno(output));
  while (const std::size_t got = std::fread(block, 1, sizeof block, input)) {
    total += got;
    if (total > max_bytes || !room.Left() || std::fwrite(block, 1, got, output) != got)
      return false;
  }
  return std::ferror(input) == 0;
}

/// Lets the helper draw the cover into the file. False, with one log line written, on failure.
bool DrawPdf(const FaxCover& cover, SpoolFile& pdf) {
  std::optional<FaxCoverDrawing> helper;
  if (const Failure failure = FaxCoverDrawing::Start(cover, &helper); !failure.empty()) {
    LogLeftOut(failure);
    return false;
  }
  FILE* drawn = helper->output();
  const bool copied = drawn != nullptr && CopyStream(drawn, pdf.stream(), kMaxPdfBytes) &&
                      std::fflush(pdf.stream()) == 0;
  const int status = helper->Wait();
  if (copied && status == 0) return true;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != kHelperFailed)
    LogLeftOut("drawing it did not finish; make room in TMPDIR or send the job again");
  return false;
}

/// The cover sheet as a document of its own, or null when there is none. The whole document is
/// there before the first byte goes into the job: half a cover would stop the printer.
std::unique_ptr<SpoolFile> DrawPostScript(const FaxCover& cover, const PdfConverters& converters) {
  const std::unique_ptr<SpoolFile> pdf = SpoolFile::Create();
  std::unique_ptr<SpoolFile> document = pdf != nullptr ? SpoolFile::Create() : nullptr;
  if (document == nullptr) {
    LogLeftOut(std::string("TMPDIR takes no file: ") + std::strerror(errno) +
               "; let TMPDIR name a folder that the spooler may write");
    return nullptr;
  }
  if (!DrawPdf(cover, *pdf)) return nullptr;

  Failure failure = ConvertPdfToPostScript(::fileno(pdf->stream()), converters, document->stream());
  if (failure.empty() &&
      (std::fflush(document->stream()) != 0 || std::ferror(document->stream()) != 0))
    failure = std::string("no room for it: ") + std::strerror(errno) + "; make room in TMPDIR";
  if (failure.empty()) return document;
  LogLeftOut(failure);
  return nullptr;
}

void Draw(const Dictionary& ticket, PdfConverters converters, FaxCoverDocument* kept) {
  const std::optional<FaxCover> cover = FaxCoverFromTicket(ticket);
  if (!cover) return;
  kept->width = static_cast<int>(cover->width);
  kept->height = static_cast<int>(cover->height);
  if (kept->own_paper && kept->height != kLetterHeight) converters.media = "A4";
  kept->postscript = DrawPostScript(*cover, converters);
}

}  // namespace

bool WriteFaxCover(JobOutput& output, const Dictionary& ticket, FaxCoverDocument* kept,
                   const PdfConverters& converters) {
  if (!std::exchange(kept->drawn, true)) Draw(ticket, converters, kept);
  if (kept->postscript == nullptr) return true;
  if (kept->own_paper)
    std::fprintf(
        output.stream(),
        "%%!PS-Adobe-3.0\nuserdict /ZRVcover save put\n<< /PageSize [%d %d] >> setpagedevice\n",
        kept->width, kept->height);
  const bool copied = kept->postscript->CopyTo(output);
  const int error = errno;
  if (kept->own_paper)
    std::fputs("clear cleardictstack userdict /ZRVcover get restore\n", output.stream());
  errno = error;
  return copied;
}

}  // namespace zarvo
