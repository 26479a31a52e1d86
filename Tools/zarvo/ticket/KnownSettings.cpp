// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/ticket/KnownSettings.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

#include "HouseTicket/HouseTicket.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/Mappings.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

/// A number of more values than this is looked for as it is; longer lists of codes there are none.
constexpr std::int64_t kMostCodes = 60;
/// The profiles of one kind.
constexpr int kMostProfiles = 20;
// Values that no default is.
constexpr std::int32_t kMarkNumber = 7777;
constexpr char kMarkText[] = "7777";

/// What has to stand beside a key for it to be read, in the readable form: what belongs into the
/// ticket with it, and what only has to be there.
struct Company {
  std::string_view path;  ///< how the keys down to it begin, or the last of them
  const char* needs;
  const char* beside;
};
constexpr char kOwnSize[] = R"({"JobLevelStock": {"Size": 0}})";  // no code's
constexpr char kOwnColor[] = R"({"HighlightColorOptionsJob": {"HighlightMappingColor": "other"}})";
/// Numbers that go with a choice, and are looked for by themselves.
constexpr std::string_view kOwnNumbers = "highlight-map-color-custom-col/";
constexpr Company kCompany[] = {
    {"com.zarvo.print.JobNotesJobName", "{}", R"({"JobNotesSenderName": ""})"},
    {"com.zarvo.print.JobNotesSenderName", "{}", R"({"JobNotesJobName": ""})"},
    {"com.zarvo.print.FinishingCustom", R"({"FinishingOptions": 22})", "{}"},
    {"com.zarvo.print.FinishingOffsetPages", R"({"FinishingOffsetEnableSubset": 1})", "{}"},
    {"com.zarvo.print.PagesToPrintFrom", R"({"PagesToPrintSelected": 1})",
     R"({"PagesToPrintTo": 99999})"},
    {"com.zarvo.print.PagesToPrintTo", R"({"PagesToPrintSelected": 1})",
     R"({"PagesToPrintFrom": 1})"},
    {"com.zarvo.print.JobType/", "{}", R"({"JobType": {"JobType": "print-and-save"}})"},
    {"com.zarvo.print.FaxOptions/", "{}",
     R"({"JobType": {"JobType": "fax"}, "FaxRecipientList": [{"FaxNumber": "1"}],
         "FaxOptions": {"SenderName": ""}})"},
    {"com.zarvo.print.ImageShiftOptionsJob/",
     R"({"ImageShiftOptionsJob": {"FullPrecision": true}})", "{}"},
    {"com.zarvo.print.ImageShiftOptionsPage/",
     R"({"com.zarvo.print.ImageShiftOptionsPage": {"FullPrecision": true}})", "{}"},
    {"com.zarvo.print.BackgroundFormsOptions/NewFormString", "{}", "{}"},
    {"com.zarvo.print.BackgroundFormsOptions/",
     R"({"BackgroundFormsOptions": {"FullPrecision": true}})",
     R"({"BackgroundFormsOptions": {"MergeWithString": "x"}})"},
    {"com.zarvo.print.HighlightColorOptionsJob/HighlightColorR",
     R"({"HighlightColorOptionsJob": {"HighlightColorRGB": 1}})", kOwnColor},
    {"com.zarvo.print.HighlightColorOptionsJob/HighlightColorG",
     R"({"HighlightColorOptionsJob": {"HighlightColorRGB": 1}})", kOwnColor},
    {"com.zarvo.print.HighlightColorOptionsJob/HighlightColorB",
     R"({"HighlightColorOptionsJob": {"HighlightColorRGB": 1}})", kOwnColor},
    {"com.zarvo.print.HighlightColorOptionsJob/HighlightColor", "{}", kOwnColor},
    {"OrderCount", "{}", R"({"JobLevelStock": {"Type": "tabs"}})"},
    {"Width", kOwnSize, R"({"JobLevelStock": {"Length": 1}})"},
    {"Length", kOwnSize, R"({"JobLevelStock": {"Width": 1}})"},
};

