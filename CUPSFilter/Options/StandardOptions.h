// SPDX-License-Identifier: Apache-2.0
// IPP's standard job attributes as ticket options of a job, for queues whose PPD says
//
//   *ZRVStandardTicket: True
//
// What the job itself says in ticket options outranks everything; then come the PPD's options that
// the job names, the standard attributes, and last what the PPD has marked otherwise, be it by
// default or because the spooler derived it from the attributes. Of the attributes, those that the
// scheduler tells count first, then those among the filter's options.
#pragma once

#include <string>
#include <vector>

#include "CUPSFilter/Options/Ppd.h"
#include "CUPSFilter/Options/PpdTicket.h"
#include "StandardTicket/StandardTicket.h"

namespace zarvo {

struct StandardJob {
  StandardTicket ticket;
  OptionNames ownNames;  ///< of all that the job itself asked for, as far as is known
  /// Choices of the PPD's option HouseTicket that templates and presets of the job stand for; they
  /// are no finishing of their own.
  std::vector<std::string> houseChoices;
  /// What the scheduler keeps of the job and does not put into a filter's options: collections,
  /// which is what its clients make of a custom choice in braces (JobPIN={Value=0391}), octets,
  /// URIs.
  OptionList leftOut;
};

/// Reads the job's standard attributes. `options` are the filter's. Asks the scheduler when there
/// is one; without an answer that is told among what could not be honoured. With one, the choices
/// that the job names itself are marked in the PPD, in place of those that the spooler derived.
StandardJob ReadStandardJob(const char* job_id, const char* user, const OptionList& options,
                            Ppd* ppd);

/// Of the same only what is left out of `options`, for queues that do not look at the attributes
/// but must not lose a PIN.
StandardJob ReadLeftOutOptions(const char* job_id, const char* user, const OptionList& options,
                               Ppd* ppd);

/// The attributes' settings as options, and in `not_honoured` those that the job's own choices
/// outrank with another value. A text that a choice leaves empty (as "secure" does with the PIN)
/// gives way to that of an attribute: it is taken out of `chosen`. Call once, before telling.
OptionList StandardOptions(StandardTicket* ticket, OptionList* chosen, const OptionList& own);

}  // namespace zarvo
