// SPDX-License-Identifier: Apache-2.0
// The copy pass twice: as the filter runs it, by blocks, and as a plain reader that takes the job
// line by line. Both must give the same bytes, whatever the job holds and however the blocks fall.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "CUPSFilter/CopyPass/CopyPass.h"
#include "CUPSFilter/CopyPass/psgets.h"
#include "Platform/UniqueFd.h"

namespace zarvo {

struct Copied {
  std::string bytes;
  CopyResult result;
};

struct Stream {
  UniqueFd fd{memfd_create("job", 0)};
  FILE* file = fdopen(dup(fd.get()), "w+b");
  ~Stream() { std::fclose(file); }
  std::string Content() {
    std::fflush(file);
    std::string bytes(static_cast<std::size_t>(lseek(fd.get(), 0, SEEK_END)), '\0');
    if (pread(fd.get(), bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size()))
      std::abort();
    return bytes;
  }
};

struct Job {
  std::string bytes;
  JobSettings settings;
  Dictionary ticket;
};

inline void Fill(Stream& stream, std::string_view bytes) {
  if (write(stream.fd.get(), bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
    std::abort();
  lseek(stream.fd.get(), 0, SEEK_SET);
}

inline Copied ByBlocks(const Job& job, std::size_t block_size) {
  Stream in;
  Stream out;
  Fill(in, job.bytes);
  JobOutput output(out.file);
  CopyRules rules(job.settings, job.ticket, output);
  CopyPass pass(in.fd.get(), rules, output, block_size);
  const CopyResult result = pass.Run();
  return {out.Content(), result};
}

inline Copied ByLines(const Job& job) {
  Stream in;
  Stream out;
  Fill(in, job.bytes);
  JobOutput output(out.file);
  CopyRules rules(job.settings, job.ticket, output);
  char line[kLongestTestedLine + 1];
  bool continues = false;  // pieces of a long line after the first are tested against nothing
  unsigned long length = sizeof line;
  for (; psgets(line, &length, in.file) != nullptr; length = sizeof line) {
    const std::string_view text(line, length);
    const bool tested = !continues;
    continues = text.back() != '\n' && text.back() != '\r';
    if (!tested) {
      output.Write(text);
      continue;
    }
    std::int64_t counted = rules.Apply(rules.Classify(text), text);
    if (counted > 0) continues = false;
    for (; counted > 0; --counted) {
      const int byte = std::getc(in.file);
      if (byte == EOF && job.settings.pageHooks) break;
      if (byte == EOF) return {out.Content(), CopyResult::kEarlyEnd};
      const char c = static_cast<char>(byte);
      output.Write({&c, 1});
    }
  }
  rules.Finish();
  return {out.Content(), CopyResult::kDone};
}

}  // namespace zarvo
