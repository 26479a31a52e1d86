// SPDX-License-Identifier: Apache-2.0
// How functions tell that they could not do what they were asked for. There are two ways:
//
// - What fails for the system's reasons gives nothing (an empty optional, a null pointer, false),
//   and errno holds the system's reason.
// - What has reasons of its own gives a Failure; what it makes goes into its last parameter, which
//   it leaves alone when it fails.
#pragma once

#include <string>

namespace zarvo {

/// Why something could not be done, in one line for people: the cause and, where there is one, the
/// remedy behind a semicolon. Empty when it was done.
using Failure = std::string;

}  // namespace zarvo
