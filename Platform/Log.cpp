// SPDX-License-Identifier: Apache-2.0
#include "Platform/Log.h"

#include <unistd.h>
#include <utf8proc.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include "Platform/Text.h"

namespace zarvo {

namespace {

/// One write, so that lines of parallel processes on one log never mix.
void WriteOut(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(STDERR_FILENO, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

/// What moves the cursor, ends a line, or makes the rest of it read in another order.
bool IsControl(utf8proc_int32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) ||        // C0, DEL, C1
         character == 0x061C || character == 0x200E || character == 0x200F ||  // marks
         (character >= 0x2028 && character <= 0x202E) ||  // line ends; embeddings, overrides
         (character >= 0x2066 && character <= 0x2069);    // isolates
}

std::string OneLine(std::string_view text) {
  std::string line = PrintableText(text);
  if (line.size() > kLongestLogLine) {
    constexpr std::string_view kCut = "...";
    line.resize(Utf8Prefix(line, kLongestLogLine - kCut.size()).size());
    line += kCut;
  }
  return line + '\n';
}

}  // namespace

std::string PrintableText(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    utf8proc_int32_t character = 0;
    const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                         static_cast<utf8proc_ssize_t>(text.size()), &character);
    // A byte that is no UTF-8 is taken for a character of its own, as many terminals do.
    const auto bytes = static_cast<std::size_t>(length > 0 ? length : 1);
    if (length <= 0) character = static_cast<unsigned char>(text.front());
    if (IsControl(character)) {
      result.append(bytes, '?');
    } else {
      result += text.substr(0, bytes);
    }
    text.remove_prefix(bytes);
  }
  return result;
}

void LogLine(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  va_end(arguments);
  std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
  if (length > 0) std::vsnprintf(text.data(), text.size() + 1, format, again);
  va_end(again);

  WriteOut(OneLine(text));
}

void LogLines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text += OneLine(line);
  WriteOut(text);
}

}  // namespace zarvo
