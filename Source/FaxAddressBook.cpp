// SPDX-License-Identifier: Apache-2.0
// How fax recipients are kept in the user's address book.
#include <algorithm>
#include <cctype>
#include <optional>
#include <string>

#include "Platform/AddressBook.h"
#include "Platform/Text.h"
#include "Source/Fax.h"

namespace zarvo {
namespace {

/// kZMailboxABProperty under the name that a card can hold.
constexpr const char* kMailboxCardProperty = "X-ZARVO-MAILBOX";

/// What desktop programs list the person by: a card without a name is shown as an empty line, and
/// a recipient may well have a number only.
std::string CardName(const FaxRecipient& recipient) {
  for (const std::string* text : {recipient.firstName(), recipient.organization(),
                                  recipient.emailAddress(), recipient.faxNumber()}) {
    if (text != nullptr && !text->empty()) return *text;
  }
  return "Fax";
}

/// Part `index` of a value that has parts, such as N.
std::optional<std::string> Component(const VCard& card, std::string_view name, int index) {
  for (const VCardProperty& property : card.properties) {
    if (!property.Is(name)) continue;
    std::string_view rest = property.value;
    std::size_t start = 0;
    for (std::size_t at = 0; at <= rest.size(); ++at) {
      if (at + 1 < rest.size() && rest[at] == '\\') {
        ++at;  // the character after it is no separator
      } else if (at == rest.size() || rest[at] == ';') {
        if (index-- == 0) return VCardText(rest.substr(start, at - start));
        start = at + 1;
      }
    }
    return std::nullopt;
  }
  return std::nullopt;
}

/// Whether the property is a telephone number that is, or is not, a fax number.
bool IsTelephone(const VCardProperty& property, bool fax) {
  if (!property.Is("TEL")) return false;
  std::string head = property.head;
  std::transform(head.begin(), head.end(), head.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  // The group before the name may be called anything.
  return (head.find("FAX", head.find(';')) != std::string::npos) == fax;
}

std::optional<std::string> TelephoneNumber(const VCard& card, bool fax) {
  for (const VCardProperty& property : card.properties)
    if (IsTelephone(property, fax)) return VCardText(property.value);
  return std::nullopt;
}

/// Gives the first property that `is` picks a new value, or adds one.
template <class Picks>
void SetProperty(VCard* card, const char* head, const std::string* text, Picks is) {
  if (text == nullptr) return;
  for (VCardProperty& property : card->properties) {
    if (!is(property)) continue;
    property.value = VCardValue(*text);
    return;
  }
  card->properties.push_back({head, VCardValue(*text)});
}

/// A card's text as the rest of the system takes it. What is not UTF-8 comes from older programs,
/// whose cards are in Latin-1.
std::string RecipientText(const std::string& text) {
  std::optional<std::string> utf8 = MakeString(text);
  if (utf8) return *std::move(utf8);
  std::string converted;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x80) converted += static_cast<char>(0xC0 | byte >> 6);
    converted += byte >= 0x80 ? static_cast<char>(0x80 | (byte & 0x3F)) : c;
  }
  return converted;
}

}  // namespace

FaxRecipient FaxRecipientFromCard(const VCard& card) {
  FaxRecipient recipient;
  const auto set = [&recipient](void (FaxRecipient::*setter)(const std::string*),
                                const std::optional<std::string>& text) {
    if (!text || text->empty()) return;
    const std::string utf8 = RecipientText(*text);
    (recipient.*setter)(&utf8);
  };
  set(&FaxRecipient::setFirstName, Component(card, "N", 1));
  set(&FaxRecipient::setLastName, Component(card, "N", 0));
  set(&FaxRecipient::setFaxNumber, TelephoneNumber(card, true));
  set(&FaxRecipient::setPhoneNumber, TelephoneNumber(card, false));
  set(&FaxRecipient::setEmailAddress, VCardFindText(card, "EMAIL"));
  set(&FaxRecipient::setOrganization, Component(card, "ORG", 0));
  set(&FaxRecipient::setMailbox, VCardFindText(card, kMailboxCardProperty));
  set(&FaxRecipient::setUID, VCardFindText(card, "UID"));
  return recipient;
}

void UpdateCard(const FaxRecipient& recipient, VCard* card) {
  const auto is = [](const char* name) {
    return [name](const VCardProperty& property) { return property.Is(name); };
  };
  const auto telephone = [](bool fax) {
    return [fax](const VCardProperty& property) { return IsTelephone(property, fax); };
  };
  SetProperty(card, "TEL;TYPE=WORK,FAX", recipient.faxNumber(), telephone(true));
  SetProperty(card, "TEL;TYPE=WORK,VOICE", recipient.phoneNumber(), telephone(false));
  SetProperty(card, "EMAIL;TYPE=WORK,INTERNET", recipient.emailAddress(), is("EMAIL"));
  SetProperty(card, "ORG", recipient.organization(), is("ORG"));
  SetProperty(card, kMailboxCardProperty, recipient.mailbox(), is(kMailboxCardProperty));
}

void RenameCard(const std::string* first, const std::string* last, VCard* card) {
  FaxRecipient person = FaxRecipientFromCard(*card);
  if (first != nullptr) person.setFirstName(first);
  if (last != nullptr) person.setLastName(last);
  const auto part = [](const std::string* text) { return VCardValue(text ? *text : ""); };
  for (VCardProperty& property : card->properties) {
    if (property.Is("N"))
      property.value = part(person.lastName()) + ";" + part(person.firstName()) + ";;;";
    if (property.Is("FN")) property.value = VCardValue(DisplayNameFromRecipient(person));
  }
}

bool FaxRecipient::commitToAddressBook() {
  VCard card = MakePersonCard(CardName(*this), _firstName.value_or(""));
  UpdateCard(*this, &card);
  const std::optional<AddressBookRecord> record = AddressBookAdd(std::move(card));
  if (!record) return false;
  const std::string uid = record->uid();
  setUID(&uid);
  return true;
}

std::optional<AddressBookRecord> FaxRecipient::abRecord() const {
  return _uid ? AddressBookFind(*_uid) : std::nullopt;
}

bool FaxRecipientList::saveAsABGroupWithName(const std::string& name) {
  std::optional<AddressBookRecord> group = AddressBookAdd(MakeGroupCard(name));
  if (!group) return false;
  for (FaxRecipient* recipient : _recipients) {
    // A recipient whose record somebody has removed is stored anew, not lost to the group.
    if (!recipient->abRecord()) recipient->commitToAddressBook();
    if (const auto member = recipient->abRecord()) AddGroupMember(&group->card, member->uid());
  }
  return AddressBookSave(*group);
}

}  // namespace zarvo
