// SPDX-License-Identifier: Apache-2.0
#include "Platform/VCard.h"

#include <gmock/gmock.h>

namespace zarvo {
namespace {

TEST(VCard, KeepsWhatItDoesNotUnderstand) {
  const std::string file =
      "BEGIN:VCARD\r\n"
      "VERSION:3.0\r\n"
      "item1.X-ODD;X-P=\"a:b;c\";TYPE=x:one\\,two:three\r\n"
      "NOTE:\r\n"
      "PHOTO;ENCODING=b:" +
      std::string(58, 'Q') + "\r\n " + std::string(74, 'R') +
      "\r\n RR==\r\n"
      "END:VCARD\r\n";
  const auto card = ParseVCard(file);
  ASSERT_TRUE(card);
  EXPECT_EQ(FormatVCard(*card), file);
  EXPECT_EQ(VCardFindText(*card, "x-odd"), "one,two:three");
  // Other line ends, tabs as folds, a byte order mark and blank lines around are the same card.
  const auto lines = ParseVCard("\xEF\xBB\xBF\nbegin:VCARD\nVERSION:3.\n\t0\nend:vcard\n\n");
  ASSERT_TRUE(lines);
  EXPECT_EQ(FormatVCard(*lines), "BEGIN:VCARD\r\nVERSION:3.0\r\nEND:VCARD\r\n");
}

TEST(VCard, RefusesWhatItCouldNotWriteAgain) {
  const char* const files[] = {
      "",
      "BEGIN:VCARD\n",
      "END:VCARD\n",
      "FN:x\nBEGIN:VCARD\nEND:VCARD\n",
      "BEGIN:VCARD\nBEGIN:VCARD\nEND:VCARD\nEND:VCARD\n",
      "BEGIN:VCARD\nEND:VCARD\nBEGIN:VCARD\nEND:VCARD\n",
      "BEGIN:VCARD\nno colon\nEND:VCARD\n",
      "BEGIN:VCARD\n:no name\nEND:VCARD\n",
      "BEGIN:VCARD\nFN;X=\"open:x\nEND:VCARD\n",
  };
  for (const char* file : files) EXPECT_FALSE(ParseVCard(file)) << file;
}

TEST(VCard, TextsComeBackWholeFromShortLines) {
  std::string long_name;
  for (int i = 0; i < 250; ++i) long_name += "a\xC3\xA9\xE6\x97\xA5\xF0\x9F\x93\xA0";
  const std::string texts[] = {
      "",
      "plain",
      "a,b;c\\d",
      "two\nlines",
      "\\n,\\;",
      "tab\there",
      long_name,
      std::string(1000, 'x'),
      std::string(200, '\x80'),  // no UTF-8: still folded, still whole
  };
  for (const std::string& text : texts) {
    const std::string file = FormatVCard({{{"NOTE", VCardValue(text)}}});
    const auto card = ParseVCard(file);
    ASSERT_TRUE(card) << text;
    EXPECT_EQ(VCardFindText(*card, "NOTE"), text);
    for (std::size_t start = 0; start < file.size();) {
      const std::size_t end = file.find("\r\n", start);
      EXPECT_LE(end - start, 75u);
      const auto first = static_cast<unsigned char>(file[start + (file[start] == ' ')]);
      EXPECT_TRUE(text[0] == '\x80' || (first & 0xC0) != 0x80) << "a character is split";
      start = end + 2;
    }
  }
  EXPECT_EQ(VCardValue("a\r\nb\rc\x01\x7F"
                       "d"),
            "a\\nb\\nc"
            "d");
}

}  // namespace
}  // namespace zarvo
