// SPDX-License-Identifier: Apache-2.0
// Finds what a ticket asks for that nobody will understand.
#pragma once

#include <string>
#include <vector>

#include "Platform/Value.h"

namespace zarvo::tool {

struct TicketFinding {
  std::string place;  ///< the key, with the keys above it
  std::string text;   ///< what is wrong with it and what may have been meant
};

/// Keys that nobody knows, values of a wrong type or out of range, and settings that have no
/// effect without another one; the latter only of a ticket that is the `whole` job, to which no
/// other options come. No text of a secret is in the findings.
std::vector<TicketFinding> CheckTicket(const Dictionary& ticket, bool whole = true);

/// Why no job with this ticket should be sent: a PIN that cannot be kept or that people should not
/// type (4 to 10 digits), a fax that cannot be sent. Empty when there is no reason; without
/// secrets.
std::string SecretFault(const Dictionary& ticket);

}  // namespace zarvo::tool
