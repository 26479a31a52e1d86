// SPDX-License-Identifier: Apache-2.0
#include "Source/Fax.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

/// kFaxDialingCharacters as a set of bytes. No byte of a longer UTF-8 character is in it.
constexpr std::array<bool, 256> kFaxDialingCharacterSet = [] {
  std::array<bool, 256> set{};
  for (const char character : kFaxDialingCharacters)
    set[static_cast<unsigned char>(character)] = true;
  return set;
}();

bool SameText(const std::string* left, const std::string* right) {
  return left == right || (left != nullptr && right != nullptr && *left == *right);
}

}  // namespace

const FaxRecipient::Field FaxRecipient::kFields[9] = {
    {kFaxRecipientFirstNameProperty, &FaxRecipient::_firstName},
    {kFaxRecipientLastNameProperty, &FaxRecipient::_lastName},
    {kFaxRecipientFaxNumberProperty, &FaxRecipient::_faxNumber},
    {kFaxRecipientFaxNumberLabelProperty, &FaxRecipient::_faxNumberLabel},
    {kFaxRecipientOrganizationProperty, &FaxRecipient::_organization},
    {kFaxRecipientPhoneNumberProperty, &FaxRecipient::_phoneNumber},
    {kFaxRecipientEmailAddressProperty, &FaxRecipient::_emailAddress},
    {kFaxRecipientMailboxProperty, &FaxRecipient::_mailbox},
    {kFaxRecipientUIDProperty, &FaxRecipient::_uid},
};

FaxRecipient::FaxRecipient(const std::string* first_name, const std::string* last_name,
                           const std::string* fax_number) {
  setFirstName(first_name);
  setLastName(last_name);
  setFaxNumber(fax_number);
}

FaxRecipient::FaxRecipient(const Dictionary* ticket) { fromTicket(ticket); }

FaxRecipient::FaxRecipient(const FaxRecipient& other) { *this = other; }

FaxRecipient& FaxRecipient::operator=(const FaxRecipient& other) {
  // Texts only: whoever owns this object goes on owning it.
  for (const Field& field : kFields) Set(this->*field.text, Get(other.*field.text));
  return *this;
}

void FaxRecipient::Set(Text& text, const std::string* value) {
  if (value == Get(text)) return;
  if (value == nullptr) {
    text.reset();
  } else {
    text = *value;
  }
}

Dictionary FaxRecipient::toTicket() const {
  Dictionary ticket;
  for (const Field& field : kFields) {
    if (const Text& text = this->*field.text) ticket.emplace(field.key, *text);
  }
  return ticket;
}

void FaxRecipient::fromTicket(const Dictionary* ticket) {
  if (ticket == nullptr) return;
  for (const Field& field : kFields)
    Set(this->*field.text, DictionaryGetString(*ticket, field.key));
}

FaxRecipient* FaxRecipientRetain(FaxRecipient* recipient) {
  recipient->retain();
  return recipient;
}

void FaxRecipientRelease(FaxRecipient* recipient) {
  if (recipient->release() == 0) delete recipient;
}

FaxRecipient* FaxRecipientRetainCallback(FaxRecipient* recipient) {
  return FaxRecipientRetain(recipient);
}

void FaxRecipientReleaseCallback(FaxRecipient* recipient) { FaxRecipientRelease(recipient); }

FaxRecipientList::FaxRecipientList(const Array& ticket) { fromTicket(ticket); }

FaxRecipientList::FaxRecipientList(const FaxRecipientList& other) {
  _recipients.reserve(other.count());
  for (const FaxRecipient* recipient : other._recipients)
    append(FaxRecipientOwner(new FaxRecipient(*recipient)).get());
}

FaxRecipientList::~FaxRecipientList() { removeAll(); }

FaxRecipient* FaxRecipientList::recipientAtIndex(std::size_t index) const {
  return index < count() ? _recipients[index] : nullptr;
}

void FaxRecipientList::removeAtIndex(std::size_t index) {
  if (index >= count()) return;
  kFaxRecipientCFArrayCallbacks.release(_recipients[index]);
  _recipients.erase(_recipients.begin() + static_cast<std::ptrdiff_t>(index));
}

bool FaxRecipientList::remove(const FaxRecipient* recipient) {
  for (std::size_t index = 0; index < count(); ++index) {
    if (_recipients[index] == recipient) removeAtIndex(index);
  }
  return false;
}

void FaxRecipientList::removeAll() {
  for (FaxRecipient* recipient : _recipients) kFaxRecipientCFArrayCallbacks.release(recipient);
  _recipients.clear();
}

void FaxRecipientList::insertAtIndex(FaxRecipient* recipient, std::size_t index) {
  const auto place = std::min(index, count());
  _recipients.insert(_recipients.begin() + static_cast<std::ptrdiff_t>(place), recipient);
  kFaxRecipientCFArrayCallbacks.retain(recipient);
}

void FaxRecipientList::fromTicket(const Array& ticket) {
  removeAll();
  for (const Value& entry : ticket) {
    if (const Dictionary* dictionary = entry.AsDictionary())
      append(FaxRecipientOwner(new FaxRecipient(dictionary)).get());
  }
}

Array FaxRecipientList::toTicket() const {
  Array ticket;
  ticket.reserve(count());
  for (const FaxRecipient* recipient : _recipients) ticket.emplace_back(recipient->toTicket());
  return ticket;
}

bool FaxRecipientList::containsRecipient(const FaxRecipient* recipient) const {
  return std::any_of(_recipients.begin(), _recipients.end(), [recipient](const FaxRecipient* one) {
    return SameText(one->firstName(), recipient->firstName()) &&
           SameText(one->lastName(), recipient->lastName()) &&
           SameText(one->faxNumber(), recipient->faxNumber());
  });
}

std::string DisplayNameFromRecipient(const FaxRecipient& recipient) {
  std::string name;
  for (const std::string* part : {recipient.firstName(), recipient.lastName()}) {
    if (part == nullptr || part->empty()) continue;
    if (!name.empty()) name += ' ';
    name += *part;
  }
  return name;
}

std::string CopyDialingStringFromFaxNumber(std::string_view fax_number) {
  std::string dialing;
  std::copy_if(fax_number.begin(), fax_number.end(), std::back_inserter(dialing),
               [](char c) { return kFaxDialingCharacterSet[static_cast<unsigned char>(c)]; });
  return dialing;
}

}  // namespace zarvo
