// SPDX-License-Identifier: Apache-2.0
// The frame of a ticket element, and the way to the sink; for the writers only.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// The value types of the ticket format, each named by an element's `syntax` attribute.
enum class Syntax : std::uint8_t {
  kInteger,
  kSpacedInteger,  ///< an integer whose attribute is spelled with a blank, as the printer knows it
  kEnum,
  kKeyword,
  kName,  ///< preserves white space, like kText
  kText,
  kUri,
  kMimeMediaType,
  kRangeOfInteger,
  kResolution,
  kCollection,
  kSetOf,
};

/// `<name syntax="...">`, without indentation or line feed.
std::string OpenTag(std::string_view name, Syntax syntax);
/// The start line of an element that holds others, behind `indent` tabs.
std::string StartLine(int indent, std::string_view name, Syntax syntax);
std::string EndLine(int indent, std::string_view name);
/// An element of one line.
std::string Element(int indent, std::string_view name, Syntax syntax, std::string_view content);
/// An integer element.
std::string Element(int indent, std::string_view name, std::int64_t number);

/// One code of a record and the word that the ticket format has for it.
struct Keyword {
  int code;
  const char* text;
};
/// The word of `code`, or null when the table does not list it.
const char* FindKeyword(std::span<const Keyword> table, int code);

/// The text itself, or an empty one for null.
inline const char* TextOrEmpty(const char* text) { return text != nullptr ? text : ""; }

/// Hands a text to the sink with its context and length.
void Send(const JtmlSink* sink, const std::string& text);
/// Hands a text to the sink with a null context and a length of 0.
void SendUncounted(const JtmlSink* sink, const std::string& text);

}  // namespace zarvo
