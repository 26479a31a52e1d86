// SPDX-License-Identifier: Apache-2.0
// One pass over the job: everything between the landmarks is handed on in large pieces.
//
//   read(2) --> one buffer --> LineScan: the few places    --> CopyRules::Classify: what the
//                              where a landmark can begin      line there means
//                                                                   |
//   JobOutput <-- everything up to the landmark, unseen <-----------+--> CopyRules::Apply: what
//                                                                        is written there
//
// No line is looked at as a whole unless its first bytes make it a candidate ("%%", "@P", "en" or
// "ep" after a line end, "%!" anywhere), and of a candidate only the first kLongestTestedLine
// bytes. What is left of an unfinished line at the end of the buffer waits for the next read, so
// no landmark is missed where a block ends. Counted binary data is passed over by its count. Large
// pieces of a file, and counted data, go from descriptor to descriptor without passing through
// this process, where the system can do that (JobOutput::Transfer).
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "CUPSFilter/CopyPass/CopyRules.h"
#include "CUPSFilter/JobOutput.h"

namespace zarvo {

enum class CopyResult {
  kDone,
  kEarlyEnd,     ///< the input ended inside counted binary data
  kReadFailed,   ///< errno of the read is in CopyPass::error()
  kWriteFailed,  ///< errno of the write is in CopyPass::error()
  kGrownTooMuch,
};

/// A job may become longer than it was by these together. A picture, a font and a cover for one
/// document take some tens of megabytes; a job that asks for them a thousand times means no good.
constexpr std::uint64_t kMostGrowth = 256u << 20;  // bytes
constexpr std::uint64_t kMostTimes = 16;           // its size

/// Copies a job from a file descriptor. Memory is one buffer, whatever the size of the job or of
/// its lines. The lines that the rules see are those that a line-by-line reader would give them:
/// ended by LF, CR or CR LF, and of a longer line the first kLongestTestedLine bytes.
class CopyPass {
 public:
  static constexpr std::size_t kBlockSize = 256 * 1024;
  /// From this size on a piece is handed on by the system instead of being written from the buffer.
  static constexpr std::size_t kTransferSize = 32 * 1024;

  /// The rules are shown what follows a line only up to this many bytes.
  static constexpr std::size_t kLongestAhead = kPageHead;

  /// `input` is read with read(2) and not closed. Tests take a smaller block size (at least 1).
  CopyPass(int input, CopyRules& rules, JobOutput& output, std::size_t block_size = kBlockSize);

  /// Copies to the end of the input or to the first failure.
  CopyResult Run();
  int error() const { return error_; }

 private:
  bool Fill();
  std::size_t ReadInto(char* to, std::size_t size);
  void ScanBuffer();
  bool ScanLines(char* limit);
  char* CompleteEnd() const;
  bool ShowAhead(char* line, char* next);
  std::string_view TestedPart(const char* start) const;
  char* NextLineToTest(char* from, char* limit);
  void WriteUpTo(char* position);
  void CopyCounted(std::uint64_t count);
  std::uint64_t TransferCounted(std::uint64_t count);
  void CheckGrowth();
  bool Failed() const { return result_ != CopyResult::kDone; }

  int input_;
  CopyRules& rules_;
  JobOutput& output_;
  std::size_t block_size_;

  std::unique_ptr<char[]> buffer_;
  char* data_;            // where buffered bytes begin; data_[-1] belongs to the buffer too
  char* end_;             // end of the buffered bytes
  char* unwritten_;       // everything before it has been written
  char* held_ = nullptr;  // the line that has to wait for more of what follows it
  bool regular_file_ = false;
  off_t end_offset_ = 0;  // where end_ stands in the file, for a regular file
  off_t size_ = 0;        // of a regular file
  bool end_of_input_ = false;
  bool inside_long_line_ = false;  // unwritten_ continues a line whose tested part has passed
  CopyResult result_ = CopyResult::kDone;
  int error_ = 0;
};

}  // namespace zarvo
