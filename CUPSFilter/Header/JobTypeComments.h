// SPDX-License-Identifier: Apache-2.0
// The PJL lines that say what kind of job follows. Each writer writes whole lines and reports
// nothing: a missing ticket key means that its line is not written.
#pragma once

#include <cstddef>
#include <cstdio>

#include "Platform/Clock.h"
#include "Platform/Value.h"
#include "Source/TicketNames.h"

namespace zarvo {

/// The printer's limit of a password, in bytes; a longer one is cut.
constexpr std::size_t kLongestPassword = 19;

/// Writes the lines of the ticket's job type and returns its number, also when no type has that
/// number (then the line of a normal job is written). Without a job-type dictionary
/// nothing is written and the result is kJobTypeNormal.
int WriteJobType(FILE* output, const Dictionary& ticket);

// These take the job-type dictionary, the one under key::kJobType.
void WriteJobTypeNormal(FILE* output, const Dictionary& job_type);
void WriteJobTypeSecure(FILE* output, const Dictionary& job_type);
void WriteJobTypeSave(FILE* output, const Dictionary& job_type);
void WriteJobTypeDelayed(FILE* output, const Dictionary& job_type);
void WriteJobTypeSampleSet(FILE* output, const Dictionary& job_type);

/// Scrambles a zero-terminated password in place as the printer expects it: each of the first ten
/// bytes is combined with a fixed key; later bytes stay as they are. A byte equal to its key byte
/// becomes zero.
void p_encrypt(char* pin);

// The dialog's interface: nothing of the filter or its tools calls what follows.

/// Writes into `dateTimeString` (room for 32 bytes) the date of the next time the clock shows
/// `hour`:`minute` (12-hour clock), followed by hour and minute as given and "00". The calendar is
/// the print dialog's: 28 February is always followed by 1 March.
void getDelayDateAndTime(long hour, long minute, long isPM, char* dateTimeString,
                         const Clock& clock = SystemClock());

}  // namespace zarvo
