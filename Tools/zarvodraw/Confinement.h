// SPDX-License-Identifier: Apache-2.0
// How the helper locks itself in before it looks at anything that a job or an image says.
//
// Everything it needs from outside is opened or loaded first: the code of the image's decoder, the
// fonts' configuration. Then come, from the outer to the inner:
//   - the spooler's user, when root started it; a clean environment is the starter's business
//   - no core dump, no look into this process by others, no file longer than nothing
//   - no new privileges by any program
//   - Landlock, where the kernel has it: the fonts and their caches to read, nothing else
//   - no further process (drawing a page needs threads)
//   - a list of the system calls that are left (seccomp); all others are as if they did not exist.
//     Decoding an image needs no call that opens a path; drawing a page needs reading ones.
// Layers that the kernel lacks are left out: the job still prints, and "zarvo doctor" tells.
#pragma once

namespace zarvo {

enum class Task {
  kImage,  ///< decodes what its descriptors give it
  kPage,   ///< lays text out, with the machine's fonts
};

/// What Confine could do on this machine.
struct Confinement {
  bool landlock = false;
  bool seccomp = false;
};

/// Leaves root, when root started this. Ends the process, with one log line, when it cannot.
void LeaveRoot();

/// Locks this process in for good. For kPage the fonts are loaded first.
Confinement Confine(Task task);

}  // namespace zarvo
