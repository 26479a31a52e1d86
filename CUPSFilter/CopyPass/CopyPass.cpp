// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/CopyPass.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "CUPSFilter/CopyPass/LineScan.h"
#include "Platform/Log.h"

namespace zarvo {
namespace {

constexpr std::string_view kDocumentHeader = "%!PS-Adobe";

bool IsLineEnd(char c) { return c == '\n' || c == '\r'; }

/// The position after the first line end in [from, end), or `end`.
char* AfterFirstLineEnd(char* from, char* end) {
  const auto first = [&](char byte) {
    void* found = std::memchr(from, byte, static_cast<std::size_t>(end - from));
    if (found != nullptr) end = static_cast<char*>(found) + 1;
  };
  first('\n');
  first('\r');  // only what precedes the first line feed is left to search
  return end;
}

/// The position after the last line end in [from, end), or `from`.
char* AfterLastLineEnd(char* from, char* end) {
  const auto last = [&](char byte) {
    void* found = memrchr(from, byte, static_cast<std::size_t>(end - from));
    if (found != nullptr) from = static_cast<char*>(found) + 1;
  };
  last('\n');
  last('\r');  // only what follows the last line feed is left to search
  return from;
}

}  // namespace

CopyPass::CopyPass(int input, CopyRules& rules, JobOutput& output, std::size_t block_size)
    : input_(input),
      rules_(rules),
      output_(output),
      block_size_(block_size),
      // One byte before the data, a line that is not complete yet or waits for what follows it, a
      // block, and what the scan may look at behind the end.
      buffer_(new char[1 + kLongestTestedLine + kLongestAhead + block_size + kScanSlack]),
      data_(buffer_.get() + 1),
      end_(data_),
      unwritten_(data_) {
  struct stat status;
  if (fstat(input, &status) == 0 && S_ISREG(status.st_mode)) {
    end_offset_ = lseek(input, 0, SEEK_CUR);
    regular_file_ = end_offset_ >= 0;
    size_ = status.st_size;
  }
}

CopyResult CopyPass::Run() {
  while (!Failed() && !end_of_input_ && Fill()) ScanBuffer();
  // A wrong count is no reason to lose what follows.
  if (result_ == CopyResult::kEarlyEnd && rules_.FollowsStructure()) {
    LogLine("DEBUG: the job ended inside binary data; its count may be wrong");
    result_ = CopyResult::kDone;
  }
  if (!Failed()) rules_.Finish();
  return result_;
}

std::size_t CopyPass::ReadInto(char* to, std::size_t size) {
  for (;;) {
    const ssize_t count = ::read(input_, to, size);
    if (count >= 0) {
      end_offset_ += count;
      return static_cast<std::size_t>(count);
    }
    if (errno == EINTR) continue;
    error_ = errno;
    result_ = CopyResult::kReadFailed;
    return 0;
  }
}

bool CopyPass::Fill() {
  const auto kept = static_cast<std::size_t>(end_ - unwritten_);
  std::memmove(data_, unwritten_, kept);
  unwritten_ = data_;
  const std::size_t count = ReadInto(data_ + kept, block_size_);
  end_ = data_ + kept + count;
  end_of_input_ = count == 0;
  std::memset(end_, 0, kScanSlack);
  return !Failed() || kept > 0;  // what was read before a failure still goes out
}

void CopyPass::ScanBuffer() {
  char* limit = nullptr;
  do {
    limit = CompleteEnd();
    // Everything before is written, so this byte can tell the scan whether a line begins here.
    unwritten_[-1] = inside_long_line_ ? ' ' : '\n';
  } while (!ScanLines(limit));
  WriteUpTo(held_ != nullptr ? held_ : limit);
  held_ = nullptr;
  inside_long_line_ = !IsLineEnd(unwritten_[-1]);
}

/// The end of what can be tested now: of the last complete line, or of the buffer when it holds all
/// of an unfinished line that the rules look at.
char* CopyPass::CompleteEnd() const {
  if (end_of_input_) return end_;
  // A carriage return at the very end may be half of a CR LF.
  const bool unsure = end_ > unwritten_ && end_[-1] == '\r';
  char* tail = AfterLastLineEnd(unwritten_, unsure ? end_ - 1 : end_);
  const bool tail_is_continuation = tail == unwritten_ && inside_long_line_;
  const bool can_wait = static_cast<std::size_t>(end_ - tail) < kLongestTestedLine;
  return can_wait && !tail_is_continuation ? tail : end_;
}

/// Handles the lines that begin before `limit`. Returns false when counted data has moved what
/// follows, so that the limit no longer holds.
bool CopyPass::ScanLines(char* limit) {
  char* at = inside_long_line_ ? AfterFirstLineEnd(unwritten_, limit) : unwritten_;
  while (!Failed() && (at = NextLineToTest(at, limit)) != limit) {
    const std::string_view line = TestedPart(at);
    char* next = at + line.size();
    const Landmark landmark = rules_.Classify(line);
    if (landmark != Landmark::kNone) {
      if (rules_.LooksAhead(line) && !ShowAhead(at, next)) return true;
      WriteUpTo(at);
      output_.BeginFormatted();
      const std::int64_t counted = rules_.Apply(landmark, line);
      output_.EndFormatted();
      CheckGrowth();
      unwritten_ = next;
      WriteUpTo(next);  // notices a failed write
      if (counted > 0) {
        const bool buffered = counted <= end_ - unwritten_;
        CopyCounted(static_cast<std::uint64_t>(counted));
        inside_long_line_ = false;
        // Looking for the limit again takes as long as the buffer is; a job may have a block of
        // counted data every few bytes.
        if (!buffered || unwritten_ > limit) return false;
        unwritten_[-1] = '\n';
        at = unwritten_;
        continue;
      }
    }
    at = IsLineEnd(next[-1]) ? next : AfterFirstLineEnd(next, limit);
  }
  return true;
}

/// Shows the rules what follows a line. Returns false when more of it has to be read first.
bool CopyPass::ShowAhead(char* line, char* next) {
  const auto there = static_cast<std::size_t>(end_ - next);
  if (there < kLongestAhead && !end_of_input_) {
    held_ = line;
    return false;
  }
  rules_.ShowAhead({line, static_cast<std::size_t>(next - line)},
                   {next, std::min(there, kLongestAhead)});
  return true;
}

/// The start of the next line that may be a landmark, or `limit`. `from` begins a line.
char* CopyPass::NextLineToTest(char* from, char* limit) {
  if (from >= limit || rules_.WatchesEveryLine()) return from;
  if (rules_.FollowsStructure()) return const_cast<char*>(NextStructure(from, limit));
  char* line = from;  // the start of the line that holds `searched`
  char* searched = from;
  for (char* at = from;; ++at) {
    at = const_cast<char*>(NextCandidate(at, limit));
    if (at == limit || IsLineEnd(at[-1])) return at;
    // Inside a line only a document header counts, and only where the rules look.
    if (static_cast<std::size_t>(end_ - at) < kDocumentHeader.size() ||
        std::string_view(at, kDocumentHeader.size()) != kDocumentHeader)
      continue;
    char* last = AfterLastLineEnd(searched, at);
    if (last != searched) line = last;
    searched = at;
    if (static_cast<std::size_t>(at - line) + kDocumentHeader.size() <= kLongestTestedLine)
      return line;
  }
}

/// The bytes of the line at `start` that the rules look at, line end included.
std::string_view CopyPass::TestedPart(const char* start) const {
  const std::string_view rest(start,
                              std::min(static_cast<std::size_t>(end_ - start), kLongestTestedLine));
  const std::size_t lf = rest.find('\n');
  const std::string_view line = lf == rest.npos ? rest : rest.substr(0, lf + 1);
  const std::size_t cr = line.find('\r');
  if (cr == line.npos) return line;
  return line.substr(0, line.substr(cr + 1).starts_with('\n') ? cr + 2 : cr + 1);
}

void CopyPass::WriteUpTo(char* position) {
  if (regular_file_ && static_cast<std::size_t>(position - unwritten_) >= kTransferSize) {
    const off_t offset = end_offset_ - (end_ - unwritten_);
    unwritten_ +=
        output_.Transfer(input_, &offset, static_cast<std::size_t>(position - unwritten_));
  }
  output_.Write({unwritten_, static_cast<std::size_t>(position - unwritten_)});
  unwritten_ = position;
  if (output_.error() != 0 && !Failed()) {
    result_ = CopyResult::kWriteFailed;
    error_ = output_.error();
  }
}

void CopyPass::CheckGrowth() {
  const auto size = static_cast<std::uint64_t>(std::max(size_, end_offset_));
  if (!Failed() && output_.written() > kMostGrowth + kMostTimes * size)
    result_ = CopyResult::kGrownTooMuch;
}

void CopyPass::CopyCounted(std::uint64_t count) {
  while (count > 0 && !Failed()) {
    if (unwritten_ == end_) {
      count -= TransferCounted(count);
      if (count == 0) return;
      unwritten_ = data_;
      const std::size_t wanted = std::min<std::uint64_t>(count, block_size_);
      end_ = data_ + ReadInto(data_, wanted);
      if (end_ == data_ && !Failed()) result_ = CopyResult::kEarlyEnd;
    }
    const auto buffered = static_cast<std::uint64_t>(end_ - unwritten_);
    const std::uint64_t piece = std::min(count, buffered);
    WriteUpTo(unwritten_ + piece);
    count -= piece;
  }
}

/// Lets the system move counted data that has not been read yet. Returns how much it moved.
std::uint64_t CopyPass::TransferCounted(std::uint64_t count) {
  if (count < kTransferSize) return 0;
  const std::size_t moved = output_.Transfer(input_, regular_file_ ? &end_offset_ : nullptr, count);
  end_offset_ += static_cast<off_t>(moved);
  if (regular_file_) lseek(input_, end_offset_, SEEK_SET);
  return moved;
}

}  // namespace zarvo
