// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/TicketReading.h"

#include <algorithm>
#include <limits>

#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

/// The entity of an XML special character, or an empty text.
std::string_view EntityOf(char c) {
  switch (c) {
    case '"':
      return "&quot;";
    case '&':
      return "&amp;";
    case '\'':
      return "&apos;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    default:
      return "";
  }
}

/// How many bytes at the start of `text` are a character that XML 1.0 cannot hold; 0 when none.
std::size_t ForbiddenLength(std::string_view text) {
  const auto byte = static_cast<unsigned char>(text[0]);
  if (byte < 0x20 && byte != '\t' && byte != '\n' && byte != '\r') return 1;
  return text.starts_with("\xEF\xBF\xBE") || text.starts_with("\xEF\xBF\xBF") ? 3 : 0;
}

}  // namespace

std::string XMLCreateStringByEscapingEntities(std::string_view string) {
  std::string result;
  result.reserve(string.size());
  while (!string.empty()) {
    const std::size_t forbidden = ForbiddenLength(string);
    const std::string_view entity = EntityOf(string[0]);
    if (forbidden != 0) {
      result += '?';
    } else if (!entity.empty()) {
      result += entity;
    } else {
      result += string[0];
    }
    string.remove_prefix(std::max<std::size_t>(forbidden, 1));
  }
  return result;
}

const char* EscapedTexts::Take(const Dictionary& dictionary, std::string_view key) {
  const std::string* text = DictionaryGetString(dictionary, key);
  if (text == nullptr) return nullptr;
  return texts_.emplace_back(XMLCreateStringByEscapingEntities(*text)).c_str();
}

std::int32_t NumberOr(const Dictionary& dictionary, std::string_view key, std::int32_t fallback) {
  CFDictionaryGetNumber(dictionary, key, &fallback);
  return fallback;
}

std::optional<std::int32_t> NumberIfPresent(const Dictionary& dictionary, std::string_view key) {
  if (!DictionaryContains(dictionary, key)) return std::nullopt;
  return NumberOr(dictionary, key, 0);
}

std::int32_t Scaled(std::int32_t value, double factor) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(
      std::clamp(value * factor, double{Limits::min()}, double{Limits::max()}));
}

bool HasFullPrecision(const Dictionary& dictionary) {
  // Any value but the boolean false turns it on.
  return DictionaryContains(dictionary, key::shift::kFullPrecision) &&
         DictionaryGetBoolean(dictionary, key::shift::kFullPrecision).value_or(true);
}

int MapCode(std::span<const CodePair> table, std::int32_t code, int fallback) {
  for (const CodePair& row : table) {
    if (row.ticket == code) return row.record;
  }
  return fallback;
}

}  // namespace zarvo
