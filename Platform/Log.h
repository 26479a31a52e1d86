// SPDX-License-Identifier: Apache-2.0
// The one way out for diagnostics.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zarvo {

/// In bytes, without its line feed. The spooler reads lines into 2048 bytes and takes what is
/// beyond them for a line of its own, which it may act on.
constexpr std::size_t kLongestLogLine = 1023;

/// Formats one diagnostic and writes it, ended by a line feed, to standard error in one write.
/// The text begins with the spooler's prefix: "ERROR: ", "WARNING: ", "INFO: " or "DEBUG: ". Option
/// text must never start a log line of its own, because the spooler acts on lines such as "STATE:"
/// and "PPD:"; so controls are shown as "?" (see PrintableText), and a line that is too long is cut
/// between two characters and ends in "...". Write errors are ignored; there is nowhere left to
/// report them.
[[gnu::format(printf, 1, 2)]] void LogLine(const char* format, ...);

/// Writes several such lines, given without format, in one write: for places that log at every
/// page.
void LogLines(std::initializer_list<std::string_view> lines);

/// The text with a "?" for each byte of a control: bytes 0 to 31 and 127, the C1 controls, what
/// ends a line and what turns the direction of writing.
std::string PrintableText(std::string_view text);

}  // namespace zarvo
