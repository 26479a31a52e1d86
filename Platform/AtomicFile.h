// SPDX-License-Identifier: Apache-2.0
// Files that are replaced whole, so that no reader and no crash ever sees half of one.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/UniqueFd.h"

namespace zarvo {

/// Replaces the file at `path` with `bytes`: writes a temporary file ("." NAME "." and six random
/// characters) in the same folder, syncs it to the disk and renames it over the target. Of two
/// writers the last one to rename wins, whole. A file that was there keeps its permission bits; a
/// new one gets `mode` less the umask. Returns 0, or the error number of the step that failed; the
/// old file is then untouched and no temporary file stays behind.
int WriteFileAtomically(const std::string& path, std::string_view bytes, mode_t mode);

/// The content of the regular file at `path`. Nothing, with errno set, when it cannot be read, is
/// no regular file (EINVAL) or is longer than `max_bytes` (EFBIG).
std::optional<std::string> ReadWholeFile(const std::string& path, std::size_t max_bytes);

/// Keeps other holders of the same folder's lock out for the life of the object: for changes that
/// read a file, alter it and write it back. The lock is advisory and leaves no file behind. Waits
/// at most ten seconds and then goes on without it, so that a stuck program cannot block the
/// others for ever; the writes are whole either way. A folder that cannot be opened is not locked.
class FolderLock {
 public:
  explicit FolderLock(const std::string& folder);

 private:
  UniqueFd folder_;
};

}  // namespace zarvo
