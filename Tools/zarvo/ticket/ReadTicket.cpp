// SPDX-License-Identifier: Apache-2.0
#include <strings.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>

#include "CUPSFilter/Options/ParseOptions.h"
#include "CUPSFilter/Options/PinPolicy.h"
#include "Platform/Clock.h"
#include "Platform/PropertyList.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/TicketKeys.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

// Not the library's ordered kind, which looks through all keys for each new one.
using Keys = std::span<const TicketKey>;

constexpr char kDataKey[] = "$data";
/// Days from 1904-01-01 to 1970-01-01.
constexpr std::int64_t kEpochDays = 24107;

/// Thrown within this file only.
struct Unreadable {
  std::string reason;
};

/// The options outside the ticket that carry a PIN or an account: the spooler's and the PPD's.
bool IsSecretOption(const std::string& name) {
  constexpr const char* kAccounts[] = {"AccountUser", "AccountID", "FaxBilling"};
  return CarriesPin(name) ||
         std::any_of(std::begin(kAccounts), std::end(kAccounts),
                     [&name](const char* option) { return strcasecmp(name.c_str(), option) == 0; });
}

std::optional<std::int64_t> CodeOf(const TicketKey& key, const std::string& word) {
  for (const CodeWord& row : key.words) {
    if (word == row.word) return row.code;
  }
  return std::nullopt;
}

/// "YYYY-MM-DDThh:mm", optionally with seconds, as 1904-based seconds.
std::optional<std::int64_t> ParseDate(const std::string& text) {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, length = 0;
  const int fields = std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d%n:%2d%n", &year, &month, &day,
                                 &hour, &minute, &length, &second, &length);
  const std::chrono::year_month_day date(std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day)));
  if (fields < 5 || length != static_cast<int>(text.size()) || !date.ok() || hour < 0 ||
      hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59)
    return std::nullopt;
  const std::int64_t days = std::chrono::sys_days(date).time_since_epoch().count() + kEpochDays;
  return days * kSecondsPerDay + hour * 3600 + minute * 60 + second;
}

std::string FormatDate(std::int64_t seconds) {
  const LongDateRec date = LongSecondsToDate(seconds);
  char text[40];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d", date.year, date.month, date.day,
                date.hour, date.minute);
  return ParseDate(text) == seconds ? text : "";
}

Value MakeText(const std::string& path, const std::string& text) {
  if (std::optional<std::string> string = MakeString(text)) return *std::move(string);
  throw Unreadable{path + ": the text is not valid UTF-8"};
}

Value TextValue(const std::string& path, const std::string& text, const TicketKey* key) {
  if (key != nullptr && key->type == KeyType::kNumber) {
    if (const auto code = CodeOf(*key, text)) return Number(*code);
  }
  if (key != nullptr && key->type == KeyType::kDate) {
    if (const auto seconds = ParseDate(text)) return Number(*seconds);
  }
  if ((key != nullptr ? key->secret : IsSecretOption(path)) && text == kHiddenSecret)
    throw Unreadable{path + ": the value was hidden when the ticket was shown; put it back"};
  return MakeText(path, text);
}

Value FromJson(const std::string& path, const nlohmann::json& json, const TicketKey* key,
               int depth);

Dictionary DictionaryFromJson(const std::string& path, const nlohmann::json& json, Keys keys,
                              bool top, int depth) {
  Dictionary dictionary;
  for (const auto& [name, member] : json.items()) {
    const TicketKey* key = top ? FindTopLevelKey(name) : FindKey(keys, name);
    // At the top only a known key may go without its prefix: others are the spooler's options.
    const std::string full = top && key != nullptr ? key->name : name;
    const std::string place = path.empty() ? full : path + "/" + full;
    Value value = top && key == nullptr && member.is_number_integer() && !name.starts_with("com.")
                      ? Value(member.dump())  // an option of the spooler, such as "copies"
                      : FromJson(place, member, key, depth + 1);
    if (!dictionary.emplace(*MakeText(place, full).AsString(), std::move(value)).second)
      throw Unreadable{place + ": is there twice"};
  }
  return dictionary;
}

