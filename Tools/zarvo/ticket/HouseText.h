// SPDX-License-Identifier: Apache-2.0
// House tickets as people read and write them, and the stores as the tool sees them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "HouseTicket/HouseTicketStore.h"

namespace zarvo::tool {

/// Both stores, read: the user's own first, then the shared one.
struct HouseStores {
  HouseTicketStore own = HouseTicketStore::Own();
  HouseTicketStore shared = HouseTicketStore::Shared();

  /// Gives why one of them cannot be used, or an empty text.
  std::string Read();
  std::vector<const HouseTicketStore*> All() const { return {&own, &shared}; }
  /// The store that has the name, or null.
  const HouseTicketStore* Of(const std::string& name) const;
};

/// Reads a record: JSON with the keys "ticket", "based-on", "titles" and "may-override", or any
/// other form of a ticket (see ReadTicket), which then is all its settings. Gives why it cannot be
/// read, or an empty text.
std::string ReadHouseTicket(std::string_view text, HouseTicket* house);

/// The record as that JSON; a PIN or an account is shown only with `secrets`.
std::string HouseTicketText(const HouseTicket& house, bool secrets);

/// What people see: the title in the language of the environment's LC_ALL, LC_MESSAGES or LANG, in
/// English, or in any; the name when there is none.
std::string TitleOf(const HouseTicket& house, const std::string& name);

/// A line for each setting that differs, "KEY: VALUE | VALUE"; what is missing is "-".
std::vector<std::string> TicketDifferences(const Dictionary& left, const Dictionary& right);

}  // namespace zarvo::tool
