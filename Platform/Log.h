// SPDX-License-Identifier: Apache-2.0
// The one way out for diagnostics.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace zarvo {

/// Formats one diagnostic and writes it, ended by a line feed, to standard error in one write.
/// The text begins with the spooler's prefix: "ERROR: ", "INFO: " or "DEBUG: ". Every control
/// character (bytes 0 to 31 and 127) is shown as "?": option text must never start a log line of
/// its own, because the spooler acts on lines such as "STATE:" and "PPD:". Write errors are
/// ignored; there is nowhere left to report them.
[[gnu::format(printf, 1, 2)]] void LogLine(const char* format, ...);

/// Writes several such lines, given without format, in one write: for places that log at every
/// page.
void LogLines(std::initializer_list<std::string_view> lines);

/// The text with every control character replaced by "?".
std::string PrintableText(std::string_view text);

}  // namespace zarvo
