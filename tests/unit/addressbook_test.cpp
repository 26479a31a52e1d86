// SPDX-License-Identifier: Apache-2.0
// vCards, and the address book that is made of them.
#include "Platform/AddressBook.h"

#include <gtest/gtest.h>
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

/// A card file of these properties, which need no folding.
std::string Card(const std::vector<std::string>& properties) {
  std::string text = "BEGIN:VCARD\r\nVERSION:3.0\r\n";
  for (const std::string& property : properties) text += property + "\r\n";
  return text + "END:VCARD\r\n";
}

TEST(VCard, KeepsWhatItDoesNotUnderstand) {
  const std::string photo =
      "PHOTO;ENCODING=b:" + std::string(58, 'Q') + "\r\n " + std::string(74, 'R') + "\r\n RR==";
  const std::string file =
      Card({"item1.X-ODD;X-P=\"a:b;c\";TYPE=x:one\\,two:three", "NOTE:", photo});
  const auto card = ParseVCard(file);
  ASSERT_TRUE(card);
  EXPECT_EQ(FormatVCard(*card), file);
  EXPECT_EQ(VCardFindText(*card, "x-odd"), "one,two:three");
  // Other line ends, tabs as folds, a byte order mark and blank lines around are the same card.
  const auto lines = ParseVCard("\xEF\xBB\xBF\nbegin:VCARD\nVERSION:3.\n\t0\nend:vcard\n\n");
  ASSERT_TRUE(lines);
  EXPECT_EQ(FormatVCard(*lines), Card({}));
}

TEST(VCard, RefusesWhatItCouldNotWriteAgain) {
  for (const char* file :
       {"", "BEGIN:VCARD\n", "END:VCARD\n", "FN:x\nBEGIN:VCARD\nEND:VCARD\n",
        "BEGIN:VCARD\nBEGIN:VCARD\nEND:VCARD\nEND:VCARD\n",
        "BEGIN:VCARD\nEND:VCARD\nBEGIN:VCARD\nEND:VCARD\n", "BEGIN:VCARD\nno colon\nEND:VCARD\n",
        "BEGIN:VCARD\n:no name\nEND:VCARD\n", "BEGIN:VCARD\nFN;X=\"open:x\nEND:VCARD\n"})
    EXPECT_FALSE(ParseVCard(file)) << file;
}

TEST(VCard, TextsComeBackWholeFromShortLines) {
  std::string long_name;
  for (int i = 0; i < 250; ++i) long_name += "a\xC3\xA9\xE6\x97\xA5\xF0\x9F\x93\xA0";
  // The last one is no UTF-8: still folded, still whole.
  for (const std::string& text : {std::string(), std::string("a,b;c\\d\n\\n,\\;\tend"), long_name,
                                  std::string(1000, 'x'), std::string(200, '\x80')}) {
    const std::string file = FormatVCard({{{"NOTE", VCardValue(text)}}});
    const auto card = ParseVCard(file);
    ASSERT_TRUE(card) << text;
    EXPECT_EQ(VCardFindText(*card, "NOTE"), text);
    for (std::size_t start = 0, end; start < file.size(); start = end + 2) {
      end = file.find("\r\n", start);
      EXPECT_LE(end - start, 75u);
      const auto first = static_cast<unsigned char>(file[start + (file[start] == ' ')]);
      EXPECT_TRUE(text[0] == '\x80' || (first & 0xC0) != 0x80) << "a character is split";
    }
  }
  EXPECT_EQ(VCardValue("a\r\nb\rc\x01\x7F!"), "a\\nb\\nc!");
}

class AddressBook : public testing::Test {
 protected:
  AddressBook() {
    scratch_ = ::mkdtemp((fs::temp_directory_path() / "addressbook.XXXXXX").string().data());
    folder_ = scratch_ / "not" / "there yet";
    ::setenv("ZARVO_ADDRESS_BOOK", folder_.c_str(), 1);
  }
  ~AddressBook() override {
    ::unsetenv("ZARVO_ADDRESS_BOOK");
    fs::remove_all(scratch_);
  }

  std::ptrdiff_t Files() const { return std::distance(fs::directory_iterator(folder_), {}); }

  fs::path scratch_;
  fs::path folder_;
};

TEST_F(AddressBook, StoresAPersonWithoutTheLastName) {
  const Dictionary ticket = {{"FirstName", "Ada"},      {"LastName", "Byron"},
                             {"FaxNumber", "+1 555,1"}, {"FaxNumberLabel", "home fax"},
                             {"Organization", "A; B"},  {"PhoneNumber", "2"},
                             {"EmailAddress", "a@b.c"}, {"Mailbox", "77"}};
  FaxRecipient recipient(&ticket);
  EXPECT_FALSE(recipient.abRecord());
  ASSERT_TRUE(recipient.commitToAddressBook());
  EXPECT_EQ(FormatVCard(recipient.abRecord()->card),
            Card({"FN:Ada", "N:;Ada;;;", "TEL;TYPE=WORK,FAX:+1 555\\,1", "TEL;TYPE=WORK,VOICE:2",
                  "EMAIL;TYPE=WORK,INTERNET:a@b.c", "ORG:A\\; B", "X-ZARVO-MAILBOX:77",
                  "UID:" + *recipient.uid()}));
  EXPECT_EQ(fs::status(folder_ / (*recipient.uid() + ".vcf")).permissions(), fs::perms{0600});
  EXPECT_EQ(fs::status(folder_).permissions(), fs::perms{0700});
  EXPECT_EQ(Files(), 1);
}

