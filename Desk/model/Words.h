// SPDX-License-Identifier: Apache-2.0
// What people say for the words of the tables.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Source/TicketKeys.h"

namespace zarvo::desk {

/// English for a word of the key table: "Both sides, turned like a book" for "long-edge". Some
/// words say something else for one key, which is given by its own name.
std::string DisplayWord(std::string_view word, std::string_view key = "");
/// What the setting is about, as a title.
std::string DisplayName(const TicketKey& key);

/// All texts that come from tables: what DisplayWord and DisplayName give, and the words of an
/// explained job. They begin with a capital letter. Each is there once.
std::vector<std::string> TableTexts();

}  // namespace zarvo::desk
