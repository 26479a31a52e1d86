// SPDX-License-Identifier: Apache-2.0
#if defined(__SANITIZE_ADDRESS__)
// Looking for leaks takes what a confined process may not do: start another and look into its own.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }
#endif
