// SPDX-License-Identifier: Apache-2.0
#include "Desk/sheets/Queue.h"

#include <cups/cups.h>

#include <filesystem>

#include "CUPSFilter/Options/HouseTicketOption.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Spooler.h"
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
          {"ours", tool::UsesOurFilter(file)}};
}

json DescribeDefaults(const std::string& ppd) {
  return {{"defaults", tool::TicketToJson(QueueDefaults(ppd.c_str()))}};
}

}  // namespace zarvo::desk
