// SPDX-License-Identifier: Apache-2.0
#include "Source/TicketCheck.h"

#include <algorithm>
#include <cctype>
#include <cstring>

#include "Platform/Phrase.h"
#include "Source/CFAdditions.h"
#include "Source/Mappings.h"
#include "Source/NearestName.h"
#include "Source/TicketKeys.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

using Keys = std::span<const TicketKey>;

constexpr std::string_view kOurKeys = "com.zarvo.";

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

std::string TypeName(KeyType type) {
  switch (type) {
    case KeyType::kText:
      return Phrase("a text");
    case KeyType::kNumber:
      return Phrase("a whole number");
    case KeyType::kBoolean:
      return Phrase("true or false");
    case KeyType::kDate:
      return Phrase("a date such as \"2026-12-31T18:30\"");
    case KeyType::kDictionary:
      return Phrase("a group of keys");
    case KeyType::kList:
      return Phrase("a list of groups");
    case KeyType::kAny:
      break;
  }
  return Phrase("anything");
}

bool HasType(const Value& value, KeyType type) {
  switch (type) {
    case KeyType::kText:
      return value.AsString() != nullptr;
    case KeyType::kNumber:
    case KeyType::kDate:
      return value.AsNumber() != nullptr;
    case KeyType::kBoolean:
      return value.AsBoolean() != nullptr;
    case KeyType::kDictionary:
      return value.AsDictionary() != nullptr;
    case KeyType::kList:
      return value.AsArray() != nullptr;
    case KeyType::kAny:
      break;
  }
  return true;
}

std::string WordList(const TicketKey& key) {
  std::string list;
  for (const CodeWord& word : key.words)
    list += (list.empty() ? "" : ", ") + std::to_string(word.code) + " " + word.word;
  return list;
}

/// The key without what can be left out at the top of a readable ticket.
std::string ShortName(const TicketKey& key) {
  std::string_view name = key.name;
  if (name.starts_with(key::kPrefix)) name.remove_prefix(std::strlen(key::kPrefix));
  return std::string(name);
}

class Checker {
 public:
  explicit Checker(std::span<const char* const> spooler_options)
      : spooler_options_(spooler_options.begin(), spooler_options.end()) {}

  void Group(const std::string& path, const Dictionary& group, Keys keys) {
    for (const auto& [name, value] : group) {
      const std::string place = path.empty() ? name : path + "/" + name;
      if (const TicketKey* key = FindKey(keys, name)) {
        Known(place, value, *key);
      } else {
        Unknown(place, name, value, keys, path.empty());
      }
    }
  }

  void Add(const std::string& place, const std::string& text) { findings.push_back({place, text}); }

  std::vector<TicketFinding> findings;

 private:
  std::vector<std::string> spooler_options_;
  int compared_ = 0;  // unknown keys for which a like one was looked for

  /// Whether a text under this name must have been meant for the key. The options of the PPD and
  /// the spooler differ from all keys in more letters, or in letter case only.
  static bool IsMisspelt(const std::string& name, const std::string& key) {
    if (key.empty()) return false;
    const std::size_t letters = EditDistance(Lower(name), Lower(key));
    return letters == 1 || letters == 2;
  }

  void Unknown(const std::string& place, const std::string& name, const Value& value, Keys keys,
               bool top) {
    // Everything that is not ours is the spooler's or the driver's business; but those are texts.
    const bool ours = !top || name.starts_with(kOurKeys);
    if (!ours && value.AsString() != nullptr && spooler_options_.empty()) return;
    // Looking for what was meant takes time, and who has so many faults needs no more of it.
    constexpr int kMostCompared = 2000;
    std::string nearest;
    if (++compared_ <= kMostCompared) {
      std::vector<std::string> candidates;
      for (const TicketKey& key : keys) candidates.push_back(ours ? key.name : ShortName(key));
      nearest = NearestName(name, candidates);
    }
    if (!ours && value.AsString() != nullptr && !IsMisspelt(name, nearest)) {
      if (compared_ <= kMostCompared) SpoolerOption(place, name);
      return;
    }
    Add(place, nearest.empty() ? Phrase("unknown key")
                               : Phrase("unknown key; did you mean %1?", {nearest}));
  }

  /// One of the spooler's own options, which it reads as text.
  void SpoolerOption(const std::string& place, const std::string& name) {
    constexpr std::size_t kShortest = 4;  // shorter ones are all alike
    const std::string nearest = NearestName(name, spooler_options_);
    if (name.size() >= kShortest && IsMisspelt(name, nearest))
      Add(place, Phrase("unknown option; did you mean %1?", {nearest}));
  }

