// SPDX-License-Identifier: Apache-2.0
// The words of a page's program, for PageTurn.cpp, which reads many of them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zarvo {

/// What a byte of a program can be; every byte is looked at, so this is one look into a table.
enum Kind : unsigned char { kSpace = 1, kDelimiter = 2, kNumeral = 4 };

inline constexpr std::array<unsigned char, 256> kKinds = [] {
  std::array<unsigned char, 256> kinds{};
  const auto mark = [&kinds](std::string_view bytes, Kind kind) {
    for (const char c : bytes) kinds[static_cast<unsigned char>(c)] = kind;
  };
  mark(std::string_view(" \t\n\v\f\r\0", 7), kSpace);
  mark("()<>[]{}/%", kDelimiter);
  mark("0123456789.-+eE", kNumeral);
  return kinds;
}();

inline unsigned char KindOf(char c) { return kKinds[static_cast<unsigned char>(c)]; }
inline bool IsSpace(char c) { return KindOf(c) == kSpace; }
inline bool IsDelimiter(char c) { return KindOf(c) == kDelimiter; }

/// A name of up to eight bytes as a number, so that a compiler can tell names apart without
/// comparing them one after the other; 0 for longer ones.
constexpr std::uint64_t Packed(std::string_view name) {
  if (name.size() > sizeof(std::uint64_t)) return 0;
  std::uint64_t packed = 0;
  for (const char c : name) packed = packed << 8 | static_cast<unsigned char>(c);
  return packed;
}

/// By which a text editor's pages are turned.
inline constexpr std::string_view kEditorTurn = "sl";

/// By which dvips turns each of its pages clockwise, at their beginning.
inline constexpr std::string_view kDvipsTurn = "@landscape";

/// Of a word of numerals; what is no number counts as 0.
double ValueOf(std::string_view number);

/// Whether a program has an operator that may turn what follows it. Much faster than reading it.
bool MayTurn(std::string_view text);

}  // namespace zarvo
