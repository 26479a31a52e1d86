// SPDX-License-Identifier: Apache-2.0
// The sections of the JTML ticket, from option text to ticket text.
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "CUPSFilter/JTML/BackgroundFormsSection.h"
#include "CUPSFilter/JTML/ColorSection.h"
#include "CUPSFilter/JTML/CommandsSection.h"
#include "CUPSFilter/JTML/FinishingSection.h"
#include "CUPSFilter/JTML/ImageShiftSection.h"
#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JTML/JobSection.h"
#include "CUPSFilter/JTML/SpecialPagesSection.h"
#include "CUPSFilter/JTML/StockSection.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "tests/unit/transcript.h"

namespace zarvo {
namespace {

void WriteToStream(const Dictionary& ticket) { WriteJTML(jtml_ofp, ticket); }

using Driver = void (*)(const Dictionary&);
#define NAMED(driver) \
  { #driver, &driver }
const std::map<std::string, Driver> kDrivers = {
    {"WriteJTML", &WriteToStream},   NAMED(WriteJTMLJobNameAndUser),
    NAMED(WriteJTMLJobNotes),        NAMED(WriteJTMLJobType),
    NAMED(WriteJTMLAccounting),      NAMED(WriteJTMLPagesToPrint),
    NAMED(WriteJTMLBackgroundForms), NAMED(WriteJTMLFinishing),
    NAMED(WriteJTMLDuplex),          NAMED(WriteJTMLOutputDestination),
    NAMED(WriteJTMLLightenDarken),   NAMED(WriteJTMLTonerSaver),
    NAMED(WriteJTMLOffset),          NAMED(WriteJTMLPrinterEmulation),
    NAMED(WriteJTMLImageRotation),   NAMED(WriteJTMLOPISubsitution),
    NAMED(WriteJTMLOPIPreScan),      NAMED(WriteJTMLAntiAliasing),
    NAMED(WriteJTMLOutputOrder),     NAMED(WriteJTMLOutputColor),
    NAMED(WriteJTMLResolution),      NAMED(WriteJTMLHalftone),
    NAMED(WriteJTMLImageShift),      NAMED(WriteJTMLHighlightColor),
    NAMED(WriteJTMLFullColor),       NAMED(WriteJTMLJobLevelStock),
    NAMED(WriteJTMLFrontCover),      NAMED(WriteJTMLBackCover),
    NAMED(WriteJTMLInserts),         NAMED(WriteJTMLExceptions)};
#undef NAMED

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
  using namespace std::string_view_literals;
  constexpr auto text =
      "<a & 'b' \"c\">&amp;\0\x01\x1F\x7F\t\n\r\xC3\xA9\xF0\x9F\x98\x80 "
      "\xEF\xBF\xBE\xEF\xBF\xBF\xEF\xBF\xBD\xEF\xBF"sv;
  EXPECT_EQ(XMLCreateStringByEscapingEntities(text),
            "&lt;a &amp; &apos;b&apos; &quot;c&quot;&gt;&amp;amp;???\x7F\t\n\r"
            "\xC3\xA9\xF0\x9F\x98\x80 ??\xEF\xBF\xBD\xEF\xBF");
}

}  // namespace
}  // namespace zarvo
