// SPDX-License-Identifier: Apache-2.0
// The two texts of a ticket: the readable form, which people write, and the flattened options,
// which the spooler carries.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/Value.h"

namespace zarvo::tool {

/// Tickets nest this deep at most; real ones need three levels.
constexpr int kMaxTicketDepth = 50;

/// In bytes: a job's options are one argument of the filter, and Linux takes none that fills 32
/// pages of memory, the zero byte behind it included.
constexpr std::size_t kLongestOptions = 32 * 4096 - 1;
/// In bytes: longer option texts are not read, because the library's time grows with the square of
/// the options. What no job could carry can be looked at all the same.
constexpr std::size_t kLongestReadOptions = 1 << 20;

/// What a hidden secret is shown as.
inline constexpr std::string_view kHiddenSecret = "(hidden)";

/// Reads a ticket: JSON, a property list, or flattened options, told apart by how it begins.
/// In JSON a key may leave out "com.zarvo.print.", a number with a word may be that word, a date
/// may be "YYYY-MM-DDThh:mm", and data is {"$data": "hexadecimal digits"}; a number under a name
/// that is none of ours becomes text, as the spooler's options are. Fails when the text is
/// none of the three, or is of more than kLongestReadOptions.
Failure ReadTicket(std::string_view text, Dictionary* ticket);

/// The ticket of an option text, as the filter rebuilds it.
Dictionary TicketOfOptions(const std::string& options);

/// The ticket as JSON, with words for numbers that have one.
std::string TicketToJson(const Dictionary& ticket);

/// The ticket with every secret replaced by kHiddenSecret.
Dictionary WithoutSecrets(const Dictionary& ticket);

/// One option of a flattened ticket, its texts not quoted.
struct FlatOption {
  std::string name;
  std::string value;
};

/// Flattens a ticket. Fails when it holds what options cannot carry: fractions, empty lists, keys
/// with blanks, two keys that differ in letter case only, more than kLongestOptions.
Failure FlattenTicket(const Dictionary& ticket, std::vector<FlatOption>* options);

/// The options as one text, quoted so that the spooler's library reads the same options back.
std::string OptionText(const std::vector<FlatOption>& options);

}  // namespace zarvo::tool
