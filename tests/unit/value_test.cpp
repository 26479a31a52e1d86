// SPDX-License-Identifier: Apache-2.0
#include "Platform/Value.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "Platform/Clock.h"
#include "Source/CFAdditions.h"

namespace zarvo {
namespace {

TEST(Number, ConvertsOnlyWhatFits) {
  const auto narrow = [](Number number) {
    std::int32_t out = 77;  // stays when the number does not fit
    const bool fits = number.Get(&out);
    EXPECT_EQ(fits, out != 77);
    return out;
  };
  EXPECT_EQ(narrow(Number(std::int64_t{-2147483648})), -2147483648);
  EXPECT_EQ(narrow(Number(std::int64_t{2147483648})), 77);
  EXPECT_EQ(narrow(Number(-3.99)), -3);
  EXPECT_EQ(narrow(Number(std::numeric_limits<double>::quiet_NaN())), 77);
  EXPECT_EQ(narrow(Number(9223372036854775808.0)), 77);
  EXPECT_EQ(Number(std::uint32_t{4294967295}).type(), Number::Type::kSInt64);
}

TEST(Value, DeepTreesAreReleasedWithoutRecursion) {
  Value tree;
  for (int level = 0; level < 200000; ++level) {
    if (level % 2 == 0) {
      Array array(1);
      array[0] = std::move(tree);
      tree = Value(std::move(array));
    } else {
      Dictionary dictionary;
      dictionary["x"] = std::move(tree);
      tree = Value(std::move(dictionary));
    }
  }
  tree = Value("gone");
  EXPECT_EQ(*tree.AsString(), "gone");
}

TEST(CFAdditions, KindsAreNotMixedUp) {
  Dictionary ticket = {{"flag", Value::Boolean(true)}, {"text", "5"}};
  int number = 9;
  for (const char* key : {"flag", "text", "none"})
    EXPECT_FALSE(CFDictionaryGetNumber(ticket, key, &number)) << key;
  CFDictionarySetNumber(ticket, "text", &number);
  EXPECT_FALSE(CFDictionarySetCString(ticket, "bad", "\xff"));
  CFDictionaryGetDictionaryOrCreate(ticket, "flag").emplace("inner", "x");
  EXPECT_EQ(Value(ticket), (Dictionary{{"flag", Dictionary{{"inner", "x"}}}, {"text", Number(9)}}));
}

TEST(Clock, CountsTheCalendarFrom1904) {
  const std::pair<std::int64_t, const char*> rows[] = {
      {0, "1904-1-1 0:0 6"},               // a Friday
      {-1, "1903-12-31 23:59 5"},          // counts before the epoch too
      {59 * 86400, "1904-2-29 0:0 2"},     // 1904 is a leap year
      {3880871100, "2026-12-23 11:45 4"},  // beyond 31 bits
      {std::numeric_limits<std::int64_t>::max(), "32767-12-31 23:59 1"},
  };
  for (const auto& [seconds, expected] : rows) {
    const LongDateRec date = LongSecondsToDate(seconds);
    std::ostringstream text;
    text << date.year << '-' << date.month << '-' << date.day << ' ' << date.hour << ':'
         << date.minute << ' ' << date.dayOfWeek;
    EXPECT_EQ(text.str(), expected);
  }
}

}  // namespace
}  // namespace zarvo
