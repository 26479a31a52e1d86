// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/JudgeRequest.h"

#include <set>
#include <string_view>

#include "CUPSFilter/Options/OptionCheck.h"
#include "CUPSFilter/Options/ParseOptions.h"
#include "Source/TicketCheck.h"

namespace zarvo {
namespace {

/// The PPD was not understood, and with it the queue's policy.
Judgement JudgeUnread(const JobRequest& request, Ppd::Hidden hidden, const Ppd& ppd,
                      const Dictionary& ticket) {
  const std::string fault = "the queue's PPD is not used, " + ppd.fault();
  constexpr char kRemedy[] = "; mend it, or set the queue up anew";
  if (AsksForSecrecy(request, ticket))
    return {fault + ", so that no PIN can be kept and no fax sent" + kRemedy, {}};
  if (hidden == Ppd::Hidden::kYes) return {"", {fault + ", its settings were left out" + kRemedy}};
  return {};
}

/// The keys at the top of the ticket that the job itself asks for, and not the PPD by a choice that
/// stands there for want of another. What has no place in the ticket is told already.
std::set<std::string_view> OwnKeys(const JobRequest& request) {
  std::set<std::string_view> keys;
  for (const cups_option_t& option : request.own) keys.insert(SplitName(option.name)[0]);
  for (const std::string_view name : request.leftOut) keys.erase(SplitName(name)[0]);
  return keys;
}

}  // namespace

Judgement JudgeRequest(const JobRequest& request, const QueuePolicy& policy, const Ppd& ppd,
                       Dictionary* ticket) {
  if (policy.hidden != Ppd::Hidden::kNo) return JudgeUnread(request, policy.hidden, ppd, *ticket);
  if (!policy.failClosed) return {};
  Judgement verdict = JudgePin(request, policy, ticket);
  const Judgement fax = JudgeFax(request, *ticket);
  if (verdict.refusal.empty()) verdict.refusal = fax.refusal;
  verdict.notices.insert(verdict.notices.end(), fax.notices.begin(), fax.notices.end());
  for (std::string& text : FindVainOptions(request, ppd, *ticket))
    verdict.notices.push_back(std::move(text));
  const std::set<std::string_view> own = OwnKeys(request);
  for (const TicketFinding& finding : CheckTicketKeys(*ticket)) {
    if (own.contains(std::string_view(finding.place).substr(0, finding.place.find('/'))))
      verdict.notices.push_back(finding.place + ": " + finding.text);
  }
  return verdict;
}

}  // namespace zarvo
