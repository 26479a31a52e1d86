// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/CommentReader.h"

#include <algorithm>
#include <cstring>

namespace zarvo {
namespace {

constexpr std::size_t kBufferSize = 128 * 1024;
constexpr std::size_t kLineRoom = CommentReader::kLineSize - 1;

/// The length, with its end, of the line (or piece of a line) that `text` begins with.
std::size_t LengthOfLine(std::string_view text) {
  text = text.substr(0, kLineRoom);
  const std::size_t line_feed = text.find('\n');
  const std::size_t carriage_return = text.substr(0, line_feed).find('\r');
  if (carriage_return != text.npos) {
    return carriage_return + (carriage_return + 1 == line_feed ? 2 : 1);
  }
  return line_feed != text.npos ? line_feed + 1 : text.size();
}

/// The start of the line (or piece of a line) that the end of `text` is on; `text` begins with a
/// line. The line feed of a CR LF may pass for an empty line here, which does no harm.
std::size_t LastLineStart(std::string_view text) {
  std::size_t start = 0;
  for (const char end : {'\n', '\r'}) {
    const void* last = memrchr(text.data() + start, end, text.size() - start);
    if (last) start = static_cast<std::size_t>(static_cast<const char*>(last) - text.data()) + 1;
  }
  return start + (text.size() - start) / kLineRoom * kLineRoom;
}

}  // namespace

CommentReader::CommentReader(const char* path, off_t start)
    : file_(std::fopen(path, "rb")), start_(start), buffer_(kBufferSize) {
  if (!file_) return;
  // Blocks are read straight into the buffer above.
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
  seekable_ = ftello(file_.get()) >= 0;
  if (start > 0 && !Rewind()) file_.reset();
}

bool CommentReader::Rewind() {
  position_ = end_ = 0;
  offset_ = start_;
  before_buffer_ = '\n';
  return fseeko(file_.get(), start_, SEEK_SET) == 0;
}

bool CommentReader::Fill(std::size_t bytes) {
  if (end_ - position_ >= bytes) return false;
  if (position_ > 0) before_buffer_ = buffer_[position_ - 1];
  std::copy(buffer_.data() + position_, buffer_.data() + end_, buffer_.data());
  offset_ += static_cast<off_t>(position_);
  end_ -= position_;
  position_ = 0;
  const std::size_t added =
      std::fread(buffer_.data() + end_, 1, buffer_.size() - end_, file_.get());
  end_ += added;
  return added > 0;
}

bool CommentReader::ReadLine(char (&line)[kLineSize]) {
  Fill(kLineSize);
  const char before = position_ > 0 ? buffer_[position_ - 1] : before_buffer_;
  line_is_whole_ = before == '\n' || before == '\r';
  line_length_ = LengthOfLine(Unread());
  *std::copy_n(buffer_.data() + position_, line_length_, line) = '\0';
  position_ += line_length_;
  return line_length_ > 0;
}

void CommentReader::SkipToComment() {
  for (;;) {
    const std::size_t percent = Unread().find('%');
    const std::string_view before = Unread().substr(0, percent);
    const std::size_t line = LastLineStart(before);
    position_ += line;
    if (percent == std::string_view::npos) {
      if (!Fill(buffer_.size())) return;
      continue;
    }
    const std::string_view lead = before.substr(line);
    if (std::all_of(lead.begin(), lead.end(), IsSkippedBeforeComment)) return;
    // The line begins with something else, so that no further "%" on it matters.
    Fill(kLineSize);
    position_ += LengthOfLine(Unread());
  }
}

}  // namespace zarvo
