// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "HouseTicket/HouseTicketStore.h"
#include "Platform/PropertyList.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

Dictionary Numbers(std::initializer_list<std::pair<const char*, int>> entries) {
  Dictionary group;
  for (const auto& [name, number] : entries) group.emplace(name, Value(Number(number)));
  return group;
}

HouseTicket Ticket(Dictionary settings, std::string base = "") {
  HouseTicket house;
  house.ticket = std::move(settings);
  house.basedOn = std::move(base);
  return house;
}

/// Every test has folders of its own for the shared store and the user's.
class House : public testing::Test {
 protected:
  House() {
    char pattern[] = "/tmp/zarvo-house-XXXXXX";
    root_ = ::mkdtemp(pattern);
    ::setenv("ZARVO_APPLICATION_SUPPORT", root_.c_str(), 1);
    ::setenv("XDG_DATA_HOME", (root_ / "data").c_str(), 1);
  }
  ~House() override { fs::remove_all(root_, ignored_); }

  static std::string Save(HouseTicketStore store, const std::string& name,
                          const HouseTicket& house) {
    return store.Change([&](HouseTicketStore* open) { return open->Put(name, house); });
  }
  static std::string Find(HouseTicketStore& store, const std::string& name, HouseTicket* house) {
    const std::string fault = store.Read();
    return fault.empty() ? store.Find(name, house) : fault;
  }
  /// What a job that names it gets, or why it gets nothing.
  static std::string Resolve(const std::string& name, ResolvedHouseTicket* resolved) {
    HouseTicketStore shared = HouseTicketStore::Shared();
    const std::string fault = shared.Read();
    return fault.empty() ? ResolveHouseTicket(name, FindIn({&shared}), resolved) : fault;
  }
  static std::string File() { return HouseTicketStore::Shared().path(); }
  static void Write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
  }

  fs::path root_;
  std::error_code ignored_;
};

TEST_F(House, NamesOfEveryCharacterComeBack) {
  std::vector<std::string> names = {"\xC3\xA9t\xC3\xA9", "\xE6\x97\xA5\xE6\x9C\xAC", " ", "a..b",
                                    std::string(kLongestHouseTicketName, 'x')};
  for (char c = 0x21; c < 0x7F; ++c) names.emplace_back(1, c);
  for (const std::string& name : names) {
    HouseTicket house = Ticket({{"key", Value(name)}});
    house.titles = {{"de", name}};
    house.mayOverride = {{name}};
    ASSERT_EQ(Save(HouseTicketStore::Shared(), name, house), "");
    HouseTicketStore store = HouseTicketStore::Shared();
    HouseTicket read;
    ASSERT_EQ(Find(store, name, &read), "");
    EXPECT_EQ(read.ticket, house.ticket);
    EXPECT_EQ(read.titles, house.titles);
    EXPECT_THAT(*read.mayOverride, ElementsAre(SettingPath(name)));
  }
  for (const std::string& name :
       {std::string(), std::string(128, 'x'), std::string("a\nb"), std::string("\xFF"),
        std::string("e\xCC\x81"), std::string("nONE"), std::string("custom.x")})
    EXPECT_NE(Save(HouseTicketStore::Shared(), name, Ticket({})), "") << name;
}

