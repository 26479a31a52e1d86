// SPDX-License-Identifier: Apache-2.0
#include "Platform/PropertyList.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace zarvo {
namespace {

std::string Document(const std::string& body) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + body +
         "</plist>\n";
}

std::string Repeat(const std::string& text, int count) {
  std::string result;
  while (count-- > 0) result += text;
  return result;
}

std::optional<Value> Parse(const std::string& bytes) {
  Value value;
  return ParsePropertyList(bytes, &value).empty() ? std::optional(value) : std::nullopt;
}

/// A binary list whose object number i is an array of two references to object i + 1; the last is
/// an empty array. Or, with `loop`, an array that holds the first one.
std::string Doubling(int levels, bool loop = false) {
  std::string bytes = "bplist00";
  std::string table;
  const auto begin_object = [&] { table += static_cast<char>(bytes.size()); };
  for (int i = 0; i < levels; ++i) {
    begin_object();
    bytes += std::string("\xA2") + static_cast<char>(i + 1) + static_cast<char>(i + 1);
  }
  begin_object();
  bytes += loop ? std::string("\xA1\0", 2) : std::string("\xA0");
  const auto table_at = static_cast<char>(bytes.size());
  std::string trailer(32, '\0');
  trailer[6] = trailer[7] = 1;
  trailer[15] = static_cast<char>(levels + 1);
  trailer[31] = table_at;
  return bytes + table + trailer;
}

TEST(PropertyList, EveryKindComesBackEqual) {
  Array numbers;
  for (const std::int64_t whole :
       {std::int64_t{0}, std::int64_t{-45}, std::int64_t{INT64_MIN}, std::int64_t{INT64_MAX}})
    numbers.emplace_back(Number(whole));
  for (const double real : {0.1, 1.0 / 3, -72.25, 1e300, 123456.789012345})
    numbers.emplace_back(Number(real));
  for (const float real : {0.1F, 1e-38F, -3.4e38F}) numbers.emplace_back(Number(real));
  const Value value(Dictionary{{"text", "a<b>&\"'\xC3\xA9\n\ttwo"},
                               {"k<&>", ""},
                               {"data", Data{0, 255, 10}},
                               {"none", Data{}},
                               {"yes", Value::Boolean(true)},
                               {"list", Array{"x", Array{}, Dictionary{}}},
                               {"numbers", numbers}});
  const std::optional<std::string> xml = SerializePropertyList(value);
  ASSERT_TRUE(xml);
  EXPECT_EQ(Parse(*xml), value);
}

TEST(PropertyList, ValuesAreWhatTheyMean) {
  const std::pair<std::string, Value> rows[] = {
      {"<integer>18446744073709551615</integer>", Number(18446744073709551615.0)},  // never -1
      {"<integer>-1</integer>", Number(-1)},
      {"<date>2026-11-22T14:30:15Z</date>", Number(3878202615)},
      {"<dict><key>e\xCC\x81</key><string>e\xCC\x81</string></dict>",
       Dictionary{{"\xC3\xA9", "\xC3\xA9"}}},
  };
  for (const auto& [body, value] : rows) EXPECT_EQ(Parse(Document(body)), value) << body;
}

TEST(PropertyList, DamagedOrHostileListsAreRefused) {
  const std::string deep = Repeat("<array>", 500000);
  const std::pair<const char*, std::string> rows[] = {
      {"empty", ""},
      {"no property list", "hello"},
      {"another document", "<html><body/></html>"},
      {"truncated", Document("<dict><key>a</key><string>x").substr(0, 80)},
      {"key that is no key", Document("<dict><string>a</string></dict>")},
      {"unknown entity", Document("<string>&foo;</string>")},
      {"text that is not UTF-8", Document("<string>\xFF</string>")},
      {"deep and unclosed", "<plist>" + deep},
      {"deep and closed", Document(deep + Repeat("</array>", 500000))},
      {"depth hidden in attributes",
       Document(Repeat("<array a=\"></array>\">", 100000) + Repeat("</array>", 100000))},
      {"depth hidden in a comment", Document(Repeat("<array><!--></array>-->", 100000))},
      {"depth hidden in a subset", "<!DOCTYPE plist [<!ENTITY a \"></array>\">]>" + Document(deep)},
      {"closed before it is opened",
       Document("</plist>" + Repeat("</array>", 500000) + "<plist>" + deep)},
      {"too many elements", Document("<array>" + Repeat("<true/>", 1000001) + "</array>")},
      {"binary, cut short", "bplist00"},
      {"binary, holds itself", Doubling(3, true)},
      {"binary, unfolds to a billion", Doubling(30)},
      {"binary, deep", Doubling(70) + Doubling(70)},
      {"binary, a key with a NUL", std::string("bplist00\xD1\x01\x02\x61\0\0\x09", 15) +
                                       std::string("\x08\x0B\x0E", 3) + std::string(6, '\0') +
                                       std::string("\1\1", 2) + std::string(7, '\0') + '\3' +
                                       std::string(15, '\0') + '\x0F'},
      {"binary, of another version", "bplist01" + Document("<string>x</string>")},
  };
  for (const auto& [name, bytes] : rows) EXPECT_FALSE(Parse(bytes)) << name;
}

TEST(PropertyList, SharedPartsOfBinaryListsAreUnfolded) {
  const std::optional<Value> list = Parse(Doubling(10));
  ASSERT_TRUE(list);
  EXPECT_EQ(list->AsArray()->size(), 2U);
}

TEST(PropertyList, WhatXmlCannotHoldIsNotWritten) {
  Value deep;
  for (int i = 0; i < 200000; ++i) {
    Array array(1);
    array[0] = std::move(deep);
    deep = std::move(array);
  }
  EXPECT_FALSE(SerializePropertyList(deep));
  for (const Value& value :
       {Value("\x01"), Value(std::string("a\0b", 3)), Value(Dictionary{{"\xFF", "x"}})})
    EXPECT_FALSE(SerializePropertyList(value));
}

}  // namespace
}  // namespace zarvo
