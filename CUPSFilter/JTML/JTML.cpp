// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/JTML.h"

#include "CUPSFilter/JTML/BackgroundFormsSection.h"
#include "CUPSFilter/JTML/ColorSection.h"
#include "CUPSFilter/JTML/CommandsSection.h"
#include "CUPSFilter/JTML/FinishingSection.h"
#include "CUPSFilter/JTML/ImageShiftSection.h"
#include "CUPSFilter/JTML/JobSection.h"
#include "CUPSFilter/JTML/SpecialPagesSection.h"
#include "CUPSFilter/JTML/StockSection.h"
#include "CUPSFilter/jtmlgen/Frame.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {

const JtmlSink writeData = {nullptr, &DevWriteJtml};

namespace {

/// The version of the document type that every supported printer reads.
constexpr int kDocumentTypeVersion = 5;

/// A section, and the key of the dictionary that it is given; null for the whole ticket.
struct Section {
  void (*write)(const Dictionary&);
  const char* options;
};

// The order is the ticket format's.
constexpr Section kSections[] = {
    {&WriteJTMLFinishing, nullptr},
    {&WriteJTMLJobNotes, nullptr},
    {&WriteJTMLJobType, nullptr},
    {&WriteJTMLDuplex, nullptr},
    {&WriteJTMLOutputDestination, nullptr},
    {&WriteJTMLResolution, nullptr},
    // Highlight colours count at the top level of the ticket as well as in their dictionary.
    {&WriteJTMLHighlightColor, nullptr},
    {&WriteJTMLImageShift, key::kImageShiftOptionsJob},
    {&WriteJTMLHighlightColor, key::kHighlightColorOptionsJob},
    {&WriteJTMLFullColor, key::kFullColorOptions},
    {&WriteJTMLOPISubsitution, nullptr},
    {&WriteJTMLOPIPreScan, nullptr},
    {&WriteJTMLAntiAliasing, nullptr},
    {&WriteJTMLHalftone, nullptr},
    {&WriteJTMLLightenDarken, nullptr},
    {&WriteJTMLTonerSaver, nullptr},
    {&WriteJTMLOutputOrder, nullptr},
    {&WriteJTMLPrinterEmulation, nullptr},
    {&WriteJTMLImageRotation, nullptr},
    {&WriteJTMLOutputColor, nullptr},
    {&WriteJTMLBackgroundForms, nullptr},
    {&WriteJTMLAccounting, nullptr},
    {&WriteJTMLPagesToPrint, nullptr},
};

void WriteSection(const Section& section, const Dictionary& ticket) {
  const Dictionary* options =
      section.options != nullptr ? DictionaryGetDictionary(ticket, section.options) : &ticket;
  if (options != nullptr) section.write(*options);
}

}  // namespace

void WriteJTML(std::FILE* ofp, const Dictionary& ticket) {
  const Dictionary* options = DictionaryGetDictionary(ticket, key::kJTMLOptions);
  if (options == nullptr) return;
  jtml_ofp = ofp;

  // An option counts by being there, whatever its value.
  const bool all = DictionaryContains(*options, key::sections::kAll);
  const bool covers = DictionaryContains(*options, key::sections::kCovers);
  const bool inserts = DictionaryContains(*options, key::sections::kInserts);
  const bool exceptions = DictionaryContains(*options, key::sections::kExceptions);
  const auto has = [&ticket](const char* key) { return DictionaryContains(ticket, key); };
  const bool writeJTMLHeaderAndFooter =
      all || (covers && (has(key::kFrontCover) || has(key::kBackCover))) ||
      (inserts && has(key::kInsertList)) || (exceptions && has(key::kExceptionList));

  if (writeJTMLHeaderAndFooter) WriteJtmlHeader(&writeData, kDocumentTypeVersion);
  if (all) WriteJTMLJobNameAndUser(ticket);
  if (writeJTMLHeaderAndFooter) WriteJtmlJobAttribStart(&writeData);
  if (all) WriteJTMLJobLevelStock(ticket);
  if (all || covers) {
    WriteJTMLFrontCover(ticket);
    WriteJTMLBackCover(ticket);
  }
  if (all || inserts) WriteJTMLInserts(ticket);
  if (all || exceptions) WriteJTMLExceptions(ticket);
  if (all) {
    for (const Section& section : kSections) WriteSection(section, ticket);
  }
  if (writeJTMLHeaderAndFooter) {
    WriteJtmlJobAttribEnd(&writeData);
    WriteJtmlTrailer(&writeData);
  }
}

}  // namespace zarvo
