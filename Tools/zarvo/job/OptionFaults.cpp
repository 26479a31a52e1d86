// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/OptionFaults.h"

#include "CUPSFilter/Options/JudgeRequest.h"
#include "CUPSFilter/Options/OptionCheck.h"
#include "CUPSFilter/Options/ParseOptions.h"
#include "CUPSFilter/Options/PpdTicket.h"

namespace zarvo::tool {

std::vector<std::string> OptionFaults(const std::string& options, const std::string& ppd_file) {
  const OptionList own = OptionList::Parse(options.c_str());
  Ppd ppd = Ppd::Open(ppd_file.c_str());
  ppd.Mark(own.size(), own.data());
  std::vector<std::string> faults;
  const PpdChoices chosen = PpdTicketOptions(ppd, {}, &faults);
  const std::vector<cups_option_t> ordered = TicketOrder({&chosen.others, &chosen.named, &own});
  std::vector<std::string_view> left_out;
  Dictionary ticket =
      ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()), &left_out);
  const std::vector<cups_option_t> choices = TicketOrder({&chosen.others, &chosen.named});
  const JobRequest request = {own.span(), choices, left_out};
  const QueuePolicy policy = ReadQueuePolicy(ppd);
  if (!policy.failClosed) return FindVainOptions(request, ppd, ticket);
  Judgement verdict = JudgeRequest(request, policy, ppd, &ticket);
  if (!verdict.refusal.empty())
    verdict.notices.insert(verdict.notices.begin(), std::move(verdict.refusal));
  return std::move(verdict.notices);
}

}  // namespace zarvo::tool
