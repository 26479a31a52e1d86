// SPDX-License-Identifier: Apache-2.0
// The least a filter can do: parse its options and end. The start-up of ours is held against it.
#include <cups/cups.h>

int main(int argc, char** argv) {
  cups_option_t* options = nullptr;
  const int count = argc > 5 ? cupsParseOptions(argv[5], 0, &options) : 0;
  cupsFreeOptions(count, options);
  return 0;
}
