// SPDX-License-Identifier: Apache-2.0
// What a job asks for that nobody will do: misspelt options and choices, paper that the queue does
// not have, settings that lack another one.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "CUPSFilter/Options/PinPolicy.h"
#include "CUPSFilter/Options/Ppd.h"
#include "Platform/Value.h"

namespace zarvo {

/// Options of the spooler and its converters that people type.
std::span<const char* const> TypedOptionNames();

/// One text for each, with the option's name, what was done instead, and what may have been meant.
/// Values are shown only of options that take no text of people's own. The PPD's choices must be
/// marked.
std::vector<std::string> FindVainOptions(const JobRequest& request, const Ppd& ppd,
                                         const Dictionary& ticket);

}  // namespace zarvo
