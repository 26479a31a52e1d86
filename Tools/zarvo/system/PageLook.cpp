// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/PageLook.h"

#include <sys/wait.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>

#include "Platform/Process.h"
#include "Platform/UniqueFd.h"
#include "Tools/zarvo/system/Ghostscript.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

// Coarse, and without shades, which would take ten times the time; what is painted marks every
// pixel that it touches.
constexpr int kDotsPerInch = 36;
constexpr std::size_t kMostPixels = 50'000'000;
constexpr std::size_t kColors = 3;

struct Raster {
  std::size_t width = 0;
  std::size_t height = 0;
  std::vector<char> bytes;
};

/// A running interpreter whose pages are read one by one.
class Pages {
 public:
  Pages(const std::string& file, std::chrono::milliseconds limit, const ScratchFolder& scratch)
      : errors_(OpenMemoryFile("")) {
    ProcessOptions options;
    options.environment = ChildEnvironment(scratch);
    options.arguments = {FindProgram("gs"),
                         "-q",
                         "-dBATCH",
                         "-dNOPAUSE",
                         "-dSAFER",
                         "-sstdout=%stderr",
                         "-sDEVICE=ppmraw",
                         "-r" + std::to_string(kDotsPerInch),
                         "-sOutputFile=%stdout",
                         file};
    options.error_fd = errors_.get();
    options.wall_clock = limit;
    process_ = Process::Start(options);
  }

  explicit operator bool() const { return process_.has_value(); }

  /// The next page, or false after the last one.
  bool Next(Raster* page) {
    std::FILE* input = process_ ? process_->output() : nullptr;
    if (input == nullptr) return false;
    std::size_t depth = 0;
    if (std::getc(input) != 'P' || std::getc(input) != '6' || !Number(input, &page->width) ||
        !Number(input, &page->height) || !Number(input, &depth))
      return false;
    if (page->width == 0 || page->height == 0 || page->width > kMostPixels / page->height)
      return false;
    page->bytes.resize(page->width * page->height * kColors);
    return std::fread(page->bytes.data(), 1, page->bytes.size(), input) == page->bytes.size();
  }

  /// Whether the time has run out while reading.
  bool LateNow() {
    const int error = errno;
    std::FILE* input = process_->output();
    return error == ETIMEDOUT && input != nullptr && std::ferror(input) != 0;
  }

  /// What stopped the interpreter.
  Failure Fault() {
    const int status = process_->Wait();
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return "";
    const std::string fault = InterpreterError(ReadLog(errors_.get()));
    return fault.empty() ? "the interpreter ended by itself" : fault;
  }

 private:
  /// A decimal number of the picture's head, comments and blanks before it and one blank after it.
  static bool Number(std::FILE* input, std::size_t* number) {
    int c = std::getc(input);
    while (c == '#' || std::isspace(c) != 0) {
      if (c == '#') {
        while (c != '\n' && c != EOF) c = std::getc(input);
      }
      c = std::getc(input);
    }
    *number = 0;
    constexpr std::size_t kMost = 1'000'000;
    for (; c >= '0' && c <= '9'; c = std::getc(input))
      *number = std::min(*number * 10 + static_cast<std::size_t>(c - '0'), kMost);
    return c != EOF;
  }

  UniqueFd errors_;
  std::optional<Process> process_;
};

std::size_t DifferentBytes(const Raster& left, const Raster& right) {
  if (left.width != right.width || left.height != right.height) return left.bytes.size();
  std::size_t different = 0;
  for (std::size_t i = 0; i < left.bytes.size(); ++i) different += left.bytes[i] != right.bytes[i];
  return different;
}

/// The same job with page hooks that draw nothing behind the page. An empty name when that cannot
/// be written.
std::string WithoutMark(const std::string& file, std::uint64_t hooks_at) {
  const std::string copy = file + ".plain";
  const Stream input(std::fopen(file.c_str(), "rbe"));
  const Stream output(std::fopen(copy.c_str(), "wbe"));
  if (!input || !output) return "";
  std::vector<char> head(hooks_at);
  if (std::fread(head.data(), 1, head.size(), input.get()) != head.size()) return "";
  std::fwrite(head.data(), 1, head.size(), output.get());
  std::fputs("/back {} def\n", output.get());
  return CopyAll(input.get(), output.get()) ? copy : "";
}

/// The pages whose mark leaves next to nothing of what it leaves on others.
std::vector<std::uint64_t> Hidden(const std::vector<std::size_t>& seen, bool first_only) {
  constexpr std::size_t kNextToNothing = 50;  // one part of so many
  const std::size_t most = seen.empty() ? 0 : *std::max_element(seen.begin(), seen.end());
  std::vector<std::uint64_t> pages;
  for (std::size_t i = 0; i < seen.size() && (i == 0 || !first_only); ++i) {
    if (seen[i] * kNextToNothing <= most) pages.push_back(i + 1);
  }
  return pages;
}

}  // namespace

PageLook LookAtPages(const std::string& file, const PostScriptFacts& facts,
                     std::chrono::milliseconds limit, const ScratchFolder& scratch) {
  PageLook look;
  if (FindProgram("gs").empty()) {
    look.whole = false;
    look.fault = "Ghostscript is not installed; install the package ghostscript";
    return look;
  }
  constexpr std::uint64_t kMostHead = 64 << 20;
  std::string plain;
  if (facts.HasMarkBehind() && facts.hooks_at > 0 && facts.hooks_at < kMostHead)
    plain = WithoutMark(file, facts.hooks_at);
  Pages pages(file, limit, scratch);
  std::optional<Pages> others;
  if (!plain.empty()) others.emplace(plain, limit, scratch);
  Raster page;
  Raster other;
  std::vector<std::size_t> seen;
  while (pages && pages.Next(&page)) {
    ++look.pages;
    if (others && others->Next(&other)) seen.push_back(DifferentBytes(page, other));
  }
  if (!pages || pages.LateNow()) {
    look.whole = false;
    return look;
  }
  look.fault = pages.Fault();
  if (others && seen.size() == look.pages) look.hidden = Hidden(seen, facts.marks_on_first_page);
  return look;
}

}  // namespace zarvo::tool
