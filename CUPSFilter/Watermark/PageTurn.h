// SPDX-License-Identifier: Apache-2.0
// How a page lies on its sheet. Spoolers and programs turn landscape pages onto portrait paper
// without a mark; only the page's own program shows it. Its beginning is read as far as that takes:
// the operators that turn the page and show text, under the names that converters give them. What
// is not understood is passed over, so the answer is a guess, but one that most of the text agrees
// on.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace zarvo {

/// As much of a page as LookAtPage() looks at, in bytes.
constexpr std::size_t kPageHead = 16 * 1024;

/// Quarter turns counterclockwise, or one of these.
constexpr int kLandscape = 4;  ///< a quarter turn on paper that is higher than wide

struct PageLook {
  /// How the page lies on its sheet; nothing when neither its text nor its turns nor a comment
  /// tell.
  std::optional<int> turn;
  /// What its pictures cover, in square points,
  double pictures = 0;
  /// and whether it is drawn without any text.
  bool drawing = false;
};

/// Looks at the page whose program (after its %%Page comment) begins so. Takes time in proportion
/// to the length.
PageLook LookAtPage(std::string_view head);

/// What an orientation comment says from its colon on.
std::optional<int> TurnOfComment(std::string_view value);

}  // namespace zarvo
