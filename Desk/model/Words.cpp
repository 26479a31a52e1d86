// SPDX-License-Identifier: Apache-2.0
#include "Desk/model/Words.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <span>

#include "Platform/Phrase.h"
#include "Source/Fax.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/job/Words.h"

namespace zarvo::desk {
namespace {

struct Word {
  std::string_view word;
  const char* text;
  std::string_view key = "";  ///< of that one only
};
// The others are good enough as they are.
constexpr Word kWords[] = {
    {"normal", "Print it", key::job_type::kJobType},
    {"none", "Not printed", key::special_page::kSidesImaged},
    {"front", "Front printed", key::special_page::kSidesImaged},
    {"back", "Back printed", key::special_page::kSidesImaged},
    {"both", "Both sides printed", key::special_page::kSidesImaged},
    {"custom", "A text of one's own", kFaxCoverShowRecipientsProperty},
    {"blank", "Not printed"},
    {"pdf", "PDF"},
    {"one-sided", "One side of each sheet"},
    {"long-edge", "Both sides, turned like a book"},
    {"short-edge", "Both sides, turned like a calendar"},
    {"left-to-right", "From left to right"},
    {"right-to-left", "From right to left"},
    {"background", "Behind the page"},
    {"overlay", "Over the page, see-through"},
    {"foreground", "Over the page"},
    {"monochrome-grayscale", "Black and gray"},
    {"color", "Colour"},
    {"hold", "Hold it at the printer"},
    {"save", "Save it at the printer"},
    {"print-and-save", "Print and save it"},
    {"fax", "Send it as a fax"},
    {"secure", "Secure: wait for a PIN"},
    {"delayed", "Print it later"},
    {"proof", "Proof: one set first"},
    {"save-only", "Save it only"},
    {"user", "User, with or without an account"},
    {"general", "General account"},
    {"group", "Group account"},
    {"imaged", "Printed"},
    {"top", "Top tray"},
    {"set", "Each set"},
    {"subset", "Each subset"},
    {"set-and-subset", "Sets and subsets"},
    {"fine", "Fine"},
    {"names", "Their names"},
    {"rotate-0", "As they are"},
    {"rotate-180", "Upside down"},
};

std::string Capitalized(std::string text) {
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

void AddKeys(std::span<const TicketKey> keys, std::set<std::string>* texts) {
  for (const TicketKey& key : keys) {
    texts->insert(DisplayName(key));
    for (const CodeWord& word : key.words) {
      const std::string text = DisplayWord(word.word, key.name);
      // Sizes, resolutions and the like are the same everywhere.
      const auto small = std::count_if(text.begin(), text.end(),
                                       [](unsigned char c) { return std::islower(c) != 0; });
      if (small > 3 && !text.starts_with("Custom ")) texts->insert(text);
    }
    AddKeys(key.members, texts);
  }
}

}  // namespace

std::string DisplayWord(std::string_view word, std::string_view key) {
  for (const Word& row : kWords) {
    if (word == row.word && (row.key.empty() || row.key == key)) return row.text;
  }
  constexpr std::string_view kCustom = "custom";
  if (word.starts_with(kCustom) && word.size() == kCustom.size() + 1)
    return Phrase("Custom %1", {word.substr(kCustom.size())});
  std::string text(word);
  constexpr std::size_t kLongestSize = 4;  // "sra3"
  if (text.size() <= kLongestSize && text.size() > 1 &&
      std::any_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; }))
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  std::replace(text.begin(), text.end(), '-', ' ');
  return Capitalized(std::move(text));
}

std::string DisplayName(const TicketKey& key) { return Capitalized(key.meaning); }

std::vector<std::string> TableTexts() {
  std::set<std::string> texts;
  AddKeys(TopLevelKeys(), &texts);
  for (const auto& more : {tool::PjlTexts(), tool::TicketXmlTexts()})
    for (const std::string& text : more) texts.insert(Capitalized(text));
  return {texts.begin(), texts.end()};
}

}  // namespace zarvo::desk
