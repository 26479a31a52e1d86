// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/ParseOptions.h"

#include "tests/unit/transcript.h"

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

TEST(ParseOptions, DecodesEveryAddressAndType) {
  const std::pair<const char*, const char*> rows[] = {
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
      {"K=\xFF L..d_x=\xFF M=\xED\xA0\x80", "{L={};}"},  // not UTF-8
      {"K=e\xCC\x81", "{K='\xC3\xA9';}"},
  };
  for (const auto& [text, ticket] : rows) EXPECT_EQ(Show(TicketOf(text)), ticket) << text;
}

}  // namespace
}  // namespace zarvo
