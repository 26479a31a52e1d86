// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/SheetPlan.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <span>

#include "Platform/Phrase.h"

namespace zarvo::tool {
namespace {

/// Page exceptions beyond these are damage or malice; they would be looked through for every page.
constexpr std::size_t kMostExceptions = 1000;

/// Other settings for a range of pages.
struct Exception {
  std::uint64_t first = 1;
  std::uint64_t last = 1;
  std::optional<bool> two_sided;
  std::string stock;
  std::string others;
};

void Append(std::string* list, const std::string& text) {
  *list += (list->empty() ? "" : "\n") + text;
}

bool IsPaper(const std::string& code) { return code.starts_with("media"); }

/// The pages of "5 to 8", or of a single one.
void ReadPages(const std::string& text, Exception* exception) {
  char* end = nullptr;
  exception->first = std::max(1UL, std::strtoul(text.c_str(), &end, 10));
  const std::string_view rest = end;
  exception->last = exception->first;
  if (const std::size_t to = rest.find("to "); to != std::string_view::npos)
    exception->last = std::max(exception->first, std::strtoul(rest.data() + to + 3, nullptr, 10));
}

std::vector<Exception> ReadExceptions(const Explanation& ticket) {
  std::vector<Exception> exceptions;
  const std::vector<Statement>& all = ticket.statements;
  const auto begin = std::find_if(all.begin(), all.end(),
                                  [](const auto& s) { return s.code == "page-overrides"; });
  if (begin == all.end()) return exceptions;
  for (auto s = begin + 1; s != all.end() && s->level > begin->level; ++s) {
    if (s->code == "pages" && s->level == begin->level + 1) {
      if (exceptions.size() == kMostExceptions) break;
      ReadPages(s->value, &exceptions.emplace_back());
    } else if (exceptions.empty() || s->Words().empty()) {
      continue;
    } else if (s->code == "sides") {
      exceptions.back().two_sided = s->value.starts_with("two");
      Append(&exceptions.back().others, s->Words());
    } else if (s->code == "input-documents") {
      continue;
    } else if (IsPaper(s->code)) {
      // Every paper says its size; it tells nothing unless it is another one.
      if (s->code != "media-size") Append(&exceptions.back().stock, s->name + ": " + s->Words());
    } else {
      Append(&exceptions.back().others, s->name + ": " + s->Words());
    }
  }
  return exceptions;
}

FinishingCodes ReadFinishings(const Explanation& ticket) {
  FinishingCodes codes;
  for (const Statement& statement : ticket.statements) {
    if (statement.code != "finishings" || statement.level != 0) continue;
    const char* at = statement.value.data();
    const char* const end = at + statement.value.size();
    while (at < end) {
      int code = 0;
      const auto [stop, error] = std::from_chars(at, end, code);
      if (error == std::errc()) codes.push_back(code);
      at = std::max(stop, at) + 1;
    }
  }
  return codes;
}

/// The size that most pages have.
std::pair<int, int> MainSize(const JobReport& report) {
  const auto& sizes = report.job.postscript.page_sizes;
  const auto most = std::max_element(
      sizes.begin(), sizes.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  return most == sizes.end() ? std::pair(612, 792) : most->first;
}

class Planner {
 public:
  Planner(const JobReport& report, std::uint64_t pages) : report_(report) {
    plan_.special = FindSpecialSheets(report.ticket);
    plan_.finishings = ReadFinishings(report.ticket);
    plan_.pages = pages;
    plan_.booklet = report.job.postscript.booklet;
    plan_.two_sided = IsTwoSided(report);
    plan_.copies = std::max(report.job.postscript.copies, 1);
    std::tie(width_, height_) = MainSize(report);
    exceptions_ = ReadExceptions(report.ticket);
  }

  SheetPlan Make() {
    AddSheets(SpecialSheet::Place::kFront);
    AddSheets(SpecialSheet::Place::kInsert);
    AddPages(plan_.pages);
    AddSheets(SpecialSheet::Place::kBack);
    MarkPrintedCovers();
    const bool slips = std::any_of(
        report_.ticket.statements.begin(), report_.ticket.statements.end(), [](const auto& s) {
          return s.code == "separator-sheets-type" && s.value == "slip-sheets";
        });
    if (slips) AddBlank(PlannedSide::Kind::kSlipSheet, Phrase("slip sheet after the set"), 1);
    plan_.sheets = sheet_;
    return std::move(plan_);
  }

 private:
  void AddPages(std::uint64_t to) {
    for (; next_ <= to; ++next_) {
      const Exception* exception = nullptr;
      for (const Exception& each : exceptions_) {
        if (each.first <= next_ && next_ <= each.last) exception = &each;
      }
      const bool two_sided =
          exception != nullptr ? exception->two_sided.value_or(plan_.two_sided) : plan_.two_sided;
      PlannedSide side;
      side.page = next_;
      // A sheet is of one paper, and nothing comes between its sides.
      side.front =
          plan_.booklet ? next_ % 2 == 1 : !(two_sided && back_is_free_ && exception == last_);
      if (side.front) ++sheet_;
      back_is_free_ = side.front && two_sided;
      last_ = exception;
      side.sheet = sheet_;
      GiveSize(&side);
      if (exception != nullptr) {
        side.stock = exception->stock;
        side.exception = exception->others.empty() ? Phrase("other paper") : exception->others;
      }
      plan_.sides.push_back(std::move(side));
    }
  }

  void GiveSize(PlannedSide* side) const {
    side->width = width_;
    side->height = height_;
    if (plan_.booklet) side->turn = report_.job.postscript.booklet_reversed ? 90 : 270;
  }

  void AddSheets(SpecialSheet::Place place) {
    std::vector<const SpecialSheet*> here;
    for (const SpecialSheet& sheet : plan_.special) {
      if (sheet.place == place && sheet.blank) here.push_back(&sheet);
    }
    std::stable_sort(here.begin(), here.end(),
                     [](const auto* a, const auto* b) { return a->after_page < b->after_page; });
    const bool insert = place == SpecialSheet::Place::kInsert;
    for (const SpecialSheet* sheet : here) {
      if (insert) {
        // The pages of a booklet are laid out for both sides of a sheet: nothing parts these.
        const std::uint64_t after = sheet->after_page + (plan_.booklet ? sheet->after_page % 2 : 0);
        AddPages(std::min<std::uint64_t>(after, plan_.pages));
      } else if (place == SpecialSheet::Place::kBack) {
        AddPages(plan_.pages);
      }
      AddBlank(insert ? PlannedSide::Kind::kInsert : PlannedSide::Kind::kCover,
               sheet->text + FoldedPlace(place), sheet->count);
    }
  }

  /// Where a cover lies once the sheets are folded: they come outermost first.
  std::string FoldedPlace(SpecialSheet::Place place) const {
    if (!plan_.booklet || place == SpecialSheet::Place::kInsert) return "";
    return ", " + (place == SpecialSheet::Place::kFront ? Phrase("around the booklet")
                                                        : Phrase("in the middle of the booklet"));
  }

  void AddBlank(PlannedSide::Kind kind, const std::string& text, unsigned count) {
    PlannedSide side;
    side.kind = kind;
    side.text = text;
    side.count = count;
    side.sheet = sheet_ + 1;
    GiveSize(&side);
    sheet_ += count;
    back_is_free_ = false;
    plan_.sides.push_back(std::move(side));
  }

  /// A cover that is printed takes the first or the last page onto its paper, of a booklet the
  /// whole sheet.
  void MarkPrintedCovers() {
    for (const SpecialSheet& cover : plan_.special) {
      if (cover.place == SpecialSheet::Place::kInsert || cover.blank) continue;
      const std::uint64_t page = cover.place == SpecialSheet::Place::kFront ? 1 : plan_.pages;
      for (PlannedSide& side : plan_.sides) {
        if (side.page == 0) continue;
        if (side.page == page || (plan_.booklet && (side.page + 1) / 2 == (page + 1) / 2))
          side.stock = cover.text + FoldedPlace(cover.place);
      }
    }
  }

  const JobReport& report_;
  SheetPlan plan_;
  std::vector<Exception> exceptions_;
  int width_ = 0;
  int height_ = 0;
  std::uint64_t next_ = 1;   // page
  std::uint64_t sheet_ = 0;  // the last one
  bool back_is_free_ = false;
  const Exception* last_ = nullptr;
};

void AddNotes(const std::vector<PageNote>& notes, const SheetPlan& plan,
              std::vector<SheetSide>* sides) {
  const auto at_front = std::find_if(plan.sides.begin(), plan.sides.end(), [](const auto& side) {
    return side.page != 0 || side.kind != PlannedSide::Kind::kCover;
  });
  for (const PageNote& note : notes) {
    std::uint64_t page = 0;
    for (auto i = static_cast<std::size_t>(at_front - plan.sides.begin()); i < sides->size(); ++i) {
      SheetSide& side = (*sides)[i];
      if (!side.text.empty()) continue;
      ++page;
      if (page == note.page || plan.booklet) {
        side.notes.push_back(note.text);
        break;
      }
    }
  }
}

}  // namespace

bool IsTwoSided(const JobReport& report) {
  if (report.job.postscript.booklet || report.job.postscript.two_sided) return true;
  const std::vector<Statement>& statements = report.ticket.statements;
  return std::any_of(statements.begin(), statements.end(), [](const auto& s) {
    return s.code == "sides" && s.level == 0 && s.value.starts_with("two");
  });
}

SheetPlan PlanSheets(const JobReport& report, std::uint64_t pages) {
  return Planner(report, pages).Make();
}

std::vector<SheetSide> SidesOf(const SheetPlan& plan, const std::vector<DrawnPage>& pages,
                               const std::vector<PageNote>& notes) {
  std::vector<SheetSide> sides;
  for (const PlannedSide& planned : plan.sides) {
    if (planned.kind == PlannedSide::Kind::kSlipSheet) continue;
    SheetSide side;
    side.text = planned.text;
    if (planned.page == 0) {
      side.width = planned.width;
      side.height = planned.height;
      if (planned.turn != 0) std::swap(side.width, side.height);
    } else if (planned.page <= pages.size()) {
      side.file = pages[planned.page - 1].file;
      side.page = pages[planned.page - 1].page;
    }
    if (planned.page != 0) side.turn = planned.turn;
    sides.push_back(std::move(side));
  }
  AddNotes(notes, plan, &sides);
  return sides;
}

}  // namespace zarvo::tool
