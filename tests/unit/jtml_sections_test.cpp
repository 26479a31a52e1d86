// SPDX-License-Identifier: Apache-2.0
// The sections of the JTML ticket, from option text to ticket text.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JTML/Sections.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/ParseOptions.h"
#include "tests/unit/transcript.h"

namespace zarvo {
namespace {

Dictionary TicketOf(const std::string& options) {
  cups_option_t* list = nullptr;
  const int count = cupsParseOptions(options.c_str(), 0, &list);
  const std::vector<cups_option_t> ordered = NaturalOrder(count, list);
  Dictionary ticket = ParseCUPSOptionsToDictionary(ordered.data(), count);
  cupsFreeOptions(count, list);
  return ticket;
}

void WriteToStream(const Dictionary& ticket) { WriteJTML(jtml_ofp, ticket); }

using Driver = void (*)(const Dictionary&);
const std::map<std::string, Driver> kDrivers = {
    {"WriteJTML", &WriteToStream},
    {"WriteJTMLJobNameAndUser", &WriteJTMLJobNameAndUser},
    {"WriteJTMLJobNotes", &WriteJTMLJobNotes},
    {"WriteJTMLJobType", &WriteJTMLJobType},
    {"WriteJTMLAccounting", &WriteJTMLAccounting},
    {"WriteJTMLPagesToPrint", &WriteJTMLPagesToPrint},
    {"WriteJTMLBackgroundForms", &WriteJTMLBackgroundForms},
    {"WriteJTMLFinishing", &WriteJTMLFinishing},
    {"WriteJTMLDuplex", &WriteJTMLDuplex},
    {"WriteJTMLOutputDestination", &WriteJTMLOutputDestination},
    {"WriteJTMLLightenDarken", &WriteJTMLLightenDarken},
    {"WriteJTMLTonerSaver", &WriteJTMLTonerSaver},
    {"WriteJTMLOffset", &WriteJTMLOffset},
    {"WriteJTMLPrinterEmulation", &WriteJTMLPrinterEmulation},
    {"WriteJTMLImageRotation", &WriteJTMLImageRotation},
    {"WriteJTMLOPISubsitution", &WriteJTMLOPISubsitution},
    {"WriteJTMLOPIPreScan", &WriteJTMLOPIPreScan},
    {"WriteJTMLAntiAliasing", &WriteJTMLAntiAliasing},
    {"WriteJTMLOutputOrder", &WriteJTMLOutputOrder},
    {"WriteJTMLOutputColor", &WriteJTMLOutputColor},
    {"WriteJTMLResolution", &WriteJTMLResolution},
    {"WriteJTMLHalftone", &WriteJTMLHalftone},
    {"WriteJTMLImageShift", &WriteJTMLImageShift},
    {"WriteJTMLHighlightColor", &WriteJTMLHighlightColor},
    {"WriteJTMLFullColor", &WriteJTMLFullColor},
    {"WriteJTMLJobLevelStock", &WriteJTMLJobLevelStock},
    {"WriteJTMLFrontCover", &WriteJTMLFrontCover},
    {"WriteJTMLBackCover", &WriteJTMLBackCover},
    {"WriteJTMLInserts", &WriteJTMLInserts},
    {"WriteJTMLExceptions", &WriteJTMLExceptions},
};

/// What a driver writes and logs for a ticket.
std::string Output(Driver driver, const Dictionary& ticket) {
  testing::internal::CaptureStderr();
  std::string text = CollectOutput([&](std::FILE* stream) {
    jtml_ofp = stream;
    driver(ticket);
  });
  if (!text.empty() && !text.ends_with('\n')) text += "\n(no line feed)\n";
  std::istringstream log(testing::internal::GetCapturedStderr());
  for (std::string line; std::getline(log, line);) text += "! " + line + '\n';
  return text;
}

// The transcripts hold their own input: "== driver", then "> options" for each case.
TEST(JtmlSections, Transcripts) {
  for (const char* name : {"jtml_sections.txt", "jtml_special_pages.txt", "jtml_ticket.txt"}) {
    std::ifstream file(ExpectedFile(name));
    ASSERT_TRUE(file) << name;
    std::string actual;
    Driver driver = nullptr;
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with("== ")) {
        ASSERT_TRUE(kDrivers.contains(line.substr(3))) << line;
        driver = kDrivers.at(line.substr(3));
      }
      if (line.starts_with("== ") || line.starts_with("# ")) actual += line + '\n';
      if (line.starts_with("> ")) actual += line + '\n' + Output(driver, TicketOf(line.substr(2)));
    }
    CompareWithExpected(name, actual);
  }
}

TEST(JtmlSections, EscapesWhatXmlCannotHold) {
  const struct {
    std::string_view text, escaped;
  } rows[] = {
      {"", ""},
      {"plain \xC3\xA9\xF0\x9F\x98\x80", "plain \xC3\xA9\xF0\x9F\x98\x80"},
      {"<a & 'b' \"c\">", "&lt;a &amp; &apos;b&apos; &quot;c&quot;&gt;"},
      {"&amp;", "&amp;amp;"},
      {std::string_view("\0\x01\x1F\x7F\t\n\r", 7), "???\x7F\t\n\r"},
      {"\xEF\xBF\xBE\xEF\xBF\xBF\xEF\xBF\xBD\xEF\xBF", "??\xEF\xBF\xBD\xEF\xBF"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(XMLCreateStringByEscapingEntities(row.text), row.escaped);
  }
}

}  // namespace
}  // namespace zarvo
