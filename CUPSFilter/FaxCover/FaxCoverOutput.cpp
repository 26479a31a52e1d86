// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/FaxCover/FaxCoverOutput.h"

#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "CUPSFilter/JobNotices.h"
#include "Platform/Log.h"
#include "Source/DrawHelper.h"
#include "Source/FaxCover.h"

namespace zarvo {
namespace {

constexpr std::size_t kMaxPdfBytes = 256u << 20;
constexpr std::uint64_t kLeastRoom = 1u << 20;
constexpr int kLetterHeight = 792;
constexpr int kHelperFailed = 1;  // and has logged why

static_assert(std::string_view(kCoverRefused).starts_with(kRefusal));

void LogFailure(bool required, const std::string& why) {
  LogLine("ERROR: %s%s", required ? kCoverRefused : kCoverLeftOut, why.c_str());
}

/// Copies what is left of `input`. False when it is longer than `max_bytes`, or when either side
/// fails.
bool CopyStream(FILE* input, FILE* output, std::size_t max_bytes) {
  char block[1 << 16];
  std::size_t total = 0;
  while (const std::size_t got = std::fread(block, 1, sizeof block, input)) {
    total += got;
    if (total > max_bytes || std::fwrite(block, 1, got, output) != got) return false;
  }
  return std::ferror(input) == 0;
}

/// Lets the helper draw the cover into the file. False, with one log line written, on failure.
bool DrawPdf(const FaxCover& cover, bool required, SpoolFile& pdf) {
  std::optional<FaxCoverDrawing> helper;
  if (const Failure failure = FaxCoverDrawing::Start(cover, required, &helper); !failure.empty()) {
    LogFailure(required, failure);
    return false;
  }
  FILE* drawn = helper->output();
  const bool copied = drawn != nullptr && CopyStream(drawn, pdf.stream(), kMaxPdfBytes) &&
                      std::fflush(pdf.stream()) == 0;
  const int status = helper->Wait();
  if (copied && status == 0) return true;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != kHelperFailed)
    LogFailure(required, "drawing it did not finish; send the job again");
  return false;
}

std::string NoMemory() {
  return std::string("no memory for it: ") + std::strerror(errno) + "; send the job again";
}

/// The PDF file as a PostScript document, with the converters' files in `scratch`. It fails, too,
/// where there is hardly any room left after it: Ghostscript does not notice when a temporary file
/// of its own is cut short, and leaves out what was in it.
Failure Convert(SpoolFile& pdf, const PdfConverters& converters, const std::string& scratch,
                std::unique_ptr<SpoolFile>* document) {
  *document = SpoolFile::CreateInMemory();
  if (*document == nullptr) return NoMemory();
  FILE* const stream = (*document)->stream();
  Failure failure = ConvertPdfToPostScript(::fileno(pdf.stream()), converters, stream, scratch);
  if (failure.empty() && (std::fflush(stream) != 0 || std::ferror(stream) != 0))
    failure = NoMemory();
  const auto bytes = static_cast<std::uint64_t>(std::max(std::ftell(stream), 0L));
  if (failure.empty() && RoomLeft(scratch, kLeastRoom + bytes) < kLeastRoom + bytes)
    failure = "there may have been too little room for it; make room in TMPDIR";
  return failure;
}

/// The cover sheet as a document of its own, or null when there is none. The whole document is
/// there before the first byte goes into the job: half a cover would stop the printer.
std::unique_ptr<SpoolFile> DrawPostScript(const FaxCover& cover, bool required,
                                          const PdfConverters& converters) {
  const std::unique_ptr<SpoolFile> pdf = SpoolFile::CreateInMemory();
  if (pdf == nullptr) {
    LogFailure(required, NoMemory());
    return nullptr;
  }
  if (!DrawPdf(cover, required, *pdf)) return nullptr;

  std::unique_ptr<SpoolFile> document;
  const std::string scratch = TemporaryFolderWithRoom(kConverterRoom);
  Failure failure = Convert(*pdf, converters, scratch, &document);
  // Somebody else may have filled the disk meanwhile.
  const std::string other = TemporaryFolderWithRoom(kConverterRoom);
  const bool filled = RoomLeft(scratch, kConverterRoom) < kConverterRoom;
  if (other != scratch && (filled || !failure.empty()))
    failure = Convert(*pdf, converters, other, &document);
  if (failure.empty()) return document;
  LogFailure(required, failure);
  return nullptr;
}

bool Draw(const Dictionary& ticket, PdfConverters converters, FaxCoverDocument* kept) {
  const std::optional<FaxCover> cover = FaxCoverFromTicket(ticket);
  if (!cover) return true;
  kept->width = static_cast<int>(cover->width);
  kept->height = static_cast<int>(cover->height);
  if (kept->own_paper && kept->height != kLetterHeight) converters.media = "A4";
  kept->postscript = DrawPostScript(*cover, kept->required, converters);
  return kept->postscript != nullptr;
}

}  // namespace

bool PrepareFaxCover(const Dictionary& ticket, FaxCoverDocument* kept,
                     const PdfConverters& converters) {
  return std::exchange(kept->drawn, true) || Draw(ticket, converters, kept);
}

bool WriteFaxCover(JobOutput& output, const Dictionary& ticket, FaxCoverDocument* kept,
                   const PdfConverters& converters) {
  PrepareFaxCover(ticket, kept, converters);
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
