// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/Recipients.h"

#include <algorithm>

#include "Platform/VCard.h"
#include "Source/NearestName.h"
#include "Tools/zarvo/Command.h"

namespace zarvo::tool {
namespace {

std::vector<const AddressBookRecord*> Matches(const std::vector<AddressBookRecord>& records,
                                              const std::string& who) {
  std::vector<const AddressBookRecord*> matches;
  for (const AddressBookRecord& record : records) {
    if (record.uid() == who) return {&record};
    if (record.uid().starts_with(who) || RecipientName(record) == who) matches.push_back(&record);
  }
  return matches;
}

}  // namespace

std::string RecipientName(const AddressBookRecord& record) {
  return VCardFindText(record.card, "FN").value_or("");
}

const AddressBookRecord* FindRecipient(const std::vector<AddressBookRecord>& records,
                                       const std::string& who) {
  const std::vector<const AddressBookRecord*> matches = Matches(records, who);
  if (matches.size() == 1 && !who.empty()) return matches[0];
  std::string cause = who.empty() ? "an empty name means nobody" : "fits more than one recipient";
  if (matches.empty()) {
    std::vector<std::string> names;
    for (const AddressBookRecord& record : records) names.push_back(RecipientName(record));
    const std::string nearest = NearestName(who, names);
    cause = "no such recipient" + (nearest.empty() ? "" : "; did you mean " + nearest + "?");
  }
  Fail(who.empty() ? "recipient" : who, cause,
       "\"zarvo recipient list\" shows them; take the beginning of the UID");
  return nullptr;
}

bool IsRecipient(const std::vector<AddressBookRecord>& records, const std::string& who) {
  return std::any_of(records.begin(), records.end(), [&who](const AddressBookRecord& record) {
    return record.uid() == who || RecipientName(record) == who;
  });
}

}  // namespace zarvo::tool
