// SPDX-License-Identifier: Apache-2.0
// All that there is to say of a job's options before its first byte is written.
#pragma once

#include "CUPSFilter/Options/PinPolicy.h"
#include "CUPSFilter/Options/Ppd.h"
#include "CUPSFilter/Options/QueuePolicy.h"
#include "Platform/Value.h"

namespace zarvo {

/// Judges a job's PIN and fax, and finds what it asks for in vain, as far as the queue's policy
/// wants that: nothing is said without it. Puts a PIN that the spooler hands over into the ticket.
/// A refused job is told of its other faults too, so that it need not be sent once for each. Where
/// the PPD was not understood, and may have such a policy, jobs with a secret are refused. The
/// PPD's choices must be marked.
Judgement JudgeRequest(const JobRequest& request, const QueuePolicy& policy, const Ppd& ppd,
                       Dictionary* ticket);

}  // namespace zarvo
