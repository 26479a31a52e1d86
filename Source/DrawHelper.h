// SPDX-License-Identifier: Apache-2.0
// The program that draws: everything that decodes images or lays text out runs in a process of its
// own, so that a hostile image can neither crash the filter nor fill its memory.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/Process.h"

namespace zarvo {

/// The helper's path: beside the running program when it is there (a build tree), else where it is
/// installed. Neither the search path nor the environment has a say, because jobs must not choose
/// what runs.
std::string DrawHelperPath();

/// Starts the helper with a job's name and arguments, and `input_fd` as its standard input (-1 for
/// none), under the limits that every drawing job has: 60 seconds of processor time, 2 minutes in
/// all (the environment may name another time) without what the reader takes for itself, 1.5 GiB of
/// memory (an image of 100 megapixels needs half of that). Nothing, with errno set, when it cannot
/// be started.
std::optional<Process> StartDrawHelper(std::vector<std::string> job, int input_fd = -1);

}  // namespace zarvo
