// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>
#include <stdlib.h>

#include <cstring>
#include <string>

#include "CUPSFilter/JobTypeComments.h"
#include "CUPSFilter/MediaSize.h"
#include "CUPSFilter/PjlText.h"
#include "CUPSFilter/StringHash.h"
#include "CUPSFilter/common.h"
#include "Source/Mappings.h"

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
  for (const bool value : seen) EXPECT_TRUE(value);
  EXPECT_EQ(GetHashForString("abc", 3), GetHashForString("abcd", 3));
  const char high[] = "\xff\x80";
  EXPECT_EQ(GetHashForString(high, 1), gRandTable[0xff]);
  DiscardHashTables();
  EXPECT_EQ(gRandTable, nullptr);
}

TEST(JobHeader, PostScriptStringsHoldAnyText) {
  EXPECT_EQ(PostScriptText("a(b)\\c\n\x1b\x7f\xC3\xA9"), "a\\(b\\)\\\\c\\012\\033\\177\xC3\xA9");
}

struct Pages {
  float width, length, left, right, bottom, top;
};

Pages Current() { return {PageWidth, PageLength, PageLeft, PageRight, PageBottom, PageTop}; }

/// Sets the page variables as a job with these options would, from the start values.
Pages WithOptions(const char* text) {
  PageWidth = 612, PageLength = 792, PageLeft = 18, PageRight = 594, PageBottom = 36, PageTop = 756;
  Orientation = Duplex = 0;
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(text, 0, &options);
  SetCommonOptions(count, options, 1);
  cupsFreeOptions(count, options);
  return Current();
}

TEST(PageVariables, MarginsAndOrientation) {
  struct Row {
    const char* options;
    Pages expected;
  };
  const Row rows[] = {
      {"", {612, 792, 18, 594, 36, 756}},
      {"orientation-requested=4", {792, 612, 36, 756, 18, 594}},
      {"orientation-requested=5", {792, 612, 36, 756, 18, 594}},
      {"orientation-requested=6", {612, 792, 18, 594, 36, 756}},
      {"landscape=No orientation-requested=4", {612, 792, 18, 594, 36, 756}},
      {"landscape=yes orientation-requested=3", {792, 612, 36, 756, 18, 594}},
      {"page-left=10 page-right=20 page-bottom=30 page-top=40", {612, 792, 10, 592, 30, 752}},
      // Margins are given for the page as the job sees it, whichever way it lies.
      {"landscape page-left=10 page-right=20 page-bottom=30 page-top=40",
       {792, 612, 10, 772, 30, 572}},
      {"orientation-requested=6 page-left=10 page-right=20 page-bottom=30 page-top=40",
       {612, 792, 10, 592, 30, 752}},
      {"orientation-requested=5 page-left=10 page-right=20 page-bottom=30 page-top=40",
       {792, 612, 10, 772, 30, 572}},
      {"page-left=nan page-top=inf", {612, 792, 18, 594, 36, 756}},
  };
  unsetenv("PPD");
  for (const Row& row : rows) {
    const Pages actual = WithOptions(row.options);
    EXPECT_EQ(std::memcmp(&actual, &row.expected, sizeof actual), 0)
        << row.options << ": " << actual.width << " " << actual.length << " " << actual.left << " "
        << actual.right << " " << actual.bottom << " " << actual.top;
  }
}

TEST(PageVariables, DuplexComesFromThePpd) {
  setenv("PPD", ZARVO_SOURCE_DIR "/tests/golden/ppd/test.ppd", 1);
  testing::internal::CaptureStderr();
  WithOptions("Duplex=None");
  EXPECT_EQ(Duplex, 0);
  const Pages a4 = WithOptions("sides=two-sided-short-edge PageSize=A4 landscape");
  EXPECT_EQ(Duplex, 1);
  EXPECT_EQ(a4.width, 842);
  EXPECT_EQ(LanguageLevel, 3);
  testing::internal::GetCapturedStderr();
  unsetenv("PPD");
}

TEST(MediaSize, StockThenOwnThenPage) {
  struct Row {
    const char* page;  // options that make the page
    std::int32_t size;
    std::uint32_t cx, cy;
  };
  const Row rows[] = {
      {"", 4, 21000, 29700},        // a code of the table, whatever the page
      {"", kNotSet, 21600, 27900},  // not set: the page's size
      {"landscape", kNotSet, 27900, 21600},
      {"", 75, 21600, 27900},  // "Custom" never reads the stock's own size
      {"", 99, 20000, 30000},  // an unknown code does
      {"", 59, 10200, 15200},  // the first of two rows of one name
      {"", 70, 35300, 50000},
  };
  for (const Row& row : rows) {
    WithOptions(row.page);
    Dictionary stock;
    if (row.size != kNotSet) stock.emplace("Size", Number(row.size));
    stock.emplace("Width", Number(20000));
    stock.emplace("Length", Number(30000));
    _MEDIADATA media;
    FillMediaSize(&media, stock);
    EXPECT_EQ(media.MediaSize.cx, row.cx) << row.size;
    EXPECT_EQ(media.MediaSize.cy, row.cy) << row.size;
  }
  std::int32_t width = 1;
  std::int32_t height = 1;
  EXPECT_FALSE(GetStockDimensionsForSize(0, &width, &height)) << "the end row is no size";
  EXPECT_EQ(width, 0);
  EXPECT_EQ(std::string(TypeToString(24)) + TypeToString(4) + ColorToString(14),
            "TabsSystem-defaultUnspecified");
}

}  // namespace
}  // namespace zarvo
