// SPDX-License-Identifier: Apache-2.0
// The values of an IPP attribute, read by what they mean. Clients of spoolers send integers as
// names and keywords as texts when their library does not know the attribute; all of that is taken.
#pragma once

#include <cups/ipp.h>

#include <cstdint>
#include <optional>
#include <string>

namespace zarvo {

struct PageRange {
  std::int32_t low = 0;
  std::int32_t high = 0;
  bool operator==(const PageRange&) const = default;
};

/// A view of an attribute of a message that outlives it; of none, it has no values.
class Attribute {
 public:
  explicit Attribute(ipp_attribute_t* attribute) : attribute_(attribute) {}

  /// Whether there are values; those that are out of band are none.
  explicit operator bool() const;
  int count() const;

  /// Every value but a collection as a text: a number in decimal, true and false, a range as "1-4",
  /// a resolution as "600x1200dpi", an octet string byte for byte. Nothing for a collection or
  /// where there is no such value.
  std::optional<std::string> Text(int index = 0) const;
  /// A whole number or a text that is nothing else.
  std::optional<std::int32_t> Integer(int index = 0) const;
  std::optional<bool> Boolean(int index = 0) const;
  /// A range, or a number or text that stands for one ("4", "1-4").
  std::optional<PageRange> Range(int index = 0) const;
  /// Seconds since 1904-01-01 00:00:00 local time of a dateTime, or of a text as
  /// "2027-01-31T18:00:00" with or without "Z" (then it is UTC).
  std::optional<std::int64_t> LocalSeconds(int index = 0) const;
  /// The collection; it belongs to the message. Null for any other value.
  ipp_t* Collection(int index = 0) const;
  /// Whether the value is a name or a text: something its owner made up, not a registered keyword.
  bool IsName(int index = 0) const;

 private:
  ipp_attribute_t* attribute_;
};

/// The first attribute of that name in a message or collection; null gives none.
Attribute FindAttribute(ipp_t* message, const char* name);

}  // namespace zarvo
