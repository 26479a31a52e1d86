// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvodraw/DrawableText.h"

#include <glib.h>

#include <memory>

namespace zarvo {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool IsNoncharacter(gunichar c) { return (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF); }

}  // namespace

std::string DrawableText(std::string_view text) {
  const std::unique_ptr<gchar, decltype(&g_free)> valid(
      g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())), &g_free);
  std::string drawable;
  for (const gchar* at = valid.get(); *at != '\0';) {
    const gchar* next = g_utf8_next_char(at);
    drawable += IsNoncharacter(g_utf8_get_char(at)) ? kReplacement : std::string_view(at, next);
    at = next;
  }
  return drawable;
}

}  // namespace zarvo
