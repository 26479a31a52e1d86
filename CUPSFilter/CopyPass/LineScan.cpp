// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/LineScan.h"

#include <cstdint>
#include <cstring>

namespace zarvo {
namespace {

// A vector of bytes; the compiler maps it to whatever the machine has.
using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Mask = signed char __attribute__((vector_size(16)));

Bytes Load(const char* from) {
  Bytes bytes;
  std::memcpy(&bytes, from, sizeof bytes);
  return bytes;
}

bool AnySet(Mask mask) {
  std::uint64_t halves[2];
  std::memcpy(halves, &mask, sizeof halves);
  return (halves[0] | halves[1]) != 0;
}

/// The lanes of the block at `from` where a landmark can begin.
Mask CandidatesAt(const char* from) {
  const Bytes before = Load(from - 1);
  const Bytes here = Load(from);
  const Bytes after = Load(from + 1);
  const Mask starts_line = (before == '\n') | (before == '\r');
  const Mask percent = here == '%';
  const Mask first_byte = percent | (here == '@') | (here == 'e');
  return (starts_line & first_byte) | (percent & (after == '!'));
}

/// The exact test, which also looks at a landmark's second byte: "%!", "%%", "@P", "en", "ep".
bool IsCandidate(const char* at) {
  const char second = at[1];
  if (at[0] == '%' && second == '!') return true;
  if (at[-1] != '\n' && at[-1] != '\r') return false;
  return (at[0] == '%' && second == '%') || (at[0] == '@' && second == 'P') ||
         (at[0] == 'e' && (second == 'n' || second == 'p'));
}

}  // namespace

const char* NextCandidate(const char* from, const char* end) {
  constexpr int kBlock = sizeof(Bytes);
  while (from < end) {
    // Two blocks a turn: one test and branch for both.
    const Mask first = CandidatesAt(from);
    const Mask second = CandidatesAt(from + kBlock);
    if (AnySet(first | second)) {
      for (int i = 0; i < 2 * kBlock && from < end; ++i, ++from) {
        if (IsCandidate(from)) return from;
      }
      continue;
    }
    from += 2 * kBlock;
  }
  return end;
}

}  // namespace zarvo
