// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/JobOptions.h"

#include <cstdio>

#include "Platform/Log.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {

std::optional<std::string> OptionTextOf(const JobOptions& job, bool* doubtful) {
  std::string text;
  for (const std::string& option : job.options) text += (text.empty() ? "" : " ") + option;
  if (job.settings.empty()) return text;
  std::string readable;
  if (!ReadInput(job.settings, &readable)) return std::nullopt;
  std::string error;
  const std::optional<Dictionary> ticket = ReadTicket(readable, &error);
  const auto flat = ticket ? FlattenTicket(*ticket, &error) : std::nullopt;
  if (!flat) {
    Fail(job.settings, error);
    return std::nullopt;
  }
  const std::vector<TicketFinding> findings = CheckTicket(*ticket);
  if (doubtful != nullptr) *doubtful = !findings.empty();
  for (const TicketFinding& finding : findings)
    std::fprintf(stderr, "zarvo: %s\n",
                 PrintableText(job.settings + ": " + finding.place + ": " + finding.text).c_str());
  return text + (text.empty() ? "" : " ") + OptionText(*flat);
}

}  // namespace zarvo::tool
