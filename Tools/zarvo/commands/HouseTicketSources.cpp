// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/commands/HouseTicketSources.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "Platform/Log.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"
#include "Tools/zarvo/system/SpoolerJobs.h"
#include "Tools/zarvo/ticket/JobTicket.h"
#include "Tools/zarvo/ticket/TicketOfFile.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

std::string PinDropped(Dictionary* ticket) {
  Dictionary* job = nullptr;
  if (const auto entry = ticket->find("com.zarvo.print.JobType"); entry != ticket->end())
    job = entry->second.AsDictionary();
  return job != nullptr && HoldsPin(*ticket) && job->erase("SecurePrintPassword") != 0
             ? "its PIN was left out; give one with each job"
             : "";
}

}  // namespace

void Note(const std::string& place, const std::string& text) {
  std::fprintf(stderr, "zarvo: %s\n", PrintableText(place + ": " + text).c_str());
}

bool ReadSpoolerJob(const HouseTicketOptions& options, HouseTicket* house) {
  std::string queue;
  OptionList list;
  const int number = JobNumber(options.fromJob);
  const Failure failure = number == 0 ? "is no job; \"lpstat -W all\" lists them"
                                      : OptionsOfSpoolerJob(number, &list, &queue);
  if (!failure.empty()) return Fail(options.fromJob, failure), false;
  QueuePpd ppd;
  if (const Failure fetched = ppd.Fetch(queue); !fetched.empty())
    return Fail(queue, fetched), false;
  std::vector<std::string> others, kept;
  house->ticket = TicketOfJob(list, ppd.path(), {}, &others, &kept);
  for (const char* account :
       {key::kAccount, key::kAccountUser, key::kXmlAccount, key::kXmlAccountUser})
    house->ticket.erase(account);
  if (const std::string dropped = PinDropped(&house->ticket); !dropped.empty())
    Note(options.name, dropped);
  return true;
}

bool ReadWrittenJob(const HouseTicketOptions& options, HouseTicket* house) {
  const Stream file(std::fopen(options.from.c_str(), "rbe"));
  if (!file) return Fail(options.from, std::strerror(errno)), false;
  std::vector<std::string> left;
  if (const Failure failure = TicketOfFile(file.get(), &house->ticket, &left); !failure.empty())
    return Fail(options.from, failure), false;
  for (const std::string& one : left) Note(options.from, "not taken: " + one);
  return true;
}

bool Translate(const HouseTicketOptions& options, HouseTicket* house) {
  std::vector<FlatOption> plain;
  for (const auto& [name, value] : house->ticket)
    if (!name.starts_with("com.") && value.AsString() != nullptr)
      plain.push_back({name, *value.AsString()});
  if (plain.empty()) return true;
  if (options.queue.empty())
    return Fail(options.name, plain[0].name + " is an option of a queue, not of a ticket",
                "-q QUEUE takes what it stands for there"),
           false;
  QueuePpd ppd;
  if (const Failure failure = ppd.Fetch(options.queue); !failure.empty())
    return Fail(options.queue, failure), false;
  const OptionList list = OptionList::Parse(OptionText(plain).c_str());
  std::vector<std::string> others, kept;
  Dictionary ticket = TicketOfJob(list, ppd.path(), {}, &others, &kept);
  if (!others.empty())
    return Fail(options.name, others[0] + " cannot be kept in a ticket",
                "It works before the filter; give it with each job"),
           false;
  std::erase_if(house->ticket, [](const auto& entry) { return !entry.first.starts_with("com."); });
  MergeSettings(std::move(house->ticket), &ticket);
  house->ticket = std::move(ticket);
  return true;
}

}  // namespace zarvo::tool
