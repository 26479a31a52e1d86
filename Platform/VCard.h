// SPDX-License-Identifier: Apache-2.0
// vCard 3.0 (RFC 2426): reading and writing of one card, without losing what is not understood.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zarvo {

/// One line of a card, unfolded: `head` is the name with an optional group before it and
/// parameters after it ("item1.TEL;TYPE=WORK,FAX"), `value` what follows the colon, still escaped.
struct VCardProperty {
  std::string head;
  std::string value;

  /// Whether the property has this name; group and letter case do not matter.
  bool Is(std::string_view name) const;
};

/// A card: its properties in file order, VERSION included, without the BEGIN and END lines.
struct VCard {
  std::vector<VCardProperty> properties;
};

/// Reads a file that holds exactly one card. Nothing when it holds none or several, or a line that
/// is no property: such a file could not be written again without a loss. Lines may end in LF
/// alone. Time and memory are linear in the length of the text.
std::optional<VCard> ParseVCard(std::string_view text);

/// The card as a file: lines ended by CR LF and folded so that none is longer than 75 bytes, never
/// inside a UTF-8 character.
std::string FormatVCard(const VCard& card);

/// The text as a property value: backslash, comma, semicolon and line breaks escaped, other
/// control characters (tabs aside) left out.
std::string VCardValue(std::string_view text);
/// The text that a property value stands for.
std::string VCardText(std::string_view value);

/// The text of the first property of this name, or nothing.
std::optional<std::string> VCardFindText(const VCard& card, std::string_view name);

}  // namespace zarvo
