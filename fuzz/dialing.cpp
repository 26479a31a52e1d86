// SPDX-License-Identifier: Apache-2.0
// Fax numbers: nothing but what the printer can dial comes out, in the order of the number.
#include "Source/Fax.h"
#include "fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  const std::string_view number = AsText(data, size);
  const std::string dialed = CopyDialingStringFromFaxNumber(number);
  Require(dialed.find_first_not_of(kFaxDialingCharacters) == dialed.npos);
  std::size_t taken = 0;
  for (const char c : number) {
    if (taken < dialed.size() && dialed[taken] == c) ++taken;
  }
  Require(taken == dialed.size());
  return 0;
}