/// Keys that say something together only.
struct Together {
  const char*
      settings;  ///< that go into the ticket with them; a key that a group needs to have them
  std::vector<const char*> keys;
};
const std::vector<Together>& TogetherRows() {
  constexpr const char* kWhere = key::kFinishingHolePunchValue;
  constexpr const char* kHoles = key::kFinishingHolePunchOptions;
  constexpr const char* kStaple = key::kFinishingStaple1Value;
  constexpr const char* kZFold = key::kFinishingZFoldValue;
  static const std::vector<Together> kRows = {
      {R"({"FinishingOptions": 4})", {kStaple}},
      {R"({"FinishingOptions": 14})", {key::kFinishingBindValue}},
      {R"({"FinishingOptions": 18})", {key::kFinishingFoldValue}},
      {R"({"FinishingOptions": 40})", {key::kFinishingFoldValue}},
      {R"({"FinishingOptions": 36})", {kZFold}},
      {R"({"FinishingOptions": 30})", {kWhere, kHoles}},
      {R"({"FinishingOptions": 49})", {kWhere, kHoles, kStaple}},
      {R"({"FinishingOptions": 50})", {kWhere, kHoles, kStaple, kZFold}},
      {R"({"FinishingOptions": 51})", {kStaple, kZFold}},
      {R"({"FinishingOptions": 52})", {kWhere, kHoles, kZFold}},
      {R"({"JobLevelStock": {"Type": 2}})", {key::kSeparatorOption, key::kSeparatorColor}},
      {"{}", {key::stock::kCoating, key::stock::kCoatedSides}},
  };
  return kRows;
}

Dictionary Read(const char* json) {
  Dictionary ticket;
  ReadTicket(json, &ticket);
  return ticket;
}

/// The settings with one more.
Dictionary With(Dictionary settings, std::span<const std::string> path, Value value) {
  if (path.size() == 1) {
    settings.insert_or_assign(path[0], std::move(value));
  } else {
    Dictionary& group = CFDictionaryGetDictionaryOrCreate(settings, path[0]);
    group = With(std::move(group), path.subspan(1), std::move(value));
  }
  return settings;
}

/// Those of `all` that are not in `some`, each as often as it is there more often.
Sayings Without(Sayings all, const Sayings& some) {
  for (const Saying& saying : some)
    if (const auto found = std::find(all.begin(), all.end(), saying); found != all.end())
      all.erase(found);
  return all;
}

class Learner {
 public:
  Learner(const SettingScope& scope, const std::vector<std::string_view>& without)
      : scope_(scope), without_(without) {}

  void Keys(std::span<const TicketKey> keys, const std::vector<std::string>& above) {
    for (const TicketKey& row : keys) {
      std::vector<std::string> path = above;
      path.emplace_back(row.name);
      if (std::find(without_.begin(), without_.end(), row.name) != without_.end()) continue;
      if (row.type == KeyType::kDictionary) {
        Keys(row.members, path);
        AddTogether(row.members, path);
      } else if (!row.secret) {
        Key(row, path);
      }
    }
    if (above.empty()) AddTogether(keys, {});
  }

  KnownSettings known;

 private:
  void Key(const TicketKey& row, const std::vector<std::string>& path) {
    const std::string name = row.name;
    if (row.type == KeyType::kBoolean) {
      AddValue(path, Value::Boolean(false));
      AddValue(path, Value::Boolean(true));
    } else if (name == key::stock::kSize) {
      for (const StockSize* size = CompleteStockSizeMap; size->name != nullptr; ++size)
        if (size->code > 0) AddValue(path, Number(static_cast<std::int32_t>(size->code)));
    } else if (row.type == KeyType::kAny) {
      for (int code = 1; code <= kMostProfiles; ++code) AddValue(path, Number(code));
      AddKey(path, false);
    } else if (row.type == KeyType::kNumber && row.high - row.low <= kMostCodes) {
      for (std::int64_t code = row.low; code <= row.high; ++code)
        AddValue(path, Number(static_cast<std::int32_t>(code)));
    } else if (row.type == KeyType::kNumber || row.type == KeyType::kText) {
      AddKey(path, row.type == KeyType::kNumber);
    }
  }

  Sayings Said(Dictionary settings) const {
    return scope_.sayings(WriteJob(scope_.ticket(std::move(settings))));
  }

  /// What goes beside the key, in `needs` what has to stay there.
  static Dictionary Beside(const std::vector<std::string>& path, Dictionary* needs) {
    std::string name;
    for (const std::string& one : path) name += (name.empty() ? "" : "/") + one;
    for (const Company& row : kCompany) {
      const bool near = path.back() == row.path;
      if (!near && !name.starts_with(row.path)) continue;
      *needs = Read(row.needs);
      Dictionary beside = Read(row.beside);
      if (near && path.size() > 1) {  // of a stock, whichever it is
        const auto groups = std::span(path).first(path.size() - 1);
        if (const auto stock = needs->find(key::kJobLevelStock); stock != needs->end())
          *needs = With({}, groups, Value(stock->second));
        beside = With({}, groups, std::move(beside[key::kJobLevelStock]));
      }
      MergeSettings(*needs, &beside);
      return beside;
    }
    return {};
  }

