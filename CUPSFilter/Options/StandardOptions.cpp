// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/StandardOptions.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string_view>
#include <utility>

#include "CUPSFilter/Options/HouseTicketOption.h"
#include "CUPSFilter/Options/PinPolicy.h"
#include "CUPSFilter/Options/SchedulerRequest.h"
#include "Platform/Clock.h"
#include "Source/TicketNames.h"
#include "StandardTicket/Attribute.h"

namespace zarvo {
namespace {

/// Whether an attribute that is not among a filter's options was meant to be: the PPD or the ticket
/// reads it, it is a PIN, or it is misspelt. Names of standard collections have a hyphen.
bool IsForFilters(ipp_attribute_t* attribute, const Ppd& ppd) {
  const std::string name = ippGetName(attribute);
  return CarriesPin(name) || ppd.HasOption(name.c_str()) || name.starts_with("com.") ||
         (ippGetValueTag(attribute) == IPP_TAG_BEGIN_COLLECTION && name.find('-') == name.npos &&
          !IsStandardAttribute(name));
}

/// The value as an option's, collections in braces.
std::string WholeText(ipp_attribute_t* attribute) {
  if (const std::optional<std::string> text = Attribute(attribute).Text()) return *text;
  std::string text(ippAttributeString(attribute, nullptr, 0), '\0');
  ippAttributeString(attribute, text.data(), text.size() + 1);
  return text;
}

/// Any one character may stand between a type letter and what it leads to; here it is always "_".
std::string Canonical(std::string_view name) {
  std::string canonical(name);
  for (std::size_t at = canonical.find(".."); at != canonical.npos;
       at = canonical.find("..", at + 2)) {
    const char letter = at + 2 < canonical.size() ? canonical[at + 2] : '\0';
    if ((letter == 'd' || letter == 'a') && at + 3 < canonical.size()) canonical[at + 3] = '_';
  }
  return canonical;
}

/// What stands above the attributes, by name.
std::map<std::string, std::string_view> Outranking(const OptionList& chosen,
                                                   const OptionList& own) {
  std::map<std::string, std::string_view> values;
  for (const OptionList* list : {&chosen, &own}) {
    for (int i = 0; i < list->size(); ++i) {
      const cups_option_t& option = list->data()[i];
      if (std::string_view(option.name).find("..") != std::string_view::npos ||
          std::string_view(option.name).starts_with("com."))
        values.insert_or_assign(Canonical(option.name), option.value);
    }
  }
  return values;
}

/// The spooler has the converters reverse the pages of a job that asks for it; the printer must not
/// reverse them again, and only delivers them on the face that was asked for.
void KeepReversedOrder(const OptionList& options, StandardTicket* ticket) {
  const char* order = cupsGetOption("OutputOrder", options.size(), options.data());
  if (order == nullptr || std::string_view(order) != "Reverse") return;
  const std::string name = std::string(key::kOutputOrder) + "..n";
  for (StandardSetting& setting : ticket->settings) {
    if (setting.name != name) continue;
    if (setting.value == std::to_string(kReverseOrderFaceUp))
      setting.value = std::to_string(kSameOrderFaceUp);
    if (setting.value == std::to_string(kReverseOrderFaceDown))
      setting.value = std::to_string(kSameOrderFaceDown);
  }
}

/// The finishing template and the preset as clients give them that have no PPD of ours, and the
/// keyword under which the PPD has each.
constexpr std::pair<const char*, const char*> kHouseNames[] = {
    {"finishing-template", "cupsFinishingTemplate"},
    {"cupsFinishingTemplate", "cupsFinishingTemplate"},
    {"preset", "APPrinterPreset"}};

bool NamesHouseTicket(std::string_view name) {
  return std::any_of(std::begin(kHouseNames), std::end(kHouseNames),
                     [name](const auto& row) { return name == row.first; });
}

/// Templates and presets are choices of clients that know no PPD; those that mean a house ticket
/// are taken out of the message.
void TakeHouseChoices(ipp_t* message, const Ppd& ppd, std::vector<std::string>* choices) {
  if (!ppd.HasOption(kHouseTicketOption)) return;
  const auto take = [&](ipp_t* group, const char* name, const char* keyword) {
    ipp_attribute_t* attribute = ippFindAttribute(group, name, IPP_TAG_ZERO);
    const std::optional<std::string> text =
        attribute != nullptr ? Attribute(attribute).Text() : std::nullopt;
    const std::string choice = text ? HouseTicketChoiceOf(ppd, keyword, *text) : "";
    if (choice.empty()) return;
    ippDeleteAttribute(group, attribute);
    if (choices->empty() || choices->back() != choice) choices->push_back(choice);
  };
  const Attribute finishings(ippFindAttribute(message, "finishings-col", IPP_TAG_BEGIN_COLLECTION));
  constexpr int kMost = 100;
  for (int i = 0; i < std::min(finishings.count(), kMost); ++i)
    if (ipp_t* group = finishings.Collection(i))
      take(group, kHouseNames[0].first, kHouseNames[0].second);
  for (const auto& [name, keyword] : kHouseNames) take(message, name, keyword);
}

/// Reads what the scheduler tells of the job, and marks in the PPD what the job itself has chosen
/// of it as far as `standard`, else only what it left out. Nothing when nobody tells anything.
IppMessage AskScheduler(const char* job_id, const char* user, const OptionList& options,
                        bool standard, Ppd* ppd, StandardJob* job) {
  if (!UnderScheduler()) return nullptr;
  IppMessage message;
  const Failure why = RequestJobAttributes(job_id, user, &message);
  for (ipp_attribute_t* known = ippFirstAttribute(message.get()); known != nullptr;
       known = ippNextAttribute(message.get())) {
    const char* name = ippGetName(known);
    if (name == nullptr) continue;
    std::optional<std::string> choice = standard ? Attribute(known).Text() : std::nullopt;
    if (cupsGetOption(name, options.size(), options.data()) == nullptr && Attribute(known) &&
        IsForFilters(known, *ppd)) {
      choice = WholeText(known);
      job->leftOut.Add(name, choice->c_str());
    }
    if (standard || choice) job->ownNames.insert(name);
    if (choice && ppd->HasOption(name)) ppd->MarkChoice(name, choice->c_str());
  }
  if (!why.empty()) {
    job->ticket.not_honoured.push_back({"collections such as media-col, cover-front or overrides",
                                        "if the job has any, they are missing, because the "
                                        "scheduler did not tell its attributes (" +
                                            why + "); print again or use the PPD's options"});
  }
  return message;
}

}  // namespace

StandardJob ReadLeftOutOptions(const char* job_id, const char* user, const OptionList& options,
                               Ppd* ppd) {
  StandardJob job;
  AskScheduler(job_id, user, options, /*standard=*/false, ppd, &job);
  return job;
}

StandardJob ReadStandardJob(const char* job_id, const char* user, const OptionList& options,
                            Ppd* ppd) {
  StandardJob job;
  IppMessage message = AskScheduler(job_id, user, options, /*standard=*/true, ppd, &job);
  const bool answered = message != nullptr;
  if (!message) message.reset(ippNew());
  OptionNames told = job.ownNames;
  for (int i = 0; i < options.size(); ++i) {
    const cups_option_t& option = options.data()[i];
    if (!answered) job.ownNames.insert(option.name);
    if ((IsStandardAttribute(option.name) || NamesHouseTicket(option.name)) &&
        told.insert(option.name).second)
      cupsEncodeOption(message.get(), IPP_TAG_JOB, option.name, option.value);
  }
  TakeHouseChoices(message.get(), *ppd, &job.houseChoices);
  StandardTicket mapped = MapStandardAttributes(message.get(), SystemClock().LocalSeconds());
  std::move(job.ticket.not_honoured.begin(), job.ticket.not_honoured.end(),
            std::back_inserter(mapped.not_honoured));
  job.ticket = std::move(mapped);
  KeepReversedOrder(options, &job.ticket);
  return job;
}

OptionList StandardOptions(StandardTicket* ticket, OptionList* chosen, const OptionList& own) {
  for (const StandardSetting& setting : ticket->settings) {
    if (!setting.value.empty()) chosen->RemoveEmpty(setting.name.c_str());
  }
  const std::map<std::string, std::string_view> above = Outranking(*chosen, own);
  OptionList options;
  std::string last;
  for (const StandardSetting& setting : ticket->settings) {
    options.Add(setting.name.c_str(), setting.value.c_str());
    const auto other = above.find(setting.name);
    if (setting.quiet || other == above.end() || other->second == setting.value ||
        setting.source == last)
      continue;
    last = setting.source;
    ticket->not_honoured.push_back({last, "another option of the job says otherwise"});
  }
  return options;
}

}  // namespace zarvo
