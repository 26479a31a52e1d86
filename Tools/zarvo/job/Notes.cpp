// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/Notes.h"

#include <algorithm>
#include <cstdlib>
#include <span>

#include "Platform/Phrase.h"

namespace zarvo::tool {
namespace {

// What is noted, by the code of the statement, in this order.
constexpr std::string_view kNoted[] = {
    "JOB_TYPE",    "SAVE_NAME",  "JOB_PRINT_AFTER",       "FAX_DESTINATION_PHONE",
    "FAX_MAILBOX", "finishings", "finishing-template",    "job-offset",
    "JOBOFFSET",   "INTERLEAVE", "separator-sheets-type", "form-name",
    "page-ranges", "output-bin", "page-rotation"};
constexpr std::string_view kUsual[] = {"print", "none", "no", "automatic"};

bool IsUsual(const std::string& words) {
  return std::find(std::begin(kUsual), std::end(kUsual), words) != std::end(kUsual);
}

const Statement* Find(const Explanation& part, std::string_view code) {
  for (const Statement& statement : part.statements) {
    if (statement.code == code) return &statement;
  }
  return nullptr;
}

void AddJobNotes(const JobReport& report, std::vector<PageNote>* notes) {
  for (const std::string_view code : kNoted) {
    for (const Explanation* part : {&report.header, &report.ticket}) {
      const Statement* statement = Find(*part, code);
      if (statement == nullptr || IsUsual(statement->Words())) continue;
      const bool kind = code == "JOB_TYPE" || code == "finishings";
      notes->push_back(
          {1, kind ? statement->Words() : statement->name + ": " + statement->Words()});
    }
  }
  const Statement* pin = Find(report.header, "JOB_PASSWORD");
  if (pin != nullptr && pin->value != "set")
    notes->push_back({1, Phrase("secure, but no PIN is set")});
  if (report.job.postscript.copies > 1)
    notes->push_back({1, Phrase("%1 copies", {std::to_string(report.job.postscript.copies)})});
}

/// Each exception tells its pages first; they are the first member that names a range.
void AddExceptions(const Explanation& ticket, std::vector<PageNote>* notes) {
  const std::vector<Statement>& all = ticket.statements;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].code != "page-overrides") continue;
    std::string text;
    std::uint64_t page = 1;
    for (std::size_t k = i + 1; k < all.size() && all[k].level > all[i].level; ++k) {
      if (all[k].code == "input-documents" || all[k].Words().empty()) continue;
      const bool begins = all[k].code == "pages";
      if (begins && !text.empty()) notes->push_back({page, text});
      if (begins) {
        page = std::max(1UL, std::strtoul(all[k].value.c_str(), nullptr, 10));
        text = Phrase("other settings for the pages %1", {all[k].Words()});
      } else if (!text.empty()) {
        text += ", " + all[k].name + " " + all[k].Words();
      }
    }
    if (!text.empty()) notes->push_back({page, text});
  }
}

}  // namespace

std::vector<PageNote> NotesOn(const JobReport& report) {
  std::vector<PageNote> notes;
  AddJobNotes(report, &notes);
  AddExceptions(report.ticket, &notes);
  return notes;
}

}  // namespace zarvo::tool
