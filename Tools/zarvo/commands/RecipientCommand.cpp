// SPDX-License-Identifier: Apache-2.0
// zarvo recipient: the fax recipients in the user's address book.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <set>

#include "Platform/AddressBook.h"
#include "Platform/AtomicFile.h"
#include "Platform/Log.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/Fax.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/job/Recipients.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

struct RecipientOptions {
  std::string first, last, fax, mailbox, organization, phone, email;
  std::string group;
  std::vector<std::string> who;
  bool json = false;
};

int CannotWrite() {
  return Fail(AddressBookFolder(), "the address book cannot be written",
              "Check the folder's owner and the room on its disk");
}

int IsShared(const AddressBookRecord& record) {
  return Fail(RecipientName(record), "is in the shared address book " + record.shared_book,
              "Change it where that book is kept, or add a recipient of your own");
}

/// What of a shared book is read and never written.
std::string WhereOf(const AddressBookRecord& record) {
  return record.shared_book.empty() ? "" : "  shared in " + record.shared_book;
}

/// One card in another encoding makes other programs give up on the whole folder.
bool AreUtf8(std::initializer_list<std::string> texts) {
  for (const std::string& text : texts) {
    if (MakeString(text)) continue;
    Fail("recipient", "has a text that is not UTF-8", "Give it in a terminal with a UTF-8 locale");
    return false;
  }
  return true;
}

void PrintPerson(const AddressBookRecord& record) {
  const FaxRecipient person = FaxRecipientFromCard(record.card);
  const auto text = [](const std::string* value) { return value != nullptr ? *value : "-"; };
  std::printf("%s\n", PrintableText(record.uid() + "  " + RecipientName(record) + "  fax " +
                                    text(person.faxNumber()) + "  mailbox " +
                                    text(person.mailbox()) + WhereOf(record))
                          .c_str());
}

int List(const RecipientOptions& options) {
  const std::vector<AddressBookRecord> records = AddressBookRecords();
  std::vector<const AddressBookRecord*> people;
  for (const AddressBookRecord& record : records) {
    if (!IsGroupCard(record.card)) people.push_back(&record);
  }
  if (!options.group.empty()) {
    const AddressBookRecord* group = FindRecipient(records, options.group);
    if (group == nullptr) return kExitFailure;
    const std::vector<std::string> members = GroupMembers(group->card);
    std::erase_if(people, [&members](const AddressBookRecord* person) {
      return std::find(members.begin(), members.end(), person->uid()) == members.end();
    });
  }
  if (options.json) {
    // The form in which a ticket holds them, so that it can be put into one as it is.
    Array list;
    for (const AddressBookRecord* person : people)
      list.emplace_back(FaxRecipientFromCard(person->card).toTicket());
    Dictionary ticket;
    ticket.emplace(key::kFaxRecipientList, std::move(list));
    std::printf("%s", TicketToJson(ticket).c_str());
    return kExitOk;
  }
  for (const AddressBookRecord* person : people) PrintPerson(*person);
  if (!options.group.empty()) return kExitOk;
  for (const AddressBookRecord& record : records) {
    if (!IsGroupCard(record.card)) continue;
    const std::string members = std::to_string(GroupMembers(record.card).size());
    std::printf("%s\n", PrintableText(record.uid() + "  group " + RecipientName(record) +
                                      "  members " + members + WhereOf(record))
                            .c_str());
  }
  return kExitOk;
}

/// Whether what is given can be stored and dialled; tells why not.
bool IsGood(const RecipientOptions& options) {
  if (!options.fax.empty() && CopyDialingStringFromFaxNumber(options.fax).empty()) {
    Fail(options.fax, "holds nothing that can be dialled",
         "Digits and " + std::string(kFaxDialingCharacters.substr(10)) + " can");
    return false;
  }
  return AreUtf8({options.first, options.last, options.fax, options.mailbox, options.organization,
                  options.phone, options.email});
}

FaxRecipient RecipientOf(const RecipientOptions& options) {
  FaxRecipient recipient;
  const auto set = [&recipient](void (FaxRecipient::*setter)(const std::string*),
                                const std::string& text) {
    if (!text.empty()) (recipient.*setter)(&text);
  };
  set(&FaxRecipient::setFirstName, options.first);
  set(&FaxRecipient::setLastName, options.last);
  set(&FaxRecipient::setFaxNumber, options.fax);
  set(&FaxRecipient::setMailbox, options.mailbox);
  set(&FaxRecipient::setOrganization, options.organization);
  set(&FaxRecipient::setPhoneNumber, options.phone);
  set(&FaxRecipient::setEmailAddress, options.email);
  return recipient;
}

int Add(const RecipientOptions& options) {
  if (options.fax.empty() && options.mailbox.empty())
    return Fail("recipient", "has neither a fax number nor a mailbox", "Give --fax or --mailbox");
  if (!IsGood(options)) return kExitFailure;
  FaxRecipient recipient = RecipientOf(options);
  if (!recipient.commitToAddressBook()) return CannotWrite();
  // The address book keeps a recipient without the last name; people look for it.
  if (recipient.lastName() != nullptr) {
    std::optional<AddressBookRecord> record = recipient.abRecord();
    if (!record) return CannotWrite();
    RenameCard(nullptr, recipient.lastName(), &record->card);
    if (!AddressBookSave(*record)) return CannotWrite();
  }
  std::printf("%s\n", recipient.uid()->c_str());
  return kExitOk;
}

