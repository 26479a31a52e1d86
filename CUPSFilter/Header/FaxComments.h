// SPDX-License-Identifier: Apache-2.0
// The PJL comments that turn a print job into a fax: settings and destinations.
#pragma once

#include <cstddef>
#include <cstdio>

#include "Platform/Clock.h"
#include "Platform/Value.h"

namespace zarvo {

// Fixed by the printer: longer values make it refuse the whole header, so they are cut.
constexpr std::size_t kMaxCreditCardBytes = 16;
constexpr std::size_t kMaxDialingPrefixBytes = 4;

/// Writes the fax settings and one line for each destination of the whole ticket. Writes nothing
/// when `output` is null or the ticket lacks the fax options or the recipient list. A send time
/// that has passed moves on by whole days until it is not earlier than `clock`.
void WriteJobTypeFax(FILE* output, const Dictionary& ticket, const Clock& clock = SystemClock());

}  // namespace zarvo
