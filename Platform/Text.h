// SPDX-License-Identifier: Apache-2.0
// Helpers for text: UTF-8 and lines.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zarvo {

/// The text in Unicode Normalisation Form C, or nothing when it is not valid UTF-8.
std::optional<std::string> MakeString(std::string_view utf8);

/// The longest prefix of at most `max_bytes` bytes that does not end inside a UTF-8 character.
std::string_view Utf8Prefix(std::string_view text, std::size_t max_bytes);

/// Whether `part` stands anywhere in the text.
inline bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

/// The line without the carriage returns and line feeds at its end.
inline std::string_view WithoutLineEnd(std::string_view line) {
  while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
  return line;
}

}  // namespace zarvo
