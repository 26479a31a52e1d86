// SPDX-License-Identifier: Apache-2.0
// The last step of a booklet job.
#pragma once

#include "CUPSFilter/JobOutput.h"
#include "CUPSFilter/JobSettings.h"
#include "CUPSFilter/SpoolFile.h"
#include "Platform/Value.h"

namespace zarvo {

/// Imposes the spooled job onto the output as the ticket asks for. A job that cannot be imposed is
/// told in one log line, with the stage that failed and what to do; failed writes show on the
/// output only. Returns whether the job was imposed.
bool ImposeJob(const Dictionary& ticket, const JobSettings& settings, const SpoolFile& spool,
               JobOutput& output);

}  // namespace zarvo
