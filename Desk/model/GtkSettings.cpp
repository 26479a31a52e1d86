// SPDX-License-Identifier: Apache-2.0
#include "Desk/model/GtkSettings.h"

#include <sstream>
#include <string_view>

namespace zarvo::desk {
namespace {

/// Key files escape blanks at the ends and line ends.
std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escaped = text[i] == '\\' && i + 1 < text.size();
    const char c = escaped ? text[++i] : text[i];
    plain += !escaped ? c : c == 's' ? ' ' : c == 'n' ? '\n' : c == 't' ? '\t' : c;
  }
  return plain;
}

}  // namespace

GtkSettings ReadGtkSettings(const std::string& text) {
  GtkSettings settings;
  std::istringstream lines(text);
  constexpr std::string_view kOption = "cups-";
  for (std::string line; std::getline(lines, line);) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos || equals == 0) continue;
    const std::string name = line.substr(0, equals);
    const std::string value = Unescaped(std::string_view(line).substr(equals + 1));
    if (name == "printer") {
      settings.queue = value;
    } else if (name == "title") {
      settings.title = value;
    } else if (name == "n-copies" && value != "1") {
      settings.ticket.insert_or_assign("copies", Value(value));
    } else if (name == "duplex" && (value == "horizontal" || value == "vertical")) {
      settings.ticket.insert_or_assign(
          "sides", Value(value == "horizontal" ? "two-sided-long-edge" : "two-sided-short-edge"));
    } else if (name.starts_with(kOption) && !value.empty()) {
      settings.ticket.insert_or_assign(name.substr(kOption.size()), Value(value));
    }
  }
  return settings;
}

}  // namespace zarvo::desk
