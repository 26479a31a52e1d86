// SPDX-License-Identifier: Apache-2.0
// What IPP's standard job attributes ask of these printers, as options of the job ticket.
//
// Design. The library knows IPP messages and the names of the ticket and nothing else: no spooler,
// no PPD, no file. Whoever has a job's attributes hands them over and gets flattened ticket options
// (docs/ticket.md), each with the attribute it comes from, and a list of what could not be
// honoured. Every registered attribute, member and value has its place in a table here;
// docs/standard-ticket.md shows what becomes of each of them.
//
//   Attribute.h      reads an attribute's values, whatever type its sender gave them
//   Mapping.h        collects settings and reasons; walks the members of collections
//   AttributeTable.h the attributes that are one choice among words, left to others, or refused
//   the other files  one for each theme that takes more than a table: stock, finishing, special
//                    pages, fax, what becomes of the job
//
// Attributes come from anybody who may print: sets of any length and values of any type cost no
// more than their own length, and at most kMostSpecialPages settings of a list are made.
#pragma once

#include <cups/ipp.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zarvo {

/// Inserts, and page exceptions, that one job can have.
constexpr std::size_t kMostSpecialPages = 1000;

/// One option of the ticket.
struct StandardSetting {
  std::string name;    ///< flattened; of an ordinary option its name
  std::string value;   ///< UTF-8
  std::string source;  ///< the attribute and, where it is no secret, its value; to be shown
  /// Holds what the attribute does not ask for at its neutral value, so that no lower default shows
  /// through. Being overridden is no conflict.
  bool quiet = false;
};

/// An attribute, a member or a value that could not be honoured.
struct NotHonoured {
  std::string attribute;  ///< path such as "media-col/media-thickness", with the value if harmless
  std::string reason;     ///< without a full stop
};

struct StandardTicket {
  std::vector<StandardSetting> settings;  ///< of two for one name the later counts
  std::vector<NotHonoured> not_honoured;
  std::vector<std::string> without;  ///< dictionaries of the ticket that defaults must not fill
  /// Why the job must not be printed at all, such as a PIN that cannot be used; empty when it may.
  std::string refusal;
};

/// Maps the attributes of all groups of a message, read without regard to the group; of attributes
/// with one name the first counts. Out-of-band values (such as no-value) ask for nothing.
/// Attributes that are no standard job attributes are passed over. `local_now` is the present time
/// in seconds since 1904-01-01 00:00:00 local time. `attributes` is not changed but for its
/// iteration state.
StandardTicket MapStandardAttributes(ipp_t* attributes, std::int64_t local_now);

/// Whether the mapper has a place for an attribute of this name.
bool IsStandardAttribute(const std::string& name);

}  // namespace zarvo
