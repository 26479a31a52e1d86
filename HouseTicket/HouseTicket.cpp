// SPDX-License-Identifier: Apache-2.0
#include "HouseTicket/HouseTicket.h"

#include <strings.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "Platform/Log.h"
#include "Platform/Phrase.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr char kTicketKey[] = "Ticket";
constexpr char kBasedOnKey[] = "BasedOn";
constexpr char kTitlesKey[] = "Titles";
constexpr char kMayOverrideKey[] = "MayOverride";

/// Options beside the ticket that carry a PIN: the PPD's, the spooler's and the job type feature's.
constexpr const char* kPinOptions[] = {"JobPIN", "job-password", "ZRVJobPassword"};

bool IsFullText(const Value& value) {
  const std::string* text = value.AsString();
  return text == nullptr || !text->empty();
}

bool NestsTooDeep(const Value& value, int depth) {
  if (depth > kMaxHouseTicketDepth) return true;
  const auto deep = [depth](const Value& one) { return NestsTooDeep(one, depth + 1); };
  if (const Array* array = value.AsArray()) return std::any_of(array->begin(), array->end(), deep);
  const Dictionary* group = value.AsDictionary();
  return group != nullptr && std::any_of(group->begin(), group->end(),
                                         [&deep](const auto& entry) { return deep(entry.second); });
}

bool IsOneLine(const std::string& text) {
  return !text.empty() && PrintableText(text) == text && MakeString(text) == text;
}

std::string ReadTitles(const Value& value, HouseTicket* house) {
  const Dictionary* titles = value.AsDictionary();
  if (titles == nullptr) return "its titles are no group";
  for (const auto& [language, title] : *titles) {
    if (title.AsString() == nullptr || !IsOneLine(*title.AsString()) || !IsOneLine(language))
      return "a title is no line of text";
    house->titles.emplace(language, *title.AsString());
  }
  return "";
}

std::string ReadMayOverride(const Value& value, HouseTicket* house) {
  const Array* paths = value.AsArray();
  if (paths == nullptr) return "what jobs may change is no list";
  house->mayOverride.emplace();
  for (const Value& path : *paths) {
    if (path.AsString() == nullptr) return "what jobs may change is no list of texts";
    house->mayOverride->push_back(SettingPath(*path.AsString()));
  }
  return "";
}

bool IsSameOrBelow(std::string_view path, std::string_view above) {
  return path.starts_with(above) && (path.size() == above.size() || path[above.size()] == '/');
}

/// Calls `drop(path, value, other)` for each setting of `ticket` that `others` has a value for too,
/// and takes out those for which it gives true. A list is one setting.
template <class Drop>
void DropSettings(const std::string& above, const Dictionary& others, Dictionary* ticket,
                  const Drop& drop) {
  for (auto entry = ticket->begin(); entry != ticket->end();) {
    const Value* other = DictionaryFind(others, entry->first);
    const std::string path = above + entry->first;
    bool gone = false;
    if (other != nullptr) {
      Dictionary* group = entry->second.AsDictionary();
      if (group != nullptr && other->AsDictionary() != nullptr) {
        DropSettings(path + "/", *other->AsDictionary(), group, drop);
        gone = group->empty();
      } else {
        gone = drop(path, entry->second, *other);
      }
    }
    entry = gone ? ticket->erase(entry) : std::next(entry);
  }
}

}  // namespace

std::string HouseTicketNameFault(std::string_view name) {
  const std::string text(name);
  constexpr std::string_view kCustom = "Custom.";
  if (name.empty()) return Phrase("a name has at least one character");
  if (name.size() > kLongestHouseTicketName)
    return Phrase("a name has at most %1 bytes", {std::to_string(kLongestHouseTicketName)});
  if (MakeString(name) != text) return Phrase("a name is UTF-8 with composed characters");
  if (PrintableText(name) != text) return Phrase("a name has no control characters");
  if (strcasecmp(text.c_str(), "None") == 0 ||
      strncasecmp(text.c_str(), kCustom.data(), kCustom.size()) == 0)
    return Phrase("\"None\" and what begins with \"Custom.\" mean something else to dialogs");
  return "";
}

std::string SettingPath(std::string_view path) {
  return (path.starts_with("com.") ? "" : key::kPrefix) + std::string(path);
}

bool HoldsPin(const Dictionary& ticket) {
  const Dictionary* job = DictionaryGetDictionary(ticket, key::kJobType);
  const Value* pin =
      job != nullptr ? DictionaryFind(*job, key::job_type::kSecurePrintPassword) : nullptr;
  if (pin != nullptr && IsFullText(*pin)) return true;
  return std::any_of(ticket.begin(), ticket.end(), [](const auto& entry) {
    return IsFullText(entry.second) &&
           std::any_of(std::begin(kPinOptions), std::end(kPinOptions), [&](const char* option) {
             return strcasecmp(option, entry.first.c_str()) == 0;
           });
  });
}

