// SPDX-License-Identifier: Apache-2.0
#include "Source/Fax.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <memory>

#include "CUPSFilter/FaxComments.h"
#include "Source/FaxKeys.h"

namespace zarvo {
namespace {

// 2026-11-22 14:30:15 on the local clock.
constexpr std::int64_t kNow = 3878202615;
constexpr std::int64_t kHour = 3600;

class FixedClock final : public Clock {
 public:
  std::int64_t LocalSeconds() const override { return kNow; }
};

std::string Comments(const Dictionary& options) {
  char* text = nullptr;
  std::size_t size = 0;
  FILE* output = open_memstream(&text, &size);
  Dictionary ticket;
  ticket.emplace(kFaxOptionsTicketKey, options);
  ticket.emplace(kFaxRecipientListTicketKey, Array{});
  WriteJobTypeFax(output, ticket, FixedClock());
  std::fclose(output);
  const std::unique_ptr<char, decltype(&std::free)> owner(text, &std::free);
  return {text, size};
}

TEST(WriteJobTypeFax, SendTimeMovesOnByWholeDays) {
  const struct {
    std::int64_t send_time;
    const char* expected;
  } cases[] = {
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
  for (const auto& one : cases) {
    const Dictionary options = {{"SendTime", Number(one.send_time)}};
    const std::string expected = "OID_ATT_JOB_FAX_AFTER \"" + std::string(one.expected) + "\";\n";
    EXPECT_NE(Comments(options).find(expected), std::string::npos) << one.send_time << "\n"
                                                                   << Comments(options);
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
  EXPECT_EQ(recipient.toTicket(), (Dictionary{{"LastName", "Byron"}}));
  recipient.setLastName(recipient.lastName());
  EXPECT_EQ(DisplayNameFromRecipient(recipient), "Byron");
}

TEST(FaxRecipientList, OwnsEachElementOncePerPlace) {
  FaxRecipientOwner ada(new FaxRecipient);
  FaxRecipientOwner bob(new FaxRecipient);
  FaxRecipientList list;
  list.append(bob.get());
  list.insertAtIndex(ada.get(), 0);
  list.insertAtIndex(ada.get(), 0);
  list.insertAtIndex(ada.get(), 99);
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
  const struct {
    Dictionary probe;
    bool expected;
  } cases[] = {
      {{{"FirstName", "Ada"}, {"LastName", "Byron"}, {"FaxNumber", "1"}, {"UID", "x"}}, true},
      {{{"FirstName", "Ada"}, {"LastName", "byron"}, {"FaxNumber", "1"}}, false},
      {{{"FaxNumber", "2"}}, true},
      {{{"FirstName", ""}, {"FaxNumber", "2"}}, false},
      {{}, false},
  };
  for (const auto& one : cases) {
    const FaxRecipient probe(&one.probe);
    EXPECT_EQ(list.containsRecipient(&probe), one.expected);
  }
}

}  // namespace
}  // namespace zarvo
