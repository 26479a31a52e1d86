// SPDX-License-Identifier: Apache-2.0
// zarvo ticket save, list, show, edit, remove, rename, diff, publish, unpublish: job tickets that
// are kept under a name.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <nlohmann/json.hpp>

#include "CUPSFilter/Options/HouseTicketOption.h"
#include "Platform/AtomicFile.h"
#include "Platform/Log.h"
#include "Platform/UniqueFd.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/commands/HouseTicketSources.h"
#include "Tools/zarvo/system/Editor.h"
#include "Tools/zarvo/system/PublishedChoices.h"
#include "Tools/zarvo/system/PublishedTickets.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"
#include "Tools/zarvo/ticket/HouseText.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

/// Where a new ticket goes: where it is said, else root's to everybody and a user's to the user.
HouseTicketStore TargetStore(const HouseTicketOptions& options) {
  const bool shared = options.shared || (!options.own && ::geteuid() == 0);
  return shared ? HouseTicketStore::Shared() : HouseTicketStore::Own();
}

/// The store to change a ticket in, which has been read; null, having told why.
HouseTicketStore* StoreOf(const HouseTicketOptions& options, HouseStores* stores) {
  if (const std::string fault = stores->Read(); !fault.empty())
    return Fail("store", fault), nullptr;
  HouseTicketStore* first = options.shared ? &stores->shared : &stores->own;
  for (HouseTicketStore* store : {first, &stores->shared})
    if (store->Contains(options.name) && !(options.own && store->shared())) return store;
  Fail(options.name, UnknownHouseTicket(options.name, stores->All()));
  return nullptr;
}

int Changed(const std::string& place, const HouseTicketStore& store, const std::string& fault) {
  if (fault.empty()) return kExitOk;
  const bool denied = store.shared() && (errno == EACCES || errno == EPERM || errno == EROFS);
  return Fail(place, fault,
              denied ? "Everybody's tickets are changed as root; --own keeps yours" : "");
}

bool AddDetails(const HouseTicketOptions& options, HouseTicket* house) {
  if (!options.basedOn.empty()) house->basedOn = options.basedOn;
  for (const std::string& title : options.titles) {
    const std::size_t equals = title.find('=');
    if (equals == title.npos || equals == 0)
      return Fail("--title", title + " is no LANGUAGE=TITLE, such as \"de=Diplomarbeit\""), false;
    house->titles[title.substr(0, equals)] = title.substr(equals + 1);
  }
  if (!options.mayOverride.empty()) house->mayOverride.emplace();
  for (const std::string& path : options.mayOverride)
    if (path != "nothing") house->mayOverride->push_back(SettingPath(path));
  for (const TicketFinding& finding : CheckTicket(house->ticket, /*whole=*/false))
    Note(options.name, finding.place + ": " + finding.text);
  return true;
}

/// Keeps the ticket when it can be resolved with it, and, where one is to be replaced, when that is
/// still the one that was read.
int Keep(const HouseTicketOptions& options, HouseTicketStore store, const HouseTicket& house,
         const std::string* replaced = nullptr) {
  errno = 0;
  const std::string fault = store.Change([&](HouseTicketStore* open) {
    HouseTicket now;
    if (replaced != nullptr &&
        (!open->Find(options.name, &now).empty() || HouseTicketText(now, true) != *replaced))
      return std::string("somebody has changed or removed it meanwhile");
    if (std::string put = open->Put(options.name, house); !put.empty()) return put;
    HouseTicketStore shared = HouseTicketStore::Shared();
    if (std::string read = open->shared() ? "" : shared.Read(); !read.empty()) return read;
    ResolvedHouseTicket resolved;
    return ResolveHouseTicket(options.name, FindIn({open, &shared}), &resolved);
  });
  return Changed(options.name, store, fault);
}

