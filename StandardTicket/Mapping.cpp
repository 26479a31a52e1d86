// SPDX-License-Identifier: Apache-2.0
#include "StandardTicket/Mapping.h"

#include <algorithm>

#include "Platform/Text.h"
#include "Source/TicketNames.h"
#include "StandardTicket/AttributeTable.h"

namespace zarvo {
namespace {

constexpr std::size_t kLongestShown = 48;

}  // namespace

std::string KeyIn(std::string_view dictionary, std::string_view name) {
  return std::string(dictionary) + "..d_" + std::string(name);
}

std::string ElementOf(std::string_view list, std::size_t index) {
  return std::string(list) + "..a_" + std::to_string(index);
}

void Mapping::Number(std::string_view name, std::int64_t number) {
  Add(std::string(name) + "..n", std::to_string(number), false);
}

void Mapping::Boolean(std::string_view name, bool value) {
  Add(std::string(name) + "..b", value ? "true" : "false", false);
}

bool Mapping::Text(std::string_view name, const std::string& text) {
  std::optional<std::string> utf8 = text.find('\0') == text.npos ? MakeString(text) : std::nullopt;
  if (!utf8) {
    Drop(source_, "it is not a text in UTF-8");
    return false;
  }
  Add(name, *std::move(utf8), false);
  return true;
}

void Mapping::Neutral(std::string_view name, std::int64_t number) {
  const std::string full = std::string(name) + "..n";
  if (!Has(full)) Add(full, std::to_string(number), true);
}

void Mapping::Neutral(std::string_view name, const std::string& text) {
  if (const auto utf8 = MakeString(text); utf8 && !text.empty() && !Has(name))
    Add(name, *utf8, true);
}

void Mapping::Copy(std::string_view dictionary, const StandardSetting& setting) {
  Add(std::string(dictionary) + setting.name, setting.value, setting.quiet);
}

void Mapping::NeedXml() {
  const std::string name = KeyIn(key::kJTMLOptions, key::sections::kAll) + "..b";
  if (!Has(name)) Add(name, "true", true);
}

void Mapping::Drop(std::string attribute, std::string reason) {
  ticket_.not_honoured.push_back({std::move(attribute), std::move(reason)});
}

void Mapping::Refuse(std::string attribute, std::string reason) {
  if (ticket_.refusal.empty()) ticket_.refusal = attribute + ": " + reason;
  Drop(std::move(attribute), std::move(reason));
}

bool Mapping::Has(std::string_view name) const {
  return std::any_of(ticket_.settings.begin(), ticket_.settings.end(),
                     [name](const StandardSetting& setting) { return setting.name == name; });
}

void Mapping::Add(std::string_view name, std::string value, bool quiet) {
  ticket_.settings.push_back({std::string(name), std::move(value), source_, quiet});
}

std::string Shown(std::string_view path, std::string_view value) {
  std::string text(path);
  if (value.empty()) return text;
  const std::string_view cut = Utf8Prefix(value, kLongestShown);
  text.append("=").append(cut);
  if (cut.size() < value.size()) text += "...";
  return text;
}

Attribute Members::Take(const char* member) {
  taken_.emplace(member);
  return FindAttribute(collection_, member);
}

Members Members::Inner(const char* member, Mapping* mapping) {
  const Attribute found = Take(member);
  if (found && found.Collection() == nullptr)
    mapping->Drop(PathOf(member), "it is not a collection");
  if (found.count() > 1) mapping->Drop(PathOf(member), "only the first of several counts");
  return {found.Collection(), PathOf(member)};
}

void Members::TellRest(Mapping* mapping, std::string_view base) const {
  if (collection_ == nullptr) return;
  for (ipp_attribute_t* next = ippFirstAttribute(collection_); next != nullptr;
       next = ippNextAttribute(collection_)) {
    const char* name = ippGetName(next);
    if (name == nullptr || taken_.contains(name) || !Attribute(next)) continue;
    const Disposition disposition = DispositionOf(std::string(base) + "/" + name);
    if (disposition.kind == Disposition::kLeft) continue;
    mapping->Drop(PathOf(name), disposition.kind == Disposition::kRefused
                                    ? disposition.reason
                                    : "there is no standard member of this name");
  }
}

}  // namespace zarvo
