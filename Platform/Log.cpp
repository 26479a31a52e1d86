// SPDX-License-Identifier: Apache-2.0
#include "Platform/Log.h"

#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

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

}  // namespace

std::string PrintableText(std::string_view text) {
  std::string result(text);
  char* before = nullptr;
  for (char& c : result) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 32 || byte == 127) c = '?';
    // U+0080 to U+009F in UTF-8; U+009B steers a terminal as ESC and "[" do.
    if (byte >= 0x80 && byte < 0xA0 && before != nullptr && *before == '\xC2') *before = c = '?';
    before = &c;
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

  WriteOut(PrintableText(text) + '\n');
}

void LogLines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text += PrintableText(line) + '\n';
  WriteOut(text);
}

}  // namespace zarvo
