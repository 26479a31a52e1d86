// SPDX-License-Identifier: Apache-2.0
// The job ticket, rebuilt from the options that the print dialog flattened it into.
//
//   the job's options (OptionList)
//     + the options that the marked choices of the PPD stand for (Ppd, PpdTicket)
//     -> in natural order (NaturalOrder, TicketOrder) -> the ticket, a Dictionary
//
// Page size, margins and orientation come from the PPD and the options as well, but are no part of
// the ticket: SetCommonOptions (common.h) sets them once. From here on the ticket is read-only.
#pragma once

#include <cups/cups.h>

#include <string_view>
#include <vector>

#include "Platform/Value.h"

namespace zarvo {

/// A copy of the list in natural order: names compare byte by byte, but runs of digits by value, so
/// that element 2 of an array comes before element 10. The spooler's library sorts by plain text,
/// which would lose array entries from the eleventh on. The texts still belong to `options`.
std::vector<cups_option_t> NaturalOrder(int num_options, const cups_option_t* options);

/// Rebuilds the ticket. An option name is split at ".." into a top-level key and, for each level
/// below it, a type letter, any one character and an address: "D" data in hexadecimal, "a" array
/// and position, "b" boolean, "d" dictionary and key, "n" number; anything else is a string. Each
/// option is handled in list order; later ones overwrite earlier ones at the same address and
/// containers are merged. What cannot be stored (text that is not UTF-8, a position beyond the
/// array's end, a container of another kind in the way) is left out; the names of such options are
/// appended to `left_out`, which may be null, and belong to `opts`.
Dictionary ParseCUPSOptionsToDictionary(const cups_option_t* opts, int num_options,
                                        std::vector<std::string_view>* left_out = nullptr);

/// The same, into a dictionary that may hold entries already.
void recreateCFDictionary(int num_options, const cups_option_t* options, Dictionary* dict,
                          std::vector<std::string_view>* left_out = nullptr);

/// The parts of an option's name: the top-level key, then a type letter, any one character and an
/// address for each level. There is always a first one.
std::vector<std::string_view> SplitName(std::string_view name);

/// What follows the type letter and the character after it.
std::string_view AddressIn(std::string_view component);

/// The value of a hexadecimal digit; -1 for any other character.
int hex2int(char digit);

}  // namespace zarvo
