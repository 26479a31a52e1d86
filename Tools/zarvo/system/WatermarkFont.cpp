// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/WatermarkFont.h"

#include <cstdio>

#include <optional>

namespace zarvo::tool {
namespace {

/// A PFB file is a row of segments: 128, its kind, its length in four bytes, lowest first.
constexpr char kSegmentMark = '\x80';
constexpr std::size_t kSegmentHead = 6;
enum SegmentKind : char { kText = 1, kBinary = 2, kEnd = 3 };

void AppendHex(std::string_view bytes, Data* font) {
  constexpr std::size_t kBytesInALine = 32;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned char>(bytes[i]));
    font->insert(font->end(), digits, digits + 2);
    if (i % kBytesInALine == kBytesInALine - 1 || i + 1 == bytes.size()) font->push_back('\n');
  }
}

std::optional<Data> UnpackType1(std::string_view file) {
  Data font;
  while (file.size() >= 2 && file[0] == kSegmentMark && file[1] != kEnd) {
    if (file.size() < kSegmentHead) return std::nullopt;
    const bool binary = file[1] == kBinary;
    std::size_t length = 0;
    for (std::size_t i = kSegmentHead; i-- > 2;)
      length = length * 256 + static_cast<unsigned char>(file[i]);
    file.remove_prefix(kSegmentHead);
    if (length > file.size()) return std::nullopt;
    const std::string_view content = file.substr(0, length);
    file.remove_prefix(length);
    if (binary) {
      AppendHex(content, &font);
    } else {
      for (const char c : content) font.push_back(c == '\r' ? '\n' : static_cast<std::uint8_t>(c));
    }
  }
  return font.empty() ? std::nullopt : std::optional(std::move(font));
}

}  // namespace

Failure PrinterFont(std::string_view file, Data* font) {
  if (file.starts_with("%!")) {
    font->assign(file.begin(), file.end());
    return "";
  }
  if (file.empty() || file[0] != kSegmentMark) return "is no PostScript font (PFA, PFB or Type 42)";
  std::optional<Data> unpacked = UnpackType1(file);
  if (!unpacked) return "is a damaged Type 1 font";
  *font = *std::move(unpacked);
  return "";
}

std::string FontName(const Data& font) {
  const std::string_view text(reinterpret_cast<const char*>(font.data()), font.size());
  constexpr std::string_view kKey = "/FontName";
  const std::size_t key = text.find(kKey);
  if (key == std::string_view::npos) return "";
  const std::size_t slash = text.find('/', key + kKey.size());
  if (slash == std::string_view::npos) return "";
  const std::size_t end = text.find_first_of(" \t\r\n/", slash + 1);
  return std::string(text.substr(slash + 1, end - slash - 1));
}

}  // namespace zarvo::tool
