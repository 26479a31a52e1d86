// SPDX-License-Identifier: Apache-2.0
// A whole copy pass: the input's first bytes, up to a NUL, are the option text, the rest is the
// job. Every byte of the job comes out in order, save for lines that a fax replaces.
#include "CUPSFilter/CopyPass/CopyPass.h"
#include "fuzz/target.h"
#include "fuzz/ticket.h"
#include "tests/copy_reference.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  std::string_view input = AsText(data, size);
  const FuzzedTicket decoded = DecodeTicket(TakeOptions(&input));
  const Job job{std::string(input), decoded.settings, decoded.ticket};
  const Copied copied = ByBlocks(job, 4096);
  Require(copied.result == CopyResult::kDone || copied.result == CopyResult::kEarlyEnd);
  if (input.find("/HWResolution") != input.npos) return 0;
  std::size_t matched = 0;
  for (const char c : copied.bytes) {
    if (matched < input.size() && c == input[matched]) ++matched;
  }
  Require(matched == input.size());
  return 0;
}
