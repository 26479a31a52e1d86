// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/TicketGaps.h"

#include <algorithm>
#include <cstdint>

#include "Platform/Phrase.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

std::int32_t NumberAt(const Dictionary& group, std::string_view key) {
  std::int32_t number = 0;
  CFDictionaryGetNumber(group, key, &number);
  return number;
}

bool IsOneOf(std::int32_t number, std::int32_t one, std::int32_t other) {
  return number == one || number == other;
}

/// Folded in the middle, by one of the presets for it, in the ticket that the printer reads.
bool IsFolded(const Dictionary& ticket) {
  if (DictionaryGetDictionary(ticket, key::kJTMLOptions) == nullptr) return false;
  switch (NumberAt(ticket, key::kFinishingOptions)) {
    case kPresetBookletMaker:
      return true;
    case kPresetNone:
    case kPresetBooklet:
      return IsOneOf(NumberAt(ticket, key::kBookletFoldStaple), kBookletFold,
                     kBookletFoldAndStaple);
    case kPresetFold:
      return IsOneOf(NumberAt(ticket, key::kFinishingFoldValue), kFoldHalf, kFoldHalfAndStaple);
    default:
      return false;
  }
}

void CheckAccounting(const Dictionary& ticket, std::vector<TicketGap>* gaps) {
  const std::int32_t mode = NumberAt(ticket, key::kAccounting);
  if (!IsOneOf(mode, kUserAndOptionalAccount, kUserAndAccount)) return;
  if (DictionaryGetString(ticket, key::kAccountUser) == nullptr)
    gaps->push_back({key::kAccounting, Phrase("accounting: the job names no user"),
                     "AccountUser=Custom.USER", key::kAccountUser});
  const bool account = mode == kUserAndAccount ||
                       IsOneOf(NumberAt(ticket, key::kAccountType), kGeneralAccount, kGroupAccount);
  if (account && DictionaryGetString(ticket, key::kAccount) == nullptr)
    gaps->push_back({key::kAccounting, Phrase("accounting: the job names no account"),
                     "AccountID=Custom.ACCOUNT", key::kAccount});
}

void CheckFax(const Dictionary& ticket, std::vector<TicketGap>* gaps) {
  const Dictionary* job = DictionaryGetDictionary(ticket, key::kJobType);
  if (job != nullptr && NumberAt(*job, key::job_type::kJobType) == kJobTypeFax) return;
  const Dictionary* fax = DictionaryGetDictionary(ticket, key::kFaxOptions);
  const bool cover =
      fax != nullptr && DictionaryGetBoolean(*fax, kFaxPrintCoverSheetProperty) == true;
  const Array* recipients = DictionaryGetArray(ticket, key::kFaxRecipientList);
  if (!cover && (recipients == nullptr || recipients->empty())) return;
  gaps->push_back({cover ? key::kFaxOptions : key::kFaxRecipientList,
                   Phrase("fax settings have no effect in a job that is no fax"),
                   "FaxNumber=Custom.NUMBER",
                   std::string(key::kJobType) + ": {\"JobType\": \"fax\"}"});
}

}  // namespace

TicketGap FoldGap() {
  return {
      key::kFinishingOptions,
      Phrase("the sheets are folded in the middle, but the pages are not laid out as a booklet"),
      "BookletLayout=LeftToRight", std::string(key::kBookletLayout) + ": true"};
}

std::string GapLine(const TicketGap& gap) {
  return gap.cause + "; " + Phrase("give %1", {gap.choice});
}

std::vector<TicketGap> FindGaps(const Dictionary& ticket) {
  std::vector<TicketGap> gaps;
  if (IsFolded(ticket) && DictionaryGetBoolean(ticket, key::kBookletLayout) != true)
    gaps.push_back(FoldGap());
  CheckAccounting(ticket, &gaps);
  CheckFax(ticket, &gaps);
  return gaps;
}

}  // namespace zarvo
