// SPDX-License-Identifier: Apache-2.0
// Jobs that name a house ticket (see HouseTicket.h), on queues whose PPD has the option
// HouseTicket.
//
// A job names one by the option, as one of its choices, as Custom.NAME or as the plain name; by a
// finishing template or preset that the PPD says is such a choice; or by the ticket option
// com.zarvo.print.HouseTicket. Its settings go below all that the job says itself and above the
// queue's defaults. Whoever names one that cannot be had gets no print: a thesis without its covers
// is waste.
//
// Under the scheduler only the shared store counts: whose job it is is what its sender says, and
// people's folders are closed to the spooler's user. Started by hand, as a preview does, the user's
// own store comes first.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CUPSFilter/Options/OptionList.h"
#include "CUPSFilter/Options/Ppd.h"
#include "CUPSFilter/Options/PpdTicket.h"
#include "CUPSFilter/Options/StandardOptions.h"
#include "HouseTicket/HouseTicket.h"

namespace zarvo {

/// The PPD's option.
inline constexpr char kHouseTicketOption[] = "HouseTicket";

/// A house ticket that a job names: nothing of both when it names none.
struct NamedHouseTicket {
  std::string name;
  std::string fault;  ///< why it cannot be told which one
};

/// `options` are the job's; `chosen` what its marked choices stand for.
NamedHouseTicket FindHouseTicketName(const OptionList& options, const PpdChoices& chosen,
                                     const StandardJob& standard, const Ppd& ppd);

/// The name that the ticket options of a choice of the PPD's option carry; the letter case of the
/// choice counts. Nothing when there is no such choice, an empty text when it carries none.
std::optional<std::string> HouseTicketOfChoice(const Ppd& ppd, const std::string& choice);

/// The name among ticket options: text, or data for what a PPD cannot hold as text.
std::optional<std::string> HouseTicketIn(const OptionList& options);

/// The choice of the PPD's option that one of its finishing templates or presets stands for; empty
/// when it stands for none.
std::string HouseTicketChoiceOf(const Ppd& ppd, const char* keyword, const std::string& name);

/// Reads the stores and resolves the name. Gives why that cannot be, or an empty text.
std::string LoadHouseTicket(const std::string& name, ResolvedHouseTicket* house);

/// What a queue's PPD (null: none) stands for without any job: the settings of its default choices.
Dictionary QueueDefaults(const char* ppd_file);

}  // namespace zarvo