Value DataFromJson(const std::string& path, const nlohmann::json& json) {
  const std::string digits = json.is_string() ? json.get<std::string>() : "?";
  if (digits.size() % 2 != 0 ||
      !std::all_of(digits.begin(), digits.end(), [](char c) { return hex2int(c) >= 0; }))
    throw Unreadable{path + ": \"$data\" takes pairs of hexadecimal digits"};
  Data bytes;
  for (std::size_t i = 0; i < digits.size(); i += 2)
    bytes.push_back(static_cast<std::uint8_t>(hex2int(digits[i]) * 16 + hex2int(digits[i + 1])));
  return bytes;
}

Value FromJson(const std::string& path, const nlohmann::json& json, const TicketKey* key,
               int depth) {
  if (depth > kMaxTicketDepth) throw Unreadable{path + ": nests too deep"};
  const Keys members = key != nullptr ? key->members : Keys();
  switch (json.type()) {
    case nlohmann::json::value_t::string:
      return TextValue(path, json.get<std::string>(), key);
    case nlohmann::json::value_t::boolean:
      return Value::Boolean(json.get<bool>());
    case nlohmann::json::value_t::number_integer:
      return Number(json.get<std::int64_t>());
    case nlohmann::json::value_t::number_unsigned:
      if (json.get<std::uint64_t>() > static_cast<std::uint64_t>(INT64_MAX)) break;
      return Number(json.get<std::int64_t>());
    case nlohmann::json::value_t::array: {
      Array array;
      // The elements of a list of dictionaries are checked against its members.
      TicketKey element{"", KeyType::kDictionary, ""};
      element.members = members;
      for (const nlohmann::json& one : json) {
        const std::string place = path + "/" + std::to_string(array.size());
        array.push_back(FromJson(place, one, &element, depth + 1));
      }
      return array;
    }
    case nlohmann::json::value_t::object:
      if (json.size() == 1 && json.contains(kDataKey)) return DataFromJson(path, json[kDataKey]);
      return DictionaryFromJson(path, json, members, false, depth);
    default:
      break;
  }
  throw Unreadable{path + ": a ticket has texts, whole numbers, true, false, lists and groups; " +
                   json.dump() + " is none of them"};
}

nlohmann::json ToJson(const Value& value, const TicketKey* key);

nlohmann::json ToJson(const Dictionary& dictionary, Keys keys) {
  nlohmann::json json = nlohmann::json::object();
  for (const auto& [name, member] : dictionary) json[name] = ToJson(member, FindKey(keys, name));
  return json;
}

nlohmann::json NumberToJson(const Number& number, const TicketKey* key) {
  std::int64_t whole = 0;
  if (number.IsReal() || !number.Get(&whole)) {
    double real = 0;
    number.Get(&real);
    return real;
  }
  if (key != nullptr && key->type == KeyType::kDate) {
    if (const std::string date = FormatDate(whole); !date.empty()) return date;
  }
  const char* word = key != nullptr ? WordOf(*key, whole) : nullptr;
  return word != nullptr ? nlohmann::json(word) : nlohmann::json(whole);
}

nlohmann::json ToJson(const Value& value, const TicketKey* key) {
  const Keys members = key != nullptr ? key->members : Keys();
  if (const std::string* text = value.AsString()) return *text;
  if (const Number* number = value.AsNumber()) return NumberToJson(*number, key);
  if (const bool* boolean = value.AsBoolean()) return *boolean;
  if (const Dictionary* dictionary = value.AsDictionary()) return ToJson(*dictionary, members);
  if (const Array* array = value.AsArray()) {
    TicketKey element{"", KeyType::kDictionary, ""};
    element.members = members;
    nlohmann::json json = nlohmann::json::array();
    for (const Value& one : *array) json.push_back(ToJson(one, &element));
    return json;
  }
  std::string digits;
  for (const std::uint8_t byte : *value.AsData()) {
    char pair[3];
    std::snprintf(pair, sizeof pair, "%02x", byte);
    digits += pair;
  }
  return {{kDataKey, digits}};
}

