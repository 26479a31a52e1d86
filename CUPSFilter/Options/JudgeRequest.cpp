// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/JudgeRequest.h"

#include <algorithm>
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

/// Whether the job itself asks for what is in the ticket under that key, and not the PPD by a
/// choice that stands there for want of another. What has no place in the ticket is told already.
bool IsOwn(const JobRequest& request, std::string_view place) {
  const std::string_view top = place.substr(0, place.find('/'));
  const auto names = [top](std::string_view name) { return SplitName(name)[0] == top; };
  return std::any_of(request.own.begin(), request.own.end(),
                     [&](const cups_option_t& option) { return names(option.name); }) &&
         std::none_of(request.leftOut.begin(), request.leftOut.end(), names);
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
  for (const TicketFinding& finding : CheckTicketKeys(*ticket)) {
    if (IsOwn(request, finding.place))
      verdict.notices.push_back(finding.place + ": " + finding.text);
  }
  return verdict;
}

}  // namespace zarvo
