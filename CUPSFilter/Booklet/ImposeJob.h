// SPDX-License-Identifier: Apache-2.0
// The last step of a booklet job.
#pragma once

#include <optional>
#include <vector>

#include "CUPSFilter/CopyPass/JobFrame.h"
#include "CUPSFilter/JobNotices.h"
#include "CUPSFilter/JobOutput.h"
#include "CUPSFilter/JobSettings.h"
#include "CUPSFilter/SpoolFile.h"
#include "Platform/Value.h"

namespace zarvo {

/// Imposes the spooled job onto the output as the ticket asks for. A job that cannot be imposed is
/// told in one log line, with the stage that failed and what to do; failed writes show on the
/// output only. Returns the number of sheets, or nothing when the job was not
/// imposed.
std::optional<long> ImposeJob(const Dictionary& ticket, const JobSettings& settings,
                              const SpoolFile& spool, JobOutput& output);

/// The same for a job of any program. A single document whose page comments can be relied on is
/// imposed as it is; any other is first written anew, which one log line tells. Each document of
/// the job becomes a booklet of its own. When that fails nothing is written, one log line tells
/// why, and nothing is returned; else the number of sheets, which is 0 for a job without pages.
/// `notices` is told what the job does not get; null for nobody.
std::optional<long> ImposeDocuments(const Dictionary& ticket, const JobSettings& settings,
                                    const SpoolFile& spool,
                                    const std::vector<DocumentRange>& documents, JobOutput& output,
                                    JobNotices* notices);

}  // namespace zarvo
