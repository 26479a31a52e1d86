// SPDX-License-Identifier: Apache-2.0
// Pages as people type them: "5-8, 12".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zarvo::desk {

/// First and last page.
using PageRange = std::pair<std::uint32_t, std::uint32_t>;

/// The ranges of the text, in their order; nothing when it is no list of pages. At most 1000.
std::optional<std::vector<PageRange>> ReadPageRanges(const std::string& text);

/// The pages as such a text, ranges where they follow one another.
std::string WritePageRanges(std::vector<std::uint32_t> pages);

}  // namespace zarvo::desk