int Save(const HouseTicketOptions& options) {
  HouseTicket house;
  if (!options.fromJob.empty()) {
    if (!ReadSpoolerJob(options, &house)) return kExitFailure;
  } else if (!options.from.empty()) {
    if (!ReadWrittenJob(options, &house)) return kExitFailure;
  } else {
    std::string text;
    if (!ReadInput(options.file, &text)) return kExitFailure;
    if (const std::string fault = ReadHouseTicket(text, &house); !fault.empty())
      return Fail(options.file == "-" ? "(stdin)" : options.file, fault);
  }
  if (!Translate(options, &house) || !AddDetails(options, &house)) return kExitFailure;
  return Keep(options, TargetStore(options), house);
}

int List(const HouseTicketOptions& options) {
  HouseStores stores;
  if (const std::string fault = stores.Read(); !fault.empty()) return Fail("store", fault);
  nlohmann::ordered_json json = nlohmann::ordered_json::array();
  int status = kExitOk;
  for (const HouseTicketStore* store : stores.All()) {
    for (const std::string& name : store->Names()) {
      HouseTicket house;
      const std::string fault = store->Find(name, &house);
      if (!fault.empty()) status = kExitFindings;
      const char* place = store->shared() ? "everybody's" : "yours";
      const std::string title = fault.empty() ? TitleOf(house, name) : fault;
      json.push_back(
          {{"name", name}, {"store", place}, {"title", title}, {"based-on", house.basedOn}});
      if (options.json) continue;
      const std::string base = house.basedOn.empty() ? "" : "\tbuilds on " + house.basedOn;
      std::printf("%s\n", PrintableText(name).c_str());
      std::printf("    %s, %s%s\n", place, PrintableText(title).c_str(),
                  PrintableText(base).c_str());
    }
  }
  if (options.json)
    std::printf("%s\n", json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace).c_str());
  return status;
}

/// A ticket and all it builds on; false, having told why.
bool Resolve(const std::string& name, ResolvedHouseTicket* resolved) {
  HouseStores stores;
  std::string fault = stores.Read();
  if (fault.empty()) fault = ResolveHouseTicket(name, FindIn(stores.All()), resolved);
  if (!fault.empty()) Fail(name, fault);
  return fault.empty();
}

int Show(const HouseTicketOptions& options) {
  if (options.settings) {
    ResolvedHouseTicket resolved;
    if (!Resolve(options.name, &resolved)) return kExitFailure;
    return WriteOutput(
        "-", TicketToJson(options.secrets ? resolved.ticket : WithoutSecrets(resolved.ticket)));
  }
  HouseStores stores;
  const HouseTicketStore* store = StoreOf(options, &stores);
  if (store == nullptr) return kExitFailure;
  HouseTicket house;
  if (const std::string fault = store->Find(options.name, &house); !fault.empty())
    return Fail(options.name, fault);
  return WriteOutput("-", HouseTicketText(house, options.secrets));
}

/// What somebody has written is not thrown away with the folder that it was written in.
int KeepAside(const HouseTicketOptions& options, const std::string& text, int status) {
  std::string file = TemporaryFolder() + "/zarvo-ticket-XXXXXX";
  const UniqueFd out(::mkstemp(file.data()));
  if (!out || ::write(out.get(), text.data(), text.size()) != static_cast<ssize_t>(text.size()))
    return Fail(file, std::strerror(errno));
  Note(options.name, "the ticket is as it was; what you wrote is in " + file);
  return status;
}

