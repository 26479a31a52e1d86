// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/JobFile.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "CUPSFilter/CopyPass/psgets.h"

namespace zarvo::tool {
namespace {

constexpr std::string_view kExitSequence = "\033%-12345X";
constexpr std::size_t kLongestLine = 64 * 1024;

bool Contains(std::string_view line, std::string_view text) {
  return line.find(text) != std::string_view::npos;
}

std::string_view WithoutLineEnd(std::string_view line) {
  while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
  return line;
}

class Reader {
 public:
  Reader(std::FILE* input, std::FILE* copy) : input_(input), copy_(copy), buffer_(kLongestLine) {}

  JobFile Read() {
    std::string_view line;
    bool first = true;
    while (NextLine(&line)) {
      if (first && line.starts_with("<?xml")) {
        ReadTicket(line);
      } else {
        ReadLine(line);
      }
      first = false;
    }
    return std::move(job_);
  }

 private:
  bool NextLine(std::string_view* line) {
    unsigned long length = buffer_.size();
    if (psgets(buffer_.data(), &length, input_) == nullptr) return false;
    *line = {buffer_.data(), length};
    return true;
  }

  /// The ticket's last line goes on with what follows the ticket.
  void ReadTicket(std::string_view line) {
    constexpr std::string_view kEnd = "</jtml>";
    do {
      if (const std::size_t end = line.find(kEnd); end != std::string_view::npos) {
        job_.ticket += line.substr(0, end + kEnd.size());
        if (line.size() > end + kEnd.size()) ReadLine(line.substr(end + kEnd.size()));
        return;
      }
      // What comes after a cut ticket is the job; it is not to be swallowed.
      if (line.starts_with(kExitSequence) || line.starts_with("%!") ||
          job_.ticket.size() + line.size() > kMaxTicketBytes) {
        job_.ticket_cut = true;
        ReadLine(line);
        return;
      }
      job_.ticket += line;
    } while (NextLine(&line));
    job_.ticket_cut = true;
  }

  void ReadLine(std::string_view line) {
    bool left_postscript = false;
    while (line.starts_with(kExitSequence)) {
      line.remove_prefix(kExitSequence.size());
      left_postscript = true;
    }
    if (left_postscript) in_postscript_ = false;
    if (!in_postscript_ && line.starts_with("@PJL")) return ReadPjl(WithoutLineEnd(line));
    if (!in_postscript_ && WithoutLineEnd(line).empty()) return;
    if (in_header_ && !Contains(line, "%!")) {
      ++job_.stray_lines;
      return;
    }
    in_header_ = false;
    in_postscript_ = true;
    Copy(line);
    if (depth_ == 0 || line.starts_with("%%End")) ReadDocumentLine(line);
    if (line.starts_with("%%BeginDocument")) ++depth_;
    SkipCounted(line);
  }

  void ReadPjl(std::string_view line) {
    if (line == "@PJL JOB" || line.starts_with("@PJL JOB ")) ++job_.envelopes;
    if (line.starts_with("@PJL EOJ")) ++job_.ends;
    in_header_ = !line.starts_with("@PJL ENTER LANGUAGE") && !line.starts_with("@PJL EOJ");
    in_postscript_ = line.starts_with("@PJL ENTER LANGUAGE");
    pjl_bytes_ += line.size();
    if (job_.pjl.size() < kMaxPjlLines && pjl_bytes_ <= kMaxPjlBytes) {
      job_.pjl.emplace_back(line);
    } else {
      job_.pjl_cut = true;
    }
  }

  void ReadDocumentLine(std::string_view line) {
    PostScriptFacts& facts = job_.postscript;
    if (line.starts_with("%%EndDocument") && depth_ > 0) --depth_;
    if (line.starts_with("%%Page:")) ++facts.pages;
    if (line.starts_with("%!PS-Adobe")) {
      ++facts.documents;
      facts.ended = false;
    }
    if (line.starts_with("%%EOF")) facts.ended = true;
    if (line.starts_with("%%ZRVPagelet:")) {
      facts.booklet = true;
    } else if (line.starts_with("/TransparentOverlayPattern ")) {
      facts.text_overlay = true;
    } else if (Contains(line, " array /picstr exch def")) {
      facts.image_watermark = true;
    }
    ReadPageSize(line);
  }

  void ReadPageSize(std::string_view line) {
    constexpr std::string_view kKey = "/PageSize";
    const std::size_t key = line.find(kKey);
    if (key == std::string_view::npos) return;
    const std::size_t open = line.find_first_not_of(' ', key + kKey.size());
    if (open == std::string_view::npos || line[open] != '[') return;
    // The buffer holds a zero byte after every line, which ends the numbers too.
    char* end = nullptr;
    const double width = std::strtod(line.data() + open + 1, &end);
    const double height = std::strtod(end, &end);
    constexpr double kLargest = 1e6;
    if (!(width > 0 && width < kLargest && height > 0 && height < kLargest)) return;
    auto& sizes = job_.postscript.page_sizes;
    const std::pair size(static_cast<int>(width + 0.5), static_cast<int>(height + 0.5));
    if (sizes.contains(size) || sizes.size() < kMaxPageSizes) ++sizes[size];
  }

  /// Counted data may hold anything, landmarks included.
  void SkipCounted(std::string_view line) {
    const bool binary = line.starts_with("%%BeginBinary:");
    if (!binary &&
        !(line.starts_with("%%BeginData:") && !Contains(line, "ASCII") && !Contains(line, "Hex")))
      return;
    long left = std::atol(line.data() + line.find(':') + 1);
    while (left > 0) {
      const std::size_t wanted = std::min(static_cast<std::size_t>(left), buffer_.size());
      const std::size_t got = std::fread(buffer_.data(), 1, wanted, input_);
      if (got == 0) return;
      Copy({buffer_.data(), got});
      left -= static_cast<long>(got);
    }
  }

  void Copy(std::string_view bytes) {
    job_.postscript.bytes += bytes.size();
    if (copy_ != nullptr) std::fwrite(bytes.data(), 1, bytes.size(), copy_);
  }

  std::FILE* input_;
  std::FILE* copy_;
  std::vector<char> buffer_;
  JobFile job_;
  std::size_t pjl_bytes_ = 0;
  bool in_header_ = false;
  bool in_postscript_ = false;
  int depth_ = 0;  // of embedded documents
};

}  // namespace

JobFile ReadJobFile(std::FILE* input, std::FILE* postscript) {
  return Reader(input, postscript).Read();
}

}  // namespace zarvo::tool
