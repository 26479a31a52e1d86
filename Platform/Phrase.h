// SPDX-License-Identifier: Apache-2.0
// Texts for people, which programs with a window tell in the person's language.
//
// Every text is written once, in English, where it is needed. What looks it up in another language
// does so by the form, the text with %1 to %9 where something else stands; Tools/desk-texts finds
// the forms in the sources by the names of these functions, so each takes a literal.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zarvo {

/// The English text: the form with each argument in its place.
inline std::string Phrase(std::string_view form,
                          std::initializer_list<std::string_view> arguments = {}) {
  std::string text;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const bool place = form[i] == '%' && i + 1 < form.size() && form[i + 1] >= '1' &&
                       static_cast<std::size_t>(form[i + 1] - '1') < arguments.size();
    if (place) {
      text += arguments.begin()[form[++i] - '1'];
    } else {
      text += form[i];
    }
  }
  return text;
}

/// A text without places, where a constant is needed.
constexpr std::string_view PhraseText(std::string_view text) { return text; }

}  // namespace zarvo