TEST_F(House, BasesComeBelowAndLoopsAreErrors) {
  const HouseTicketStore store = HouseTicketStore::Shared();
  Array list(3, Value(Numbers({{"Page", 1}})));
  Save(store, "base", Ticket({{"Group", Numbers({{"a", 1}, {"b", 1}})}, {"List", list}}));
  HouseTicket top =
      Ticket({{"Group", Numbers({{"b", 2}})}, {"List", Array(1, Value("x"))}}, "base");
  top.mayOverride = {{"Group/a"}};
  Save(store, "top", top);
  Save(store, "top2", Ticket(Numbers({{"n", 3}}), "top"));
  ResolvedHouseTicket resolved;
  ASSERT_EQ(Resolve("top2", &resolved), "");
  EXPECT_EQ(resolved.ticket, (Dictionary{{"Group", Numbers({{"a", 1}, {"b", 2}})},
                                         {"List", Array(1, Value("x"))},
                                         {"n", Value(Number(3))}}));
  EXPECT_THAT(resolved.chain, ElementsAre("top2", "top", "base"));
  EXPECT_THAT(*resolved.mayOverride, ElementsAre("com.zarvo.print.Group/a"));

  Save(store, "base", Ticket({}, "top2"));
  Save(store, "self", Ticket({}, "self"));
  Save(store, "lost", Ticket({}, "gone"));
  for (const auto& [name, fault] : std::map<std::string, std::string>{
           {"top2", "builds on itself, by way of \"top2\""},
           {"self", "builds on itself"},
           {"lost", "cannot be built: there is no house ticket \"gone\""},
           {"slef", "did you mean self? there are: base, lost, self, top, top2"}})
    EXPECT_THAT(Resolve(name, &resolved), HasSubstr(fault));
}

TEST_F(House, JobsMayChangeWhatTheTicketLetsGo) {
  ResolvedHouseTicket house;
  house.ticket = {{"com.zarvo.print.Group", Numbers({{"locked", 1}, {"free", 1}})},
                  {"com.zarvo.print.Sides", Value(Number(2))},
                  {"com.zarvo.print.Tray", Value(Number(2))}};
  house.mayOverride = {{"com.zarvo.print.Group/free", "com.zarvo.print.Tray"}};
  JobSays job;
  job.defaults = {{"com.zarvo.print.Sides", Value(Number(1))},
                  {"com.zarvo.print.Tray", Value(Number(1))},
                  {"com.zarvo.print.Ink", Value(Number(1))}};
  job.derived = job.defaults;
  job.chosen = job.defaults;  // as dialogs send them
  job.own = {{"com.zarvo.print.Group", Numbers({{"locked", 5}, {"free", 5}, {"more", 5}})},
             {"com.zarvo.print.Tray", Value(Number(1))}};
  std::vector<std::string> kept;
  EXPECT_EQ(
      ApplyHouseTicket(house, job, &kept),
      (Dictionary{{"com.zarvo.print.Group", Numbers({{"locked", 1}, {"free", 5}, {"more", 5}})},
                  {"com.zarvo.print.Sides", Value(Number(2))},
                  {"com.zarvo.print.Tray", Value(Number(1))},
                  {"com.zarvo.print.Ink", Value(Number(1))}}));
  EXPECT_THAT(kept, ElementsAre("com.zarvo.print.Group/locked"));
}

TEST_F(House, PinsAreKeptFromOthers) {
  const HouseTicket secret =
      Ticket({{key::kJobType, Dictionary{{key::job_type::kSecurePrintPassword, Value("0391")}}}});
  EXPECT_THAT(Save(HouseTicketStore::Shared(), "pin", secret), HasSubstr("keeps a PIN"));
  EXPECT_THAT(Save(HouseTicketStore::Shared(), "pin", Ticket({{"JobPin", Value("Custom.0391")}})),
              HasSubstr("keeps a PIN"));
  const std::string own = HouseTicketStore::Own().path();
  ASSERT_EQ(Save(HouseTicketStore::Own(), "pin", secret), "");
  struct stat about {};
  ASSERT_EQ(::stat(own.c_str(), &about), 0);
  EXPECT_EQ(about.st_mode & 07777, 0600U);
  HouseTicket read;
  HouseTicketStore store = HouseTicketStore::Own();
  EXPECT_EQ(Find(store, "pin", &read), "");
  ::chmod(own.c_str(), 0640);
  store = HouseTicketStore::Own();
  EXPECT_THAT(Find(store, "pin", &read), HasSubstr("mode 0600"));
  EXPECT_THAT(Save(store, "more", secret), HasSubstr("keeps a PIN"));
  // The same bytes in the shared place, as somebody may have put them there.
  fs::copy_file(own, File());
  ResolvedHouseTicket resolved;
  EXPECT_THAT(Resolve("pin", &resolved), HasSubstr("keeps a PIN"));
}

