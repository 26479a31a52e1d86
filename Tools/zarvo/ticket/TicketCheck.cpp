// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/ticket/TicketCheck.h"

#include <cups/cups.h>
#include <strings.h>

#include <optional>
#include <string_view>

#include "CUPSFilter/Options/OptionCheck.h"
#include "CUPSFilter/Options/OptionList.h"
#include "CUPSFilter/Options/PinPolicy.h"
#include "CUPSFilter/Options/TicketGaps.h"
#include "Platform/Phrase.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

/// What a person typed where a PPD's option takes a text of one's own: Custom.TEXT or {Value=TEXT}.
std::optional<std::string> TypedText(const Value& value) {
  constexpr std::string_view kCustom = "Custom.";
  const std::string* text = value.AsString();
  if (text == nullptr) return std::nullopt;
  if (strncasecmp(text->c_str(), kCustom.data(), kCustom.size()) == 0)
    return text->substr(kCustom.size());
  if (!text->starts_with('{')) return std::nullopt;
  const OptionList members = OptionList::Parse(text->c_str());
  const char* typed = cupsGetOption("Value", members.size(), members.data());
  return typed != nullptr ? std::optional<std::string>(typed) : std::nullopt;
}

bool Is(const std::string& name, const char* option) {
  return strcasecmp(name.c_str(), option) == 0;
}

/// What a queue that fails closed has to say of a job with this ticket.
Judgement Judge(Dictionary ticket) {
  // The options that the policy looks at as they stand, no deeper and no more: tickets may be of
  // any size.
  std::vector<FlatOption> flat;
  std::vector<FlatOption> meant;  // by a choice of the PPD, which only the queue has
  const auto add = [&](std::string name, const Value& value) {
    const std::string* text = value.AsString();
    const std::optional<std::string> typed = TypedText(value);
    if (typed && Is(name, kPinOption))
      meant.push_back(
          {std::string(key::kJobType) + "..d_" + key::job_type::kSecurePrintPassword, *typed});
    else if (!Is(name, "JobType") && !(typed && Is(name, kFaxNumberOption)))
      flat.push_back({std::move(name), text != nullptr ? *text : "?"});
  };
  for (const auto& [name, value] : ticket) {
    const Dictionary* group = value.AsDictionary();
    if (group == nullptr) {
      add(name, value);
      continue;
    }
    for (const auto& [member, inner] : *group) add(name + "..d_" + member, inner);
  }
  std::vector<cups_option_t> own;
  for (FlatOption& option : flat) own.push_back({option.name.data(), option.value.data()});
  std::vector<cups_option_t> chosen;
  for (FlatOption& option : meant) chosen.push_back({option.name.data(), option.value.data()});
  const JobRequest request = {own, chosen, {}};
  QueuePolicy policy;
  policy.failClosed = true;
  policy.featurePassword = true;  // only the queue knows
  Judgement verdict = JudgePin(request, policy, &ticket);
  const Judgement fax = JudgeFax(request, ticket);
  if (verdict.refusal.empty()) verdict.refusal = fax.refusal;
  verdict.notices.insert(verdict.notices.end(), fax.notices.begin(), fax.notices.end());
  return verdict;
}

}  // namespace

std::string SecretFault(const Dictionary& ticket) {
  std::string refusal = Judge(ticket).refusal;
  if (!refusal.empty()) return refusal;
  const Dictionary* job = DictionaryGetDictionary(ticket, key::kJobType);
  const std::string* pin =
      job != nullptr ? DictionaryGetString(*job, key::job_type::kSecurePrintPassword) : nullptr;
  return pin != nullptr && !pin->empty() ? TypedPinFault(*pin) : "";
}

std::vector<TicketFinding> CheckTicket(const Dictionary& ticket, bool whole) {
  std::vector<TicketFinding> findings = CheckTicketKeys(ticket, TypedOptionNames());
  if (whole) {
    for (const TicketGap& gap : FindGaps(ticket))
      findings.push_back({gap.key, gap.cause + "; " + Phrase("add %1", {gap.setting})});
  }
  if (const std::string fault = SecretFault(ticket); !fault.empty())
    findings.push_back({key::kJobType, fault});
  for (const std::string& notice : Judge(ticket).notices)
    findings.push_back({key::kJobType, notice});
  return findings;
}

}  // namespace zarvo::tool
