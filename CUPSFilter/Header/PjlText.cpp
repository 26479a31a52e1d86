// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Header/PjlText.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace zarvo {

std::string PjlText(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    if (c == '\n' || c == '\r' || c == '\f' || c == '\x1b') c = ' ';
  }
  return result;
}

std::string PostScriptText(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\\' || c == '(' || c == ')') {
      result += '\\';
      result += c;
    } else if (byte < 32 || byte == 127) {
      char octal[5];
      std::snprintf(octal, sizeof octal, "\\%03o", byte);
      result += octal;
    } else {
      result += c;
    }
  }
  return result;
}

std::string PostScriptName(std::string_view text) {
  const bool is_regular = std::all_of(text.begin(), text.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > ' ' && byte != 127 && std::strchr("()<>[]{}/%", c) == nullptr;
  });
  if (is_regular) return "/" + std::string(text);
  return "(" + PostScriptText(text) + ") cvn";
}

}  // namespace zarvo
