// SPDX-License-Identifier: Apache-2.0
#include "Desk/sheets/Queue.h"

#include <cups/cups.h>

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "CUPSFilter/Options/HouseTicketOption.h"
#include "CUPSFilter/Options/Ppd.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Spooler.h"
#include "Tools/zarvo/ticket/JobTicket.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::desk {

using nlohmann::json;

json DescribeQueues() {
  const tool::SpoolerConnection spooler = tool::ConnectToSpooler();
  if (!spooler) return {{"failure", tool::kNoAnswer}};
  cups_dest_t* found = nullptr;
  const int count = cupsGetDests2(spooler.get(), &found);
  json queues = json::array();
  for (int i = 0; i < count; ++i) {
    const cups_dest_t& queue = found[i];
    const auto option = [&queue](const char* name) {
      const char* value = cupsGetOption(name, queue.num_options, queue.options);
      return std::string(value != nullptr ? value : "");
    };
    queues.push_back({{"name", queue.name},
                      {"info", option("printer-info")},
                      {"state", std::atoi(option("printer-state").c_str())},
                      {"accepting", option("printer-is-accepting-jobs") != "false"},
                      {"reason", option("printer-state-reasons")},
                      {"default", queue.is_default != 0}});
  }
  cupsFreeDests(count, found);
  return {{"queues", queues}};
}

namespace {

/// Of the spooler's own options those that change what the sheets look like, with the value that
/// says nothing. The spooler tells its defaults under the same names.
constexpr std::pair<const char*, const char*> kOfSheets[] = {
    {"copies", "1"},     {"media", ""},    {"sides", ""},       {"number-up", "1"},
    {"page-ranges", ""}, {"page-set", ""}, {"fit-to-page", ""}, {"number-up-layout", ""},
    {"outputorder", ""}, {"mirror", ""},   {"landscape", ""},   {"orientation-requested", ""},
    {"page-border", ""}, {"scaling", ""}};

/// What the user keeps for the queue with lpoptions, as far as it is about the sheets or the PPD.
json SavedOptions(const std::string& queue, const std::string& ppd_file) {
  json saved = json::object();
  const tool::Destination destination = tool::FindDestination(queue);
  const Ppd ppd = Ppd::Open(ppd_file.c_str());
  for (int i = 0; destination && i < destination->num_options; ++i) {
    const cups_option_t& option = destination->options[i];
    const auto known =
        std::find_if(std::begin(kOfSheets), std::end(kOfSheets),
                     [&](const auto& each) { return std::string_view(each.first) == option.name; });
    const bool says =
        known != std::end(kOfSheets) && option.value != std::string_view(known->second);
    if (says || ppd.HasOption(option.name)) saved[option.name] = option.value;
  }
  return saved;
}

}  // namespace

json FetchQueue(const std::string& queue, const std::string& file) {
  tool::QueuePpd ppd;
  if (const Failure failure = ppd.Fetch(queue); !failure.empty()) return {{"failure", failure}};
  if (const Failure failure = tool::PpdFault(ppd.path()); !failure.empty())
    return {{"failure", failure}};
  std::error_code error;
  std::filesystem::copy_file(ppd.path(), file, std::filesystem::copy_options::overwrite_existing,
                             error);
  if (error) return {{"failure", error.message()}};
  return {{"ppd", file},
          {"renderer", tool::QueueDefault(queue, tool::kRendererOption)},
          {"ours", tool::UsesOurFilter(file)},
          {"saved", SavedOptions(queue, file)}};
}

json DescribeDefaults(const std::string& ppd, const json& saved) {
  Dictionary defaults = QueueDefaults(ppd.c_str());
  OptionList options;
  for (const auto& [name, value] : saved.items())
    options.Add(name.c_str(), value.get<std::string>().c_str());
  std::vector<std::string> others;
  std::vector<std::string> kept;
  for (auto& [name, value] : tool::TicketOfJob(options, ppd, {}, &others, &kept))
    defaults.insert_or_assign(name, value);
  for (const auto& [name, value] : saved.items())
    defaults.insert_or_assign(name, Value(value.get<std::string>()));
  return {{"defaults", tool::TicketToJson(defaults)}};
}

}  // namespace zarvo::desk
