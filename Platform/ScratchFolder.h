// SPDX-License-Identifier: Apache-2.0
// Folders for the files of child programs, which go with the program that made them.
//
// Converters give their temporary files names, and are often killed before they can remove them. So
// they get a folder of their own as TMPDIR. What clears it away is a small process that is forked
// when the folder is made: it sees this program end, however that happens, SIGKILL included, kills
// the children that still run with all that they have started, and removes the folder. Where that
// process is killed as well (a machine that stops), the next folder that is made in the same place
// takes the left one away; a lock on it tells whether anybody still uses it.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Platform/UniqueFd.h"

namespace zarvo {

/// The folder that TMPDIR names, else /tmp.
std::string TemporaryFolder();

/// The bytes of room for ordinary users on the file system of a folder; `unknown` where nobody
/// knows.
std::uint64_t RoomLeft(const std::string& folder, std::uint64_t unknown);

/// TemporaryFolder(), or a folder in memory where that one has less than `bytes` of room left and
/// memory has more.
std::string TemporaryFolderWithRoom(std::uint64_t bytes);

/// A folder for this user's eyes only.
class ScratchFolder {
 public:
  /// Makes one in `parent`. Null, with errno set, when that fails.
  static std::unique_ptr<ScratchFolder> Create(const std::string& parent = TemporaryFolder());

  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  /// Kills this program's children that still run, and removes the folder with all it holds.
  ~ScratchFolder();

  /// The path of a file in it.
  std::string File(const std::string& name) const { return path_ + '/' + name; }

  /// This program's environment for a child whose temporary files are to go here: TMPDIR, TEMP and
  /// TMP name the folder. For ProcessOptions::environment.
  std::vector<std::string> Environment() const;

 private:
  ScratchFolder(std::string path, UniqueFd lock) : path_(std::move(path)), lock_(std::move(lock)) {}
  bool StartKeeper();

  std::string path_;
  UniqueFd lock_;      // the folder itself, locked
  UniqueFd lifeline_;  // the keeper waits for its end
  pid_t keeper_ = -1;
};

}  // namespace zarvo