  void AddValue(const std::vector<std::string>& path, Value value) {
    Dictionary needs;
    const Dictionary beside = Beside(path, &needs);
    Sayings said = Without(Said(With(beside, path, value)), Said(beside));
    std::erase_if(said, [](const Saying& one) { return one.path.starts_with(kOwnNumbers); });
    if (!said.empty()) known.values.push_back({With(needs, path, value), std::move(said)});
  }

  void AddKey(const std::vector<std::string>& path, bool number) {
    Dictionary needs;
    const Dictionary beside = Beside(path, &needs);
    const Value mark = number ? Value(Number(kMarkNumber)) : Value(kMarkText);
    for (const Saying& saying : Said(With(beside, path, mark))) {
      if (saying.text != kMarkText) continue;
      known.keys.push_back({path, number, needs, saying.path});
      return;
    }
  }

  void AddTogether(std::span<const TicketKey> rows, const std::vector<std::string>& above) {
    for (const Together& row : TogetherRows())
      if (FindKey(rows, row.keys.front()) != nullptr)
        Combine(row.keys, rows, above, Read(row.settings), Said({}));
  }

  /// Every combination of values; a value that says nothing more is none.
  void Combine(std::span<const char* const> keys, std::span<const TicketKey> rows,
               const std::vector<std::string>& above, const Dictionary& settings,
               const Sayings& nothing) {
    const Sayings before = Said(settings);
    if (keys.empty()) {
      Sayings said = Without(before, nothing);
      if (!said.empty()) known.values.push_back({settings, std::move(said)});
      return;
    }
    std::vector<std::string> path = above;
    path.emplace_back(keys.front());
    const TicketKey* row = FindKey(rows, keys.front());
    for (std::int64_t code = row->low; code <= row->high; ++code) {
      const Dictionary one = With(settings, path, Number(static_cast<std::int32_t>(code)));
      // What is the default is no choice to be looked for, unless it goes with others.
      if (keys.size() == 1 || Said(one) != before ||
          std::string_view(keys.front()) == key::kFinishingHolePunchOptions)
        Combine(keys.subspan(1), rows, above, one, nothing);
    }
  }

  const SettingScope& scope_;
  const std::vector<std::string_view>& without_;
};

/// Takes `some` out of `all` when all of them are there.
bool TakeOut(const Sayings& some, Sayings* all) {
  Sayings rest = Without(*all, some);
  if (rest.size() + some.size() != all->size()) return false;
  *all = std::move(rest);
  return true;
}

}  // namespace

KnownSettings LearnSettings(std::span<const TicketKey> keys, const SettingScope& scope,
                            const std::vector<std::string_view>& without) {
  Learner learner(scope, without);
  learner.Keys(keys, {});
  // What says more explains more than what says a part of it.
  std::stable_sort(learner.known.values.begin(), learner.known.values.end(),
                   [](const KnownValue& left, const KnownValue& right) {
                     return left.sayings.size() > right.sayings.size();
                   });
  return std::move(learner.known);
}

Dictionary SettingsThatSay(const KnownSettings& known, Sayings* sayings) {
  Dictionary settings;
  for (const KnownValue& value : known.values)
    if (TakeOut(value.sayings, sayings)) MergeSettings(value.settings, &settings);
  for (const KnownKey& key : known.keys) {
    const auto saying = std::find_if(sayings->begin(), sayings->end(),
                                     [&](const Saying& one) { return one.path == key.saying; });
    if (saying == sayings->end()) continue;
    Value value = saying->text;
    if (key.number) {
      std::int32_t number = 0;
      const char* end = saying->text.data() + saying->text.size();
      const auto [stop, error] = std::from_chars(saying->text.data(), end, number);
      if (error != std::errc() || stop != end) continue;
      value = Number(number);
    } else if (MakeString(saying->text) != saying->text) {
      continue;
    }
    MergeSettings(key.needs, &settings);
    settings = With(std::move(settings), key.path, std::move(value));
    sayings->erase(saying);
  }
  return settings;
}

}  // namespace zarvo::tool