Failure ReadJson(std::string_view text, Dictionary* ticket) {
  try {
    const nlohmann::json json = nlohmann::json::parse(text);
    if (!json.is_object()) throw Unreadable{"a ticket is a group: { \"key\": value, ... }"};
    *ticket = DictionaryFromJson("", json, {}, true, 0);
    return "";
  } catch (const nlohmann::json::exception& exception) {
    // The library's own name and error number mean nothing to the reader.
    const std::string reason = exception.what();
    const std::size_t end = reason.find("] ");
    return end == std::string::npos ? reason : reason.substr(end + 2);
  } catch (const Unreadable& unreadable) {
    return unreadable.reason;
  }
}

/// Like the filter, only deeper trees are refused: the tool walks them by recursion.
bool TooDeep(const Value& value, int depth) {
  if (depth > kMaxTicketDepth) return true;
  const auto too_deep = [depth](const auto& one) { return TooDeep(one, depth + 1); };
  if (const Array* array = value.AsArray())
    return std::any_of(array->begin(), array->end(), too_deep);
  if (const Dictionary* dictionary = value.AsDictionary())
    return std::any_of(dictionary->begin(), dictionary->end(),
                       [&](const auto& entry) { return too_deep(entry.second); });
  return false;
}

Failure ReadPropertyListTicket(std::string_view text, Dictionary* ticket) {
  Value value;
  if (Failure failure = ParsePropertyList(text, &value); !failure.empty()) return failure;
  if (value.AsDictionary() == nullptr) return "the property list is no dictionary";
  *ticket = std::move(*value.AsDictionary());
  return "";
}

Dictionary HideSecrets(const Dictionary& dictionary, Keys keys);

Value HideSecrets(const Value& value, const TicketKey* key) {
  if (key == nullptr) return value;
  if (key->secret) return std::string(kHiddenSecret);
  if (const Dictionary* dictionary = value.AsDictionary())
    return HideSecrets(*dictionary, key->members);
  return value;
}

Dictionary HideSecrets(const Dictionary& dictionary, Keys keys) {
  Dictionary shown;
  for (const auto& [name, value] : dictionary)
    shown.emplace(name, HideSecrets(value, FindKey(keys, name)));
  return shown;
}

}  // namespace

Dictionary WithoutSecrets(const Dictionary& ticket) {
  Dictionary shown = HideSecrets(ticket, TopLevelKeys());
  for (auto& [name, value] : shown) {
    if (IsSecretOption(name)) value = std::string(kHiddenSecret);
  }
  return shown;
}

Dictionary TicketOfOptions(const std::string& options) {
  cups_option_t* parsed = nullptr;
  const int count = cupsParseOptions(options.c_str(), 0, &parsed);
  const std::vector<cups_option_t> ordered = NaturalOrder(count, parsed);
  Dictionary ticket =
      ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
  cupsFreeOptions(count, parsed);
  return ticket;
}

Failure ReadTicket(std::string_view text, Dictionary* ticket) {
  const std::size_t start = text.find_first_not_of(" \t\r\n");
  const char first = start == std::string_view::npos ? '\0' : text[start];
  Dictionary read;
  Failure failure;
  if (first == '{' || first == '[') {
    failure = ReadJson(text, &read);
  } else if (first == '<' || text.starts_with("bplist")) {
    failure = ReadPropertyListTicket(text, &read);
  } else if (text.size() > kLongestReadOptions) {
    failure = "has " + std::to_string(text.size()) + " bytes, and options are read up to " +
              std::to_string(kLongestReadOptions) + "; shorten it";
  } else {
    read = TicketOfOptions(std::string(text));
  }
  if (!failure.empty()) return failure;
  Value value(std::move(read));
  if (TooDeep(value, 0))
    return "the ticket nests deeper than " + std::to_string(kMaxTicketDepth) + " levels";
  *ticket = std::move(*value.AsDictionary());
  return "";
}

std::string TicketToJson(const Dictionary& ticket) {
  // Recipients come from address cards of other programs, in whatever encoding.
  return ToJson(ticket, TopLevelKeys())
             .dump(2, ' ', false, nlohmann::json::error_handler_t::replace) +
         "\n";
}

}  // namespace zarvo::tool