/// In the editor, unless the command line says all that is to change.
int Edit(const HouseTicketOptions& options) {
  const bool said =
      !options.titles.empty() || !options.basedOn.empty() || !options.mayOverride.empty();
  HouseStores stores;
  HouseTicketStore* store = StoreOf(options, &stores);
  HouseTicket house;
  if (store == nullptr) return kExitFailure;
  if (const std::string fault = store->Find(options.name, &house); !fault.empty())
    return Fail(options.name, fault);
  const std::string before = HouseTicketText(house, true);
  if (said) {
    const bool right = Translate(options, &house) && AddDetails(options, &house);
    return right ? Keep(options, *store, house, &before) : kExitFailure;
  }
  const std::unique_ptr<ScratchFolder> scratch = MakeScratchFolder();
  if (!scratch) return kExitFailure;
  const std::string file = scratch->File("ticket.json");
  if (!WriteFileAtomically(file, before, 0600)) return Fail(file, std::strerror(errno));
  for (;;) {
    std::string after;
    const Failure failure = EditFile(file);
    if (!ReadInput(file, &after)) return kExitFailure;
    if (after == before)
      return failure.empty() ? kExitOk : Fail(options.name, failure, "The ticket is as it was");
    HouseTicket edited;
    const Failure fault = failure.empty() ? ReadHouseTicket(after, &edited) : failure;
    int status = fault.empty() ? kExitFailure : Fail(options.name, fault);
    if (fault.empty() && Translate(options, &edited) && AddDetails(options, &edited))
      status = Keep(options, *store, edited, &before);
    if (status == kExitOk) return status;
    if (!WantsToEditAgain()) return KeepAside(options, after, status);
  }
}

/// The tickets of the store that build on this one.
std::vector<std::string> Dependents(const HouseTicketStore& store, const std::string& name) {
  std::vector<std::string> found;
  for (const std::string& one : store.Names()) {
    HouseTicket house;
    if (store.Find(one, &house).empty() && house.basedOn == name) found.push_back(one);
  }
  return found;
}

int Remove(const HouseTicketOptions& options) {
  HouseStores stores;
  HouseTicketStore* store = StoreOf(options, &stores);
  if (store == nullptr) return kExitFailure;
  errno = 0;
  const std::string fault = store->Change([&](HouseTicketStore* open) -> std::string {
    const std::vector<std::string> others = Dependents(*open, options.name);
    if (!others.empty() && !options.force)
      return "\"" + others[0] + "\" builds on it; change that one first, or give --force";
    open->Remove(options.name);
    return "";
  });
  return Changed(options.name, *store, fault);
}

int Rename(const HouseTicketOptions& options) {
  HouseStores stores;
  HouseTicketStore* store = StoreOf(options, &stores);
  if (store == nullptr) return kExitFailure;
  errno = 0;
  const std::string fault = store->Change([&](HouseTicketStore* open) -> std::string {
    HouseTicket house;
    if (std::string find = open->Find(options.name, &house); !find.empty()) return find;
    if (open->Contains(options.other)) return "there is a \"" + options.other + "\" already";
    if (std::string put = open->Put(options.other, house); !put.empty()) return put;
    for (const std::string& name : Dependents(*open, options.name)) {
      HouseTicket dependent;
      open->Find(name, &dependent);
      dependent.basedOn = options.other;
      if (std::string put = open->Put(name, dependent); !put.empty()) return put;
    }
    open->Remove(options.name);
    return "";
  });
  return Changed(options.name, *store, fault);
}

int Diff(const HouseTicketOptions& options) {
  ResolvedHouseTicket left, right;
  if (!Resolve(options.name, &left) || !Resolve(options.other, &right)) return kExitFailure;
  const std::vector<std::string> lines = TicketDifferences(left.ticket, right.ticket);
  for (const std::string& line : lines) std::printf("%s\n", PrintableText(line).c_str());
  return lines.empty() ? kExitOk : kExitFindings;
}

/// Jobs are printed from the shared store; so only what is there can be a queue's choice.
int ChangeChoices(const HouseTicketOptions& options, bool publish) {
  QueuePpd queue;
  if (const Failure failure = queue.Fetch(options.queue); !failure.empty())
    return Fail(options.queue, failure);
  std::string ppd;
  if (!ReadInput(queue.path(), &ppd)) return kExitFailure;
  HouseTicketStore shared = HouseTicketStore::Shared();
  if (const std::string fault = shared.Read(); !fault.empty()) return Fail("store", fault);
  if (publish) {
    ResolvedHouseTicket resolved;
    if (const std::string fault = ResolveHouseTicket(options.name, FindIn({&shared}), &resolved);
        !fault.empty())
      return Fail(options.name, fault,
                  "A queue offers everybody's tickets: \"zarvo ticket save --shared\"");
  }
  std::string changed;
  if (const std::string fault =
          ChangePublishedTickets(ppd, options.name, publish, shared, &changed);
      !fault.empty())
    return Fail(options.queue, fault);
  return InstallPpd(options.queue, changed);
}

