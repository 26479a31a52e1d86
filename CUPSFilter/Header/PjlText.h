// SPDX-License-Identifier: Apache-2.0
// Ticket text on its way into the job's command lines and PostScript strings.
#pragma once

#include <string>
#include <string_view>

namespace zarvo {

/// The text for a PJL line: line feed, carriage return, form feed and ESC become one blank each,
/// because they would end the line and let the rest of the text be read as a command. Everything
/// else, quotes included, stays as it is.
std::string PjlText(std::string_view text);

/// The text for the inside of a PostScript string in parentheses: backslash and parentheses get a
/// backslash before them, control characters become octal escapes. The string's value is unchanged,
/// and no byte of it can end the string, the line or, as the universal exit sequence, the job.
std::string PostScriptText(std::string_view text);

/// The text as a PostScript name: with a slash before it when every byte may stand in a name, else
/// as a string in parentheses that is converted.
std::string PostScriptName(std::string_view text);

}  // namespace zarvo
