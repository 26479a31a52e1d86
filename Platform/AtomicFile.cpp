// SPDX-License-Identifier: Apache-2.0
#include "Platform/AtomicFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace zarvo {
namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

mode_t PermissionsFor(const std::string& path, mode_t mode) {
  struct stat existing {};
  if (::stat(path.c_str(), &existing) == 0) return existing.st_mode & 0777;
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return mode & ~mask;
}

int WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

int FillAndRename(int fd, const std::string& temporary, const std::string& path,
                  std::string_view bytes, mode_t mode) {
  if (const int error = WriteAll(fd, bytes)) return error;
  if (::fchmod(fd, mode) != 0) return errno;
  // Without this a power cut after the rename could leave an empty file under the final name.
  if (::fsync(fd) != 0) return errno;
  if (std::rename(temporary.c_str(), path.c_str()) != 0) return errno;
  return 0;
}

}  // namespace

int WriteFileAtomically(const std::string& path, std::string_view bytes, mode_t mode) {
  const std::string folder = FolderOf(path);
  const std::size_t slash = path.rfind('/');
  const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  std::string temporary = folder + "/." + name + ".XXXXXX";
  const UniqueFd fd(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!fd) return errno;
  if (const int error =
          FillAndRename(fd.get(), temporary, path, bytes, PermissionsFor(path, mode))) {
    ::unlink(temporary.c_str());
    return error;
  }
  // The file is in place; syncing the folder only makes its new name durable.
  const UniqueFd folder_fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder_fd) ::fsync(folder_fd.get());
  return 0;
}

std::optional<std::string> ReadWholeFile(const std::string& path, std::size_t max_bytes) {
  // Non-blocking, because opening a named pipe would wait for a writer.
  const UniqueFd fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!fd) return std::nullopt;
  struct stat info {};
  if (::fstat(fd.get(), &info) != 0) return std::nullopt;
  if (!S_ISREG(info.st_mode)) {
    errno = EINVAL;
    return std::nullopt;
  }
  std::string content;
  if (static_cast<std::size_t>(info.st_size) <= max_bytes) {
    content.resize(static_cast<std::size_t>(info.st_size) + 1);
    std::size_t length = 0;
    while (length < content.size()) {
      const ssize_t got = ::read(fd.get(), content.data() + length, content.size() - length);
      if (got < 0 && errno == EINTR) continue;
      if (got < 0) return std::nullopt;
      if (got == 0) break;
      length += static_cast<std::size_t>(got);
    }
    if (length < content.size()) {
      content.resize(length);
      return content;
    }
  }
  // Too long, or growing while it is read.
  errno = EFBIG;
  return std::nullopt;
}

FolderLock::FolderLock(const std::string& folder)
    : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  using namespace std::chrono_literals;
  const auto deadline = std::chrono::steady_clock::now() + 10s;
  while (folder_ && ::flock(folder_.get(), LOCK_EX | LOCK_NB) != 0 &&
         (errno == EWOULDBLOCK || errno == EINTR) && std::chrono::steady_clock::now() < deadline)
    std::this_thread::sleep_for(5ms);
}

}  // namespace zarvo
