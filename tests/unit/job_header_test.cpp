// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "CUPSFilter/CopyPass/StringHash.h"
#include "CUPSFilter/Header/JobTypeComments.h"
#include "CUPSFilter/Options/common.h"

namespace zarvo {
namespace {

class FixedClock final : public Clock {
 public:
  explicit FixedClock(std::int64_t seconds) : seconds_(seconds) {}
  std::int64_t LocalSeconds() const override { return seconds_; }

 private:
  std::int64_t seconds_;
};

constexpr std::int64_t Seconds(int day_of_1904, int hour, int minute) {
  return (day_of_1904 - 1) * kSecondsPerDay + hour * 3600 + minute * 60;
}

TEST(JobHeader, DelayDateFollowsTheDialogsCalendar) {
  constexpr std::int64_t new_years_eve_2026 = 3881605500;  // 31 December 2026, 23:45
  struct Row {
    std::int64_t now;
    long hour, minute, pm;
    const char* expected;
  };
  const Row rows[] = {
      {new_years_eve_2026, 11, 30, 1, "20270101113000"},
      {new_years_eve_2026, 11, 45, 1, "20261231114500"},  // this very minute is still today
      {Seconds(30, 10, 0), 9, 0, 0, "19040131090000"},    // 30 January
      {Seconds(31, 10, 0), 9, 0, 0, "19040201090000"},
      {Seconds(121, 10, 0), 9, 0, 0, "19040501090000"},  // 30 April
      {Seconds(59, 10, 0), 9, 0, 0, "19040301090000"},   // 28 February of a leap year
      {Seconds(60, 10, 0), 9, 0, 0, "19040230090000"},   // 29 February
      {Seconds(5, 10, 0), 12, 30, 0, "19040106123000"},  // half past midnight
      {Seconds(5, 10, 0), 12, 30, 1, "19040105123000"},  // 12 PM counts as 24
  };
  for (const Row& row : rows) {
    char text[32];
    getDelayDateAndTime(row.hour, row.minute, row.pm, text, FixedClock(row.now));
    EXPECT_STREQ(text, row.expected);
  }
}

TEST(JobHeader, HashTellsLinesApartByOneRunOverAPermutation) {
  ASSERT_EQ(InitializeHashTables(), 1);
  bool seen[256] = {};
  for (int i = 0; i < 256; ++i) seen[gRandTable[i]] = true;
  EXPECT_EQ(std::count(seen, seen + 256, true), 256);
  EXPECT_EQ(GetHashForString("abc", 3), GetHashForString("abcd", 3));
  const char high[] = "\xff\x80";
  EXPECT_EQ(GetHashForString(high, 1), gRandTable[0xff]);
  DiscardHashTables();
  EXPECT_EQ(gRandTable, nullptr);
}

/// The page variables of a job with these options: width, length, left, right, bottom, top, whether
/// it is two-sided, and the language level.
std::string PageVariables(const char* text) {
  PageWidth = 612, PageLength = 792, PageLeft = 18, PageRight = 594, PageBottom = 36, PageTop = 756;
  Orientation = Duplex = 0;
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(text, 0, &options);
  SetCommonOptions(count, options, 1);
  cupsFreeOptions(count, options);
  std::ostringstream all;
  all << PageWidth << ' ' << PageLength << ' ' << PageLeft << ' ' << PageRight << ' ' << PageBottom
      << ' ' << PageTop << ' ' << Duplex << ' ' << LanguageLevel;
  return all.str();
}

TEST(JobHeader, PageVariablesFollowOptionsAndPpd) {
  const std::pair<const char*, const char*> rows[] = {
      {"", "612 792 18 594 36 756 0 1"},
      {"orientation-requested=4", "792 612 36 756 18 594 0 1"},
      {"orientation-requested=5", "792 612 36 756 18 594 0 1"},
      {"orientation-requested=6", "612 792 18 594 36 756 0 1"},
      {"landscape=No orientation-requested=4", "612 792 18 594 36 756 0 1"},
      {"landscape=yes orientation-requested=3", "792 612 36 756 18 594 0 1"},
      {"page-left=nan page-top=inf", "612 792 18 594 36 756 0 1"},
      {"page-left=10 page-right=20 page-bottom=30 page-top=40", "612 792 10 592 30 752 0 1"},
      // Margins are given for the page as the job sees it, whichever way it lies.
      {"page-left=10 page-right=20 page-bottom=30 page-top=40 landscape",
       "792 612 10 772 30 572 0 1"},
      {"page-left=10 page-right=20 page-bottom=30 page-top=40 orientation-requested=6",
       "612 792 10 592 30 752 0 1"},
      {"page-left=10 page-right=20 page-bottom=30 page-top=40 orientation-requested=5",
       "792 612 10 772 30 572 0 1"},
  };
  unsetenv("PPD");
  for (const auto& [options, expected] : rows)
    EXPECT_EQ(PageVariables(options), expected) << options;
  setenv("PPD", ZARVO_SOURCE_DIR "/tests/golden/ppd/test.ppd", 1);
  testing::internal::CaptureStderr();
  EXPECT_EQ(PageVariables("Duplex=None"), "612 792 18 594 36 756 0 3");
  EXPECT_EQ(PageVariables("sides=two-sided-short-edge PageSize=A4 landscape"),
            "842 595 36 806 18 577 1 3");
  testing::internal::GetCapturedStderr();
  unsetenv("PPD");
}

}  // namespace
}  // namespace zarvo
