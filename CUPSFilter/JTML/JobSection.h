// SPDX-License-Identifier: Apache-2.0
// What the job is called, what becomes of it, who pays for it, and which pages are printed.
#pragma once

#include "Platform/Value.h"

namespace zarvo {

/// The operation attributes; nothing unless both the job name and the user name are known.
void WriteJTMLJobNameAndUser(const Dictionary& ticket);
void WriteJTMLJobNotes(const Dictionary& ticket);
/// Always written: a ticket without a job type is a normal print.
void WriteJTMLJobType(const Dictionary& ticket);
void WriteJTMLAccounting(const Dictionary& ticket);
void WriteJTMLPagesToPrint(const Dictionary& ticket);

}  // namespace zarvo
