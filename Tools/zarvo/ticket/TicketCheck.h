// SPDX-License-Identifier: Apache-2.0
// What there is to say of a ticket before it becomes a job.
#pragma once

#include <string>
#include <vector>

#include "Platform/Value.h"
#include "Source/TicketCheck.h"

namespace zarvo::tool {

/// Keys and values that nobody will understand, misspelt options of the spooler, secrets that
/// cannot be kept, and settings that lack another one; the latter only of a ticket that is the
/// `whole` job, to which no other options come. No text of a secret is in the findings.
std::vector<TicketFinding> CheckTicket(const Dictionary& ticket, bool whole = true);

/// Why no job with this ticket should be sent: a PIN that cannot be kept or that people should not
/// type, a fax that cannot be sent. Empty when there is no reason; without secrets.
std::string SecretFault(const Dictionary& ticket);

}  // namespace zarvo::tool
