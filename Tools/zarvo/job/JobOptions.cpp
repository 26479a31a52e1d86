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
                                        bool* doubtful) {
  std::string text;
  for (const std::string& option : options) text += (text.empty() ? "" : " ") + option;
  std::vector<FlatOption> flat;
  if (const Failure failure = FlattenTicket(ticket, &flat); !failure.empty()) {
    Fail(place, failure);
    return std::nullopt;
  }
  const std::vector<TicketFinding> findings = CheckTicket(ticket, /*whole=*/false);
  if (doubtful != nullptr) *doubtful = !findings.empty();
  for (const TicketFinding& finding : findings)
    std::fprintf(stderr, "zarvo: %s\n",
                 PrintableText(place + ": " + finding.place + ": " + finding.text).c_str());
  if (flat.empty()) return text;
  return text + (text.empty() ? "" : " ") + OptionText(flat);
}

std::optional<std::string> OptionTextOf(const JobOptions& job, bool* doubtful) {
  Dictionary ticket;
  if (!job.settings.empty()) {
    std::string readable;
    if (!ReadInput(job.settings, &readable)) return std::nullopt;
    if (const Failure failure = ReadTicket(readable, &ticket); !failure.empty()) {
      Fail(job.settings, failure);
      return std::nullopt;
    }
  }
  return OptionTextOf(job.options, ticket, job.settings, doubtful);
}

}  // namespace zarvo::tool
