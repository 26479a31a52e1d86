// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/Command.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "Platform/AtomicFile.h"
#include "Platform/Log.h"
#include "Platform/Process.h"

namespace zarvo::tool {
namespace {

constexpr std::size_t kMaxInput = 64 << 20;
constexpr mode_t kNewFileMode = 0666;

}  // namespace

int Fail(const std::string& place, const std::string& cause, const std::string& remedy) {
  if (NotedTermination() != 0) return kExitFailure;  // the user knows why
  std::string text = "zarvo: " + place + ": " + cause;
  if (!remedy.empty()) text += (text.ends_with('?') ? " " : ". ") + remedy;
  // What came from a file must not be able to steer the terminal.
  std::fprintf(stderr, "%s\n", PrintableText(text).c_str());
  return kExitFailure;
}

bool ReadInput(const std::string& path, std::string* content) {
  if (path != "-") {
    if (std::optional<std::string> read = ReadWholeFile(path, kMaxInput)) {
      *content = *std::move(read);
      return true;
    }
    Fail(path, errno == EINVAL ? "is not a regular file" : std::strerror(errno));
    return false;
  }
  char block[65536];
  while (const std::size_t got = std::fread(block, 1, sizeof block, stdin)) {
    content->append(block, got);
    if (content->size() > kMaxInput) {
      Fail("(stdin)", "is longer than 64 MiB");
      return false;
    }
  }
  if (std::ferror(stdin) == 0) return true;
  Fail("(stdin)", std::strerror(errno));
  return false;
}

int WriteOutput(const std::string& path, const std::string& content) {
  if (path != "-") {
    return WriteFileAtomically(path, content, kNewFileMode) ? kExitOk
                                                            : Fail(path, std::strerror(errno));
  }
  std::fwrite(content.data(), 1, content.size(), stdout);
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return kExitOk;
  return Fail("(stdout)", std::strerror(errno));
}

}  // namespace zarvo::tool