TEST_F(House, DamagedStoresAreErrorsAndStay) {
  std::string deep = "<integer>1</integer>";
  for (int i = 0; i < 60; ++i) deep = "<dict><key>a</key>" + deep + "</dict>";
  const auto record = [](const std::string& inner) {
    return "<plist version=\"1.0\"><dict><key>x</key>" + inner + "</dict></plist>";
  };
  const std::string ticket = "<dict><key>Ticket</key><dict/>";
  const std::map<std::string, std::string> faults = {
      {"", "is damaged"},
      {"<plist><dict>", "is damaged"},
      {"<plist version=\"1.0\"><array/></plist>", "no dictionary"},
      {record("<string>thesis</string>"), "it is no group"},
      {record("<dict/>"), "no settings"},
      {record("<dict><key>Ticket</key><array/></dict>"), "no group"},
      {record("<dict><key>Ticket</key>" + deep + "</dict>"), "deeper than 50"},
      {record(ticket + "<key>BasedOn</key><integer>1</integer></dict>"), "is no name"},
      {record(ticket + "<key>Titles</key><array/></dict>"), "no group"},
      {record(ticket +
              "<key>Titles</key><dict><key>de</key><string>a&#10;b</string></dict></dict>"),
       "no line"},
      {record(ticket + "<key>MayOverride</key><string>a</string></dict>"), "no list"},
      {record(ticket + "<key>Later</key><true/></dict>"), "nobody knows"}};
  for (const auto& [bytes, fault] : faults) {
    Write(File(), bytes);
    ResolvedHouseTicket resolved;
    EXPECT_THAT(Resolve("x", &resolved), HasSubstr(fault)) << bytes;
    if (bytes.find("<key>x") == bytes.npos) {
      EXPECT_NE(Save(HouseTicketStore::Shared(), "new", Ticket({})), "");
      std::ifstream stream(File(), std::ios::binary);
      EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), bytes);
    }
  }
  fs::remove(File());
  fs::create_directory(File());
  ResolvedHouseTicket resolved;
  EXPECT_THAT(Resolve("x", &resolved), HasSubstr("cannot be read"));
}

TEST_F(House, TwoWritersLoseNothingAndTenThousandAreKept) {
  constexpr int kEach = 20;
  for (const char* writer : {"a", "b"}) {
    if (::fork() != 0) continue;
    for (int i = 0; i < kEach; ++i)
      Save(HouseTicketStore::Shared(), writer + std::to_string(i), Ticket({}));
    ::_exit(0);
  }
  while (::wait(nullptr) > 0) {
  }
  HouseTicketStore store = HouseTicketStore::Shared();
  ASSERT_EQ(store.Read(), "");
  EXPECT_EQ(store.Names().size(), 2U * kEach);
  const std::string fault = store.Change([](HouseTicketStore* open) {
    std::string failed;
    for (int i = 0; i < 10000; ++i)
      failed +=
          open->Put("ticket " + std::to_string(i),
                    Ticket(Numbers({{"n", i}}), i > 0 ? "ticket " + std::to_string(i - 1) : ""));
    return failed;
  });
  ASSERT_EQ(fault, "");
  ResolvedHouseTicket resolved;
  ASSERT_EQ(Resolve("ticket 100", &resolved), "");
  EXPECT_EQ(resolved.ticket, Numbers({{"n", 100}}));
  EXPECT_THAT(Resolve("ticket 9999", &resolved), HasSubstr("more than 100 others"));
  const std::string unknown = Resolve("tickt 1", &resolved);
  EXPECT_THAT(unknown, HasSubstr("did you mean ticket 1?"));
  EXPECT_LT(unknown.size(), 1000U);
}

}  // namespace
}  // namespace zarvo
