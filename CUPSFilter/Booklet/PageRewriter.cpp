// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/PageRewriter.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <optional>

#include "Platform/ScratchFolder.h"
#include "Platform/UniqueFd.h"

namespace zarvo {
namespace {

/// More than a booklet can have; what is longer is a job that draws without end.
constexpr std::uint64_t kMostBytes = std::uint64_t{4} << 30;
constexpr std::uint64_t kAddressSpace = std::uint64_t{4} << 30;

constexpr char kMakeRoom[] = "; make room in TMPDIR and send the job again";

/// Nothing of the job is to change but its form: pages keep how they lie, pictures their pixels.
/// Transfer functions go into the colours: the procedures that would set them on each page can be
/// told nothing, and would take a negative's away.
std::vector<std::string> Command(const PageRewriter& rewriter) {
  return {rewriter.ghostscript, "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ps2write",
          "-dAutoRotatePages=/None", "-dAutoFilterColorImages=false",
          "-dColorImageFilter=/LZWEncode", "-dAutoFilterGrayImages=false",
          "-dGrayImageFilter=/LZWEncode", "-dTransferFunctionInfo=/Apply",
          "-dDEVICEWIDTHPOINTS=" + std::to_string(rewriter.width),
          "-dDEVICEHEIGHTPOINTS=" + std::to_string(rewriter.height), "-sstdout=%stderr",
          "-sOutputFile=%stdout", "-",
          // Of a job that draws nothing it makes one empty page.
          "-c", "currentpagedevice /PageCount get 0 eq { no_page } if"};
}

}  // namespace

Failure RewritePages(int document, const PageRewriter& rewriter, FILE* output) {
  const std::unique_ptr<ScratchFolder> scratch = ScratchFolder::Create();
  if (scratch == nullptr)
    return std::string("no folder for its files: ") + std::strerror(errno) + kMakeRoom;
  // What a job prints to its log would pass for the filter's own lines.
  const UniqueFd nowhere(::open("/dev/null", O_WRONLY | O_CLOEXEC));
  ProcessOptions options;
  options.arguments = Command(rewriter);
  options.environment = scratch->Environment();
  options.input_fd = document;
  options.error_fd = nowhere.get();
  options.address_space = kAddressSpace;
  options.wall_clock = rewriter.limit;
  std::optional<Process> process = Process::Start(options);
  if (!process)
    return rewriter.ghostscript + " cannot be started: " + std::strerror(errno) +
           "; install the package ghostscript";
  FILE* pages = process->output();
  if (pages == nullptr) return "there is not enough memory; send the job again";
  char block[1 << 16];
  std::uint64_t total = 0;
  while (const std::size_t got = std::fread(block, 1, sizeof block, pages)) {
    total += got;
    if (total > kMostBytes) return "it draws without end; correct the document";
    if (std::fwrite(block, 1, got, output) != got)
      return std::strerror(errno) + std::string(kMakeRoom);
  }
  if (std::ferror(pages) != 0)
    return "it did not finish in time; send the job again when the server is less busy";
  const int status = process->Wait();
  if (std::fflush(output) != 0) return std::strerror(errno) + std::string(kMakeRoom);
  if (status == 0) return "";
  return WIFSIGNALED(status)
             ? "it was ended by signal " + std::to_string(WTERMSIG(status)) + kMakeRoom
             : std::string(
                   "its program has an error or draws no page; send it as PDF, or without booklet "
                   "layout");
}

}  // namespace zarvo
