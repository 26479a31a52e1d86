// SPDX-License-Identifier: Apache-2.0
#include "Desk/model/PageRanges.h"

#include <algorithm>
#include <charconv>

namespace zarvo::desk {

std::optional<std::vector<PageRange>> ReadPageRanges(const std::string& text) {
  constexpr std::size_t kMost = 1000;
  std::vector<PageRange> ranges;
  std::string dense;
  std::copy_if(text.begin(), text.end(), std::back_inserter(dense),
               [](char c) { return c != ' '; });
  const char* at = dense.data();
  const char* const end = at + dense.size();
  const auto number = [&](std::uint32_t* value) {
    const auto [stop, error] = std::from_chars(at, end, *value);
    at = stop;
    return error == std::errc() && *value > 0;
  };
  while (at < end) {
    PageRange range;
    if (!number(&range.first)) return std::nullopt;
    range.second = range.first;
    if (at < end && *at == '-') {
      ++at;
      if (!number(&range.second)) return std::nullopt;
    }
    if (range.second < range.first || ranges.size() == kMost) return std::nullopt;
    ranges.push_back(range);
    if (at < end && *at++ != ',') return std::nullopt;
  }
  if (ranges.empty() || dense.ends_with(',')) return std::nullopt;
  return ranges;
}

std::string WritePageRanges(std::vector<std::uint32_t> pages) {
  std::sort(pages.begin(), pages.end());
  pages.erase(std::unique(pages.begin(), pages.end()), pages.end());
  std::string text;
  for (std::size_t i = 0; i < pages.size();) {
    std::size_t last = i;
    while (last + 1 < pages.size() && pages[last + 1] == pages[last] + 1) ++last;
    text += (text.empty() ? "" : ", ") + std::to_string(pages[i]);
    if (last > i) text += "-" + std::to_string(pages[last]);
    i = last + 1;
  }
  return text;
}

}  // namespace zarvo::desk
