// SPDX-License-Identifier: Apache-2.0
// Options of a job that a queue does not have, told before anything is printed.
#pragma once

#include <string>
#include <vector>

namespace zarvo::tool {

/// What the options ask of a queue with that PPD in vain, in the filter's words. Values that may be
/// secret are not in the texts.
std::vector<std::string> OptionFaults(const std::string& options, const std::string& ppd_file);

}  // namespace zarvo::tool
