// SPDX-License-Identifier: Apache-2.0
#include "Source/NearestName.h"

#include <algorithm>
#include <numeric>

namespace zarvo {
namespace {

/// Lower case of ASCII letters, whatever the locale.
std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

}  // namespace

std::size_t EditDistance(std::string_view left, std::string_view right) {
  // Three rows of the usual table: the one being filled, and the two above it.
  std::vector<std::size_t> now(right.size() + 1);
  std::iota(now.begin(), now.end(), 0U);
  std::vector<std::size_t> above(now.size());
  std::vector<std::size_t> higher(now.size());
  for (std::size_t i = 1; i <= left.size(); ++i) {
    higher.swap(above);
    above.swap(now);
    now[0] = i;
    for (std::size_t j = 1; j <= right.size(); ++j) {
      const std::size_t changed = above[j - 1] + (left[i - 1] == right[j - 1] ? 0 : 1);
      now[j] = std::min({changed, above[j] + 1, now[j - 1] + 1});
      if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1])
        now[j] = std::min(now[j], higher[j - 2] + 1);
    }
  }
  return now.back();
}

std::string NearestName(std::string_view name, const std::vector<std::string>& candidates) {
  constexpr std::size_t kLongestName = 200;
  if (name.size() > kLongestName) return "";
  const std::string wanted = Lower(name);
  // The prefix that most keys share says nothing about which one was meant.
  const std::size_t shared = wanted.rfind('.') == std::string::npos ? 0 : wanted.rfind('.');
  const std::size_t most = std::max<std::size_t>((wanted.size() - shared) / 3, 1);
  std::string nearest;
  std::size_t least = most + 1;
  for (const std::string& candidate : candidates) {
    // A name longer or shorter by more than that cannot be near.
    if (candidate.size() > wanted.size() + most || candidate.size() + most < wanted.size())
      continue;
    const std::size_t distance = EditDistance(wanted, Lower(candidate));
    if (distance >= least) continue;
    least = distance;
    nearest = candidate;
  }
  return nearest;
}

}  // namespace zarvo
