// SPDX-License-Identifier: Apache-2.0
// Runs a fuzz target over files that are there already: the seeds, and whatever has crashed it
// before. For builds without the fuzzer.
#include <cstdio>
#include <filesystem>
#include <optional>
#include <vector>

#include "Platform/AtomicFile.h"
#include "fuzz/target.h"

int main(int argc, char** argv) {
  constexpr std::size_t kMaxBytes = 64 << 20;
  int count = 0;
  for (int i = 1; i < argc; ++i) {
    if (!std::filesystem::is_directory(argv[i])) continue;
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      const std::optional<std::string> bytes = zarvo::ReadWholeFile(entry.path(), kMaxBytes);
      if (!bytes) continue;
      std::printf("%s\n", entry.path().c_str());
      std::fflush(stdout);
      // A copy of the very size, so that reading past its end shows.
      const std::vector<std::uint8_t> copy(bytes->begin(), bytes->end());
      LLVMFuzzerTestOneInput(copy.data(), copy.size());
      ++count;
    }
  }
  std::printf("%d inputs\n", count);
  return count > 0 ? 0 : 1;
}
