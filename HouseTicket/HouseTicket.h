// SPDX-License-Identifier: Apache-2.0
// House tickets: job tickets that are kept under a name, and that jobs name instead of saying all
// their settings.
//
// Design. A house ticket is a record of settings (a job ticket as the filter decodes it), of the
// ticket that it builds on, of titles for people, and of what a job may still change. Records are
// kept in stores (HouseTicketStore.h), each a property list: a shared one, which jobs are printed
// by, and one of each user's own. Whoever needs the settings resolves a name: the record and all
// that it builds on become one ticket (ResolveHouseTicket), which then goes between the queue's
// defaults and what the job says itself (ApplyHouseTicket).
//
//   HouseTicket.h       the record, its stored form, merging; no files
//   HouseTicketStore.h  the files: safe reading, changing as one transaction, names in several
//   stores
//
// A job gets what it names or is not printed. So a record that is damaged, that builds on itself or
// on what is not there, or that keeps a PIN where others may read it is an error, never a smaller
// ticket. Stores come from whoever may write them: nothing here recurses by their depth beyond
// kMaxHouseTicketDepth, and nothing takes time out of proportion to their size.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/Value.h"

namespace zarvo {

/// In bytes of UTF-8: what a custom choice of a PPD may have.
constexpr std::size_t kLongestHouseTicketName = 127;
/// Tickets nest this deep at most; real ones need four levels.
constexpr int kMaxHouseTicketDepth = 50;

/// As many may build on one another; real ones are two or three.
constexpr std::size_t kMostHouseTicketBases = 100;

struct HouseTicket {
  Dictionary ticket;    ///< the settings, under the keys that a job's ticket has
  std::string basedOn;  ///< name of the ticket whose settings these go over; empty for none
  /// What people see, by language ("en", "pt_BR"); a name without titles is shown itself.
  std::map<std::string, std::string> titles;
  /// The settings that a job may still change, as paths (see SettingPath); nothing: all of them.
  std::optional<std::vector<std::string>> mayOverride;
};

/// What is wrong with a name: 1 to kLongestHouseTicketName bytes of UTF-8 in Normalisation Form C
/// without controls, and neither "None" nor beginning with "Custom." in any letter case, which mean
/// something else where a name is given. Empty when nothing is.
std::string HouseTicketNameFault(std::string_view name);

/// A setting's path, keys joined by "/", whose first key gets the prefix "com.zarvo.print." when it
/// has no "com.": "JobType/JobType" for "com.zarvo.print.JobType/JobType".
std::string SettingPath(std::string_view path);

/// Whether the settings have a PIN, not empty, under any of the names that carry one.
bool HoldsPin(const Dictionary& ticket);

/// The stored form: a dictionary of "Ticket" and, where there is something to say, "BasedOn",
/// "Titles" and "MayOverride".
Dictionary HouseTicketToDictionary(const HouseTicket& house);
/// And back. Fails when the entry is no house ticket.
Failure HouseTicketFromDictionary(const Dictionary& entry, HouseTicket* house);

/// Puts `over` on `under`: groups are merged, everything else is replaced, lists as a whole. Goes
/// no deeper than the shallower of the two.
void MergeSettings(Dictionary over, Dictionary* under);

/// A house ticket with everything that it builds on.
struct ResolvedHouseTicket {
  std::string name;
  Dictionary ticket;
  /// The first that the ticket or one below it names.
  std::optional<std::vector<std::string>> mayOverride;
  std::vector<std::string> chain;  ///< the names, from `name` to the last base
};

/// Finds a record by its name.
using FindHouseTicket = std::function<Failure(const std::string& name, HouseTicket* house)>;

/// Fails when the ticket cannot be had; the failure has the name that is at fault.
Failure ResolveHouseTicket(const std::string& name, const FindHouseTicket& find,
                           ResolvedHouseTicket* resolved);

/// What a job says, by its rank.
struct JobSays {
  Dictionary defaults;  ///< the queue's, without the job
  Dictionary derived;   ///< these, and what the spooler made of the job
  Dictionary chosen;    ///< attributes of the job and choices that it names
  Dictionary own;       ///< ticket options of the job
};

/// The job's ticket: its own settings, then its choices, then the house ticket, then the rest. A
/// choice that is the queue's default anyway gives way to the house ticket, because dialogs send
/// all their settings with every job. The paths of settings that the house ticket does not let go
/// are appended to `kept`.
Dictionary ApplyHouseTicket(const ResolvedHouseTicket& house, JobSays job,
                            std::vector<std::string>* kept);

}  // namespace zarvo
