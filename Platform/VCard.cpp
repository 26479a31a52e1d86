// SPDX-License-Identifier: Apache-2.0
#include "Platform/VCard.h"

#include <strings.h>

#include <utility>

#include "Platform/Text.h"

namespace zarvo {
namespace {

constexpr std::size_t kMaxLineBytes = 75;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool SameWord(std::string_view left, std::string_view right) {
  return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

std::string_view CutLine(std::string_view* text) {
  const std::size_t end = text->find('\n');
  std::string_view line = text->substr(0, end);
  text->remove_prefix(end == std::string_view::npos ? text->size() : end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

/// The next line with its continuation lines joined to it.
std::string CutUnfoldedLine(std::string_view* text) {
  std::string line(CutLine(text));
  while (!text->empty() && (text->front() == ' ' || text->front() == '\t')) {
    text->remove_prefix(1);
    line += CutLine(text);
  }
  return line;
}

/// Cuts a line at its first colon outside double quotes. A name that begins with a blank (a
/// continuation of an empty line) could not be told from a continuation when it is written again.
std::optional<VCardProperty> ParseProperty(std::string_view line) {
  if (line.starts_with(' ') || line.starts_with('\t')) return std::nullopt;
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"') quoted = !quoted;
    if (quoted || line[i] != ':') continue;
    if (i == 0) break;
    return VCardProperty{std::string(line.substr(0, i)), std::string(line.substr(i + 1))};
  }
  return std::nullopt;
}

bool IsFrame(const VCardProperty& property, std::string_view name) {
  return property.Is(name) && SameWord(property.value, "VCARD");
}

void AppendFolded(std::string_view line, std::string* file) {
  // The blank that marks a continuation line counts towards its length.
  for (std::size_t room = kMaxLineBytes; line.size() > room; room = kMaxLineBytes - 1) {
    std::size_t length = Utf8Prefix(line, room).size();
    if (length == 0) length = room;  // no UTF-8 character is that long: bytes of some other kind
    file->append(line.substr(0, length)).append("\r\n ");
    line.remove_prefix(length);
  }
  file->append(line).append("\r\n");
}

}  // namespace

bool VCardProperty::Is(std::string_view name) const {
  std::string_view word = std::string_view(head).substr(0, head.find(';'));
  if (const std::size_t dot = word.rfind('.'); dot != std::string_view::npos)
    word.remove_prefix(dot + 1);
  return SameWord(word, name);
}

std::optional<VCard> ParseVCard(std::string_view text) {
  if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark)
    text.remove_prefix(kByteOrderMark.size());
  VCard card;
  enum { kBefore, kInside, kAfter } place = kBefore;
  while (!text.empty()) {
    const std::string line = CutUnfoldedLine(&text);
    if (line.find_first_not_of(" \t") == std::string::npos) continue;
    std::optional<VCardProperty> property = ParseProperty(line);
    if (!property) return std::nullopt;
    const bool begin = IsFrame(*property, "BEGIN");
    if (place == kAfter || begin != (place == kBefore)) return std::nullopt;
    if (begin) {
      place = kInside;
    } else if (IsFrame(*property, "END")) {
      place = kAfter;
    } else {
      card.properties.push_back(std::move(*property));
    }
  }
  if (place != kAfter) return std::nullopt;
  return card;
}

std::string FormatVCard(const VCard& card) {
  std::string file = "BEGIN:VCARD\r\n";
  for (const VCardProperty& property : card.properties)
    AppendFolded(property.head + ":" + property.value, &file);
  return file += "END:VCARD\r\n";
}

std::string VCardValue(std::string_view text) {
  std::string value;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\\' || c == ',' || c == ';') {
      value += '\\';
      value += c;
    } else if (c == '\n' || (c == '\r' && text.substr(i + 1, 1) != "\n")) {
      value += "\\n";
    } else if (c == '\t' || (static_cast<unsigned char>(c) >= 0x20 && c != 0x7F)) {
      value += c;
    }
  }
  return value;
}

std::string VCardText(std::string_view value) {
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] == '\\' && i + 1 < value.size()) {
      ++i;
      text += value[i] == 'n' || value[i] == 'N' ? '\n' : value[i];
    } else {
      text += value[i];
    }
  }
  return text;
}

std::optional<std::string> VCardFindText(const VCard& card, std::string_view name) {
  for (const VCardProperty& property : card.properties) {
    if (property.Is(name)) return VCardText(property.value);
  }
  return std::nullopt;
}

}  // namespace zarvo
