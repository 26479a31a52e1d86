// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/Copies.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "CUPSFilter/Options/common.h"
#include "Platform/Log.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

/// No printer makes more; a larger figure would overflow the sum.
constexpr long kMostCopies = 9999;
/// A line for each sheet would cost the spooler more than the sheet.
constexpr long kSheetsPerLine = 100;

const char* Find(std::span<const cups_option_t> options, const char* name) {
  return cupsGetOption(name, static_cast<int>(options.size()),
                       const_cast<cups_option_t*>(options.data()));
}

/// Whether something is done to each set as a whole.
bool MakesSets(const Dictionary& ticket) {
  std::int32_t preset = kPresetNone;
  std::int32_t slip = 0;
  constexpr std::int32_t kBetweenSets = 2;
  CFDictionaryGetNumber(ticket, key::kFinishingOptions, &preset);
  CFDictionaryGetNumber(ticket, key::kFinishingSlipSheet, &slip);
  return preset > kPresetPlain || slip == kBetweenSets ||
         DictionaryContains(ticket, key::kFrontCover) ||
         DictionaryContains(ticket, key::kBackCover) ||
         DictionaryContains(ticket, key::kInsertList);
}

bool IsFax(const Dictionary& ticket) {
  const Dictionary* job = DictionaryGetDictionary(ticket, key::kJobType);
  std::int32_t type = kJobTypeNormal;
  return job != nullptr && CFDictionaryGetNumber(*job, key::job_type::kJobType, &type) &&
         type == kJobTypeFax;
}

}  // namespace

CopyPlan ReadCopyPlan(const Ppd& ppd, const Dictionary& ticket,
                      std::span<const cups_option_t> options, const char* copies) {
  CopyPlan plan;
  plan.counted = ppd.IsTrue("ZRVPageLog");
  if (!plan.counted) return plan;
  plan.copies = static_cast<int>(std::clamp(std::strtol(copies, nullptr, 10), 1L, kMostCopies));
  plan.once = IsFax(ticket) && plan.copies > 1;
  if (plan.once) plan.copies = 1;
  const bool said =
      Find(options, "Collate") != nullptr || Find(options, "multiple-document-handling") != nullptr;
  // The converters do not know this one.
  const char* collate = Find(options, "sheet-collate");
  const bool sets =
      collate != nullptr ? std::string_view(collate) == "collated" : MakesSets(ticket);
  plan.sets = plan.copies > 1 && !said && sets;
  plan.chosen = Find(options, "page-ranges") != nullptr || Find(options, "page-set") != nullptr;
  plan.booklet = DictionaryGetBoolean(ticket, key::kBookletLayout) == true;
  plan.pagesPerSheet = Duplex != 0 && !IsFax(ticket) ? 2 : 1;
  const char* sides = Find(options, "sides");
  plan.logged = sides != nullptr && std::string_view(sides) != "one-sided" ? 2 : 1;
  return plan;
}

void LogSheets(const CopyPlan& plan, long sheets) {
  if (plan.counted) LogLine("PAGE: total %ld", sheets * plan.copies * plan.logged);
}

/// Those that are complete when another page begins, or the document ends.
long Copies::Sheets() const {
  return sheets_ + (pages_ + plan_.pagesPerSheet - 1) / plan_.pagesPerSheet;
}

/// Where several pages share a side, the converter's set-up ends with a setpagedevice that does
/// nothing, so the printer's own is called. A booklet has its own between it and the document.
void Copies::Set(const char* request) {
  output_.Write(request);
  output_.Write(plan_.booklet ? "setpagedevice\n" : "systemdict/setpagedevice get exec\n");
}

void Copies::BeginDocument() {
  sheets_ = Sheets();
  pages_ = 0;
  set_up_ = false;
}

void Copies::BeforeLine(std::string_view line) {
  const bool page = line.starts_with("%%Page:");
  if (!plan_.counted || (!page && !line.starts_with("%%EndSetup"))) return;
  if (!std::exchange(set_up_, true)) {
    if (plan_.once) Set("<</NumCopies 1>>");
    if (plan_.sides != nullptr) Set(plan_.sides);
    if (plan_.sets) Set("<</Collate true>>");
  }
  if (!page) return;
  if (!plan_.booklet && pages_ % plan_.pagesPerSheet == 0 && Sheets() >= told_ + kSheetsPerLine) {
    told_ = Sheets();
    LogSheets(plan_, told_);
  }
  ++pages_;
}

void Copies::Finish() {
  if (!plan_.booklet && Sheets() > told_) LogSheets(plan_, Sheets());
}

}  // namespace zarvo
