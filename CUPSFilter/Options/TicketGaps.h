// SPDX-License-Identifier: Apache-2.0
// What a ticket asks for that comes to nothing, or spoils paper, without another setting.
#pragma once

#include <string>
#include <vector>

#include "Platform/Value.h"

namespace zarvo {

struct TicketGap {
  std::string key;      ///< the setting that lacks another one
  std::string cause;    ///< what becomes of it
  std::string choice;   ///< the remedy as an option of our PPD
  std::string setting;  ///< the remedy as a setting of the ticket
};

/// Folding in the middle where the pages are not laid out for it.
TicketGap FoldGap();

/// What becomes of it, and the remedy as an option: a line for people.
std::string GapLine(const TicketGap& gap);

/// Gaps in the order of their importance; none for a ticket that says nothing of their matters.
std::vector<TicketGap> FindGaps(const Dictionary& ticket);

}  // namespace zarvo