Dictionary HouseTicketToDictionary(const HouseTicket& house) {
  Dictionary entry;
  entry.emplace(kTicketKey, house.ticket);
  if (!house.basedOn.empty()) entry.emplace(kBasedOnKey, house.basedOn);
  if (!house.titles.empty())
    entry.emplace(kTitlesKey, Dictionary(house.titles.begin(), house.titles.end()));
  if (house.mayOverride)
    entry.emplace(kMayOverrideKey, Array(house.mayOverride->begin(), house.mayOverride->end()));
  return entry;
}

Failure HouseTicketFromDictionary(const Dictionary& entry, HouseTicket* house) {
  HouseTicket read;
  std::string fault = entry.contains(kTicketKey) ? "" : "it has no settings";
  for (const auto& [name, value] : entry) {
    if (!fault.empty()) break;
    if (name == kTicketKey) {
      if (value.AsDictionary() == nullptr) {
        fault = "its settings are no group";
      } else if (NestsTooDeep(value, 0)) {
        fault = "its settings nest deeper than " + std::to_string(kMaxHouseTicketDepth) + " levels";
      } else {
        read.ticket = *value.AsDictionary();
      }
    } else if (name == kBasedOnKey) {
      const std::string* base = value.AsString();
      if (base == nullptr || !HouseTicketNameFault(*base).empty()) {
        fault = "what it builds on is no name";
      } else {
        read.basedOn = *base;
      }
    } else if (name == kTitlesKey) {
      fault = ReadTitles(value, &read);
    } else if (name == kMayOverrideKey) {
      fault = ReadMayOverride(value, &read);
    } else {
      // Of a later version, perhaps: the job would not be what was stored.
      fault = "it has an entry that nobody knows, " + name;
    }
  }
  if (fault.empty()) *house = std::move(read);
  return fault;
}

void MergeSettings(Dictionary over, Dictionary* under) {
  // Moved, not copied: copying a tree recurses by its depth, which a job chooses.
  for (auto& [name, value] : over) {
    const auto [entry, is_new] = under->try_emplace(name, std::move(value));
    if (is_new) continue;
    Dictionary* group = entry->second.AsDictionary();
    Dictionary* above = value.AsDictionary();
    if (group != nullptr && above != nullptr) {
      MergeSettings(std::move(*above), group);
    } else {
      entry->second = std::move(value);
    }
  }
}

Failure ResolveHouseTicket(const std::string& name, const FindHouseTicket& find,
                           ResolvedHouseTicket* resolved) {
  if (name.empty()) return "no house ticket is named";
  std::vector<HouseTicket> tickets;
  ResolvedHouseTicket whole;
  whole.name = name;
  std::set<std::string, std::less<>> seen;
  for (std::string next = name; !next.empty(); next = tickets.back().basedOn) {
    if (!seen.insert(next).second)
      return "house ticket \"" + name + "\" builds on itself, by way of \"" + next + "\"";
    if (seen.size() > kMostHouseTicketBases + 1)
      return "house ticket \"" + name + "\" builds on more than " +
             std::to_string(kMostHouseTicketBases) + " others";
    HouseTicket house;
    std::string fault = find(next, &house);
    if (!fault.empty())
      return (next == name ? "" : "house ticket \"" + name + "\" cannot be built: ") + fault;
    whole.chain.push_back(next);
    if (!whole.mayOverride) whole.mayOverride = house.mayOverride;
    tickets.push_back(std::move(house));
  }
  for (auto house = tickets.rbegin(); house != tickets.rend(); ++house)
    MergeSettings(std::move(house->ticket), &whole.ticket);
  *resolved = std::move(whole);
  return "";
}

Dictionary ApplyHouseTicket(const ResolvedHouseTicket& house, JobSays job,
                            std::vector<std::string>* kept) {
  Dictionary ticket = std::move(job.derived);
  MergeSettings(job.chosen, &ticket);
  DropSettings(
      "", job.defaults, &job.chosen,
      [](const std::string&, const Value& value, const Value& other) { return value == other; });
  Dictionary says = std::move(job.chosen);
  MergeSettings(std::move(job.own), &says);
  if (house.mayOverride) {
    DropSettings("", house.ticket, &says,
                 [&](const std::string& path, const Value& value, const Value& other) {
                   const bool may = std::any_of(
                       house.mayOverride->begin(), house.mayOverride->end(),
                       [&path](const std::string& above) { return IsSameOrBelow(path, above); });
                   if (!may && !(value == other)) kept->push_back(path);
                   return !may;
                 });
  }
  MergeSettings(house.ticket, &ticket);
  MergeSettings(std::move(says), &ticket);
  return ticket;
}

}  // namespace zarvo
