// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/StringHash.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace zarvo {
namespace {
constexpr int kTableSize = 256;
}

unsigned char* gRandTable = nullptr;

unsigned char RandomRange(unsigned char lo, unsigned char hi) {
  const long r = random() & 255;
  return static_cast<unsigned char>(((r * (hi - lo)) >> 8) + lo);
}

int InitializeHashTables() {
  if (gRandTable == nullptr) gRandTable = new (std::nothrow) unsigned char[kTableSize];
  if (gRandTable == nullptr) return 0;
  for (int i = 0; i < kTableSize; ++i) gRandTable[i] = static_cast<unsigned char>(i);
  for (int x = 0; x < kTableSize; ++x) {
    std::swap(gRandTable[x], gRandTable[RandomRange(static_cast<unsigned char>(x), 255)]);
  }
  return 1;
}

void DiscardHashTables() {
  delete[] gRandTable;
  gRandTable = nullptr;
}

unsigned char GetHashForString(const char* s, int length) {
  unsigned char hash = 0;
  for (int i = 0; i < length; ++i) hash = gRandTable[static_cast<unsigned char>(s[i]) ^ hash];
  return hash;
}

}  // namespace zarvo
