// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/Sheets.h"

#include <cstdlib>
#include <span>

#include "Platform/Phrase.h"

namespace zarvo::tool {
namespace {

constexpr unsigned kMostSheets = 1'000'000;

unsigned Count(const std::string& text) {
  const long value = std::atol(text.c_str());
  return value < 0 ? 0 : static_cast<unsigned>(std::min<long>(value, kMostSheets));
}

/// What tells one paper from another on a picture.
bool TellsThePaper(const std::string& code) {
  return code == "media-size" || code == "media-color" || code == "media-type" ||
         code == "media-key" || code == "media" || code == "media-description";
}

void ReadCover(std::span<const Statement> members, SpecialSheet* sheet) {
  for (const Statement& member : members) {
    if (member.code == "cover-type")
      sheet->blank = member.value == "print-none" || member.value == "no-cover";
    if (TellsThePaper(member.code)) sheet->text += ", " + member.Words();
  }
  if (sheet->blank) sheet->text += ", " + Phrase("not printed");
}

/// Each member of the set begins with the page after which it comes.
void ReadInserts(std::span<const Statement> members, std::vector<SpecialSheet>* sheets) {
  SpecialSheet* sheet = nullptr;
  for (const Statement& member : members) {
    if (member.code == "insert-after-page-number") {
      sheets->push_back(
          {SpecialSheet::Place::kInsert, Count(member.value), 1, true, Phrase("insert")});
      sheet = &sheets->back();
    } else if (sheet != nullptr && member.code == "insert-count") {
      sheet->count = Count(member.value);
      const std::string after = std::to_string(sheet->after_page);
      sheet->text = sheet->count == 1
                        ? Phrase("1 sheet after page %1", {after})
                        : Phrase("%1 sheets after page %2", {std::to_string(sheet->count), after});
    } else if (sheet != nullptr && TellsThePaper(member.code)) {
      sheet->text += ", " + member.Words();
    }
  }
}

}  // namespace

std::vector<SpecialSheet> FindSpecialSheets(const Explanation& ticket) {
  std::vector<SpecialSheet> sheets;
  const std::vector<Statement>& all = ticket.statements;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].level != 0) continue;
    std::size_t end = i + 1;
    while (end < all.size() && all[end].level > 0) ++end;
    const std::span members(all.data() + i + 1, end - i - 1);
    if (all[i].code == "cover-front" || all[i].code == "cover-back") {
      const bool front = all[i].code == "cover-front";
      SpecialSheet sheet{front ? SpecialSheet::Place::kFront : SpecialSheet::Place::kBack, 0, 1,
                         true, all[i].name};
      ReadCover(members, &sheet);
      sheets.push_back(std::move(sheet));
    } else if (all[i].code == "insert-sheet") {
      ReadInserts(members, &sheets);
    }
  }
  return sheets;
}

}  // namespace zarvo::tool
