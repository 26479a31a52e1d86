// SPDX-License-Identifier: Apache-2.0
#include "Source/FaxCover.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace zarvo {
namespace {

const Array kRecipients = {Dictionary{{"FirstName", "Ada"}, {"LastName", "Byron"}},
                           Dictionary{{"FaxNumber", "1"}, {"FirstName", ""}},
                           Dictionary{{"LastName", "Lovelace"}}};

std::optional<FaxCover> Cover(Dictionary options) {
  options.emplace("CoverSheet", Value::Boolean(true));
  return FaxCoverFromTicket({{"com.zarvo.print.FaxOptions", std::move(options)},
                             {"com.zarvo.print.FaxRecipientList", kRecipients}});
}

TEST(FaxCover, SenderTextLeavesOutWhatIsEmpty) {
  const auto text = CreateLANFaxSenderInformation;
  EXPECT_EQ(text("N", "O", "E", "Tel", "1", "Fax", "2"), "N\nO\nE\nTel : 1\nFax : 2\n");
  EXPECT_EQ(text("", "", "E", "", "1", "Fax", ""), "E\n : 1\n");
  EXPECT_EQ(text("", "", "", "Tel", "", "Fax", ""), "");
}

TEST(FaxCover, RecipientsFollowTheMode) {
  const struct {
    Value mode;
    const char* expected;
  } cases[] = {
      {"no number", ""},     {Number(1), ""}, {Number(2), "Ada Byron, Lovelace"},
      {Number(3), "Custom"}, {Number(4), ""},
  };
  for (const auto& one : cases) {
    const auto cover = Cover({{"ShowRecipients", one.mode}, {"CustomRecipientText", "Custom"}});
    EXPECT_EQ(cover->recipients.text, one.expected);
  }
}

TEST(FaxCover, OnlyAskedForCoversAreMade) {
  const Dictionary asked = {{"CoverSheet", Value::Boolean(true)}};
  EXPECT_FALSE(FaxCoverFromTicket({{"com.zarvo.print.FaxOptions", asked}}));
  EXPECT_FALSE(FaxCoverFromTicket({{"com.zarvo.print.FaxRecipientList", kRecipients}}));
  for (const Value& value : {Value::Boolean(false), Value("true"), Value(Number(1))}) {
    EXPECT_FALSE(
        FaxCoverFromTicket({{"com.zarvo.print.FaxOptions", Dictionary{{"CoverSheet", value}}},
                            {"com.zarvo.print.FaxRecipientList", kRecipients}}));
  }
}

TEST(FaxCover, TextsAreCleanedAndBounded) {
  const auto cover = Cover({{"CoverSheetNotes", "a\r\nb\rc\x1b\td\x7F\n"}, {"Size", Number(2)}});
  EXPECT_EQ(cover->notes.text, "a\nb\nc \td \n");
  EXPECT_EQ(cover->width, 595);
  EXPECT_EQ(cover->sender.text, "");
  EXPECT_LE(Cover({{"CoverSheetNotes", std::string(1'000'000, 'x')}})->notes.text.size(), 32768u);
}

TEST(FaxCover, DescriptionComesBackWhole) {
  const std::string scratch = testing::TempDir() + "faxcover";
  std::filesystem::create_directories(scratch + "/Zarvo");
  ::setenv("ZARVO_APPLICATION_SUPPORT", scratch.c_str(), 1);
  _WatermarkData watermark{};
  std::snprintf(watermark.textString, sizeof watermark.textString, "DRAFT");
  watermark.isTextWatermark = 1;
  watermark.density = 30;
  watermark.xPos = 12.5;
  ASSERT_TRUE(saveWatermarkData(kFaxImageCollection, watermark));
  const Dictionary options = {{"ShowSender", Value::Boolean(true)},
                              {"SenderName", "N"},
                              {"LocalizedFromLabel", "From"},
                              {"ShowWatermark", Value::Boolean(true)},
                              {"WatermarkName", "DRAFT"}};
  const auto cover = Cover(options);
  ::unsetenv("ZARVO_APPLICATION_SUPPORT");
  std::filesystem::remove_all(scratch);
  const FaxCover back = FaxCoverFromDictionary(FaxCoverToDictionary(*cover));
  EXPECT_EQ(FaxCoverToDictionary(back), FaxCoverToDictionary(*cover));
  EXPECT_EQ(back.sender.label, "From");
  EXPECT_EQ(back.sender.text, "N\n");
  EXPECT_STREQ(back.watermark.textString, "DRAFT");
  EXPECT_EQ(back.watermark.density, 30);
  EXPECT_EQ(FaxCoverFromDictionary({}).height, 792);
}

}  // namespace
}  // namespace zarvo
