// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/JobOptions.h"

#include <cups/cups.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cstdio>

#include "CUPSFilter/Options/PinPolicy.h"
#include "Platform/Log.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/Terminal.h"
#include "Tools/zarvo/ticket/HouseText.h"
#include "Tools/zarvo/ticket/JobTicket.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

/// The number under a key of the ticket, or of a group of it; 0 when there is none.
std::int32_t NumberIn(const Dictionary& ticket, const char* name, const char* member = nullptr) {
  std::int32_t number = 0;
  const Dictionary* group = member != nullptr ? DictionaryGetDictionary(ticket, name) : &ticket;
  if (group != nullptr) CFDictionaryGetNumber(*group, member != nullptr ? member : name, &number);
  return number;
}

/// Asks for the PIN of a secure job that has none yet.
bool AskPin(const OptionList& options, Dictionary* ticket) {
  if (NumberIn(*ticket, key::kJobType, key::job_type::kJobType) != kJobTypeSecure ||
      HoldsPin(*ticket) || !isatty(STDIN_FILENO) ||
      cupsGetOption("job-password", options.size(), options.data()) != nullptr)
    return true;
  const std::string pin = ReadSecret(("PIN (" + std::string(kPinDigits) + "): ").c_str());
  if (const std::string fault = TypedPinFault(pin); !fault.empty())
    return Fail("PIN", fault), false;
  CFDictionaryGetDictionaryOrCreate(*ticket, key::kJobType)
      .insert_or_assign(key::job_type::kSecurePrintPassword, Value(pin));
  return true;
}

/// Puts the house ticket below the settings and the options. These stay; their choices of the PPD,
/// which count for less than a ticket's settings, are put into the ticket.
bool PutHouseBelow(const std::string& name, const std::string& ppd_file,
                   std::vector<std::string>* options, Dictionary* ticket) {
  HouseStores stores;
  ResolvedHouseTicket house;
  std::string fault = stores.Read();
  if (fault.empty()) fault = ResolveHouseTicket(name, FindIn(stores.All()), &house);
  if (!fault.empty()) return Fail(name, fault), false;
  std::string text;
  for (const std::string& option : *options) text += option + " ";
  std::vector<FlatOption> flat;
  fault = FlattenTicket(*ticket, &flat);
  if (!fault.empty()) return Fail(name, fault), false;
  const OptionList list = OptionList::Parse((text + OptionText(flat)).c_str());
  std::vector<std::string> others, kept;
  Dictionary merged = TicketOfJob(list, ppd_file, house, &others, &kept);
  for (const std::string& path : kept)
    std::fprintf(stderr, "zarvo: %s\n",
                 PrintableText(path + ": ticket " + name + " does not let jobs change it").c_str());
  if (!AskPin(list, &merged)) return false;
  // The spooler's option has the converters set the sides up as well.
  const std::int32_t sides = NumberIn(merged, key::kFinishingDuplex);
  if (sides == kLongEdge || sides == kShortEdge)
    options->push_back(sides == kLongEdge ? "sides=two-sided-long-edge"
                                          : "sides=two-sided-short-edge");
  for (auto& [option, value] : *ticket)
    if (!option.starts_with("com.")) merged.insert_or_assign(option, std::move(value));
  *ticket = std::move(merged);
  return true;
}

}  // namespace

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

void AddHouseOption(CLI::App& app, JobOptions* job) {
  app.add_option("--ticket", job->house,
                 "a ticket that is kept under this name, below all other settings");
}

std::optional<std::string> OptionTextOf(const JobOptions& job, const std::string& ppd_file,
                                        std::vector<std::string>* told) {
  Dictionary ticket;
  if (!job.settings.empty()) {
    std::string readable;
    if (!ReadInput(job.settings, &readable)) return std::nullopt;
    if (const Failure failure = ReadTicket(readable, &ticket); !failure.empty()) {
      Fail(job.settings, failure);
      return std::nullopt;
    }
  }
  std::vector<std::string> options = job.options;
  if (!job.house.empty() && !PutHouseBelow(job.house, ppd_file, &options, &ticket))
    return std::nullopt;
  return OptionTextOf(options, ticket, job.settings.empty() ? job.house : job.settings, told);
}

Failure HidePins(std::string* options) {
  const OptionList list = OptionList::Parse(options->c_str());
  std::vector<FlatOption> hidden;
  bool any = false;
  for (const cups_option_t& option : list.span()) {
    FlatOption& shown = hidden.emplace_back(FlatOption{option.name, option.value});
    if (!CarriesPin(shown.name)) continue;
    any = true;
    for (char& c : shown.value)
      if (c >= '0' && c <= '9') c = '0';
  }
  if (!any) return "";
  // What passes is of digits, and the same wherever it is given.
  if (const Failure fault = SecretFault(TicketOfOptions(*options)); !fault.empty()) return fault;
  *options = OptionText(hidden);
  return "";
}

}  // namespace zarvo::tool
