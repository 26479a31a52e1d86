// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/ticket/HouseText.h"

#include <algorithm>
#include <cstdlib>
#include <nlohmann/json.hpp>

#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

using Json = nlohmann::ordered_json;

constexpr char kTicketKey[] = "ticket";
constexpr char kBasedOnKey[] = "based-on";
constexpr char kTitlesKey[] = "titles";
constexpr char kMayOverrideKey[] = "may-override";

std::string ReadSettings(std::string_view text, HouseTicket* house) {
  if (Failure failure = ReadTicket(text, &house->ticket); !failure.empty()) return failure;
  // What could not be carried could not be printed either, whatever the way.
  std::vector<FlatOption> flat;
  return FlattenTicket(house->ticket, &flat);
}

/// The leaves of a ticket by their paths, in the words of the readable form.
void AddLeaves(const Json& json, const std::string& path,
               std::map<std::string, std::string>* leaves) {
  if (json.is_object() && !json.empty()) {
    for (const auto& [key, member] : json.items())
      AddLeaves(member, path + (path.empty() ? "" : "/") + key, leaves);
  } else {
    (*leaves)[path] = json.dump();
  }
}

std::map<std::string, std::string> LeavesOf(const Dictionary& ticket) {
  std::map<std::string, std::string> leaves;
  AddLeaves(Json::parse(TicketToJson(WithoutSecrets(ticket))), "", &leaves);
  leaves.erase("");  // of an empty ticket
  return leaves;
}

}  // namespace

std::string HouseStores::Read() {
  std::string fault = own.Read();
  return fault.empty() ? shared.Read() : fault;
}

const HouseTicketStore* HouseStores::Of(const std::string& name) const {
  for (const HouseTicketStore* store : All())
    if (store->Contains(name)) return store;
  return nullptr;
}

std::string ReadHouseTicket(std::string_view text, HouseTicket* house) {
  const Json json = Json::parse(text, nullptr, /*allow_exceptions=*/false);
  if (!json.is_object() || !json.contains(kTicketKey)) return ReadSettings(text, house);
  HouseTicket read;
  std::string fault;
  for (const auto& [key, value] : json.items()) {
    if (key == kTicketKey) {
      fault = ReadSettings(value.dump(), &read);
    } else if (key == kBasedOnKey && value.is_string()) {
      read.basedOn = value.get<std::string>();
    } else if (key == kTitlesKey && value.is_object()) {
      for (const auto& [language, title] : value.items())
        if (title.is_string()) read.titles[language] = title.get<std::string>();
    } else if (key == kMayOverrideKey && value.is_array()) {
      read.mayOverride.emplace();
      for (const Json& path : value)
        if (path.is_string()) read.mayOverride->push_back(SettingPath(path.get<std::string>()));
    } else {
      fault = key + ": a house ticket has ticket, based-on, titles and may-override";
    }
    if (!fault.empty()) return fault;
  }
  *house = std::move(read);
  return "";
}

std::string HouseTicketText(const HouseTicket& house, bool secrets) {
  Json json;
  if (!house.titles.empty()) json[kTitlesKey] = house.titles;
  if (!house.basedOn.empty()) json[kBasedOnKey] = house.basedOn;
  if (house.mayOverride) json[kMayOverrideKey] = *house.mayOverride;
  json[kTicketKey] =
      Json::parse(TicketToJson(secrets ? house.ticket : WithoutSecrets(house.ticket)));
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string TitleOf(const HouseTicket& house, const std::string& name) {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value == '\0') continue;
    const std::string locale(value, std::string_view(value).find_first_of(".@") < std::string::npos
                                        ? std::string_view(value).find_first_of(".@")
                                        : std::string_view(value).size());
    for (const std::string& language : {locale, locale.substr(0, locale.find('_'))})
      if (const auto title = house.titles.find(language); title != house.titles.end())
        return title->second;
    break;
  }
  if (const auto title = house.titles.find("en"); title != house.titles.end()) return title->second;
  return house.titles.empty() ? name : house.titles.begin()->second;
}

std::vector<std::string> TicketDifferences(const Dictionary& left, const Dictionary& right) {
  std::map<std::string, std::pair<std::string, std::string>> all;
  for (const auto& [path, value] : LeavesOf(left)) all[path].first = value;
  for (const auto& [path, value] : LeavesOf(right)) all[path].second = value;
  std::vector<std::string> lines;
  const auto shown = [](const std::string& value) { return value.empty() ? "-" : value; };
  for (const auto& [path, values] : all)
    if (values.first != values.second)
      lines.push_back(path + ": " + shown(values.first) + " | " + shown(values.second));
  return lines;
}

}  // namespace zarvo::tool
