// SPDX-License-Identifier: Apache-2.0
// What the section drivers share: numbers, code tables and XML-safe texts from the ticket.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "Platform/Value.h"

namespace zarvo {

/// The text with the five XML special characters written as entities. Characters that XML 1.0
/// cannot hold at all (control characters but tab, line feed and carriage return; U+FFFE; U+FFFF)
/// become one "?" each, or the printer would refuse the whole ticket.
std::string XMLCreateStringByEscapingEntities(std::string_view string);

/// Texts of the ticket made XML-safe, kept as long as the record that points at them.
class EscapedTexts {
 public:
  /// The text under `key`, or null when the key is absent or its value is no string. The pointer
  /// is valid as long as this object.
  const char* Take(const Dictionary& dictionary, std::string_view key);

 private:
  std::deque<std::string> texts_;  // never moves what it holds
};

/// The number under `key`, or `fallback` when the key is absent or its value is no number.
std::int32_t NumberOr(const Dictionary& dictionary, std::string_view key, std::int32_t fallback);

/// The number under `key`; 0 when its value is no number; nothing when the key is absent.
std::optional<std::int32_t> NumberIfPresent(const Dictionary& dictionary, std::string_view key);

/// `value` times `factor`, truncated toward zero and held inside the 32-bit range.
std::int32_t Scaled(std::int32_t value, double factor);

/// Whether the shifts of a dictionary are in the ticket format's unit already.
bool HasFullPrecision(const Dictionary& dictionary);

/// A code of the job ticket and the record's code for it.
struct CodePair {
  std::int32_t ticket;
  int record;
};
/// The record's code of `code`, or `fallback` when the table does not list it.
int MapCode(std::span<const CodePair> table, std::int32_t code, int fallback);

}  // namespace zarvo
