// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JobOutput.h"

#include <fcntl.h>
#include <stdio_ext.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>

namespace zarvo {
namespace {
// Below this, one more copy into the stream's buffer is cheaper than a system call.
constexpr std::size_t kLargePiece = 16384;
/// How much is written between two looks at the room that is left.
constexpr std::uint64_t kBetweenLooks = 256 * 1024;
/// No writer of lines formats more than this for one landmark; only long tickets do.
constexpr std::size_t kFormattedAtOnce = 32 * 1024;
}  // namespace

JobOutput::JobOutput(FILE* stream) : stream_(stream) {
  // Into a file, the system moves data page by page, which takes longer than to write a block.
  struct stat status;
  const bool known = fstat(fileno(stream), &status) == 0;
  can_transfer_ = known && !S_ISREG(status.st_mode);
  if (known && S_ISREG(status.st_mode)) room_.emplace(fileno(stream));
}

void JobOutput::Write(std::string_view bytes) {
  if (error() != 0) return;  // of a formatted write before
  Count(bytes.size());
  if (bytes.size() >= kLargePiece) {
    if (Flush()) WriteThrough(bytes);
    return;
  }
  errno = 0;
  mark_ += bytes.size();
  fwrite_unlocked(bytes.data(), 1, bytes.size(), stream_);
  error();
}

void JobOutput::WriteThrough(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(fileno(stream_), bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      error_ = errno;
      return;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

std::size_t JobOutput::Transfer(int from, const off_t* offset, std::size_t size) {
  if (!can_transfer_ || !Flush()) return 0;
  off_t position = offset != nullptr ? *offset : 0;
  std::size_t moved = 0;
  while (moved < size) {
    off_t* at = offset != nullptr ? &position : nullptr;
    // splice needs a pipe on either side; sendfile takes a file to anything else.
    ssize_t count = splice(from, at, fileno(stream_), nullptr, size - moved, SPLICE_F_MORE);
    if (count < 0 && errno == EINVAL && at != nullptr)
      count = sendfile(fileno(stream_), from, at, size - moved);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && moved == 0 && (errno == EINVAL || errno == ENOSYS))
      can_transfer_ = false;
    else if (count < 0)
      error_ = errno;
    if (count <= 0) break;
    moved += static_cast<std::size_t>(count);
  }
  Count(moved);
  return moved;
}

std::size_t JobOutput::Pending() const { return __fpending(stream_); }

void JobOutput::Count(std::uint64_t bytes) {
  written_ += bytes;
  if (!room_ || written_ - room_checked_ < kBetweenLooks) return;
  room_checked_ = written_;
  if (!room_->Left()) Fail(ENOSPC);
}

void JobOutput::WriteLong(const std::function<void(FILE* stream)>& writer) {
  char* bytes = nullptr;
  std::size_t size = 0;
  FILE* memory = open_memstream(&bytes, &size);
  if (memory == nullptr) return Fail(errno);
  writer(memory);
  const bool whole = std::fclose(memory) == 0;
  const std::unique_ptr<char, decltype(&std::free)> owner(bytes, &std::free);
  if (!whole) return Fail(ENOMEM);
  Write({bytes, size});
}

void JobOutput::BeginFormatted() {
  if (Pending() + kFormattedAtOnce > __fbufsize(stream_)) Flush();
  mark_ = drained_ + Pending();
}

void JobOutput::EndFormatted() {
  const std::uint64_t now = drained_ + Pending();
  Count(now > mark_ ? now - mark_ : 0);
}

bool JobOutput::Flush() {
  error();  // the reason of an earlier failure is forgotten soon
  drained_ += Pending();
  errno = 0;
  if (std::fflush(stream_) != 0) Fail(errno);
  errno = error();
  return errno == 0;
}

void JobOutput::Fail(int error) {
  if (error_ == 0) error_ = error != 0 ? error : EIO;
}

int JobOutput::error() {
  if (error_ == 0 && std::ferror(stream_) != 0) {
    // Whoever wrote may not have kept the reason; another try often tells it.
    const int last = errno;
    errno = 0;
    std::fflush(stream_);
    Fail(errno != 0 ? errno : last);
  }
  return error_;
}

}  // namespace zarvo
