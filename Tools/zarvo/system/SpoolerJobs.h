// SPDX-License-Identifier: Apache-2.0
// What the spooler keeps of a job, for whoever may ask about it.
#pragma once

#include <string>
#include <vector>

#include "Platform/Failure.h"

namespace zarvo::tool {

/// The spooler's states of a job.
enum class JobState {
  kWaiting = 3,
  kHeld = 4,
  kPrinting = 5,
  kStopped = 6,
  kCanceled = 7,
  kAborted = 8,
  kDone = 9,
};

struct SpoolerJob {
  int number = 0;
  JobState state = JobState::kWaiting;
  std::string queue;
  std::string title;    ///< of other people's jobs the spooler does not tell it
  std::string message;  ///< the first ERROR or else the last WARNING that a filter logged
};

/// Asks for the job of that number, or, for 0, for the newest one of this user. It fails when
/// the spooler does not answer or knows no such job.
Failure FindSpoolerJob(int number, SpoolerJob* job);

/// The number in a job's name as lp tells it ("office-12") or in plain digits; 0 for other texts.
int JobNumber(const std::string& name);

/// The single notices of a job's message, which may hold several; not what converters say of a
/// file.
std::vector<std::string> NoticesOf(const std::string& message);

}  // namespace zarvo::tool
