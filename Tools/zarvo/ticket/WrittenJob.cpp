// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/ticket/WrittenJob.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <pugixml.hpp>
#include <utility>

#include "CUPSFilter/Header/Envelope.h"
#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/Options/common.h"
#include "Tools/zarvo/job/Words.h"

namespace zarvo::tool {
namespace {

/// Blanks that are all there is of a text count; those between elements do not.
constexpr unsigned kXmlParts = pugi::parse_escapes | pugi::parse_ws_pcdata_single;
constexpr int kDeepest = 20;
constexpr std::string_view kCovers[] = {"cover-front", "cover-back"};
constexpr std::string_view kLists[] = {"insert-sheet", "page-overrides"};

Saying ReadLine(std::string_view line) {
  constexpr std::string_view kComment = "@PJL COMMENT ";
  constexpr std::string_view kSet = "@PJL SET ";
  const bool comment = line.starts_with(kComment);
  if (!comment && !line.starts_with(kSet)) return {std::string(line), ""};
  line.remove_prefix(comment ? kComment.size() : kSet.size());
  const std::size_t end = std::min(line.find(comment ? ' ' : '='), line.size());
  std::string_view text = line.substr(std::min(end + 1, line.size()));
  if (text.ends_with(';')) text.remove_suffix(1);
  if (text.size() >= 2 && text.front() == '"' && text.back() == '"')
    text = text.substr(1, text.size() - 2);
  return {std::string(line.substr(0, end)), std::string(text)};
}

bool IsElement(const pugi::xml_node& node) { return node.type() == pugi::node_element; }

void AddElements(const pugi::xml_node& parent, const std::string& above, int depth,
                 Sayings* sayings) {
  for (const pugi::xml_node& node : parent.children()) {
    if (!IsElement(node)) continue;
    const std::string path = above + node.name();
    const bool group = !node.find_child(&IsElement).empty();
    if (group && depth < kDeepest) AddElements(node, path + "/", depth + 1, sayings);
    if (!group) sayings->push_back({path, node.child_value()});
  }
}

void AddSection(const pugi::xml_node& section, WrittenJob* job) {
  for (const pugi::xml_node& node : section.children()) {
    const std::string_view name = node.name();
    const auto is_name = [name](std::string_view one) { return one == name; };
    if (std::any_of(std::begin(kCovers), std::end(kCovers), is_name)) {
      AddElements(node, "", 0, &job->special[node.name()].emplace_back());
    } else if (std::any_of(std::begin(kLists), std::end(kLists), is_name)) {
      std::vector<Sayings>& list = job->special[node.name()];
      for (const pugi::xml_node& member : node.children("value"))
        AddElements(member, "", 0, &list.emplace_back());
    } else if (IsElement(node)) {
      const bool group = !node.find_child(&IsElement).empty();
      if (group) AddElements(node, node.name() + std::string("/"), 1, &job->job);
      if (!group) job->job.push_back({node.name(), node.child_value()});
    }
  }
}

/// What a function writes to a stream.
std::string Collect(const std::function<void(std::FILE*)>& write) {
  char* bytes = nullptr;
  std::size_t size = 0;
  std::FILE* stream = open_memstream(&bytes, &size);
  if (stream == nullptr) throw std::bad_alloc();
  write(stream);
  std::fclose(stream);
  const std::unique_ptr<char, decltype(&std::free)> owner(bytes, &std::free);
  return {bytes, size};
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t end; (end = text.find('\n')) != text.npos; text.remove_prefix(end + 1))
    lines.emplace_back(text.substr(0, end));
  return lines;
}

}  // namespace

Failure TakeApart(const std::vector<std::string>& pjl, const std::string& xml, WrittenJob* job) {
  WrittenJob read;
  for (const std::string& line : pjl) {
    if (line == "@PJL EOJ") continue;  // behind the document
    read.job.push_back(ReadLine(line));
    read.text += line + '\n';
  }
  if (!xml.empty()) {
    const std::string text = WithMatchingAccountTags(xml);
    pugi::xml_document document;
    const pugi::xml_parse_result result =
        document.load_buffer(text.data(), text.size(), kXmlParts, pugi::encoding_utf8);
    if (!result) return std::string("its XML ticket is damaged: ") + result.description();
    for (const pugi::xml_node& section : document.document_element().children())
      AddSection(section, &read);
  }
  read.text += xml;
  *job = std::move(read);
  return "";
}

WrittenJob WriteJob(const Dictionary& ticket, PageSize size) {
  constexpr float kLetterWidth = 612;
  constexpr float kLetterLength = 792;
  const bool known = size == PageSize::kLetter;
  const float width = std::exchange(PageWidth, known ? kLetterWidth : 0.0F);
  const float length = std::exchange(PageLength, known ? kLetterLength : 0.0F);
  const std::string xml = Collect([&](std::FILE* stream) { WriteJTML(stream, ticket); });
  PageWidth = width;
  PageLength = length;
  std::vector<std::string> pjl =
      Lines(Collect([&](std::FILE* stream) { WriteEnvelopeStart(stream, ticket); }));
  pjl.front().erase(0, kUniversalExit.size());
  WrittenJob job;
  TakeApart(pjl, xml, &job);
  return job;
}

}  // namespace zarvo::tool
