// SPDX-License-Identifier: Apache-2.0
#include "Platform/AddressBook.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "Source/Fax.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;

class AddressBook : public testing::Test {
 protected:
  AddressBook() {
    std::string pattern = (fs::temp_directory_path() / "addressbook.XXXXXX").string();
    scratch_ = ::mkdtemp(pattern.data());
    folder_ = scratch_ / "not" / "there yet";
    ::setenv("ZARVO_ADDRESS_BOOK", folder_.c_str(), 1);
  }
  ~AddressBook() override {
    ::unsetenv("ZARVO_ADDRESS_BOOK");
    fs::remove_all(scratch_);
  }

  std::size_t Files() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  fs::path scratch_;
  fs::path folder_;
};

std::string Text(const FaxRecipient& recipient) {
  const auto record = recipient.abRecord();
  return record ? FormatVCard(record->card) : "no record";
}

TEST_F(AddressBook, StoresAPersonWithoutTheLastName) {
  const Dictionary ticket = {{"FirstName", "Ada"},      {"LastName", "Byron"},
                             {"FaxNumber", "+1 555,1"}, {"FaxNumberLabel", "home fax"},
                             {"Organization", "A; B"},  {"PhoneNumber", "2"},
                             {"EmailAddress", "a@b.c"}, {"Mailbox", "77"}};
  FaxRecipient recipient(&ticket);
  EXPECT_FALSE(recipient.abRecord());
  ASSERT_TRUE(recipient.commitToAddressBook());
  EXPECT_EQ(Text(recipient),
            "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ada\r\nN:;Ada;;;\r\n"
            "TEL;TYPE=WORK,FAX:+1 555\\,1\r\nTEL;TYPE=WORK,VOICE:2\r\n"
            "EMAIL;TYPE=WORK,INTERNET:a@b.c\r\nORG:A\\; B\r\nX-ZARVO-MAILBOX:77\r\n"
            "UID:" +
                *recipient.uid() + "\r\nEND:VCARD\r\n");
  const fs::path file = folder_ / (*recipient.uid() + ".vcf");
  struct stat info {};
  ASSERT_EQ(::stat(file.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0600u);
  ASSERT_EQ(::stat(folder_.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0700u);
  EXPECT_EQ(Files(), 1u);
}

TEST_F(AddressBook, FindsCardsThatOtherProgramsNamed) {
  fs::create_directories(folder_);
  std::ofstream(folder_ / "broken.vcf") << "BEGIN:VCARD\n";
  ASSERT_EQ(::mkfifo((folder_ / "pipe.vcf").c_str(), 0600), 0);
  std::ofstream(folder_ / "theirs.vcf")
      << "BEGIN:VCARD\nVERSION:3.0\nUID:../a/b\nX-KEEP;Y=z:\\,1\nEND:VCARD\n";
  std::ofstream(scratch_ / "not" / "secret.vcf")
      << "BEGIN:VCARD\nVERSION:3.0\nUID:../secret\nEND:VCARD\n";
  EXPECT_FALSE(AddressBookFind(""));
  EXPECT_FALSE(AddressBookFind("../secret"));
  auto record = AddressBookFind("../a/b");
  ASSERT_TRUE(record);
  EXPECT_EQ(record->file, "theirs.vcf");
  record->card.properties.push_back({"NOTE", "new"});
  ASSERT_TRUE(AddressBookSave(*record));
  EXPECT_EQ(FormatVCard(AddressBookFind("../a/b")->card),
            "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:../a/b\r\nX-KEEP;Y=z:\\,1\r\nNOTE:new\r\n"
            "END:VCARD\r\n");
}

TEST_F(AddressBook, ReadsRecipientsFromTheCardsOfOthers) {
  const auto card = ParseVCard(
      "BEGIN:VCARD\nVERSION:3.0\nN:B\\;C;Ren\xE9\\\nfax1.TEL;TYPE=HOME:1\n"
      "item1.tel;type=\"home,fax\":2\nORG:Caf\xC3\xA9;Sales\nEND:VCARD\n");
  ASSERT_TRUE(card);
  const Dictionary expected = {{"FirstName", "Ren\xC3\xA9\\"},
                               {"LastName", "B;C"},
                               {"PhoneNumber", "1"},
                               {"FaxNumber", "2"},
                               {"Organization", "Caf\xC3\xA9"}};
  EXPECT_EQ(FaxRecipientFromCard(*card).toTicket(), expected);
}

TEST_F(AddressBook, GroupTakesItsMembersInOrder) {
  const Dictionary gone = {{"FirstName", "Gone"}, {"UID", "no such record"}};
  const Dictionary number = {{"FaxNumber", "1"}};
  FaxRecipientList list(Array{number, number});
  ASSERT_TRUE(list.recipientAtIndex(1)->commitToAddressBook());
  ASSERT_TRUE(list.saveAsABGroupWithName("Sales; all"));
  EXPECT_EQ(Files(), 3u);
  list.insertAtIndex(FaxRecipientOwner(new FaxRecipient(&gone)).get(), 0);
  EXPECT_FALSE(list.saveAsABGroupWithName("Sales; all"));
  EXPECT_EQ(Files(), 4u);

  const std::string member = "X-ADDRESSBOOKSERVER-MEMBER:urn:uuid:";
  for (const auto& entry : fs::directory_iterator(folder_)) {
    const auto record = AddressBookFind(entry.path().stem().string());
    ASSERT_TRUE(record);
    const std::string text = FormatVCard(record->card);
    if (text.find("KIND:group") == std::string::npos) continue;
    EXPECT_EQ(text,
              "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Sales\\; all\r\nN:Sales\\; all;;;;\r\n"
              "X-ADDRESSBOOKSERVER-KIND:group\r\nUID:" +
                  record->uid() + "\r\n" + member + *list.recipientAtIndex(1)->uid() + "\r\n" +
                  member + *list.recipientAtIndex(2)->uid() + "\r\nEND:VCARD\r\n");
  }
}

TEST_F(AddressBook, ProgramsMayAddAtTheSameTime) {
  constexpr int kPrograms = 8, kCards = 20;
  pid_t children[kPrograms];
  for (pid_t& child : children) {
    child = ::fork();
    if (child != 0) continue;
    bool added = true;
    for (int i = 0; i < kCards; ++i) added &= FaxRecipient().commitToAddressBook();
    ::_exit(added ? 0 : 1);
  }
  for (const pid_t child : children) {
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(Files(), static_cast<std::size_t>(kPrograms * kCards));
}

TEST_F(AddressBook, AnUnwritableFolderChangesNothing) {
  fs::create_directories(folder_.parent_path());
  std::ofstream{folder_};  // a file where the folder should be
  const Dictionary number = {{"FaxNumber", "1"}};
  FaxRecipientList list(Array{number});
  EXPECT_FALSE(list.recipientAtIndex(0)->commitToAddressBook());
  EXPECT_EQ(list.recipientAtIndex(0)->uid(), nullptr);
  EXPECT_FALSE(list.saveAsABGroupWithName("g"));
  EXPECT_EQ(list.recipientAtIndex(0)->uid(), nullptr);
}

TEST_F(AddressBook, LivesWhereTheEnvironmentSays) {
  ::setenv("HOME", "/h", 1);
  ::setenv("XDG_DATA_HOME", "/x", 1);
  EXPECT_EQ(AddressBookFolder(), folder_.string());
  ::unsetenv("ZARVO_ADDRESS_BOOK");
  EXPECT_EQ(AddressBookFolder(), "/x/zarvo/contacts");
  ::setenv("XDG_DATA_HOME", "relative", 1);
  EXPECT_EQ(AddressBookFolder(), "/h/.local/share/zarvo/contacts");
  ::unsetenv("HOME");
  EXPECT_EQ(AddressBookFolder(), "");
  EXPECT_FALSE(AddressBookAdd({}));
}

}  // namespace
}  // namespace zarvo
