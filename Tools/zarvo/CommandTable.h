// SPDX-License-Identifier: Apache-2.0
// The table of subcommands, from which usage, manual pages and completion are made.
#pragma once

#include <span>

#include "Tools/zarvo/Command.h"

namespace zarvo::tool {

std::span<const Command> Commands();

/// Declares the whole command line; parsing it puts what is to be run into `action`.
void BuildCommandLine(CLI::App& app, Action* action);

}  // namespace zarvo::tool
