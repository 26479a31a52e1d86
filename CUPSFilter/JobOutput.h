// SPDX-License-Identifier: Apache-2.0
// Where the job goes: a stream for the writers of single lines, and a short way to the file
// descriptor for large pieces of the input.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <optional>
#include <string_view>

#include "CUPSFilter/SpoolFile.h"

namespace zarvo {

/// Wraps a stream that it does not own. A file in which a tenth is left of the room there was fails
/// as one that is full, for the sake of everybody else on the machine. The object remembers the
/// first failed write, so that a cut job can be told from a whole one at the end.
class JobOutput {
 public:
  explicit JobOutput(FILE* stream);

  /// For formatted writes; they keep their order with Write.
  FILE* stream() const { return stream_; }

  /// Writes the bytes. Large pieces go to the file descriptor without another copy.
  void Write(std::string_view bytes);

  /// Moves up to `size` bytes from a file descriptor without taking them through this process,
  /// where the system can; `offset` is where they stand in a regular file, or null for a pipe.
  /// Returns how many were moved: fewer than `size` at the end of the input, after a failed write,
  /// or (then 0) when the system cannot, or not faster; the caller copies the rest.
  std::size_t Transfer(int from, const off_t* offset, std::size_t size);

  /// Has `writer` write to a stream in memory and writes that: for what may be long.
  void WriteLong(const std::function<void(FILE* stream)>& writer);

  /// To be called around formatted writes for which written() is to be right. It is too small by
  /// what goes past the stream's buffer between the two.
  void BeginFormatted();
  void EndFormatted();

  /// The bytes of all writes and transfers, and of the formatted writes between these two calls.
  std::uint64_t written() const { return written_; }

  /// Writes out what is buffered. False, with errno as error() has it, after a failed write.
  bool Flush();

  /// Counts as a failed write: something that belongs here cannot be had any more.
  void Fail(int error);

  /// The error number of the first failed write since the stream was wrapped, or 0.
  int error();

 private:
  void WriteThrough(std::string_view bytes);
  void Count(std::uint64_t bytes);
  std::size_t Pending() const;

  FILE* stream_;
  int error_ = 0;
  bool can_transfer_;  // until the system says otherwise

  std::uint64_t written_ = 0;
  std::uint64_t drained_ = 0;  // bytes that Flush has taken out of the stream's buffer
  std::uint64_t mark_ = 0;     // drained_ and pending at BeginFormatted, less what Write has added
  std::optional<FileRoom> room_;    // of a file
  std::uint64_t room_checked_ = 0;  // written_ at that time
};

}  // namespace zarvo
