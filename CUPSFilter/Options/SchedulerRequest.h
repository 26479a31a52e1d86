// SPDX-License-Identifier: Apache-2.0
// One question to the scheduler: what its job asks for. The options that a filter is given leave
// out collections and most attributes that the scheduler does not know.
#pragma once

#include <cups/ipp.h>

#include <memory>

#include "Platform/Failure.h"

namespace zarvo {

struct IppDeleter {
  void operator()(ipp_t* message) const { ippDelete(message); }
};
using IppMessage = std::unique_ptr<ipp_t, IppDeleter>;

/// Whether a scheduler started this process.
bool UnderScheduler();

/// Asks the scheduler that started this process for all attributes of a job, over its local socket
/// or its loopback port, for `user`, whose job it is. One try of at most kRequestMilliseconds in
/// all, however slowly the answer drips in, or of the seconds that kRequestVariable says (1 to
/// 3600): a scheduler that writes each job to its disk at once may be busy for longer.
constexpr int kRequestMilliseconds = 300;
constexpr const char* kRequestVariable = "ZARVO_SCHEDULER_SECONDS";
Failure RequestJobAttributes(const char* job_id, const char* user, IppMessage* attributes);

}  // namespace zarvo
