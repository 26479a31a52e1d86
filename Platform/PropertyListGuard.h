// SPDX-License-Identifier: Apache-2.0
// A look at a property list before it is parsed. The library builds and releases its trees by
// recursion and unfolds shared parts of binary lists, so depth and size must be known beforehand.
#pragma once

#include <string_view>

#include "Platform/Failure.h"

namespace zarvo {

// Empty when the list keeps the limits of PropertyList.h, else the reason why it is not parsed.
// These are no validity checks: the parser still has the last word.
Failure RefuseXmlList(std::string_view bytes);
Failure RefuseBinaryList(std::string_view bytes);

}  // namespace zarvo
