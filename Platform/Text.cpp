// SPDX-License-Identifier: Apache-2.0
#include "Platform/Text.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace zarvo {

std::optional<std::string> MakeString(std::string_view utf8) {
  // ASCII is its own normal form; almost every option value is ASCII.
  if (std::all_of(utf8.begin(), utf8.end(),
                  [](char c) { return static_cast<signed char>(c) >= 0; }))
    return std::string(utf8);
  utf8proc_uint8_t* normal = nullptr;
  const auto flags = static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE);
  const utf8proc_ssize_t length =
      utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(utf8.data()),
                   static_cast<utf8proc_ssize_t>(utf8.size()), &normal, flags);
  const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(normal, &std::free);
  if (length < 0) return std::nullopt;
  return std::string(reinterpret_cast<const char*>(normal), static_cast<std::size_t>(length));
}

std::string_view Utf8Prefix(std::string_view text, std::size_t max_bytes) {
  if (text.size() <= max_bytes) return text;
  std::size_t end = max_bytes;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  return text.substr(0, end);
}

}  // namespace zarvo
