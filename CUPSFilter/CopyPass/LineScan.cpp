// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/LineScan.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace zarvo {
namespace {

// Taken apart lane by lane, as on an s390x that may lack vectors, blocks would cost far more than
// bytes.
#if defined(__SSE2__) || defined(__ARM_NEON) || defined(__ALTIVEC__) || defined(__VEC__)
constexpr bool kHasVectors = true;
#else
constexpr bool kHasVectors = false;
#endif

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

/// What NextCandidate looks for: a quick test of a block's lanes, and the exact one of a place.
struct Landmarks {
  static Mask At(const char* from) {
    const Bytes before = Load(from - 1);
    const Bytes here = Load(from);
    const Bytes after = Load(from + 1);
    const Mask starts_line = (before == '\n') | (before == '\r');
    const Mask percent = here == '%';
    const Mask first_byte = percent | (here == '@') | (here == 'e');
    return (starts_line & first_byte) | (percent & (after == '!'));
  }

  static bool Is(const char* at) {
    const char second = at[1];
    if (at[0] == '%' && second == '!') return true;
    if (at[-1] != '\n' && at[-1] != '\r') return false;
    return (at[0] == '%' && second == '%') || (at[0] == '@' && second == 'P') ||
           (at[0] == 'e' && (second == 'n' || second == 'p'));
  }
};

/// What NextStructure looks for.
struct Structure {
  static Mask At(const char* from) {
    const Bytes before = Load(from - 1);
    const Bytes here = Load(from);
    const Mask starts_line = (before == '\n') | (before == '\r');
    return starts_line & ((here == '%') | (here == '\x1b') | (here == '\x04'));
  }

  static bool Is(const char* at) {
    if (at[-1] != '\n' && at[-1] != '\r') return false;
    return (at[1] == '%' && (at[0] == '%' || at[0] == '\x1b')) || at[0] == '\x04';
  }
};

/// What NextTurningName looks for.
struct TurningNames {
  static Mask At(const char* from) {
    const Bytes here = Load(from);
    const Bytes after = Load(from + 1);
    return (((here == 'c') | (here == 'T')) & (after == 'm')) | ((here == 'o') & (after == 't')) |
           ((here == 'n') & (after == 'c')) | ((here == 's') & (after == 'l'));
  }

  static bool Is(const char* at) {
    const char second = at[1];
    if ((at[0] == 'o' && second == 't') || (at[0] == 'n' && second == 'c')) return at[2] == 'a';
    return ((at[0] == 'c' || at[0] == 'T') && second == 'm') || (at[0] == 's' && second == 'l');
  }
};

/// The first of a block's lanes that hold what is wanted, or null.
template <class Wanted>
const char* Among(const char* from, Mask mask) {
  constexpr bool kLittle = std::endian::native == std::endian::little;
  std::uint64_t halves[2];
  std::memcpy(&halves, &mask, sizeof mask);
  for (std::uint64_t& half : halves) {
    while (half != 0) {
      const int lane = (kLittle ? std::countr_zero(half) : std::countl_zero(half)) / 8;
      if (Wanted::Is(from + lane)) return from + lane;
      half &= ~(std::uint64_t{0xFF} << 8 * (kLittle ? lane : 7 - lane));
    }
    from += sizeof half;
  }
  return nullptr;
}

template <class Wanted>
const char* Next(const char* from, const char* end) {
  constexpr int kBlock = sizeof(Bytes);
  while (kHasVectors && from < end) {
    // Two blocks a turn: one test and branch for both.
    const Mask first = Wanted::At(from);
    const Mask second = Wanted::At(from + kBlock);
    if (AnySet(first | second)) {
      if (const char* found = Among<Wanted>(from, first)) return std::min(found, end);
      if (const char* found = Among<Wanted>(from + kBlock, second)) return std::min(found, end);
    }
    from += 2 * kBlock;
  }
  while (from < end && !Wanted::Is(from)) ++from;
  return std::min(from, end);
}

}  // namespace

const char* NextCandidate(const char* from, const char* end) { return Next<Landmarks>(from, end); }

const char* NextStructure(const char* from, const char* end) { return Next<Structure>(from, end); }

const char* NextTurningName(const char* from, const char* end) {
  if (end - from > kScanSlack) {
    const char* const near = end - kScanSlack;
    from = Next<TurningNames>(from, near);
    if (from != near) return from;
  }
  while (end - from > 2 && !TurningNames::Is(from)) ++from;
  return end - from > 2 ? from : end;
}

}  // namespace zarvo