int Edit(const RecipientOptions& options) {
  if (!IsGood(options)) return kExitFailure;
  const std::vector<AddressBookRecord> records = AddressBookRecords();
  const AddressBookRecord* found = FindRecipient(records, options.who[0]);
  if (found == nullptr) return kExitFailure;
  if (IsGroupCard(found->card))
    return Fail(options.who[0], "is a group", "Remove it and make it anew");
  if (!found->shared_book.empty()) return IsShared(*found);
  AddressBookRecord record = *found;
  const FaxRecipient changes = RecipientOf(options);
  UpdateCard(changes, &record.card);
  if (changes.firstName() != nullptr || changes.lastName() != nullptr)
    RenameCard(changes.firstName(), changes.lastName(), &record.card);
  return AddressBookSave(record) ? kExitOk : CannotWrite();
}

int Remove(const RecipientOptions& options) {
  const std::string folder = AddressBookFolder();
  const FolderLock lock(folder);  // groups are read, changed and written
  if (!lock && errno == EAGAIN)
    return Fail(folder, "another program has been changing it for ten seconds",
                "Try again when that has ended");
  std::vector<AddressBookRecord> records = AddressBookRecords();
  for (const std::string& who : options.who) {
    const AddressBookRecord* record = FindRecipient(records, who);
    if (record == nullptr) return kExitFailure;
    if (!record->shared_book.empty()) return IsShared(*record);
    if (!AddressBookRemove(*record)) return CannotWrite();
    const std::string uid = record->uid();
    for (AddressBookRecord& group : records) {
      if (group.shared_book.empty() && IsGroupCard(group.card) && group.uid() != uid &&
          RemoveGroupMember(&group.card, uid) && !AddressBookSave(group))
        return CannotWrite();
    }
    std::erase_if(records, [&uid](const AddressBookRecord& gone) { return gone.uid() == uid; });
  }
  return kExitOk;
}

int Group(const RecipientOptions& options) {
  if (!AreUtf8({options.group})) return kExitFailure;
  const std::vector<AddressBookRecord> records = AddressBookRecords();
  FaxRecipientList list;
  std::set<std::string> uids;
  for (const std::string& who : options.who) {
    const AddressBookRecord* record = FindRecipient(records, who);
    if (record == nullptr) return kExitFailure;
    if (IsGroupCard(record->card)) return Fail(who, "is a group itself");
    if (!uids.insert(record->uid()).second) continue;  // named twice
    list.append(FaxRecipientOwner(new FaxRecipient(FaxRecipientFromCard(record->card))).get());
  }
  return list.saveAsABGroupWithName(options.group) ? kExitOk : CannotWrite();
}

CLI::App* AddCommand(CLI::App& app, const char* name, const char* summary, Action* action,
                     const std::shared_ptr<RecipientOptions>& options,
                     int (*run)(const RecipientOptions&)) {
  CLI::App* command = app.add_subcommand(name, summary);
  command->callback([=] { *action = [=] { return run(*options); }; });
  return command;
}

}  // namespace

void SetUpRecipient(CLI::App& app, Action* action) {
  app.require_subcommand(1);
  const auto options = std::make_shared<RecipientOptions>();
  CLI::App* list = AddCommand(app, "list", "Lists recipients and groups", action, options, &List);
  list->add_flag("--json", options->json, "as a part of a ticket");
  list->add_option("--group", options->group, "only the members of this group");
  CLI::App* add =
      AddCommand(app, "add", "Adds a recipient and prints its UID", action, options, &Add);
  const char* who = "UID, the beginning of one, or a name";
  CLI::App* edit =
      AddCommand(app, "edit", "Changes what is given of a recipient", action, options, &Edit);
  edit->add_option("who", options->who, who)->required()->expected(1);
  for (CLI::App* command : {add, edit}) {
    command->add_option("--first", options->first, "given name");
    command->add_option("--last", options->last, "family name");
    command->add_option("--fax", options->fax, "fax number");
    command->add_option("--mailbox", options->mailbox, "mailbox on the printer");
    command->add_option("--organization", options->organization, "company");
    command->add_option("--phone", options->phone, "phone number");
    command->add_option("--email", options->email, "e-mail address");
  }
  CLI::App* remove = AddCommand(app, "remove",
                                "Removes recipients or groups, and them from all "
                                "groups",
                                action, options, &Remove);
  remove->add_option("who", options->who, who)->required();
  CLI::App* group =
      AddCommand(app, "group", "Makes a group of recipients", action, options, &Group);
  group->add_option("name", options->group, "the group's name")->required();
  group->add_option("who", options->who, who)->required();
}

}  // namespace zarvo::tool
