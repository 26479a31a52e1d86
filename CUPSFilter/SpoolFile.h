// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>

#include "Platform/UniqueFd.h"

namespace zarvo {

class JobOutput;

/// Looks after the room of a file system, so that one job never takes all of it.
class FileRoom {
 public:
  /// `descriptor` is of a file there, and stays the caller's and open.
  explicit FileRoom(int descriptor);
  /// Whether more than a tenth is left of the room there was at first. True where nobody knows.
  bool Left() const;

 private:
  int descriptor_;
  std::uint64_t least_ = 0;  // blocks
};

/// A temporary file that only this process can reach. It never has a name where the file system
/// allows that, else it loses it as soon as it is open, so that nothing is left behind however the
/// process ends; it can be opened again by `path()` as long as the object lives.
class SpoolFile {
 public:
  /// Makes a file in the folder that TMPDIR names (else /tmp). Null when that fails; errno
  /// says why.
  static std::unique_ptr<SpoolFile> Create();

  /// Makes one that lies in memory and needs no room on any disk, for what is small or bounded by
  /// its writer. Null when that fails; errno says why.
  static std::unique_ptr<SpoolFile> CreateInMemory();

  SpoolFile(const SpoolFile&) = delete;
  SpoolFile& operator=(const SpoolFile&) = delete;
  ~SpoolFile();

  /// Writes all that is in the file to `output`, where failures of its own show. False, with errno
  /// set, when something goes wrong with the file itself. To be called when the file is complete.
  bool CopyTo(JobOutput& output);

  /// Open for writing and, once rewound, for reading.
  FILE* stream() const { return stream_.get(); }
  const std::string& path() const { return path_; }

 private:
  struct Closer {
    void operator()(FILE* stream) const { std::fclose(stream); }
  };

  static std::unique_ptr<SpoolFile> Wrap(UniqueFd file, std::string path,
                                         std::string name_to_remove);
  SpoolFile(FILE* stream, std::string path, std::string name_to_remove)
      : stream_(stream), path_(std::move(path)), name_to_remove_(std::move(name_to_remove)) {}

  std::unique_ptr<FILE, Closer> stream_;
  std::string path_;
  std::string name_to_remove_;  // empty once the name is gone
};

}  // namespace zarvo
