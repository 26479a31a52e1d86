// SPDX-License-Identifier: Apache-2.0
// Ticket options for people whose print dialog knows nothing but the PPD's own options.
#pragma once

#include <cups/cups.h>

#include <string>
#include <vector>

#include "CUPSFilter/Options/OptionList.h"
#include "CUPSFilter/Options/Ppd.h"

namespace zarvo {

/// The flattened ticket options that the marked choices stand for. A PPD tells them in attributes
///
///   *ZRVTicket Option.Choice: "name=value name=value ..."
///
/// A value is bare, in single quotes, or both; a backslash takes the next character as it is.
/// Outside of names, "%s" is what the job gave for the custom choice: its only parameter, or the
/// parameters in turn when it has several; "%%" is a percent sign. Attributes are read in the order
/// of the file, and of two values for one name the later is kept. An attribute that cannot be
/// understood is skipped; `faults` gets a text for the log about each, which leaves out its value.
OptionList PpdTicketOptions(const Ppd& ppd, std::vector<std::string>* faults);

/// The options in the order in which the ticket is decoded: those of the PPD's choices come first,
/// so that the job's own, even when they spell an address differently, overwrite them. The texts
/// still belong to the two lists.
std::vector<cups_option_t> TicketOrder(const OptionList& chosen, const OptionList& own);

}  // namespace zarvo
