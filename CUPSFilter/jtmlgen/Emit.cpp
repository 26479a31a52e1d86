// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {
namespace {

const char* SyntaxAttribute(Syntax syntax) {
  switch (syntax) {
    case Syntax::kInteger:
      return "syntax=\"integer\"";
    case Syntax::kSpacedInteger:
      return "syntax =\"integer\"";
    case Syntax::kEnum:
      return "syntax=\"enum\"";
    case Syntax::kKeyword:
      return "syntax=\"keyword\"";
    case Syntax::kName:
      return "syntax=\"name\" xml:space=\"preserve\"";
    case Syntax::kText:
      return "syntax=\"text\" xml:space=\"preserve\"";
    case Syntax::kUri:
      return "syntax=\"uri\"";
    case Syntax::kMimeMediaType:
      return "syntax=\"mimeMediaType\"";
    case Syntax::kRangeOfInteger:
      return "syntax=\"rangeOfInteger\"";
    case Syntax::kResolution:
      return "syntax=\"resolution\"";
    case Syntax::kCollection:
      return "syntax=\"collection\"";
    case Syntax::kSetOf:
      return "syntax=\"1setOf\"";
  }
  return "";
}

std::string Tabs(int indent) { return std::string(static_cast<std::size_t>(indent), '\t'); }

std::string CloseTag(std::string_view name) { return std::string("</").append(name).append(">"); }

}  // namespace

std::string OpenTag(std::string_view name, Syntax syntax) {
  return std::string("<").append(name).append(" ").append(SyntaxAttribute(syntax)).append(">");
}

std::string StartLine(int indent, std::string_view name, Syntax syntax) {
  return Tabs(indent) + OpenTag(name, syntax) + '\n';
}

std::string EndLine(int indent, std::string_view name) {
  return Tabs(indent) + CloseTag(name) + '\n';
}

std::string Element(int indent, std::string_view name, Syntax syntax, std::string_view content) {
  return (Tabs(indent) + OpenTag(name, syntax)).append(content) + CloseTag(name) + '\n';
}

std::string Element(int indent, std::string_view name, std::int64_t number) {
  return Element(indent, name, Syntax::kInteger, std::to_string(number));
}

const char* FindKeyword(std::span<const Keyword> table, int code) {
  for (const Keyword& row : table) {
    if (row.code == code) return row.text;
  }
  return nullptr;
}

void Send(const JtmlSink* sink, const std::string& text) {
  sink->lpfnDevWriteData(sink->lpdv, text.c_str(), static_cast<std::int32_t>(text.size()));
}

void SendUncounted(const JtmlSink* sink, const std::string& text) {
  sink->lpfnDevWriteData(nullptr, text.c_str(), 0);
}

}  // namespace zarvo
