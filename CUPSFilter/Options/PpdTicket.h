// SPDX-License-Identifier: Apache-2.0
// Ticket options for people whose print dialog knows nothing but the PPD's own options.
#pragma once

#include <cups/cups.h>

#include <functional>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "CUPSFilter/Options/OptionList.h"
#include "CUPSFilter/Options/Ppd.h"

namespace zarvo {

/// Names of options, to be looked up by any text.
using OptionNames = std::set<std::string, std::less<>>;

/// The flattened ticket options that the marked choices stand for. A PPD tells them in attributes
///
///   *ZRVTicket Option.Choice: "name=value name=value ..."
///
/// A value is bare, in single quotes, or both; a backslash takes the next character as it is.
/// Outside of names, "%s" is what the job gave for the custom choice: its only parameter, or the
/// parameters in turn when it has several; "%%" is a percent sign. Attributes are read in the order
/// of the file, and of two values for one name the later is kept. An attribute that cannot be
/// understood is skipped; `faults` gets a text for the log about each, which leaves out its value.
struct PpdChoices {
  OptionList others;  ///< of options the job does not name: defaults, or derived by the spooler
  OptionList named;   ///< of options among `names`
};
PpdChoices PpdTicketOptions(const Ppd& ppd, const OptionNames& names,
                            std::vector<std::string>* faults);

/// The ticket options of one attribute's value, without a custom choice; none when it cannot be
/// understood.
OptionList ReadTicketAttribute(std::string_view value);

/// The options of several lists in the order in which the ticket is decoded: a later list
/// overwrites an earlier one, even when it spells an address differently. The texts still belong to
/// the lists.
std::vector<cups_option_t> TicketOrder(std::initializer_list<const OptionList*> lists);

}  // namespace zarvo
