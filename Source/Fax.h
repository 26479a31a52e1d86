// SPDX-License-Identifier: Apache-2.0
// Fax recipients, shared by the filter and the print dialog.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/AddressBook.h"
#include "Platform/Value.h"

namespace zarvo {

/// A person with a fax number. The object counts its owners itself: it starts with one, the
/// creator; every list that holds it adds one; FaxRecipientRelease frees it with the last.
/// Texts are UTF-8; a null text is an absent one.
class FaxRecipient {
 public:
  FaxRecipient() = default;
  FaxRecipient(const std::string* first_name, const std::string* last_name,
               const std::string* fax_number);
  /// From the ticket form; see fromTicket.
  explicit FaxRecipient(const Dictionary* ticket);
  /// Copies the texts; the copy has one owner.
  FaxRecipient(const FaxRecipient& other);
  FaxRecipient& operator=(const FaxRecipient& other);
  ~FaxRecipient() = default;

  // Each gives the stored text or null. It stays valid until the text is set again.
  const std::string* firstName() const { return Get(_firstName); }
  const std::string* lastName() const { return Get(_lastName); }
  const std::string* faxNumber() const { return Get(_faxNumber); }  // as typed
  const std::string* faxNumberLabel() const { return Get(_faxNumberLabel); }
  const std::string* organization() const { return Get(_organization); }
  const std::string* phoneNumber() const { return Get(_phoneNumber); }
  const std::string* emailAddress() const { return Get(_emailAddress); }
  const std::string* mailbox() const { return Get(_mailbox); }
  /// The identifier of the address-book record; absent until it is stored there.
  const std::string* uid() const { return Get(_uid); }

  // Each stores a copy of the text; null clears it. Setting a text to itself changes nothing.
  void setFirstName(const std::string* value) { Set(_firstName, value); }
  void setLastName(const std::string* value) { Set(_lastName, value); }
  void setFaxNumber(const std::string* value) { Set(_faxNumber, value); }
  void setFaxNumberLabel(const std::string* value) { Set(_faxNumberLabel, value); }
  void setOrganization(const std::string* value) { Set(_organization, value); }
  void setPhoneNumber(const std::string* value) { Set(_phoneNumber, value); }
  void setEmailAddress(const std::string* value) { Set(_emailAddress, value); }
  void setMailbox(const std::string* value) { Set(_mailbox, value); }
  void setUID(const std::string* value) { Set(_uid, value); }

  /// One owner more or less; gives the new count and frees nothing.
  std::int32_t retain() { return ++_retainCount; }
  std::int32_t release() { return --_retainCount; }

  /// One string under each key of TicketNames.h whose text is present.
  Dictionary toTicket() const;
  /// Takes every text from the dictionary; an absent key, or one that holds no string, clears its
  /// text. A null dictionary changes nothing.
  void fromTicket(const Dictionary* ticket);

  /// Stores the recipient as a new person in the address book, without the last name, and keeps
  /// the new record's identifier. Returns whether it was added; if not, nothing has changed.
  bool commitToAddressBook();
  /// The address-book record under uid(), or nothing when there is no uid or no such record.
  std::optional<AddressBookRecord> abRecord() const;

 private:
  using Text = std::optional<std::string>;
  struct Field {
    std::string_view key;
    Text FaxRecipient::*text;
  };
  static const Field kFields[9];

  static const std::string* Get(const Text& text) { return text ? &*text : nullptr; }
  static void Set(Text& text, const std::string* value);

  Text _firstName;
  Text _lastName;
  Text _faxNumber;
  Text _faxNumberLabel;
  Text _organization;
  Text _phoneNumber;
  Text _emailAddress;
  Text _mailbox;
  Text _uid;
  std::int32_t _retainCount = 1;
};

FaxRecipient* FaxRecipientRetain(FaxRecipient* recipient);
/// Gives up one ownership and frees the recipient when it was the last.
void FaxRecipientRelease(FaxRecipient* recipient);

/// What an array does with its elements.
struct FaxRecipientArrayCallbacks {
  int version;
  FaxRecipient* (*retain)(FaxRecipient* recipient);
  void (*release)(FaxRecipient* recipient);
};
FaxRecipient* FaxRecipientRetainCallback(FaxRecipient* recipient);
void FaxRecipientReleaseCallback(FaxRecipient* recipient);
inline constexpr FaxRecipientArrayCallbacks kFaxRecipientCFArrayCallbacks = {
    0, &FaxRecipientRetainCallback, &FaxRecipientReleaseCallback};

struct FaxRecipientDeleter {
  void operator()(FaxRecipient* recipient) const { FaxRecipientRelease(recipient); }
};
/// One ownership of a recipient, given up at the end of the scope.
using FaxRecipientOwner = std::unique_ptr<FaxRecipient, FaxRecipientDeleter>;

/// Recipients in the order in which they are dialled. The list owns each of them once for every
/// time that it holds it.
class FaxRecipientList {
 public:
  FaxRecipientList() = default;
  /// From the ticket form; see fromTicket.
  explicit FaxRecipientList(const Array& ticket);
  /// Copies every recipient.
  FaxRecipientList(const FaxRecipientList& other);
  FaxRecipientList& operator=(const FaxRecipientList&) = delete;
  ~FaxRecipientList();

  std::size_t count() const { return _recipients.size(); }
  /// The recipient, still owned by the list; null beyond the end.
  FaxRecipient* recipientAtIndex(std::size_t index) const;
  /// Removes nothing beyond the end.
  void removeAtIndex(std::size_t index);
  /// Removes this very object wherever it stands, except right after a place where it has just
  /// been removed. Always returns false.
  bool remove(const FaxRecipient* recipient);
  void removeAll();
  /// An index beyond the end appends.
  void insertAtIndex(FaxRecipient* recipient, std::size_t index);
  void append(FaxRecipient* recipient) { insertAtIndex(recipient, count()); }

  /// Replaces the content by one new recipient for each dictionary; other elements are skipped.
  void fromTicket(const Array& ticket);
  Array toTicket() const;

  /// Whether an element has the same first name, last name and fax number, compared byte by byte;
  /// an absent text matches only an absent one.
  bool containsRecipient(const FaxRecipient* recipient) const;

  /// Stores a new group of this name in the address book, with every recipient as a member;
  /// recipients that are not there yet are added first. A recipient that cannot be added is left
  /// out. Returns true when the group and all its members are stored.
  bool saveAsABGroupWithName(const std::string& name);

 private:
  std::vector<FaxRecipient*> _recipients;
};

/// The recipient that a person's card stands for; what the card does not tell is absent.
FaxRecipient FaxRecipientFromCard(const VCard& card);

/// Puts those of the recipient's texts that are present, names aside, into a person's card; what
/// else the card holds stays.
void UpdateCard(const FaxRecipient& recipient, VCard* card);
/// Gives a person's card other names; a null one stays as it was.
void RenameCard(const std::string* first, const std::string* last, VCard* card);

/// First and last name, those that are present and not empty, joined by one blank.
std::string DisplayNameFromRecipient(const FaxRecipient& recipient);

/// What the printer can dial.
inline constexpr std::string_view kFaxDialingCharacters = "0123456789*#=:!,/S$<>ABCD";

/// The dialing characters of a fax number, in order; all others are dropped.
std::string CopyDialingStringFromFaxNumber(std::string_view fax_number);

}  // namespace zarvo
