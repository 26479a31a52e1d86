// SPDX-License-Identifier: Apache-2.0
// Tickets made from option text, and comparison of whole outputs with files in tests/unit/expected.
// With the environment variable ZARVO_UPDATE set, a test writes the files instead; read the
// difference before committing it.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "CUPSFilter/Options/ParseOptions.h"

namespace zarvo {

/// The ticket that an option text gives, the way the filter decodes it.
inline Dictionary TicketOf(const std::string& text) {
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &options);
  const std::vector<cups_option_t> ordered = NaturalOrder(count, options);
  Dictionary ticket = ParseCUPSOptionsToDictionary(ordered.data(), count);
  cupsFreeOptions(count, options);
  return ticket;
}

inline std::string ExpectedFile(const std::string& name) {
  return std::string(ZARVO_SOURCE_DIR "/tests/unit/expected/") + name;
}

/// What `write` writes to the stream that it is given.
inline std::string CollectOutput(const std::function<void(std::FILE*)>& write) {
  char* data = nullptr;
  std::size_t size = 0;
  std::FILE* stream = open_memstream(&data, &size);
  write(stream);
  std::fclose(stream);
  std::string text(data, size);
  std::free(data);
  return text;
}

inline void CompareWithExpected(const std::string& name, const std::string& actual) {
  if (std::getenv("ZARVO_UPDATE") != nullptr) {
    std::ofstream(ExpectedFile(name)) << actual;
    return;
  }
  std::ifstream file(ExpectedFile(name));
  std::ostringstream expected;
  expected << file.rdbuf();
  std::istringstream want(expected.str()), have(actual);
  std::string left, right;
  for (int number = 1; want && have; ++number) {
    std::getline(want, left);
    std::getline(have, right);
    ASSERT_EQ(left, right) << name << ':' << number;
  }
  EXPECT_EQ(expected.str(), actual);
}

}  // namespace zarvo
