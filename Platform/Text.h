// SPDX-License-Identifier: Apache-2.0
// UTF-8 text helpers.
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

}  // namespace zarvo
