// SPDX-License-Identifier: Apache-2.0
// Every key that a job ticket can hold: what it means, its type, and which values it knows. One
// constant table; checking, the readable form and the documents are made from it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zarvo {

enum class KeyType : std::uint8_t {
  kText,
  kNumber,
  kBoolean,
  kAny,         ///< presence is what counts
  kDate,        ///< seconds since 1904-01-01 00:00:00 local time; "YYYY-MM-DDThh:mm" when readable
  kDictionary,  ///< of the keys in `members`
  kList,        ///< of dictionaries of the keys in `members`
};

/// A number's word in the readable form.
struct CodeWord {
  std::int64_t code;
  const char* word;
};

struct TicketKey {
  const char* name;
  KeyType type;
  const char* meaning;
  std::int64_t low = 0;   ///< of a number
  std::int64_t high = 0;  ///< of a number
  std::span<const CodeWord> words = {};
  std::span<const TicketKey> members = {};
  /// A PIN or an account: shown only to who asks for it.
  bool secret = false;
  /// Travels in the XML ticket only, so that it needs the section switches of "JTMLOptions".
  bool xml_only = false;
};

/// The keys at the top of a ticket, in alphabetical order within each theme.
std::span<const TicketKey> TopLevelKeys();

/// The row of a key, or null.
const TicketKey* FindKey(std::span<const TicketKey> keys, std::string_view name);

/// The top-level row that `name` means: the whole key, or the part after "com.zarvo.print.".
const TicketKey* FindTopLevelKey(std::string_view name);

/// The word of a code, or null.
const char* WordOf(const TicketKey& key, std::int64_t code);

}  // namespace zarvo
