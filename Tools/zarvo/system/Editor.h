// SPDX-License-Identifier: Apache-2.0
// The user's own editor.
#pragma once

#include <string>

#include "Platform/Failure.h"

namespace zarvo::tool {

/// Has the user edit a file: with the command line in VISUAL, else that in EDITOR, else "editor".
/// The file's name, whatever is in it, is one more argument of that. Fails when the editor cannot
/// be started or ends with an error.
Failure EditFile(const std::string& file);

/// Asks at the terminal whether to go back into the editor; no where nobody can be asked.
bool WantsToEditAgain();

}  // namespace zarvo::tool
