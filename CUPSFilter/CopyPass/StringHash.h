// SPDX-License-Identifier: Apache-2.0
// A one-byte Pearson hash, the pre-filter for the job-type feature lines.
#pragma once

namespace zarvo {

/// The permutation of 0 to 255 that the hash runs over, or null while there is none.
extern unsigned char* gRandTable;

/// Makes the permutation. Returns 1, or 0 when there is no memory for it.
int InitializeHashTables();
/// Frees the permutation, if there is one.
void DiscardHashTables();

/// A pseudo-random number in lo to hi - 1 (for lo < hi), from the unseeded `random()`.
unsigned char RandomRange(unsigned char lo, unsigned char hi);

/// The hash of the first `length` bytes, read as unsigned. Needs the permutation.
unsigned char GetHashForString(const char* s, int length);

}  // namespace zarvo
