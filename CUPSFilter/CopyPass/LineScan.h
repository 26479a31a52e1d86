// SPDX-License-Identifier: Apache-2.0
// Finding the few places of a job where a landmark can be.
#pragma once

namespace zarvo {

/// The first position in [from, end) where a landmark can begin: "%%", "@P", "en" or "ep" right
/// after a line end, or "%!" anywhere. `end` if there is none. The bytes from[-1] and end[0] to
/// end[kScanSlack - 1] must be readable; from[-1] decides whether `from` begins a line.
const char* NextCandidate(const char* from, const char* end);

/// The same for jobs whose documents are told apart: "%%", an escape with "%" or a Ctrl-D, each
/// right after a line end.
const char* NextStructure(const char* from, const char* end);

/// The first place in [from, end) where the name of an operator that turns a page can be: "cm" and
/// "Tm", "otate" and "ncat" of longer names, "sl". May be wrong, but misses none. Reads nothing
/// outside.
const char* NextTurningName(const char* from, const char* end);

/// How many readable bytes the first two need after `end`.
constexpr int kScanSlack = 64;

}  // namespace zarvo
