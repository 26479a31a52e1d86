// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/PublishedTickets.h"

#include <algorithm>
#include <cstdio>
#include <set>

#include "CUPSFilter/Options/HouseTicketOption.h"
#include "CUPSFilter/Options/PpdTicket.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/system/PublishedChoices.h"
#include "Tools/zarvo/ticket/HouseText.h"

namespace zarvo::tool {
namespace {

/// Beyond it nobody reads the PPD any more (see Ppd.cpp), and jobs would lose all their choices.
constexpr std::size_t kMostPpdBytes = 3 << 20;

/// The name, and the choice's keyword, of a line such as "*ZRVTicket HouseTicket.thesis: ..."; an
/// empty name for other lines.
std::pair<std::string, std::string> TicketOfLine(std::string_view line) {
  const std::string start = "*ZRVTicket " + std::string(kHouseTicketOption) + ".";
  const std::size_t quote = line.find('"');
  const std::size_t colon = line.find(':');
  if (!line.starts_with(start) || quote == line.npos || colon == line.npos) return {};
  const std::string_view value = line.substr(quote + 1, line.rfind('"') - quote - 1);
  return {HouseTicketIn(ReadTicketAttribute(value)).value_or(""),
          std::string(line.substr(start.size(), colon - start.size()))};
}

std::string TicketOption(const std::string& name) {
  if (name.find('"') == name.npos) return std::string(key::kHouseTicket) + "=" + TicketValue(name);
  std::string text = std::string(key::kHouseTicket) + "..D=";
  char digits[3];
  for (const char c : name) {
    std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned char>(c));
    text += digits;
  }
  return text;
}

std::string_view TakeLine(std::string_view* rest) {
  const std::size_t end = std::min(rest->find('\n'), rest->size());
  const std::string_view line = rest->substr(0, end);
  rest->remove_prefix(std::min(end + 1, rest->size()));
  return line;
}

/// Keywords of the choices that the PPD itself has for the ticket, published or not.
std::set<std::string> KeywordsOf(std::string_view ppd, const std::string& name) {
  std::set<std::string> keywords;
  while (!ppd.empty()) {
    const auto [ticket, keyword] = TicketOfLine(TakeLine(&ppd));
    if (!keyword.empty() && ticket == name) keywords.insert(keyword);
  }
  return keywords;
}

/// The templates and presets that stand for the choice, as "KEYWORD NAME/".
std::vector<std::string> Aliases(std::string_view ppd, const std::string& end) {
  std::vector<std::string> aliases;
  while (!ppd.empty()) {
    const std::string_view line = TakeLine(&ppd);
    const std::size_t slash = line.find('/');
    if (line.ends_with(end) && slash != line.npos) aliases.emplace_back(line.substr(1, slash));
  }
  return aliases;
}

/// The PPD without a choice that it has had from the beginning, in any of its languages.
std::string WithoutChoice(std::string_view ppd, const std::string& keyword) {
  const std::string option = kHouseTicketOption;
  std::vector<std::string> names = Aliases(ppd, "\"*" + option + " " + keyword + "\"");
  names.push_back(option + " " + keyword + "/");
  std::string kept;
  bool gone = false;
  while (!ppd.empty()) {
    const std::string_view line = TakeLine(&ppd);
    if (std::exchange(gone, false) && line.starts_with("*End")) continue;
    const std::size_t dot = std::min(line.find('.'), line.size());
    gone = line.starts_with("*ZRVTicket " + option + "." + keyword + ":");
    for (const std::string& name : names)
      gone = gone || line.starts_with("*" + name) || line.substr(dot).starts_with("." + name);
    if (gone) continue;
    if (line == "*Default" + option + ": " + keyword) {
      kept += "*Default" + option + ": None\n";
    } else {
      kept += std::string(line) + "\n";
    }
  }
  return kept;
}

}  // namespace

std::string ChangePublishedTickets(std::string_view ppd, const std::string& name, bool publish,
                                   const HouseTicketStore& store, std::string* changed) {
  std::vector<std::string> names;
  for (const std::string& line : PublishedLines(ppd, kHouseTicketOption))
    if (std::string one = TicketOfLine(line).first; !one.empty()) names.push_back(std::move(one));
  const auto published = std::find(names.begin(), names.end(), name);
  const bool is_published = published != names.end();
  if (!publish && is_published) names.erase(published);
  std::string text;
  Failure failure = PublishChoices(ppd, kHouseTicketOption, {}, &text);
  if (!failure.empty()) return failure;
  const std::set<std::string> own = KeywordsOf(text, name);
  if (!publish && !is_published && own.empty()) return "\"" + name + "\" is none of its choices";
  if (!publish)
    for (const std::string& keyword : own) text = WithoutChoice(text, keyword);
  if (publish && !is_published && own.empty()) names.push_back(name);

  std::vector<PublishedChoice> choices;
  for (const std::string& one : names) {
    HouseTicket house;
    if (!store.Find(one, &house).empty()) continue;
    const auto english = house.titles.find("en");
    PublishedChoice choice{english != house.titles.end() ? english->second : one,
                           TicketOption(one),
                           house.titles,
                           one,
                           {"cupsFinishingTemplate", "APPrinterPreset"}};
    choices.push_back(std::move(choice));
  }
  // A keyword that is the name of another ticket would be taken for it.
  failure = PublishChoices(text, kHouseTicketOption, choices, changed, store.Names());
  if (!failure.empty() || changed->size() <= kMostPpdBytes) return failure;
  return "its PPD would become too large for the filter";
}

}  // namespace zarvo::tool
