// SPDX-License-Identifier: Apache-2.0
#include "StandardTicket/AttributeTable.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "Source/TicketNames.h"

namespace zarvo {
namespace {

/// A value and the number that it gives a key of the ticket. A value may have several rows.
struct Word {
  enum Effect : std::uint8_t {
    kSet,        ///< sets `key`, in the XML ticket
    kElsewhere,  ///< sets `key`; the PostScript says it too, so that it takes no XML ticket
    kDefault,    ///< the same; programs send it unasked, so that it conflicts with nothing
    kNothing,    ///< asks for nothing
    kCannot,     ///< not honoured
    kNearest,    ///< like kSet, but not all that was asked for
  };
  std::string_view attribute;
  std::string_view value;
  Effect effect;
  std::string_view key = {};
  std::int32_t code = 0;
  const char* reason = nullptr;      ///< of kCannot and kNearest
  const char* dictionary = nullptr;  ///< that holds `key`; null: it is at the top of the ticket
};
using enum Word::Effect;

/// The one colorant that is in the printer beside black.
constexpr std::int32_t kLoadedColorant = 5;
constexpr char kNoSuchBin[] = "the printers have no such bin; use top, stacker, or one by number";
constexpr char kNoTurn[] = "the printers turn pages by 180 degrees only; use orientation-requested";
constexpr char kNoPlace[] =
    "the printers shift pages but do not align them; use x- and y-image-shift";

// Of one attribute next to each other.
constexpr Word kWords[] = {
    {"sides", "one-sided", kDefault, key::kFinishingDuplex, kOneSided},
    {"sides", "two-sided-long-edge", kElsewhere, key::kFinishingDuplex, kLongEdge},
    {"sides", "two-sided-short-edge", kElsewhere, key::kFinishingDuplex, kShortEdge},

    {"printer-resolution", "300dpi", kSet, key::kResolution, 1},
    {"printer-resolution", "600dpi", kDefault, key::kResolution, 2},
    {"printer-resolution", "1200x600dpi", kSet, key::kResolution, 3},
    {"printer-resolution", "1200dpi", kSet, key::kResolution, 4},
    {"printer-resolution",
     "*",
     kCannot,
     {},
     0,
     "the printers know 300, 600, 1200 x 600 and 1200 dpi"},

    {"print-color-mode", "auto", kNothing},
    {"print-color-mode", "color", kDefault, key::kFinishingOutputColor, 2},
    {"print-color-mode", "monochrome", kSet, key::kFinishingOutputColor, 1},
    {"print-color-mode", "auto-monochrome", kSet, key::kFinishingOutputColor, 1},
    {"print-color-mode", "process-monochrome", kSet, key::kFinishingOutputColor, 1},
    {"print-color-mode", "bi-level", kNearest, key::kFinishingOutputColor, 1,
     "it is printed in shades of gray"},
    {"print-color-mode", "process-bi-level", kNearest, key::kFinishingOutputColor, 1,
     "it is printed in shades of gray"},
    {"print-color-mode", "highlight", kSet, key::highlight::kPrintingColor, kLoadedColorant,
     nullptr, key::kHighlightColorOptionsJob},

    {"output-bin", "auto", kSet, key::kFinishingOutputDestination, kBinAutomatic},
    {"output-bin", "top", kSet, key::kFinishingOutputDestination, kBinTop},
    {"output-bin", "top-1", kSet, key::kFinishingOutputDestination, kBinTop1},
    {"output-bin", "top-2", kSet, key::kFinishingOutputDestination, kBinTop2},
    {"output-bin", "stacker", kSet, key::kFinishingOutputDestination, kBinStacker},
    {"output-bin", "stacker-1", kSet, key::kFinishingOutputDestination, kBinStacker1},
    {"output-bin", "stacker-2", kSet, key::kFinishingOutputDestination, kBinStacker2},
    {"output-bin", "printer-default", kNothing},
    {"output-bin", "*", kCannot, {}, 0, kNoSuchBin},

    {"page-delivery", "system-specified", kNothing},
    {"page-delivery", "same-order-face-down", kSet, key::kOutputOrder, kSameOrderFaceDown},
    {"page-delivery", "reverse-order-face-up", kSet, key::kOutputOrder, kReverseOrderFaceUp},
    {"page-delivery", "same-order-face-up", kSet, key::kOutputOrder, kSameOrderFaceUp},
    {"page-delivery", "reverse-order-face-down", kSet, key::kOutputOrder, kReverseOrderFaceDown},
    // Two words of the spooler's own; the order is the converters' doing.
    {"page-delivery", "same-order", kNothing},
    {"page-delivery", "reverse-order", kNothing},

    {"print-quality", "3", kSet, key::kTonerSaver, 1},
    {"print-quality", "4", kNothing},
    {"print-quality", "5", kSet, key::kResolution, 4},

    {"image-orientation", "3", kSet, key::kAdvancedRotateImage180, kRotate0},
    {"image-orientation", "6", kSet, key::kAdvancedRotateImage180, kRotate180},
    {"image-orientation", "7", kNothing},
    {"image-orientation", "*", kCannot, {}, 0, kNoTurn},

    {"x-image-position", "none", kNothing},
    {"x-image-position", "*", kCannot, {}, 0, kNoPlace},
    {"y-image-position", "none", kNothing},
    {"y-image-position", "*", kCannot, {}, 0, kNoPlace},
};

/// How colours are rendered, by what is on the page; 0 leaves it as it is.
struct Rendering {
  std::string_view attribute;
  std::string_view value;
  std::int32_t images, text, graphics;
  const char* reason = nullptr;
};
constexpr std::int32_t kSaturation = 1, kRelative = 2, kAbsolute = 3, kPerceptual = 4,
                       kPureText = 5, kAutomatic = 6;
constexpr Rendering kRenderings[] = {
    {"print-rendering-intent", "saturation", kSaturation, kSaturation, kSaturation},
    {"print-rendering-intent", "relative", kRelative, kRelative, kRelative},
    {"print-rendering-intent", "relative-bpc", kRelative, kRelative, kRelative,
     "the printers do not compensate the black point"},
    {"print-rendering-intent", "absolute", kAbsolute, kAbsolute, kAbsolute},
    {"print-rendering-intent", "perceptual", kPerceptual, kPerceptual, kPerceptual},
    {"print-rendering-intent", "auto", kAutomatic, kAutomatic, kAutomatic},
    {"print-content-optimize", "auto", 0, 0, 0},
    {"print-content-optimize", "text", 0, kPureText, 0},
    {"print-content-optimize", "graphic", 0, 0, kSaturation},
    {"print-content-optimize", "photo", kPerceptual, 0, 0},
    {"print-content-optimize", "text-and-graphic", 0, kPureText, kSaturation},
};

/// Texts that are copied.
struct CopiedText {
  const char* attribute;
  std::string_view key;
  bool needs_xml;
};
constexpr CopiedText kTexts[] = {
    {"job-message-to-operator", key::kJobNotesMessage, true},
    {"job-recipient-name", key::kJobNotesRecipient, true},
    {"job-sheet-message", key::kJobNotesSheetMessage, true},
    {"job-billing", key::kJobNotesAdditionalInfo, true},
    // Every job has these two; they alone are no reason for an XML ticket.
    {"job-name", key::kJobNotesJobName, false},
    {"job-originating-user-name", key::kJobNotesSenderName, false},
};

struct PathDisposition {
  std::string_view path;
  Disposition::Kind kind;
  const char* reason = nullptr;
};

constexpr char kNoTrim[] = "the printers do not trim";
constexpr char kNoBale[] = "the printers do not bale";
constexpr char kNoCoat[] = "the printers do not coat";
constexpr char kNoLaminate[] = "the printers do not laminate";
constexpr char kItsPlace[] = "the finisher chooses the place; only the edge and the number count";
constexpr char kFaxRetries[] =
    "the printer's own fax settings say how often and when it tries again";

// A path ends at a member; one that is refused is refused with all below it.
constexpr PathDisposition kDispositions[] = {
    {"copies", Disposition::kLeft},
    {"media", Disposition::kLeft},
    {"multiple-document-handling", Disposition::kLeft},
    {"number-up", Disposition::kLeft},
    {"orientation-requested", Disposition::kLeft},
    {"page-ranges", Disposition::kLeft},
    {"print-scaling", Disposition::kLeft},
    {"sheet-collate", Disposition::kLeft},
    // They tell which media a template is for, not what to do.
    {"finishings-col/media-sheets-supported", Disposition::kLeft},
    {"finishings-col/media-size", Disposition::kLeft},
    {"finishings-col/media-size-name", Disposition::kLeft},
    // The margins of the size, which the PPD knows.
    {"media-col/media-bottom-margin", Disposition::kLeft},
    {"media-col/media-left-margin", Disposition::kLeft},
    {"media-col/media-right-margin", Disposition::kLeft},
    {"media-col/media-top-margin", Disposition::kLeft},

    {"force-front-side", Disposition::kRefused,
     "the printers do not move single pages to a front; put blank pages into the document"},
    {"job-phone-number", Disposition::kRefused,
     "the printers keep no telephone number of a job; put it into job-message-to-operator"},
    {"job-storage/job-storage-group", Disposition::kRefused,
     "whoever is at the printer can print a saved job; use job-password"},
    {"media-input-tray-check", Disposition::kRefused,
     "the printers check their trays by themselves"},
    {"media-overprint", Disposition::kRefused, "the printers do not print beyond the paper's edge"},
    {"number-of-retries", Disposition::kRefused, kFaxRetries},
    {"retry-interval", Disposition::kRefused, kFaxRetries},
    {"retry-time-out", Disposition::kRefused, kFaxRetries},
    {"print-color-mode-icc-profiles", Disposition::kRefused,
     "profiles are the printer's own; choose them in the PPD"},
    {"cover-sheet-info/logo", Disposition::kRefused,
     "no picture is fetched for a cover sheet; use a fax watermark"},
    {"destination-uris/destination-attributes", Disposition::kRefused,
     "all destinations of a fax are sent the same pages"},
    {"destination-uris/t33-subaddress", Disposition::kRefused,
     "the printers dial no sub-addresses"},
    {"finishings-col/baling", Disposition::kRefused, kNoBale},
    {"finishings-col/coating", Disposition::kRefused, kNoCoat},
    {"finishings-col/covering", Disposition::kRefused, "use cover-front and cover-back"},
    {"finishings-col/laminating", Disposition::kRefused, kNoLaminate},
    {"finishings-col/trimming", Disposition::kRefused, kNoTrim},
    {"finishings-col/binding/binding-type", Disposition::kRefused,
     "the finisher has one way of binding"},
    {"finishings-col/folding/folding-offset", Disposition::kRefused, kItsPlace},
    {"finishings-col/folding/folding-reference-edge", Disposition::kRefused, kItsPlace},
    {"finishings-col/punching/punching-offset", Disposition::kRefused, kItsPlace},
    {"finishings-col/stitching/stitching-angle", Disposition::kRefused, kItsPlace},
    {"finishings-col/stitching/stitching-offset", Disposition::kRefused, kItsPlace},
    {"media-col/media-thickness", Disposition::kRefused, "use media-weight-metric"},
    {"media-col/media-top-offset", Disposition::kRefused, "use y-image-shift"},
    {"media-col/media-tracking", Disposition::kRefused, "the printers take sheets only"},
    {"overrides/member", Disposition::kRefused, "it cannot be chosen for single pages"},
    {"proof-print/media", Disposition::kRefused, "a sample set is of the job's paper"},
    {"proof-print/media-col", Disposition::kRefused, "a sample set is of the job's paper"},
    {"separator-sheets/media", Disposition::kRefused,
     "the printer chooses the paper of slip sheets"},
    {"separator-sheets/media-col", Disposition::kRefused,
     "the printer chooses the paper of slip sheets"},
};

/// Does what the rows of `attribute` say of `value`; false when no row has it.
bool ApplyWord(std::string_view attribute, std::string_view wanted, const std::string& value,
               Mapping* mapping) {
  bool found = false;
  const std::string shown = Shown(attribute, value);
  for (const Word& word : kWords) {
    if (word.attribute != attribute || word.value != wanted) continue;
    found = true;
    if (word.reason != nullptr) mapping->Drop(shown, word.reason);
    if (word.effect == kNothing || word.effect == kCannot) continue;
    mapping->From(shown);
    if (word.effect == kSet || word.effect == kNearest) mapping->NeedXml();
    if (word.key == key::kTonerSaver) {
      mapping->Boolean(word.key, true);
    } else if (word.effect == kDefault) {
      mapping->Neutral(word.key, word.code);
    } else {
      mapping->Number(
          word.dictionary == nullptr ? std::string(word.key) : KeyIn(word.dictionary, word.key),
          word.code);
    }
  }
  return found;
}

void MapWord(const Attribute& attribute, const std::string& name, Mapping* mapping) {
  const std::optional<std::string> value = attribute.Text();
  if (!value) return mapping->Drop(name, "it is not of its type");
  if (!ApplyWord(name, *value, *value, mapping) && !ApplyWord(name, "*", *value, mapping))
    mapping->Drop(Shown(name, *value), "the printers have nothing like it");
}

}  // namespace

Disposition DispositionOf(std::string_view path) {
  for (;;) {
    for (const PathDisposition& row : kDispositions) {
      if (row.path == path) return {row.kind, row.reason};
    }
    const std::size_t slash = path.rfind('/');
    if (slash == path.npos) return {};
    path = path.substr(0, slash);
  }
}

bool MapRendering(Members* members, const std::string& dictionary, Mapping* mapping) {
  bool any = false;
  for (const char* name : {"print-rendering-intent", "print-content-optimize"}) {
    const Attribute attribute = members->Take(name);
    if (!attribute) continue;
    const std::string value = attribute.Text().value_or("");
    const std::string shown = Shown(members->PathOf(name), value);
    const auto row = std::find_if(
        std::begin(kRenderings), std::end(kRenderings),
        [&](const Rendering& known) { return known.attribute == name && known.value == value; });
    if (row == std::end(kRenderings)) {
      mapping->Drop(shown, "the printers have nothing like it");
      continue;
    }
    const std::pair<const char*, std::int32_t> codes[] = {
        {key::full_color::kImageRendering, row->images},
        {key::full_color::kTextRendering, row->text},
        {key::full_color::kGraphicsRendering, row->graphics}};
    const bool asks = row->images != 0 || row->text != 0 || row->graphics != 0;
    if (asks && any) {
      mapping->Drop(shown, "print-rendering-intent says how colors are rendered");
      continue;
    }
    mapping->From(shown);
    for (const auto& [key, code] : codes)
      if (code != 0) mapping->Number(KeyIn(dictionary, key), code);
    any = any || asks;
    if (row->reason != nullptr) mapping->Drop(shown, row->reason);
  }
  return any;
}

void MapWords(ipp_t* job, Mapping* mapping) {
  std::string_view last;
  for (const Word& word : kWords) {
    if (word.attribute == last) continue;
    last = word.attribute;
    const std::string name(word.attribute);
    const Attribute attribute = FindAttribute(job, name.c_str());
    // An explicit resolution is worth more than the one that a quality stands for; the quality of a
    // fax is not that of paper.
    const bool resolved = name == "print-quality" &&
                          ((attribute.Text() == "5" && FindAttribute(job, "printer-resolution")) ||
                           FindAttribute(job, "destination-uris"));
    if (attribute && !resolved) MapWord(attribute, name, mapping);
  }
  Members message(job, "");
  if (MapRendering(&message, key::kFullColorOptions, mapping)) mapping->NeedXml();
  for (const CopiedText& row : kTexts) {
    const Attribute attribute = FindAttribute(job, row.attribute);
    const std::optional<std::string> text = attribute.Text();
    if (attribute && !text) mapping->Drop(row.attribute, "it is not a text");
    if (!text || text->empty()) continue;
    mapping->From(row.attribute);
    if (mapping->Text(row.key, *text) && row.needs_xml) mapping->NeedXml();
  }
  for (const PathDisposition& row : kDispositions) {
    const std::string name(row.path);
    if (row.kind == Disposition::kRefused && name.find('/') == name.npos &&
        FindAttribute(job, name.c_str()))
      mapping->Drop(name, row.reason);
  }
}

}  // namespace zarvo
