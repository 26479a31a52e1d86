// SPDX-License-Identifier: Apache-2.0
#if defined(__SANITIZE_ADDRESS__)
// The font libraries keep their caches until the process ends; those are no leaks of ours.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\nleak:libcairo\nleak:libpango\nleak:libglib\n";
}
extern "C" const char* __lsan_default_options() { return "print_suppressions=0"; }
#endif
