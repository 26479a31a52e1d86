// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Watermark/PageProgram.h"

#include <charconv>
#include <cmath>
#include <cstddef>

#include "CUPSFilter/CopyPass/LineScan.h"

namespace zarvo {
namespace {

/// Whether the matrix in front of an operator leaves what it holds for upright as it is. What is
/// not seen at a glance does not.
bool IsUprightMatrix(std::string_view before) {
  if (before.ends_with("[1 0 0 1 0 0] ")) return true;  // as one converter begins each line
  while (!before.empty() && (IsSpace(before.back()) || before.back() == ']'))
    before.remove_suffix(1);
  constexpr std::size_t kLongest = 120;
  std::size_t at = before.size();
  std::array<std::string_view, 6> operands;
  for (std::size_t i = operands.size(); i-- > 0;) {
    while (at > 0 && IsSpace(before[at - 1])) --at;
    const std::size_t end = at;
    while (at > 0 && KindOf(before[at - 1]) == kNumeral && before.size() - at < kLongest) --at;
    if (at == end) return false;
    operands[i] = before.substr(at, end - at);
  }
  return operands[0][0] != '-' && operands[0] != "0" && operands[1] == "0" && operands[2] == "0";
}

}  // namespace

double ValueOf(std::string_view number) {
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  return std::isfinite(value) ? value : 0;
}

bool MayTurn(std::string_view text) {
  const char* const end = text.data() + text.size();
  const char* at = text.data();
  while ((at = NextTurningName(at, end)) != end) {
    const std::string_view rest(at, static_cast<std::size_t>(end - at));
    const auto before = static_cast<std::size_t>(at - text.data());
    const auto ends_at = [&](std::size_t length) {
      return rest.size() <= length || (KindOf(rest[length]) & (kSpace | kDelimiter)) != 0;
    };
    const bool matrix = (rest.starts_with("cm") || rest.starts_with("Tm")) && ends_at(2);
    if (matrix ? !IsUprightMatrix(text.substr(0, before))
               : rest.starts_with("otate") || rest.starts_with("ncat") ||
                     (rest.starts_with(kEditorTurn) && ends_at(kEditorTurn.size())))
      return true;
    ++at;
  }
  return false;
}

}  // namespace zarvo
