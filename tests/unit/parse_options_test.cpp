// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/ParseOptions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zarvo {
namespace {

std::string Show(const Value& value) {
  if (const auto* text = value.AsString()) return "'" + *text + "'";
  if (const auto* boolean = value.AsBoolean()) return *boolean ? "true" : "false";
  if (const auto* number = value.AsNumber()) {
    std::int64_t whole = 0;
    number->Get(&whole);
    return std::to_string(whole);
  }
  std::string text;
  if (const auto* data = value.AsData()) {
    for (const auto byte : *data) text += std::to_string(byte) + ".";
    return "<" + text + ">";
  }
  if (const auto* array = value.AsArray()) {
    for (const Value& element : *array) text += Show(element) + ",";
    return "(" + text + ")";
  }
  for (const auto& [key, element] : *value.AsDictionary()) text += key + "=" + Show(element) + ";";
  return "{" + text + "}";
}

/// The ticket that an option text gives, the way the filter decodes it.
std::string Ticket(const std::string& text) {
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &options);
  const auto ordered = NaturalOrder(count, options);
  const Dictionary ticket =
      ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
  cupsFreeOptions(count, options);
  return Show(Value(ticket));
}

TEST(ParseOptions, DecodesEveryAddressAndType) {
  struct Row {
    const char* options;
    const char* ticket;
  };
  const Row rows[] = {
      {"", "{}"},
      {"sides=two-sided-long-edge", "{sides='two-sided-long-edge';}"},
      {"a.b=1", "{a.b='1';}"},
      {"K..x=v", "{K='v';}"},  // an unknown letter is a string
      {"K..=v", "{K='v';}"},   // and so is none
      {"K..n=12abc L..n=-5 M..n=x N..n=99999999999 O..n=' +7'",
       "{K=12;L=-5;M=0;N=2147483647;O=7;}"},
      {"K..b=false L..b=False M..b=0 N..b=''", "{K=false;L=true;M=true;N=true;}"},
      {"K..D=00ff1 L..D=zz M..D=''", "{K=<0.255.>;L=<239.>;M=<>;}"},
      {"K..d_JobType..n=6", "{K={JobType=6;};}"},
      {"K..d-JobType..n=6", "{K={JobType=6;};}"},  // any one character separates
      {"K..d\xC3\xA9x..n=6", "{K={x=6;};}"},       // also one of two bytes
      {"K..d_sub=v", "{K={sub='v';};}"},           // no type is a string
      {"K..d=v K..d_=w", "{K={='w';};}"},          // a short address is the empty key
      {"K..d_x..n=12abc", "{K={};}"},              // strict in dictionaries; the container stays
      {"K..d_a..n=+4 K..d_b..n=-9223372036854775808 K..d_c..n=9223372036854775808 "
       "K..d_d..n=' 1' K..d_e..n=+-1 K..d_f..n=+",
       "{K={a=4;b=-9223372036854775808;};}"},
      {"K..a_0..s=x K..a_1..n=7", "{K=('x',7,);}"},
      {"K..a_0..d_n..s=one K..a_0..d_f..s=two", "{K=({f='two';n='one';},);}"},
      {"K..d_Inner..a_0..b=false", "{K={Inner=(false,);};}"},
      {"K..a_1..n=2", "{K=();}"},  // beyond the end
      {"K..a_-1..n=2", "{K=();}"},
      {"K..a_2147483648..n=2", "{K=();}"},
      {"K..a_0..a_3..n=1", "{K=((),);}"},
      {"K..a_5..a_0..n=1", "{K=();}"},
      {"K..n=1 K..a_0..n=2", "{K=1;}"},  // the number is in the way of the array
      {"K..a_0..n=1 K..d_x..n=2", "{K=(1,);}"},
      {"K..d_x..n=1 K..d_x..a_0..n=2", "{K={x=1;};}"},
      {"K=\xFF L..d_x=\xFF", "{L={};}"},  // not UTF-8
      {"K=e\xCC\x81", "{K='\xC3\xA9';}"},
  };
  for (const Row& row : rows) EXPECT_EQ(Ticket(row.options), row.ticket) << row.options;
}

TEST(ParseOptions, ArraysOfAnyLengthArriveWholeAndInOrder) {
  std::string text;
  std::string expected;
  for (int i = 0; i < 114; ++i) {
    text += "K..a_" + std::to_string(i) + "..d_FaxNumber..s=" + std::to_string(500 + i) + " ";
    expected += "{FaxNumber='" + std::to_string(500 + i) + "';},";
  }
  EXPECT_EQ(Ticket(text), "{K=(" + expected + ");}");
}

TEST(ParseOptions, DepthAndSizeAreBoundOnlyByTheText) {
  constexpr int kDepth = 25000;
  std::string name = "K";
  for (int i = 0; i < kDepth; ++i) name += "..a_0";
  name += "..n";
  cups_option_t deep{name.data(), const_cast<char*>("1")};
  const Dictionary ticket = ParseCUPSOptionsToDictionary(&deep, 1);
  const Value* value = &ticket.at("K");
  int depth = 0;
  for (; value->AsArray() != nullptr; ++depth) value = &value->AsArray()->at(0);
  EXPECT_EQ(depth, kDepth);
  std::vector<std::string> names;
  for (int i = 0; i < 100000; ++i) names.push_back("K..a_" + std::to_string(i) + "..n");
  std::vector<cups_option_t> many;
  for (std::string& element : names) many.push_back({element.data(), const_cast<char*>("1")});
  const Dictionary long_list = ParseCUPSOptionsToDictionary(many.data(), 100000);
  EXPECT_EQ(long_list.at("K").AsArray()->size(), 100000u);
}

}  // namespace
}  // namespace zarvo
