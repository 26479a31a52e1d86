// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/JobFile.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <vector>

#include "CUPSFilter/CopyPass/psgets.h"
#include "Platform/Text.h"

namespace zarvo::tool {
namespace {

constexpr std::string_view kExitSequence = "\033%-12345X";
constexpr char kEndOfTransmission = '\4';
constexpr std::size_t kLongestLine = 64 * 1024;

class Reader {
 public:
  Reader(std::FILE* input, const PostScriptSink& sink)
      : input_(input), sink_(sink), buffer_(kLongestLine) {}

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
    Sum();
    return std::move(job_);
  }

 private:
  bool NextLine(std::string_view* line) {
    unsigned long length = buffer_.size();
    if (psgets(buffer_.data(), &length, input_) == nullptr) return false;
    *line = {buffer_.data(), length};
    if (job_.start.size() < kKindBytes) job_.start += line->substr(0, kKindBytes);
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
    // The universal exit is heard wherever it stands.
    for (std::size_t exit; (exit = line.find(kExitSequence)) != std::string_view::npos;) {
      if (exit > 0) ReadPlainLine(line.substr(0, exit));
      line.remove_prefix(exit + kExitSequence.size());
      LeavePostScript();
      in_postscript_ = false;
    }
    while (line.starts_with(kEndOfTransmission)) {
      line.remove_prefix(1);
      LeavePostScript();
    }
    if (!line.empty()) ReadPlainLine(line);
  }

  void LeavePostScript() { reader_.reset(); }

  void ReadPlainLine(std::string_view line) {
    if (!in_postscript_ && line.starts_with("@PJL")) return ReadPjl(WithoutLineEnd(line));
    if (!reader_ && WithoutLineEnd(line).empty()) return;
    if (in_header_ && !Contains(line, "%!")) {
      ++job_.stray_lines;
      return;
    }
    in_header_ = false;
    in_postscript_ = true;
    if (!reader_) BeginPostScript();
    const std::uint64_t offset = facts_->bytes;
    Copy(line);
    reader_->Line(line, offset);
    SkipCounted(line);
  }

  void BeginPostScript() {
    if (job_.jobs.size() < kMaxPostScriptJobs) {
      job_.jobs.emplace_back();
      if (sink_.begin) sink_.begin();
    } else {
      job_.jobs_cut = true;
    }
    facts_ = &job_.jobs.back();
    reader_.emplace(facts_);
  }

  void ReadPjl(std::string_view line) {
    if (line == "@PJL JOB" || line.starts_with("@PJL JOB ")) ++job_.envelopes;
    if (line.starts_with("@PJL EOJ")) ++job_.ends;
    in_postscript_ = line.starts_with("@PJL ENTER LANGUAGE");
    in_header_ = !in_postscript_ && !line.starts_with("@PJL EOJ");
    pjl_bytes_ += line.size();
    if (job_.pjl.size() < kMaxPjlLines && pjl_bytes_ <= kMaxPjlBytes) {
      job_.pjl.emplace_back(line);
    } else {
      job_.pjl_cut = true;
    }
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
    facts_->bytes += bytes.size();
    if (sink_.write) sink_.write(bytes);
  }

  /// Takes the facts of all PostScript jobs together.
  void Sum() {
    PostScriptFacts& sum = job_.postscript;
    for (const PostScriptFacts& facts : job_.jobs) {
      if (sum.title.empty()) sum.title = facts.title;
      if (sum.owner.empty()) sum.owner = facts.owner;
      sum.bytes += facts.bytes;
      sum.pages += facts.pages;
      sum.announced += facts.announced;
      sum.documents += facts.documents;
      sum.ended = facts.ended;
      sum.booklet |= facts.booklet;
      sum.booklet_reversed |= facts.booklet_reversed;
      sum.two_sided |= facts.two_sided;
      sum.copies = std::max(sum.copies, facts.copies);
      sum.marks_on_first_page |= facts.marks_on_first_page;
      sum.negative |= facts.negative;
      sum.mirrored |= facts.mirrored;
      for (const MarkFacts& mark : facts.marks) {
        if (sum.marks.size() < kMaxMarks &&
            std::find(sum.marks.begin(), sum.marks.end(), mark) == sum.marks.end())
          sum.marks.push_back(mark);
      }
      for (const auto& [size, times] : facts.page_sizes) {
        if (sum.page_sizes.contains(size) || sum.page_sizes.size() < kMaxPageSizes)
          sum.page_sizes[size] += times;
      }
    }
  }

  std::FILE* input_;
  const PostScriptSink& sink_;
  std::vector<char> buffer_;
  JobFile job_;
  PostScriptFacts* facts_ = nullptr;      // of the PostScript that is being read
  std::optional<DocumentReader> reader_;  // of the same; none outside of PostScript
  std::size_t pjl_bytes_ = 0;
  bool in_header_ = false;
  bool in_postscript_ = false;
};

}  // namespace

JobFile ReadJobFile(std::FILE* input, const PostScriptSink& sink) {
  return Reader(input, sink).Read();
}

}  // namespace zarvo::tool
