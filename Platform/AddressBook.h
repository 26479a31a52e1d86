// SPDX-License-Identifier: Apache-2.0
// The user's address book: a folder of vCard files, one for each person or group, laid out as
// desktop programs and synchronizers share it ("vdir"). Beside it stand the books that everybody on
// the machine reads: folders of the same form, which somebody else fills and nobody changes here.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/VCard.h"

namespace zarvo {

/// A stored card and the name of its file within the address book.
struct AddressBookRecord {
  std::string file;
  VCard card;
  std::string shared_book =
      {};  ///< the name of the shared book that it is in; empty in the user's own

  /// The card's UID, or an empty text.
  std::string uid() const;
};

/// The environment's ZARVO_ADDRESS_BOOK; without it "zarvo/contacts" below XDG_DATA_HOME, or below
/// ~/.local/share when that is not set. Empty when none of them tells a place.
std::string AddressBookFolder();

/// The folder of which each folder is a shared book: "Zarvo/contacts" below the environment's
/// ZARVO_APPLICATION_SUPPORT, or below the build's ZARVO_DATA_ROOT. It need not exist.
std::string SharedAddressBooksFolder();

/// Stores the card as a new record of the address book under a new random UID, which becomes both
/// a property of it and its file's name. The folder is made when it is missing, and both are for
/// the user's eyes only. Nothing when the record cannot be written. Any number of programs may add
/// at the same time.
std::optional<AddressBookRecord> AddressBookAdd(VCard card);

/// Replaces the file of a record by its present card. Returns whether it was written; one of a
/// shared book never is.
bool AddressBookSave(const AddressBookRecord& record);

/// The record with this UID. Its file is looked for under the UID first; when another program has
/// named it otherwise, every card of the folder is read. The user's own book comes before shared
/// ones.
std::optional<AddressBookRecord> AddressBookFind(std::string_view uid);

/// Every record of the address book, in the order of their files' names, then those of the shared
/// books whose UID the user's own has not, in the order of the books' names. Files that hold no
/// card are left out; no folder is an empty address book.
std::vector<AddressBookRecord> AddressBookRecords();

/// Removes a record's file. Returns whether it is gone; that of a shared book stays.
bool AddressBookRemove(const AddressBookRecord& record);

/// A card for a person: what to list it by and the given name, which may be empty.
VCard MakePersonCard(std::string_view full_name, std::string_view given_name);
/// A card for a group without members.
VCard MakeGroupCard(std::string_view name);
bool IsGroupCard(const VCard& card);
/// Adds the record with this UID to a group's members.
void AddGroupMember(VCard* group, std::string_view uid);
/// Takes it out again. Returns whether it was one.
bool RemoveGroupMember(VCard* group, std::string_view uid);
/// The UIDs of a group's members, in their order.
std::vector<std::string> GroupMembers(const VCard& group);

}  // namespace zarvo
