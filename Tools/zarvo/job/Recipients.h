// SPDX-License-Identifier: Apache-2.0
// Who is meant by what people type for a fax recipient.
#pragma once

#include <string>
#include <vector>

#include "Platform/AddressBook.h"

namespace zarvo::tool {

/// The name that a record of the address book is listed by.
std::string RecipientName(const AddressBookRecord& record);

/// The person or group that `who` means: a UID, the beginning of one, or a name. Null, having told
/// why, when there is none or more than one.
const AddressBookRecord* FindRecipient(const std::vector<AddressBookRecord>& records,
                                       const std::string& who);

/// Whether somebody has this very name or UID.
bool IsRecipient(const std::vector<AddressBookRecord>& records, const std::string& who);

}  // namespace zarvo::tool
