// SPDX-License-Identifier: Apache-2.0
// What somebody may have meant by a misspelt name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zarvo {

/// How many letters must be changed, added, left out or swapped with the next one to turn one text
/// into the other. Takes time and memory by the product of the lengths.
std::size_t EditDistance(std::string_view left, std::string_view right);

/// The candidate most like `name`, or an empty text when none is near: case aside, a third of the
/// letters after the name's last full stop may differ, and at least one. Of equally near ones the
/// first. Names of more than 200 bytes are like nothing.
std::string NearestName(std::string_view name, const std::vector<std::string>& candidates);

}  // namespace zarvo
