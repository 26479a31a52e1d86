// SPDX-License-Identifier: Apache-2.0
// Fax recipients, send times and cover sheets.
#include "Source/Fax.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <limits>

#include "CUPSFilter/Header/FaxComments.h"
#include "Source/FaxCover.h"
#include "Source/TicketNames.h"
#include "tests/unit/transcript.h"

namespace zarvo {
namespace {

const std::string kOptions(key::kFaxOptions);
const std::string kList(key::kFaxRecipientList);

// 2026-11-22 14:30:15 on the local clock.
constexpr std::int64_t kNow = 3878202615;
constexpr std::int64_t kHour = 3600;

class FixedClock final : public Clock {
 public:
  std::int64_t LocalSeconds() const override { return kNow; }
};

TEST(WriteJobTypeFax, SendTimeMovesOnByWholeDays) {
  const std::pair<std::int64_t, const char*> rows[] = {
      {kNow, "20261122143000"},                      // this very second is not in the past
      {kNow - 1, "20261123143000"},                  // a second ago is
      {kNow - 24 * kHour, "20261122143000"},         // yesterday at this second
      {kNow - 30 * kHour, "20261123083000"},         // yesterday 08:30, passed today
      {kNow - 18 * kHour, "20261122203000"},         // yesterday 20:30, still ahead today
      {kNow + 24 * kHour, "20261123143000"},         // tomorrow
      {kNow - 1000 * 24 * kHour, "20261122143000"},  // long ago
      {0, "20261123000000"},
      {-1, "20261122235900"},
      {std::numeric_limits<std::int64_t>::min(), "20261123082900"},
      {std::numeric_limits<std::int64_t>::max(), "327671231235900"},
  };
  for (const auto& [send_time, expected] : rows) {
    const Dictionary ticket = {{kOptions, Dictionary{{"SendTime", Number(send_time)}}},
                               {kList, Array{}}};
    const std::string comments =
        CollectOutput([&](std::FILE* output) { WriteJobTypeFax(output, ticket, FixedClock()); });
    EXPECT_NE(comments.find("OID_ATT_JOB_FAX_AFTER \"" + std::string(expected) + "\";\n"),
              comments.npos)
        << send_time << '\n'
        << comments;
  }
}

TEST(FaxRecipient, TicketFormHoldsWhatIsPresent) {
  const std::string number = "+1 (555) 0100";
  FaxRecipient recipient(nullptr, nullptr, &number);
  EXPECT_EQ(recipient.toTicket(), (Dictionary{{"FaxNumber", number}}));
  const Dictionary full = {
      {"FirstName", "Ada"},       {"LastName", "Byron"},       {"FaxNumber", "1"},
      {"FaxNumberLabel", "work"}, {"Organization", "Engines"}, {"PhoneNumber", "2"},
      {"EmailAddress", "a@b.c"},  {"Mailbox", "77"},           {"UID", "u-1"}};
  recipient.fromTicket(&full);
  EXPECT_EQ(FaxRecipient(recipient).toTicket(), full);
  recipient.fromTicket(nullptr);
  EXPECT_EQ(recipient.toTicket(), full);
  const Dictionary odd = {{"FirstName", Number(7)}, {"LastName", "Byron"}};
  recipient.fromTicket(&odd);
  recipient.setLastName(recipient.lastName());
  EXPECT_EQ(recipient.toTicket(), (Dictionary{{"LastName", "Byron"}}));
}

TEST(FaxRecipientList, OwnsEachElementOncePerPlace) {
  FaxRecipientOwner ada(new FaxRecipient), bob(new FaxRecipient);
  FaxRecipientList list;
  list.append(bob.get());
  for (const std::size_t place : {0, 0, 99}) list.insertAtIndex(ada.get(), place);
  EXPECT_EQ(ada->retain(), 5);
  EXPECT_EQ(ada->release(), 4);
  // Of two neighbours one stays; the one at the end goes.
  EXPECT_FALSE(list.remove(ada.get()));
  ASSERT_EQ(list.count(), 2u);
  EXPECT_EQ(list.recipientAtIndex(0), ada.get());
  EXPECT_EQ(list.recipientAtIndex(2), nullptr);

  const FaxRecipientList copy(list);
  EXPECT_NE(copy.recipientAtIndex(0), ada.get());
  list.removeAll();
  EXPECT_EQ(ada->retain(), 2);
  EXPECT_EQ(ada->release(), 1);
}

TEST(FaxRecipientList, ContainsComparesNamesAndNumberExactly) {
  const Dictionary ada = {{"FirstName", "Ada"}, {"LastName", "Byron"}, {"FaxNumber", "1"}};
  const Dictionary number_only = {{"FaxNumber", "2"}, {"Mailbox", "7"}};
  FaxRecipientList list(Array{ada, number_only, "no dictionary"});
  EXPECT_EQ(list.toTicket(), (Array{ada, number_only}));
  const std::pair<Dictionary, bool> rows[] = {
      {{{"FirstName", "Ada"}, {"LastName", "Byron"}, {"FaxNumber", "1"}, {"UID", "x"}}, true},
      {{{"FirstName", "Ada"}, {"LastName", "byron"}, {"FaxNumber", "1"}}, false},
      {{{"FaxNumber", "2"}}, true},
      {{{"FirstName", ""}, {"FaxNumber", "2"}}, false},
      {{}, false},
  };
  for (const auto& [ticket, expected] : rows) {
    const FaxRecipient probe(&ticket);
    EXPECT_EQ(list.containsRecipient(&probe), expected);
  }
}

const Array kRecipients = {Dictionary{{"FirstName", "Ada"}, {"LastName", "Byron"}},
                           Dictionary{{"FaxNumber", "1"}, {"FirstName", ""}},
                           Dictionary{{"LastName", "Lovelace"}}};

std::optional<FaxCover> Cover(Dictionary options) {
  options.emplace("CoverSheet", Value::Boolean(true));
  return FaxCoverFromTicket({{kOptions, std::move(options)}, {kList, kRecipients}});
}

TEST(FaxCover, SenderTextLeavesOutWhatIsEmpty) {
  const auto text = CreateLANFaxSenderInformation;
  EXPECT_EQ(text("N", "O", "E", "Tel", "1", "Fax", "2"), "N\nO\nE\nTel : 1\nFax : 2\n");
  EXPECT_EQ(text("", "", "E", "", "1", "Fax", ""), "E\n : 1\n");
}

TEST(FaxCover, RecipientsFollowTheMode) {
  const std::pair<Value, const char*> rows[] = {
      {"no number", ""},     {Number(1), ""}, {Number(2), "Ada Byron, Lovelace"},
      {Number(3), "Custom"}, {Number(4), ""},
  };
  for (const auto& [mode, expected] : rows)
    EXPECT_EQ(Cover({{"ShowRecipients", mode}, {"CustomRecipientText", "Custom"}})->recipients.text,
              expected);
}

TEST(FaxCover, OnlyAskedForCoversAreMade) {
  const Dictionary asked = {{"CoverSheet", Value::Boolean(true)}};
  EXPECT_FALSE(FaxCoverFromTicket({{kOptions, asked}}));
  EXPECT_FALSE(FaxCoverFromTicket({{kList, kRecipients}}));
  for (const Value& value : {Value::Boolean(false), Value("true"), Value(Number(1))})
    EXPECT_FALSE(Cover({{"CoverSheet", value}}));
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
  WatermarkData watermark{};
  std::snprintf(watermark.textString, sizeof watermark.textString, "DRAFT");
  watermark.isTextWatermark = 1;
  watermark.density = 30;
  ASSERT_TRUE(saveWatermarkData(kFaxImageCollection, watermark));
  const auto cover = Cover({{"ShowSender", Value::Boolean(true)},
                            {"SenderName", "N"},
                            {"LocalizedFromLabel", "From"},
                            {"ShowWatermark", Value::Boolean(true)},
                            {"WatermarkName", "DRAFT"}});
  ::unsetenv("ZARVO_APPLICATION_SUPPORT");
  std::filesystem::remove_all(scratch);
  const FaxCover back = FaxCoverFromDictionary(FaxCoverToDictionary(*cover));
  EXPECT_EQ(FaxCoverToDictionary(back), FaxCoverToDictionary(*cover));
  EXPECT_EQ(back.sender.label + back.sender.text, "FromN\n");
  EXPECT_STREQ(back.watermark.textString, "DRAFT");
  EXPECT_EQ(back.watermark.density, 30);
  EXPECT_EQ(FaxCoverFromDictionary({}).height, 792);
}

}  // namespace
}  // namespace zarvo
