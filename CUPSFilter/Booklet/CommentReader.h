// SPDX-License-Identifier: Apache-2.0
// Finds the comment lines of a large PostScript file.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

namespace zarvo {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

/// Blank, tab, line feed, vertical tab, form feed and carriage return, in every locale.
constexpr bool IsWhiteSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// White space and Ctrl-D, which serial printer drivers leave in front of a job.
constexpr bool IsSkippedBeforeComment(char c) { return IsWhiteSpace(c) || c == '\x04'; }

/// Reads a file line by line, as psgets() does with a buffer of kLineSize bytes: a longer line
/// arrives in pieces, each of which counts as a line. In between, skips at the speed of memory
/// over lines that hold no comment.
class CommentReader {
 public:
  static constexpr std::size_t kLineSize = 1024;

  /// Opens the file to read it from `start` on; check IsOpen().
  explicit CommentReader(const char* path, off_t start = 0);

  bool IsOpen() const { return file_ != nullptr; }
  bool Failed() const { return std::ferror(file_.get()) != 0; }

  /// The offset of the next line, or -1 when the file has no positions (a pipe).
  off_t Tell() const { return seekable_ ? offset_ + static_cast<off_t>(position_) : -1; }
  /// Goes back to where it has begun. Returns false when that fails.
  bool Rewind();

  /// Reads the next line with its end and a NUL after it. Returns false at the end of the file and
  /// on a read error.
  bool ReadLine(char (&line)[kLineSize]);

  /// Whether the line read last stands at the start of a line, and is no later piece of one.
  bool LineIsWhole() const { return line_is_whole_; }
  /// The length of the line read last.
  std::size_t LineLength() const { return line_length_; }

  /// Moves on to the start of the next line whose first character after white space and Ctrl-D is
  /// "%", or near the end of the file, where no such line is left.
  void SkipToComment();

 private:
  /// Has at least `bytes` unread bytes in the buffer, unless the file ends before. Returns whether
  /// any byte was added.
  bool Fill(std::size_t bytes);
  std::string_view Unread() const { return {buffer_.data() + position_, end_ - position_}; }

  FilePtr file_;
  off_t start_;
  bool seekable_ = false;
  std::vector<char> buffer_;
  std::size_t position_ = 0;   ///< of the next unread byte in the buffer
  std::size_t end_ = 0;        ///< of the bytes in the buffer
  off_t offset_ = 0;           ///< of the buffer in the file
  char before_buffer_ = '\n';  ///< the byte before it, or as good as
  bool line_is_whole_ = false;
  std::size_t line_length_ = 0;
};

}  // namespace zarvo
