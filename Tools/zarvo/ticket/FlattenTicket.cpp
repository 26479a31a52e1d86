// SPDX-License-Identifier: Apache-2.0
#include <strings.h>

#include <algorithm>
#include <cstdio>

#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

/// Gathers the options of one ticket; `failure` tells the first thing that cannot be carried.
class Flattener {
 public:
  void Add(const std::string& place, const std::string& name, const Value& value) {
    if (const Dictionary* dictionary = value.AsDictionary()) {
      if (dictionary->empty()) return Refuse(place, "an empty group cannot be carried");
      for (const auto& [key, member] : *dictionary)
        Add(place + "/" + key, name + "..d_" + key, member);
    } else if (const Array* array = value.AsArray()) {
      if (array->empty()) return Refuse(place, "an empty list cannot be carried");
      for (std::size_t i = 0; i < array->size(); ++i) {
        const std::string position = std::to_string(i);
        Add(place + "/" + position, name + "..a_" + position, (*array)[i]);
      }
    } else {
      AddLeaf(place, name, value);
    }
  }

  std::vector<FlatOption> options;
  Failure failure;

 private:
  void Refuse(const std::string& place, const std::string& reason) {
    if (failure.empty()) failure = place + ": " + reason;
  }

  void AddLeaf(const std::string& place, const std::string& name, const Value& value) {
    if (name.empty() || name.find_first_of(" \t\r\n\v\f=") != std::string::npos)
      return Refuse(place, "an option's name holds no blank and no \"=\"");
    if (const std::string* text = value.AsString()) {
      // A plain option of the spooler needs no type.
      options.push_back({name.find("..") == std::string::npos ? name : name + "..s", *text});
    } else if (const bool* boolean = value.AsBoolean()) {
      options.push_back({name + "..b", *boolean ? "true" : "false"});
    } else if (const Number* number = value.AsNumber()) {
      std::int64_t whole = 0;
      if (number->IsReal() || !number->Get(&whole))
        return Refuse(place, "only whole numbers can be carried");
      options.push_back({name + "..n", std::to_string(whole)});
    } else {
      std::string digits;
      for (const std::uint8_t byte : *value.AsData()) {
        char pair[3];
        std::snprintf(pair, sizeof pair, "%02x", byte);
        digits += pair;
      }
      options.push_back({name + "..D", digits});
    }
  }
};

/// The path of the first difference between what was to be carried and what arrives, or nothing.
std::string Difference(const Dictionary& sent, const Dictionary& arrived) {
  for (const auto& [key, value] : sent) {
    const auto other = arrived.find(key);
    if (other == arrived.end()) return key;
    if (value == other->second) continue;
    const Dictionary* left = value.AsDictionary();
    const Dictionary* right = other->second.AsDictionary();
    if (left == nullptr || right == nullptr) return key;
    const std::string inner = Difference(*left, *right);
    return inner.empty() ? key : key + "/" + inner;
  }
  return sent.size() == arrived.size() ? "" : "(the ticket)";
}

/// The spooler's library finds options without regard to letter case.
std::string CaseTwin(const std::vector<FlatOption>& options) {
  std::vector<const std::string*> names;
  for (const FlatOption& option : options) names.push_back(&option.name);
  const auto order = [](const std::string* left, const std::string* right) {
    return strcasecmp(left->c_str(), right->c_str()) < 0;
  };
  std::sort(names.begin(), names.end(), order);
  const auto twin = std::adjacent_find(
      names.begin(), names.end(),
      [&](const std::string* left, const std::string* right) { return !order(left, right); });
  return twin == names.end() ? "" : **twin;
}

std::string Quoted(const std::string& value) {
  std::string quoted;
  for (const char c : value) {
    const bool special = std::string_view(" \t\n\r\v\f\\'\"{}").find(c) != std::string_view::npos;
    if (special) quoted += '\\';
    quoted += c;
  }
  return quoted;
}

}  // namespace

std::string OptionText(const std::vector<FlatOption>& options) {
  std::string text;
  for (const FlatOption& option : options) {
    if (!text.empty()) text += ' ';
    text += option.name + "=" + Quoted(option.value);
  }
  return text;
}

Failure FlattenTicket(const Dictionary& ticket, std::vector<FlatOption>* options) {
  Flattener flattener;
  for (const auto& [key, value] : ticket) flattener.Add(key, key, value);
  if (!flattener.failure.empty()) return flattener.failure;
  if (const std::string twin = CaseTwin(flattener.options); !twin.empty())
    return twin + ": another key differs from it in letter case only";
  // The last word has what will read it: whatever does not come back the same is refused.
  const std::string text = OptionText(flattener.options);
  if (text.size() > kLongestOptions)
    return "has " + std::to_string(text.size()) + " bytes as options, and a job carries " +
           std::to_string(kLongestOptions) + " at most; shorten it";
  const std::string place = Difference(ticket, TicketOfOptions(text));
  if (!place.empty())
    return place +
           ": this key or value does not survive as an option; keys hold no \"..\", "
           "numbers outside groups have 32 bits";
  *options = std::move(flattener.options);
  return "";
}

}  // namespace zarvo::tool
