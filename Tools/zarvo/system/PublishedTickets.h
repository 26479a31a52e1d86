// SPDX-License-Identifier: Apache-2.0
// House tickets as choices of a queue: of the PPD's option HouseTicket, and of its finishing
// templates and presets, for clients that know no more than those.
#pragma once

#include <string>
#include <string_view>

#include "HouseTicket/HouseTicketStore.h"

namespace zarvo::tool {

/// The PPD with the ticket among its published choices, or without it, in `changed`. Titles of all
/// that are published are taken from the store anew; what has gone from it is taken out. Gives why
/// that cannot be, or an empty text.
std::string ChangePublishedTickets(std::string_view ppd, const std::string& name, bool publish,
                                   const HouseTicketStore& store, std::string* changed);

}  // namespace zarvo::tool
