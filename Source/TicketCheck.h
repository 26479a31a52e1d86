// SPDX-License-Identifier: Apache-2.0
// Finds what a ticket asks for that nobody will understand.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "Platform/Value.h"

namespace zarvo {

struct TicketFinding {
  std::string place;  ///< the key, with the keys above it
  std::string text;   ///< what is wrong with it and what may have been meant
};

/// Keys that nobody knows, values of a wrong type or out of range, and settings that have no effect
/// without another one. Plain options beside the ticket are looked at when there are names that
/// they may have been meant for. No text of a secret is in the findings.
std::vector<TicketFinding> CheckTicketKeys(const Dictionary& ticket,
                                           std::span<const char* const> spooler_options = {});

}  // namespace zarvo
