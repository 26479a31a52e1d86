// SPDX-License-Identifier: Apache-2.0
// Files that are replaced whole, so that no reader and no crash ever sees half of one.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/UniqueFd.h"

namespace zarvo {

/// Replaces the file at `path`, or the one that a symbolic link there leads to, with `bytes`:
/// writes a temporary file ("." NAME ".zarvo-" and six random characters) in the same folder, syncs
/// it to the disk and renames it over the target. Of two writers the last one to rename wins,
/// whole. A file that was there keeps its owner, group and permission bits, as far as the writer
/// may give them; a new one gets `mode`, whatever the umask. Temporary files that killed writers
/// have left in the folder are removed. False, with errno set, when a step fails; the old file is
/// then untouched and no temporary file stays behind.
bool WriteFileAtomically(const std::string& path, std::string_view bytes, mode_t mode);

/// The content of the regular file at `path`. Nothing, with errno set, when it cannot be read, is
/// no regular file (EINVAL) or is longer than `max_bytes` (EFBIG).
std::optional<std::string> ReadWholeFile(const std::string& path, std::size_t max_bytes);
/// The same of an open file, from where it stands.
std::optional<std::string> ReadWholeFile(int fd, std::size_t max_bytes);
/// The regular file at `path`, open for reading; none, with errno set, else.
UniqueFd OpenRegularFile(const std::string& path);

/// Keeps other holders of the same folder's lock out for the life of the object: for changes that
/// read a file, alter it and write it back. The lock is advisory. It is a file of its own
/// (kLockFile) that only those can open who may write the folder, and that goes with the object;
/// one that a killed program has left is taken over. Waits for another holder as long as it is
/// told. An object that could not have the lock is false, and errno is set, to EAGAIN when there is
/// still another holder.
class FolderLock {
 public:
  static constexpr char kLockFile[] = ".zarvo-lock";

  static constexpr std::chrono::milliseconds kUsualWait{10000};

  explicit FolderLock(const std::string& folder, std::chrono::milliseconds wait = kUsualWait);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  explicit operator bool() const { return static_cast<bool>(file_); }

 private:
  std::string path_;
  UniqueFd file_;
};

}  // namespace zarvo
