// SPDX-License-Identifier: Apache-2.0
// The ticket that a job's options make, as the filter would have it: what a house ticket is made
// from, and what goes over one.
#pragma once

#include <string>
#include <vector>

#include "CUPSFilter/Options/OptionList.h"
#include "HouseTicket/HouseTicket.h"

namespace zarvo::tool {

/// The house ticket's settings (none: of an empty one) under those that the options stand for, on a
/// queue with that PPD file (may be empty: ticket options alone count). Nothing of the queue's
/// defaults is in it. The names of options that are no setting of a ticket, such as "copies", are
/// appended to `others`, the paths that the house ticket does not let go to `kept`.
Dictionary TicketOfJob(const OptionList& options, const std::string& ppd_file,
                       const ResolvedHouseTicket& house, std::vector<std::string>* others,
                       std::vector<std::string>* kept);

/// What a job was sent with, of its attributes, as options; `queue` gets its queue.
OptionList OptionsOfJob(ipp_t* attributes, std::string* queue);

/// What a job was sent with, from the spooler, as options; `queue` gets its queue. Gives why that
/// cannot be had, or an empty text.
std::string OptionsOfSpoolerJob(int number, OptionList* options, std::string* queue);

}  // namespace zarvo::tool
