// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/ticket/JobTicket.h"

#include <cups/cups.h>

#include <cstdlib>
#include <string_view>

#include "CUPSFilter/Options/HouseTicketOption.h"
#include "CUPSFilter/Options/ParseOptions.h"
#include "CUPSFilter/Options/SchedulerRequest.h"
#include "Source/TicketNames.h"

namespace zarvo::tool {
namespace {

Dictionary Decode(std::initializer_list<const OptionList*> lists) {
  const std::vector<cups_option_t> ordered = TicketOrder(lists);
  return ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
}

bool IsTicketOption(std::string_view name) {
  return name.starts_with("com.") || name.find("..") != name.npos;
}

/// What a job is sent with beside its settings, or what says who and what it is.
bool IsOfJobAlone(std::string_view name) {
  constexpr std::string_view kOwn[] = {
      "job-name", "job-originating-user-name", "job-password", "job-account-id", "page-ranges",
      "copies",   "job-accounting-user-id"};
  for (const std::string_view own : kOwn)
    if (name == own) return true;
  return false;
}

}  // namespace

Dictionary TicketOfJob(const OptionList& options, const std::string& ppd_file,
                       const ResolvedHouseTicket& house, std::vector<std::string>* others,
                       std::vector<std::string>* kept) {
  Ppd ppd = Ppd::Open(ppd_file.empty() ? nullptr : ppd_file.c_str());
  OptionList own;
  OptionNames names;
  for (const cups_option_t& option : options.span()) {
    names.insert(option.name);
    if (IsTicketOption(option.name)) {
      own.Add(option.name, option.value);
    } else if (!ppd.HasOption(option.name) && !IsStandardAttribute(option.name)) {
      others->push_back(option.name);
    }
  }
  JobSays says;
  says.own = Decode({&own});
  if (ppd) {
    ppd.Mark(options.size(), options.data());
    std::vector<std::string> faults;
    PpdChoices chosen = PpdTicketOptions(ppd, names, &faults);
    StandardJob standard = ReadStandardJob("0", "", options, &ppd);
    OptionList asked;
    for (const StandardSetting& setting : standard.ticket.settings)
      if (!setting.quiet) asked.Add(setting.name.c_str(), setting.value.c_str());
    says.chosen = Decode({&asked, &chosen.named});
    says.chosen.erase(key::kHouseTicket);
    says.defaults = QueueDefaults(ppd_file.c_str());
  }
  return ApplyHouseTicket(house, std::move(says), kept);
}

OptionList OptionsOfJob(ipp_t* attributes, std::string* queue) {
  OptionList options;
  for (ipp_attribute_t* known = ippFirstAttribute(attributes); known != nullptr;
       known = ippNextAttribute(attributes)) {
    const char* name = ippGetName(known);
    if (name == nullptr || ippGetGroupTag(known) != IPP_TAG_JOB) continue;
    std::string value(ippAttributeString(known, nullptr, 0), '\0');
    ippAttributeString(known, value.data(), value.size() + 1);
    if (std::string_view(name) == "job-printer-uri") *queue = value.substr(value.rfind('/') + 1);
    const bool setting = !std::string_view(name).starts_with("job-") || IsStandardAttribute(name);
    if (setting && !IsOfJobAlone(name)) options.Add(name, value.c_str());
  }
  return options;
}

std::string OptionsOfSpoolerJob(int number, OptionList* options, std::string* queue) {
  ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippSetVersion(request, 2, 0);  // answers of older versions leave collections out
  const std::string uri = "ipp://localhost/jobs/" + std::to_string(number);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "all");
  const IppMessage answer(cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"));
  if (!answer || ippGetStatusCode(answer.get()) > IPP_STATUS_OK_CONFLICTING)
    return cupsLastErrorString();
  *options = OptionsOfJob(answer.get(), queue);
  return queue->empty() ? "the spooler does not tell what it was sent with" : "";
}

}  // namespace zarvo::tool
