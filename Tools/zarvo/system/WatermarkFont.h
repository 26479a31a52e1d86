// SPDX-License-Identifier: Apache-2.0
// Fonts for watermarks, as the printer takes them.
#pragma once

#include <string>
#include <string_view>

#include "Platform/Failure.h"
#include "Platform/Value.h"

namespace zarvo::tool {

/// A font program that can stand in a PostScript job: a text font file as it is, a binary Type 1
/// file (PFB) unpacked. Fails for anything else.
Failure PrinterFont(std::string_view file, Data* font);

/// The name that the font program gives itself, or an empty text.
std::string FontName(const Data& font);

}  // namespace zarvo::tool
