// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/JobOptions.h"

#include <cstdio>

#include "Platform/Log.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {

std::optional<std::string> OptionTextOf(const std::vector<std::string>& options,
                                        const Dictionary& ticket, const std::string& place,
                                        std::vector<std::string>* told) {
  std::string text;
  for (const std::string& option : options) text += (text.empty() ? "" : " ") + option;
  std::vector<FlatOption> flat;
  if (const Failure failure = FlattenTicket(ticket, &flat); !failure.empty()) {
    Fail(place, failure);
    return std::nullopt;
  }
  for (const TicketFinding& finding : CheckTicket(ticket, /*whole=*/false)) {
    const std::string fault = finding.place + ": " + finding.text;
    std::fprintf(stderr, "zarvo: %s\n", PrintableText(place + ": " + fault).c_str());
    if (told != nullptr) told->push_back(fault);
  }
  if (flat.empty()) return text;
  return text + (text.empty() ? "" : " ") + OptionText(flat);
}

std::optional<std::string> OptionTextOf(const JobOptions& job, std::vector<std::string>* told) {
  Dictionary ticket;
  if (!job.settings.empty()) {
    std::string readable;
    if (!ReadInput(job.settings, &readable)) return std::nullopt;
    if (const Failure failure = ReadTicket(readable, &ticket); !failure.empty()) {
      Fail(job.settings, failure);
      return std::nullopt;
    }
  }
  return OptionTextOf(job.options, ticket, job.settings, told);
}

}  // namespace zarvo::tool