  void Known(const std::string& place, const Value& value, const TicketKey& key) {
    if (!HasType(value, key.type)) return WrongType(place, value, key);
    if (key.type == KeyType::kNumber) return Range(place, *value.AsNumber(), key);
    if (const Dictionary* group = value.AsDictionary()) return Group(place, *group, key.members);
    if (key.type != KeyType::kList) return;
    std::size_t position = 0;
    for (const Value& element : *value.AsArray()) {
      const std::string inner = place + "/" + std::to_string(position++);
      if (const Dictionary* group = element.AsDictionary()) {
        Group(inner, *group, key.members);
      } else {
        Add(inner, Phrase("takes %1", {TypeName(KeyType::kDictionary)}));
      }
    }
  }

  void WrongType(const std::string& place, const Value& value, const TicketKey& key) {
    const std::string type = TypeName(key.type);
    std::string text = Phrase("takes %1", {type});
    const std::string* word = value.AsString();
    if (word != nullptr && !key.words.empty()) {
      std::vector<std::string> words;
      for (const CodeWord& row : key.words) words.emplace_back(row.word);
      const std::string nearest = NearestName(*word, words);
      text = nearest.empty() ? Phrase("takes %1: %2", {type, WordList(key)})
                             : Phrase("takes %1; did you mean \"%2\"?", {type, nearest});
    }
    Add(place, text);
  }

  void Range(const std::string& place, const Number& number, const TicketKey& key) {
    std::int64_t code = 0;
    const bool whole = !number.IsReal() && number.Get(&code);
    if (whole && code >= key.low && code <= key.high) return;
    const std::string what =
        whole ? Phrase("%1 is out of range", {std::to_string(code)}) : Phrase("is no whole number");
    std::string range =
        Phrase("it takes %1 to %2", {std::to_string(key.low), std::to_string(key.high)});
    if (!key.words.empty()) range += " (" + WordList(key) + ")";
    Add(place, what + "; " + range);
  }
};

bool HasNumber(const Dictionary& group, std::string_view key, std::int64_t wanted) {
  std::int64_t number = 0;
  return CFDictionaryGetNumber(group, key, &number) && number == wanted;
}

/// Settings that do nothing by themselves, or harm without another one.
void CheckSense(const Dictionary& ticket, Checker* checker) {
  const Dictionary* sections = DictionaryGetDictionary(ticket, key::kJTMLOptions);
  std::int64_t emit = 1;
  CFDictionaryGetNumber(ticket, key::kEmitJTML, &emit);
  if (sections == nullptr || emit != 1) {
    for (const TicketKey& key : TopLevelKeys()) {
      if (!key.xml_only || !DictionaryContains(ticket, key.name)) continue;
      if (emit == 1) {
        checker->Add(key.name,
                     Phrase("has no effect without %1; add {\"JTMLOptionAll\": true} there",
                            {key::kJTMLOptions}));
      } else if (std::string_view(key.name) != key::kFinishingDuplex) {
        // The sides of a house ticket are asked of the page device as well.
        checker->Add(key.name, Phrase("has no effect while no XML ticket is written; set %1 to 1",
                                      {key::kEmitJTML}));
      }
    }
  }
  if (const Dictionary* job = DictionaryGetDictionary(ticket, key::kJobType)) {
    const std::string place = key::kJobType;
    if (HasNumber(*job, key::job_type::kJobType, kJobTypeDelayed) &&
        !DictionaryContains(*job, key::job_type::kDelayedPrintTime))
      checker->Add(place, Phrase("a delayed job needs a DelayedPrintTime"));
  }
  const Dictionary* stock = DictionaryGetDictionary(ticket, key::kJobLevelStock);
  std::int32_t size = 0;
  std::int32_t width = 0;
  std::int32_t length = 0;
  if (stock != nullptr && CFDictionaryGetNumber(*stock, key::stock::kSize, &size) &&
      !GetStockDimensionsForSize(size, &width, &length) &&
      !DictionaryContains(*stock, key::stock::kWidth))
    checker->Add("com.zarvo.print.JobLevelStock/Size",
                 Phrase("no stock has the code %1; take a known one, or give Width and Length",
                        {std::to_string(size)}));
}

}  // namespace

std::vector<TicketFinding> CheckTicketKeys(const Dictionary& ticket,
                                           std::span<const char* const> spooler_options) {
  Checker checker(spooler_options);
  checker.Group("", ticket, TopLevelKeys());
  CheckSense(ticket, &checker);
  return std::move(checker.findings);
}

}  // namespace zarvo