int Publish(const HouseTicketOptions& options) { return ChangeChoices(options, true); }
int Unpublish(const HouseTicketOptions& options) { return ChangeChoices(options, false); }

}  // namespace

void SetUpHouseTickets(CLI::App& app, Action* action) {
  const auto options = std::make_shared<HouseTicketOptions>();
  const auto add = [&](const char* name, const char* summary,
                       int (*run)(const HouseTicketOptions&)) {
    CLI::App* command = app.add_subcommand(name, summary);
    command->callback([=] { *action = [=] { return run(*options); }; });
    return command;
  };
  const auto add_name = [&](CLI::App* command, const char* what = "its name") {
    command->add_option("name", options->name, what)->required();
  };
  CLI::App* save = add("save", "Keeps a ticket under a name", &Save);
  add_name(save);
  CLI::Option* file =
      save->add_option("file", options->file, "settings in the readable form, or what show writes");
  file->capture_default_str();
  CLI::Option* job = save->add_option("--from-job", options->fromJob, "take those of this job");
  CLI::Option* from =
      save->add_option("--from", options->from, "take those of this job that the filter wrote");
  file->excludes(job);
  from->excludes(job);
  from->excludes(file);
  CLI::App* list = add("list", "Lists the tickets that are kept under a name", &List);
  list->add_flag("--json", options->json, "for programs");
  CLI::App* show = add("show", "Writes a ticket as save and edit take it", &Show);
  add_name(show);
  show->add_flag("--settings", options->settings,
                 "all its settings, with those it builds on, as print takes them");
  show->add_flag("--secrets", options->secrets, "show PIN and account instead of \"(hidden)\"");
  CLI::App* edit = add("edit", "Changes a ticket, in your editor where no option says how", &Edit);
  add_name(edit);
  CLI::App* remove = add("remove", "Removes a ticket", &Remove);
  add_name(remove);
  remove->add_flag("--force", options->force, "even when others build on it");
  CLI::App* rename = add("rename", "Gives a ticket another name", &Rename);
  add_name(rename);
  rename->add_option("new-name", options->other, "its new name")->required();
  CLI::App* diff = add("diff", "Tells in which settings two tickets differ", &Diff);
  add_name(diff, "one of them");
  diff->add_option("other", options->other, "the other")->required();
  for (CLI::App* command : {save, edit}) {
    command->add_option("--based-on", options->basedOn, "ticket whose settings these go over");
    command->add_option("--title", options->titles, "LANGUAGE=TITLE that dialogs show")
        ->allow_extra_args(false);
    command
        ->add_option("--may-override", options->mayOverride,
                     "setting that jobs may change, and no others; \"nothing\" for none")
        ->allow_extra_args(false);
    command->add_option("-q,--queue", options->queue,
                        "queue whose options, such as Staple, the settings may name");
  }
  for (CLI::App* command : {save, show, edit, remove, rename}) {
    CLI::Option* shared = command->add_flag("--shared", options->shared, "everybody's");
    command->add_flag("--own", options->own, "your own")->excludes(shared);
  }
  CLI::App* publish = add("publish", "Offers a ticket in a queue's dialogs", &Publish);
  CLI::App* unpublish = add("unpublish", "Takes a ticket out of them", &Unpublish);
  for (CLI::App* command : {publish, unpublish}) {
    add_name(command);
    command->add_option("-q,--queue", options->queue, "queue, whose PPD is changed")->required();
  }
}

}  // namespace zarvo::tool
