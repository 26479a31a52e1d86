// SPDX-License-Identifier: Apache-2.0
// Random tickets: whatever the options hold, the ticket written from them can be read.
#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/ParseOptions.h"
#include "tests/unit/transcript.h"

namespace zarvo {
namespace {

/// The first tag that does not match its partner, or an empty text. Knows the two places where
/// the ticket format does not match: the account id, and a punch choice that repeats a start line.
std::string FirstMismatch(std::string xml) {
  xml = std::regex_replace(xml, std::regex("</job-accounting-id>"), "</job-account-id>");
  xml = std::regex_replace(xml, std::regex("(\t\t<finishings syntax=\"1setOf\">\n)\\1"), "$1");
  static const std::regex markup("<(/?)([a-z][a-z0-9-]*)([^<>]*)>|[<>\"'&]");
  static const std::regex entity("&(quot|amp|apos|lt|gt);");
  std::vector<std::string> open;
  const std::string body = std::regex_replace(xml.substr(xml.find("<jtml")), entity, "");
  for (std::sregex_iterator tag(body.begin(), body.end(), markup), end; tag != end; ++tag) {
    if ((*tag)[2].length() == 0) return tag->str();
    if ((*tag)[1].length() == 0) {
      open.push_back((*tag)[2]);
    } else if (open.empty() || open.back() != (*tag)[2]) {
      return tag->str();
    } else {
      open.pop_back();
    }
  }
  return open.empty() ? "" : open.back();
}

// Every documented key, in range, at the edges, of a wrong type or absent.
TEST(JtmlRandom, TicketsStayWellFormed) {
  std::ifstream file(ZARVO_SOURCE_DIR "/docs/ticket.md");
  std::stringstream page;
  page << file.rdbuf();
  const std::string text = page.str();
  static const std::regex row("\n\\| `([^`]+)` \\|");
  std::vector<std::string> names;
  for (std::sregex_iterator match(text.begin(), text.end(), row), end; match != end; ++match) {
    names.push_back((*match)[1]);
  }
  ASSERT_GT(names.size(), 150U);

  std::vector<std::string> values = {"", "plain", "\x01<a&\"'>", std::string(3000, '&'),
                                     std::string(254, 'x') + "\xC3\xA9\xC3\xA9"};
  std::istringstream words(
      "0 1 2 3 4 5 8 13 15 22 30 49 52 645 2147483647 -2147483648 -1 false true");
  for (std::string word; words >> word;) values.push_back(word);
  static const std::regex type("\\.\\.[a-z]$");
  constexpr const char* types[] = {"", "..n", "..b", "..D", "..d_x", "..a_0"};
  for (unsigned seed = 0; seed < 200; ++seed) {
    std::mt19937 random(seed);
    const auto one_in = [&random](unsigned n) { return random() % n == 0; };
    std::vector<std::pair<std::string, std::string>> options = {
        {"com.zarvo.print.JTMLOptions..d_JTMLOptionAll..b", "true"}};
    for (std::string name : names) {
      if (one_in(3)) continue;
      if (one_in(8)) {  // a wrong type
        name = std::regex_replace(name, type, "") + types[random() % std::size(types)];
      }
      if (const auto position = name.find("_0.."); position != std::string::npos && one_in(3)) {
        name[position + 1] = '1';
      }
      options.emplace_back(name, values[random() % values.size()]);
    }
    std::vector<cups_option_t> list;
    for (auto& [name, value] : options) list.push_back({name.data(), value.data()});
    const Dictionary ticket =
        ParseCUPSOptionsToDictionary(list.data(), static_cast<int>(list.size()));
    testing::internal::CaptureStderr();
    const std::string xml = CollectOutput([&](std::FILE* ofp) { WriteJTML(ofp, ticket); });
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(FirstMismatch(xml), "") << "seed " << seed << '\n' << xml;
    EXPECT_EQ(xml.find('\x01'), std::string::npos) << "seed " << seed;
  }
}

}  // namespace
}  // namespace zarvo
