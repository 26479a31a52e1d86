// SPDX-License-Identifier: Apache-2.0
// Sizes that nobody means well by: time and memory stay in proportion to them.
#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <vector>

#include "CUPSFilter/Booklet/q7bbook32.h"
#include "CUPSFilter/Header/FaxComments.h"
#include "CUPSFilter/Header/JobTypeComments.h"
#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/Options/ParseOptions.h"
#include "CUPSFilter/Watermark/PageTurn.h"
#include "Platform/Process.h"
#include "Source/CFAdditions.h"
#include "Source/FaxCover.h"
#include "tests/copy_reference.h"

namespace zarvo {
namespace {

using Options = std::vector<std::pair<std::string, std::string>>;

Dictionary Decode(const Options& options) {
  std::vector<cups_option_t> list;
  for (const auto& [name, value] : options)
    list.push_back({const_cast<char*>(name.c_str()), const_cast<char*>(value.c_str())});
  const auto ordered = NaturalOrder(static_cast<int>(list.size()), list.data());
  return ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
}

/// Fails when a case takes time as its square would: seconds are plenty for any of them.
class Limits : public testing::Test {
 protected:
  void TearDown() override { EXPECT_LT((std::clock() - start_) / CLOCKS_PER_SEC, 20); }

 private:
  std::clock_t start_ = std::clock();  // of this process, however busy the machine is
};

TEST_F(Limits, ThePartOfAPageThatIsLookedAtMayEndInAnEscape) {
  for (const char* end : {"\\", "\\1", "\\12", "\\123"})
    EXPECT_EQ(LookAtPage(std::string("90 rotate (x) show (") + end).turn, 1) << end;
}

TEST_F(Limits, OptionTextOf128KiB) {
  const auto repeat = [](const std::string& text) {
    std::string all;
    while (all.size() + text.size() < 128 * 1024) all += text;
    return all;
  };
  std::string descending;
  for (int i = 19999; descending.size() < 128 * 1024 && i > 0; --i)
    descending += "k" + std::to_string(i) + " ";
  for (const std::string& text :
       {descending, repeat("a "), repeat(".."), "K" + repeat("..d_x") + "=1", repeat("'"),
        repeat("\\"), repeat("{a="), "K..D=" + repeat("0f"), "K=" + repeat("e\xcc\x81")}) {
    cups_option_t* options = nullptr;
    const int count = cupsParseOptions(text.c_str(), 0, &options);
    const auto ordered = NaturalOrder(count, options);
    ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
    cupsFreeOptions(count, options);
  }
}

TEST_F(Limits, ArrayOf100000Entries) {
  Options options;
  for (int i = 0; i < 100000; ++i) options.emplace_back("K..a_" + std::to_string(i) + "..n", "7");
  const Dictionary ticket = Decode(options);
  EXPECT_EQ(DictionaryGetArray(ticket, "K")->size(), 100000u);
}

TEST_F(Limits, NestingOf10000LevelsManyTimes) {
  std::string deep = "K";
  for (int i = 0; i < 10000; ++i) deep += i % 2 == 0 ? "..d_x" : "..a_0";
  Options options;
  for (int i = 0; i < 50; ++i) options.emplace_back(deep + "..d_" + std::to_string(i), "leaf");
  Dictionary ticket = Decode(options);
  ASSERT_TRUE(DictionaryContains(ticket, "K"));
  for (const char* key : {"com.zarvo.print.JobType", "com.zarvo.print.JobLevelStock"}) {
    // The writers look at their own keys only, however deep the rest is.
    ticket.insert_or_assign(key, std::move(ticket.at("K")));
    Stream out;
    WriteJobType(out.file, ticket);
    WriteJTML(out.file, ticket);
    ticket["K"] = std::move(ticket.at(key));
  }
}

TEST_F(Limits, ATreeOfAMillionLevelsIsReleased) {
  Value tree{Number(1)};
  for (int i = 0; i < 1000000; ++i) {
    Array level;
    level.push_back(std::move(tree));
    tree = Value(std::move(level));
  }
}

TEST_F(Limits, PositionsNearTheLargestNumber) {
  Options options;
  for (const char* position :
       {"2147483647", "2147483648", "-2147483649", "4294967296", "1", "99999999999999999999", "-1"})
    options.emplace_back(std::string("K..a_") + position, "x");
  EXPECT_TRUE(DictionaryGetArray(Decode(options), "K")->empty());
}

TEST_F(Limits, TenThousandRecipients) {
  Options options{{"com.zarvo.print.FaxOptions..d_CoverSheet..b", "true"},
                  {"com.zarvo.print.FaxOptions..d_ShowRecipients..n", "2"},
                  {"com.zarvo.print.FaxOptions..d_CoverSheetNotes", std::string(100000, 'x')},
                  {"com.zarvo.print.JobType..d_JobType..n", "5"}};
  for (int i = 0; i < 10000; ++i) {
    const std::string recipient = "com.zarvo.print.FaxRecipientList..a_" + std::to_string(i);
    options.emplace_back(recipient + "..d_FaxNumber", "555" + std::to_string(i));
    options.emplace_back(recipient + "..d_FirstName", "Somebody with a long name");
  }
  const Dictionary ticket = Decode(options);
  Stream out;
  WriteJobType(out.file, ticket);
  const std::string comments = out.Content();
  EXPECT_NE(comments.find("\"5559999\""), std::string::npos);
  EXPECT_LT(comments.size(), 70u * 10000);
  EXPECT_LT(FaxCoverFromTicket(ticket)->recipients.text.size(), 40000u);
  EXPECT_LT(FaxCoverFromTicket(ticket)->notes.text.size(), 40000u);
}

TEST_F(Limits, SendTimesOfOtherCenturies) {
  for (const char* seconds : {"0", "-9223372036854775808", "9223372036854775807", "255485232000"}) {
    const Dictionary ticket = Decode({{"com.zarvo.print.FaxOptions..d_SendTime..n", seconds},
                                      {"com.zarvo.print.FaxRecipientList..a_0..d_FaxNumber", "1"},
                                      {"com.zarvo.print.JobType..d_DelayedPrintTime..n", seconds}});
    Stream out;
    WriteJobTypeFax(out.file, ticket);
    WriteJobTypeDelayed(out.file, *DictionaryGetDictionary(ticket, "com.zarvo.print.JobType"));
    EXPECT_NE(out.Content().find("PRINT_AFTER"), std::string::npos);
  }
}

TEST_F(Limits, BookletOfAMillionPages) {
  std::string job = "%!PS-Adobe-3.0\n%%BeginProlog\n%%EndProlog\n";
  constexpr int kPages = 1000000;
  for (int i = 0; i < kPages; ++i) job += "%%Page: 1 1\n%%BeginPageSetup\n%%EndPageSetup\n";
  const UniqueFd spool = OpenMemoryFile(job);
  const std::string path = "/proc/self/fd/" + std::to_string(spool.get());
  FILE* const nowhere = std::fopen("/dev/null", "wb");
  BookletVars bv;
  bv.hPrinter = nowhere;
  bv.pwstrPSFileIn = path.c_str();
  bv.bDoBooklet = 1;
  bv.iMode = 1;
  bv.iPageletsPerPage = 2;
  EXPECT_EQ(xPostProcessAndRespoolJob(&bv), kPages);
  std::fclose(nowhere);
}

}  // namespace
}  // namespace zarvo
