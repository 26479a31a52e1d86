// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JobOutput.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace zarvo {
namespace {
// Below this, one more copy into the stream's buffer is cheaper than a system call.
constexpr std::size_t kLargePiece = 16384;
}  // namespace

JobOutput::JobOutput(FILE* stream) : stream_(stream) {
  // Into a file, the system moves data page by page, which takes longer than to write a block.
  struct stat status;
  can_transfer_ = fstat(fileno(stream), &status) == 0 && !S_ISREG(status.st_mode);
}

void JobOutput::Write(std::string_view bytes) {
  if (error() != 0) return;  // of a formatted write before
  if (bytes.size() >= kLargePiece) {
    if (Flush() == 0) WriteThrough(bytes);
    return;
  }
  errno = 0;
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
  if (!can_transfer_ || Flush() != 0) return 0;
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
  return moved;
}

int JobOutput::Flush() {
  error();  // the reason of an earlier failure is forgotten soon
  errno = 0;
  if (std::fflush(stream_) != 0) Fail(errno);
  return error();
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
