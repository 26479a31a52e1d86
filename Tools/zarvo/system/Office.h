// SPDX-License-Identifier: Apache-2.0
// Documents of office programs, which the spooler knows nothing of.
#pragma once

#include <string>

#include "Platform/Failure.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {

/// What to tell somebody who has no office program here.
inline constexpr const char* kOfficeRemedy =
    "Install the package libreoffice-writer-nogui (for sheets libreoffice-calc-nogui, for slides "
    "libreoffice-impress-nogui), or save it as PDF";

/// The office program that converts, or an empty text.
std::string OfficeProgram();

/// Converts an office document to the PDF file `pdf` by LibreOffice, which works in a folder of its
/// own, with the limits that every converter has.
Failure ConvertOfficeDocument(const std::string& document, const ScratchFolder& scratch,
                              std::string* pdf);

}  // namespace zarvo::tool
