// SPDX-License-Identifier: Apache-2.0
// Ownership of a file descriptor.
#pragma once

#include <unistd.h>

#include <utility>

namespace zarvo {

/// Closes the descriptor it holds; -1 means none.
class UniqueFd {
 public:
  explicit UniqueFd(int fd = -1) : fd_(fd) {}
  UniqueFd(UniqueFd&& other) noexcept : fd_(other.release()) {}
  UniqueFd& operator=(UniqueFd&& other) noexcept {
    reset(other.release());
    return *this;
  }
  ~UniqueFd() { reset(); }

  int get() const { return fd_; }
  explicit operator bool() const { return fd_ >= 0; }
  /// Gives the descriptor up to the caller.
  int release() { return std::exchange(fd_, -1); }
  void reset(int fd = -1) {
    const int old = std::exchange(fd_, fd);
    if (old >= 0) ::close(old);
  }

 private:
  int fd_;
};

}  // namespace zarvo
