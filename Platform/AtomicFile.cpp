// SPDX-License-Identifier: Apache-2.0
#include "Platform/AtomicFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

namespace zarvo {
namespace {

constexpr std::string_view kSuffix = ".zarvo-XXXXXX";
constexpr std::string_view kSuffixStart = ".zarvo-";

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string NameOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

/// What the path leads to, through symbolic links that may lead to nothing yet.
std::string TargetOf(std::string path) {
  constexpr int kMostLinks = 40;  // as the kernel has it
  for (int i = 0; i < kMostLinks; ++i) {
    char link[PATH_MAX];
    const ssize_t length = ::readlink(path.c_str(), link, sizeof link);
    if (length <= 0) break;
    const std::string target(link, static_cast<std::size_t>(length));
    path = target[0] == '/' ? target : FolderOf(path) + '/' + target;
  }
  return path;
}

/// Gives the new file what the old one has, or `mode` when there is none.
bool SetOwnership(int fd, const std::string& path, mode_t mode) {
  struct stat existing {};
  if (::stat(path.c_str(), &existing) != 0) return ::fchmod(fd, mode) == 0;
  mode = existing.st_mode & 0777;
  if (::fchown(fd, existing.st_uid, existing.st_gid) != 0 &&
      ::fchown(fd, static_cast<uid_t>(-1), existing.st_gid) != 0) {
    // What the old group might do is not for the new one, unless everybody may.
    mode = (mode & 0707) | (mode & 0007) << 3;
  }
  return ::fchmod(fd, mode) == 0;
}

/// Removes the temporary files of writers that were killed. A living writer has its own locked.
void RemoveLeftFiles(const std::string& folder) {
  DIR* entries = ::opendir(folder.c_str());
  if (entries == nullptr) return;
  while (const dirent* entry = ::readdir(entries)) {
    const std::string_view name = entry->d_name;
    if (name.size() < kSuffix.size() || name[0] != '.' ||
        !name.substr(name.size() - kSuffix.size()).starts_with(kSuffixStart))
      continue;
    const std::string path = folder + '/' + std::string(name);
    const UniqueFd file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
  }
  ::closedir(entries);
}

/// A new temporary file, locked; `path` gets its name.
UniqueFd MakeTemporary(const std::string& folder, const std::string& name, std::string* path) {
  constexpr int kTries = 10;  // somebody who clears up may take one away before it is locked
  for (int i = 0; i < kTries; ++i) {
    *path = folder + "/." + name + std::string(kSuffix);
    UniqueFd fd(::mkostemp(path->data(), O_CLOEXEC));
    if (!fd) return fd;
    struct stat info {};
    if (::flock(fd.get(), LOCK_EX | LOCK_NB) == 0 && ::fstat(fd.get(), &info) == 0 &&
        info.st_nlink == 1)
      return fd;
  }
  errno = EAGAIN;
  return UniqueFd();
}

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool FillAndRename(int fd, const std::string& temporary, const std::string& path,
                   std::string_view bytes, mode_t mode) {
  // Without the sync a power cut after the rename could leave an empty file under the final name.
  return WriteAll(fd, bytes) && SetOwnership(fd, path, mode) && ::fsync(fd) == 0 &&
         std::rename(temporary.c_str(), path.c_str()) == 0;
}

}  // namespace

bool WriteFileAtomically(const std::string& path, std::string_view bytes, mode_t mode) {
  const std::string target = TargetOf(path);
  const std::string folder = FolderOf(target);
  RemoveLeftFiles(folder);
  std::string temporary;
  const UniqueFd fd = MakeTemporary(folder, NameOf(target), &temporary);
  if (!fd) return false;
  if (!FillAndRename(fd.get(), temporary, target, bytes, mode)) {
    const int error = errno;
    ::unlink(temporary.c_str());
    errno = error;
    return false;
  }
  // The file is in place; syncing the folder only makes its new name durable.
  const UniqueFd folder_fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder_fd) ::fsync(folder_fd.get());
  return true;
}

UniqueFd OpenRegularFile(const std::string& path) {
  // Non-blocking, because opening a named pipe would wait for a writer.
  UniqueFd fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat info {};
  if (fd && ::fstat(fd.get(), &info) == 0 && !S_ISREG(info.st_mode)) {
    fd.reset();
    errno = EINVAL;
  }
  return fd;
}

std::optional<std::string> ReadWholeFile(const std::string& path, std::size_t max_bytes) {
  const UniqueFd fd = OpenRegularFile(path);
  return fd ? ReadWholeFile(fd.get(), max_bytes) : std::nullopt;
}

std::optional<std::string> ReadWholeFile(int fd, std::size_t max_bytes) {
  struct stat info {};
  if (::fstat(fd, &info) != 0) return std::nullopt;
  if (!S_ISREG(info.st_mode)) {
    errno = EINVAL;
    return std::nullopt;
  }
  std::string content;
  if (static_cast<std::size_t>(info.st_size) <= max_bytes) {
    content.resize(static_cast<std::size_t>(info.st_size) + 1);
    std::size_t length = 0;
    while (length < content.size()) {
      const ssize_t got = ::read(fd, content.data() + length, content.size() - length);
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

FolderLock::FolderLock(const std::string& folder, std::chrono::milliseconds wait)
    : path_(folder + '/' + kLockFile) {
  using namespace std::chrono_literals;
  const auto deadline = std::chrono::steady_clock::now() + wait;
  for (;;) {
    UniqueFd file(::open(path_.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file) return;
    // Who may write the folder may lock it, and nobody else.
    struct stat of_folder {
    }, opened{}, named{};
    if (::stat(folder.c_str(), &of_folder) == 0 && ::fstat(file.get(), &opened) == 0 &&
        opened.st_uid == ::geteuid()) {
      const mode_t others = of_folder.st_mode & 0022;
      [[maybe_unused]] const int owned =
          ::fchown(file.get(), static_cast<uid_t>(-1), of_folder.st_gid);
      ::fchmod(file.get(), 0600 | others | others << 1);
    }
    const bool locked = ::flock(file.get(), LOCK_EX | LOCK_NB) == 0;
    // The holder before may have taken the file away meanwhile.
    if (locked && ::fstat(file.get(), &opened) == 0 && ::stat(path_.c_str(), &named) == 0 &&
        opened.st_ino == named.st_ino && opened.st_dev == named.st_dev) {
      file_ = std::move(file);
      return;
    }
    if (std::chrono::steady_clock::now() >= deadline) {
      file.reset();
      errno = EAGAIN;
      return;
    }
    if (!locked) std::this_thread::sleep_for(5ms);
  }
}

FolderLock::~FolderLock() {
  if (file_) ::unlink(path_.c_str());
}

}  // namespace zarvo
