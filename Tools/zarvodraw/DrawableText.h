// SPDX-License-Identifier: Apache-2.0
// Text that the drawing libraries take.
#pragma once

#include <string>
#include <string_view>

namespace zarvo {

/// The text with U+FFFD for everything that the libraries refuse, and with it the whole drawing:
/// bytes that are not UTF-8, and Unicode's noncharacters (U+FDD0 to U+FDEF and the last two code
/// points of each plane).
std::string DrawableText(std::string_view text);

}  // namespace zarvo