TEST_F(AddressBook, FindsCardsThatOtherProgramsNamed) {
  fs::create_directories(folder_);
  std::ofstream(folder_ / "broken.vcf") << "BEGIN:VCARD\n";
  ASSERT_EQ(::mkfifo((folder_ / "pipe.vcf").c_str(), 0600), 0);
  std::ofstream(folder_ / "theirs.vcf") << Card({"UID:../a/b", "X-KEEP;Y=z:\\,1"});
  std::ofstream(folder_ / "../secret.vcf") << Card({"UID:../secret"});
  EXPECT_FALSE(AddressBookFind(""));
  EXPECT_FALSE(AddressBookFind("../secret"));
  auto record = AddressBookFind("../a/b");
  ASSERT_TRUE(record);
  EXPECT_EQ(record->file, "theirs.vcf");
  record->card.properties.push_back({"NOTE", "new"});
  ASSERT_TRUE(AddressBookSave(*record));
  EXPECT_EQ(FormatVCard(AddressBookFind("../a/b")->card),
            Card({"UID:../a/b", "X-KEEP;Y=z:\\,1", "NOTE:new"}));
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
  list.insertAtIndex(FaxRecipientOwner(new FaxRecipient(&gone)).get(), 0);
  ASSERT_TRUE(list.saveAsABGroupWithName("Sales; all"));
  EXPECT_NE(*list.recipientAtIndex(0)->uid(), "no such record") << "stored anew";
  const std::string member = "X-ADDRESSBOOKSERVER-MEMBER:urn:uuid:";
  int groups = 0;
  for (const AddressBookRecord& record : AddressBookRecords()) {
    if (!IsGroupCard(record.card)) continue;
    ++groups;
    std::vector<std::string> expected = {"FN:Sales\\; all", "N:Sales\\; all;;;;",
                                         "X-ADDRESSBOOKSERVER-KIND:group", "UID:" + record.uid()};
    const std::size_t first = GroupMembers(record.card).size() == 2 ? 1 : 0;
    for (std::size_t i = first; i < list.count(); ++i)
      expected.push_back(member + *list.recipientAtIndex(i)->uid());
    EXPECT_EQ(FormatVCard(record.card), Card(expected));
  }
  EXPECT_EQ(groups, 2);
  EXPECT_EQ(Files(), 5);
}

TEST_F(AddressBook, ProgramsMayAddAtTheSameTime) {
  for (int program = 0; program < 8; ++program) {
    if (::fork() != 0) continue;
    bool added = true;
    for (int i = 0; i < 20; ++i) added &= FaxRecipient().commitToAddressBook();
    ::_exit(added ? 0 : 1);
  }
  for (int status = -1; ::wait(&status) > 0;) EXPECT_EQ(status, 0);
  EXPECT_EQ(Files(), 8 * 20);
}

TEST_F(AddressBook, AnUnwritableFolderChangesNothing) {
  fs::create_directories(folder_.parent_path());
  std::ofstream{folder_};  // a file where the folder should be
  FaxRecipientList list(Array{Dictionary{{"FaxNumber", "1"}}});
  EXPECT_FALSE(list.recipientAtIndex(0)->commitToAddressBook());
  EXPECT_FALSE(list.saveAsABGroupWithName("g"));
  EXPECT_EQ(list.recipientAtIndex(0)->uid(), nullptr);
}

TEST_F(AddressBook, SharedBooksAreReadOnly) {
  const fs::path shared = folder_.parent_path() / "data/Zarvo/contacts";
  ::setenv("ZARVO_APPLICATION_SUPPORT", (folder_.parent_path() / "data").c_str(), 1);
  for (const char* place : {"faxes/a.vcf", "faxes/own.vcf", "branches/b.vcf", ".status/x.vcf"}) {
    fs::create_directories((shared / place).parent_path());
    std::ofstream{shared / place} << Card({"FN:s", "UID:" + fs::path(place).stem().string()});
  }
  fs::create_directories(folder_);
  std::ofstream{folder_ / "z.vcf"} << Card({"FN:mine", "UID:own"});
  std::string found;
  for (const AddressBookRecord& record : AddressBookRecords())
    found += record.uid() + "/" + record.shared_book + " ";
  EXPECT_EQ(found, "own/ b/branches a/faxes ");
  EXPECT_EQ(AddressBookFind("own")->shared_book, "");
  const auto record = AddressBookFind("a");
  ASSERT_TRUE(record);
  EXPECT_FALSE(AddressBookSave(*record) || AddressBookRemove(*record));
  EXPECT_TRUE(fs::exists(shared / "faxes/a.vcf"));
  EXPECT_EQ(Files(), 1);
  ::unsetenv("ZARVO_APPLICATION_SUPPORT");
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
