// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/HouseTicketOption.h"

#include <strings.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "CUPSFilter/Options/ParseOptions.h"
#include "CUPSFilter/Options/SchedulerRequest.h"
#include "HouseTicket/HouseTicketStore.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr char kNone[] = "None";
constexpr std::string_view kCustom = "Custom.";
constexpr char kNoName[] = "the option HouseTicket gives no name";

/// Whether the shared store has a record of that name, whatever is in it.
bool IsStored(const std::string& name) {
  HouseTicketStore store = HouseTicketStore::Shared();
  return store.Read().empty() && store.Contains(name);
}

/// Gathers the names that a job gives by its several ways.
struct Names {
  NamedHouseTicket named;

  void Add(const std::string& name) {
    if (name.empty() && named.fault.empty()) named.fault = kNoName;
    if (named.name.empty()) named.name = name;
    if (named.name != name && named.fault.empty())
      named.fault =
          "it names two house tickets, \"" + named.name + "\" and \"" + name + "\"; name one";
  }
  void AddChoice(const Ppd& ppd, const std::string& choice) {
    const std::optional<std::string> name = HouseTicketOfChoice(ppd, choice);
    if (!name) return Add(choice);
    if (name->empty() && named.fault.empty())
      named.fault =
          "the queue's choice " + choice + " of HouseTicket has no ticket; publish it again";
    // A choice's keyword is made from a name; it may be the name of another ticket.
    if (*name != choice && IsStored(choice) && named.fault.empty())
      named.fault = "\"" + choice + "\" is a choice of the queue that means house ticket \"" +
                    *name + "\", and the name of another one; give HouseTicket=Custom.NAME";
    Add(*name);
  }
};

}  // namespace

std::optional<std::string> HouseTicketIn(const OptionList& options) {
  const Dictionary ticket = ParseCUPSOptionsToDictionary(options.data(), options.size());
  if (const std::string* name = DictionaryGetString(ticket, key::kHouseTicket)) return *name;
  const Data* bytes = DictionaryGetData(ticket, key::kHouseTicket);
  return bytes != nullptr ? std::optional<std::string>({bytes->begin(), bytes->end()})
                          : std::nullopt;
}

std::optional<std::string> HouseTicketOfChoice(const Ppd& ppd, const std::string& choice) {
  const std::vector<std::string> choices = ppd.Choices(kHouseTicketOption);
  if (std::find(choices.begin(), choices.end(), choice) == choices.end()) return std::nullopt;
  const std::string selector = std::string(kHouseTicketOption) + "." + choice;
  for (const PpdAttribute& attribute : ppd.Attributes("ZRVTicket")) {
    if (attribute.selector != selector) continue;
    if (std::optional<std::string> name = HouseTicketIn(ReadTicketAttribute(attribute.value)))
      return name;
  }
  return "";
}

std::string HouseTicketChoiceOf(const Ppd& ppd, const char* keyword, const std::string& name) {
  const std::string start = "*" + std::string(kHouseTicketOption) + " ";
  for (const PpdAttribute& attribute : ppd.Attributes(keyword)) {
    const std::size_t at = attribute.value.find(start);
    if (attribute.selector != name || at == attribute.value.npos) continue;
    const std::string_view rest = attribute.value.substr(at + start.size());
    return std::string(rest.substr(0, rest.find_first_of(" \t\r\n")));
  }
  return "";
}

NamedHouseTicket FindHouseTicketName(const OptionList& options, const PpdChoices& chosen,
                                     const StandardJob& standard, const Ppd& ppd) {
  if (!ppd.HasOption(kHouseTicketOption)) return {};
  Names names;
  if (const std::optional<std::string> own = HouseTicketIn(options)) names.Add(*own);
  bool none = false;
  if (const char* value = cupsGetOption(kHouseTicketOption, options.size(), options.data())) {
    const std::string text = value;
    if (strncasecmp(value, kCustom.data(), kCustom.size()) == 0) {
      names.Add(text.substr(kCustom.size()));
    } else if (strcasecmp(value, kNone) == 0) {
      none = true;
    } else {
      names.AddChoice(ppd, text);
    }
  } else if (names.named.name.empty() && standard.houseChoices.empty()) {
    for (const OptionList* list : {&chosen.others, &chosen.named})
      if (const std::optional<std::string> name = HouseTicketIn(*list)) names.Add(*name);
  }
  for (const std::string& choice : standard.houseChoices) names.AddChoice(ppd, choice);
  if (names.named.name.empty() && names.named.fault.empty() && !none &&
      cupsGetOption(kHouseTicketOption, options.size(), options.data()) != nullptr)
    names.named.fault = kNoName;
  return names.named;
}

std::string LoadHouseTicket(const std::string& name, ResolvedHouseTicket* house) {
  HouseTicketStore shared = HouseTicketStore::Shared();
  HouseTicketStore own = HouseTicketStore::Own();
  std::vector<const HouseTicketStore*> stores;
  // What root starts by hand has become the spooler's user, who cannot look into root's folders.
  if (!UnderScheduler() && ::access(own.path().c_str(), R_OK) == 0) {
    if (std::string fault = own.Read(); !fault.empty()) return fault;
    stores.push_back(&own);
  }
  if (std::string fault = shared.Read(); !fault.empty()) return fault;
  stores.push_back(&shared);
  return ResolveHouseTicket(name, FindIn(stores), house);
}

Dictionary QueueDefaults(const char* ppd_file) {
  Ppd ppd = Ppd::Open(ppd_file);
  ppd.Mark(0, nullptr);
  std::vector<std::string> faults;  // told already, with the job's own choices
  const PpdChoices chosen = PpdTicketOptions(ppd, {}, &faults);
  const std::vector<cups_option_t> ordered = TicketOrder({&chosen.others});
  return ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
}

}  // namespace zarvo
