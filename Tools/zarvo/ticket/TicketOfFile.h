// SPDX-License-Identifier: Apache-2.0
// The inverse of writing: the ticket by which the filter would write a job's header and XML ticket.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/Value.h"

namespace zarvo::tool {

/// Reads a job that the filter wrote. `left` gets a line about everything that the ticket will not
/// write again as it stands there: PIN, accounts and billing code, which are never taken, what the
/// job had brought itself, and what cannot be known. It fails when this is no such job.
Failure TicketOfFile(std::FILE* file, Dictionary* ticket, std::vector<std::string>* left);

}  // namespace zarvo::tool
