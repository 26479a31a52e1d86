// SPDX-License-Identifier: Apache-2.0
// Media: what "media" and "media-col" say of the job's paper, a cover's, an insert's or an
// exception's.
#include <cups/cups.h>
#include <cups/pwg.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "Source/Mappings.h"
#include "Source/TicketNames.h"
#include "StandardTicket/Mapping.h"

namespace zarvo {
namespace {

/// Sizes in points, inches or millimetres differ by their rounding: hundredths of a millimetre.
constexpr int kTolerance = 60;
/// A size of no row of the table, whose width and length are given.
constexpr std::int32_t kSizeWithoutCode = 0;
/// No tray: the printer looks for the paper by what is said of it.
constexpr std::int32_t kAnyTray = -1;

constexpr char kNoKind[] = "the printers have no word for this kind of paper";
constexpr char kOnlyKind[] = "the printers know the kind but not this variety of it";

/// A word for a stock and the numbers it gives one or two keys.
struct StockWord {
  std::string_view member;
  std::string_view value;
  const char* key;
  std::int32_t code;
  const char* key2 = nullptr;
  std::int32_t code2 = 0;
};

constexpr StockWord kStockWords[] = {
    {"media-type", "stationery", key::stock::kType, kStandardStock},
    {"media-type", "stationery-preprinted", key::stock::kType, kPreprintedStock},
    {"media-type", "stationery-recycled", key::stock::kType, kRecycledStock},
    {"media-type", "stationery-letterhead", key::stock::kType, kStandardStock,
     key::stock::kPrePrinted, 2},
    {"media-type", "letterhead", key::stock::kType, kStandardStock, key::stock::kPrePrinted, 2},
    {"media-type", "paper", key::stock::kType, kStandardStock},
    {"media-type", "plain", key::stock::kType, kStandardStock},
    {"media-type", "preprinted", key::stock::kType, kPreprintedStock},
    {"media-type", "recycled", key::stock::kType, kRecycledStock},
    {"media-type", "transparency", key::stock::kType, kTransparencyStock},
    {"media-type", "envelope", key::stock::kType, kEnvelopeStock},
    {"media-type", "envelope-plain", key::stock::kType, kEnvelopeStock},
    {"media-type", "labels", key::stock::kType, kLabelStock},
    {"media-type", "tabs", key::stock::kType, kTabStock},
    {"media-type", "tab-stock", key::stock::kType, kTabStock},
    {"media-color", "white", key::stock::kColor, kWhite},
    {"media-color", "blue", key::stock::kColor, kBlue},
    {"media-color", "yellow", key::stock::kColor, kYellow},
    {"media-color", "green", key::stock::kColor, kGreen},
    {"media-color", "pink", key::stock::kColor, kPink},
    {"media-color", "no-color", key::stock::kColor, kClear},
    {"media-color", "buff", key::stock::kColor, kBuff},
    {"media-color", "goldenrod", key::stock::kColor, kGoldenrod},
    {"media-color", "red", key::stock::kColor, kRed},
    {"media-color", "ivory", key::stock::kColor, kIvory},
    {"media-color", "gray", key::stock::kColor, kGray},
    {"media-color", "orange", key::stock::kColor, kOrange},
    {"media-grain", "y-direction", key::stock::kGrain, 1},
    {"media-grain", "x-direction", key::stock::kGrain, 2},
    {"media-pre-printed", "blank", key::stock::kPrePrinted, 0},
    {"media-pre-printed", "pre-printed", key::stock::kPrePrinted, 1},
    {"media-pre-printed", "letter-head", key::stock::kPrePrinted, 2},
    {"media-recycled", "none", key::stock::kRecycled, 0},
    {"media-recycled", "standard", key::stock::kRecycled, 1},
    {"media-tooth", "fine", key::stock::kFinish, 1},
    {"media-tooth", "medium", key::stock::kFinish, 2},
    {"media-tooth", "coarse", key::stock::kFinish, 3},
};
/// Words that leave the choice to the printer.
constexpr std::string_view kOpenWords[] = {"auto", "printer-default"};

/// Varieties of a kind; the kind is taken.
struct Variety {
  std::string_view prefix;
  std::int32_t type;
};
constexpr Variety kVarieties[] = {
    {"stationery-", kStandardStock}, {"envelope-", kEnvelopeStock},
    {"labels-", kLabelStock},        {"pre-cut-tabs", kTabStock},
    {"full-cut-tabs", kTabStock},    {"transparency-", kTransparencyStock}};

struct Coating {
  std::string_view value;
  std::int32_t code;
};
constexpr Coating kCoatings[] = {{"none", 0},       {"glossy", 1}, {"high-gloss", 2},
                                 {"semi-gloss", 3}, {"satin", 4},  {"matte", 5}};

/// Numbers that are copied when they are above 0.
struct StockNumber {
  const char* member;
  const char* key;
};
constexpr StockNumber kNumbers[] = {{"media-weight-metric", key::stock::kWeight},
                                    {"media-hole-count", key::stock::kPunched},
                                    {"media-order-count", key::stock::kOrderCount}};

/// What is known of a stock; the rest of its members is said through settings at once.
class StockMapper {
 public:
  StockMapper(std::string stock, Mapping* mapping) : stock_(std::move(stock)), mapping_(mapping) {}

  void Column(Members* members) {
    Size(members);
    Key(members);
    Source(members);
    const std::size_t said = mapping_->ticket().settings.size();
    for (const char* member : {"media-type", "media-color", "media-grain", "media-pre-printed",
                               "media-recycled", "media-tooth"})
      Choice(members, member);
    for (const StockNumber& row : kNumbers) Count(members, row);
    Coatings(members);
    Info(members);
    members->TellRest(mapping_, "media-col");
    // Within one collection; the tray or the name is all that is sent then.
    if (tray_ || named_) TellUnsent(said);
  }

  void Keyword(const std::string& path, const std::string& media) {
    if (SizeByName(media)) return;
    if (const std::optional<std::int32_t> tray = TrayOf(media)) {
      Tray(path, media, *tray);
      return;
    }
    mapping_->From(Shown(path, media));
    named_ = mapping_->Text(KeyIn(stock_, key::stock::kName), media);
    described_ = true;
  }

  /// A single member that stands outside of a collection.
  void Single(Members* members, const char* member) {
    if (std::string_view(member) == "media-source") {
      Source(members);
    } else {
      Choice(members, member);
    }
  }

  /// Whether anything but a size is known.
  bool described() const { return described_; }
  bool chosen() const { return tray_ || named_; }

 private:
  void Set(const std::string& source, const char* key, std::int64_t code) {
    mapping_->From(source);
    mapping_->Number(KeyIn(stock_, key), code);
    described_ = true;
  }

  /// The page that is drawn has its size from elsewhere; the ticket only repeats it.
  void SetSize(const std::string& source, int width, int length) {
    mapping_->From(source);
    for (const StockSize* row = CompleteStockSizeMap; row->code != 0; ++row) {
      if (row->code < 0 || std::abs(row->width - width) > kTolerance ||
          std::abs(row->height - length) > kTolerance)
        continue;
      mapping_->Neutral(KeyIn(stock_, key::stock::kSize), row->code);
      return;
    }
    mapping_->Neutral(KeyIn(stock_, key::stock::kSize), kSizeWithoutCode);
    mapping_->Neutral(KeyIn(stock_, key::stock::kWidth), width);
    mapping_->Neutral(KeyIn(stock_, key::stock::kLength), length);
  }

  bool SizeByName(const std::string& name) {
    constexpr std::size_t kLongestName = 128;  // the library works with buffers of its own
    if (name.size() > kLongestName) return false;
    const pwg_media_t* media = pwgMediaForPWG(name.c_str());
    if (media == nullptr) media = pwgMediaForLegacy(name.c_str());
    if (media == nullptr) media = pwgMediaForPPD(name.c_str());
    if (media == nullptr || media->width <= 0 || media->length <= 0) return false;
    SetSize(Shown("media", name), media->width, media->length);
    return true;
  }

  void Size(Members* members) {
    if (Members size = members->Inner("media-size", mapping_)) {
      const auto x = size.Take("x-dimension").Integer();
      const auto y = size.Take("y-dimension").Integer();
      if (x && y && *x > 0 && *y > 0) {
        SetSize(size.path(), *x, *y);
      } else {
        mapping_->Drop(size.path(), "it takes two whole numbers, in hundredths of a millimeter");
      }
      size.TellRest(mapping_, "media-col/media-size");
    }
    if (const Attribute name = members->Take("media-size-name")) {
      if (!SizeByName(name.Text().value_or("")))
        mapping_->Drop(Shown(members->PathOf("media-size-name"), name.Text().value_or("")),
                       "no size has this name");
    }
  }

  void Key(Members* members) {
    const std::optional<std::string> text = members->Take("media-key").Text();
    // Spoolers make keys of their own, which begin with a size.
    if (!text || text->empty() || SizeByName(text->substr(0, NameOfSize(*text)))) return;
    mapping_->From(Shown(members->PathOf("media-key"), *text));
    named_ = mapping_->Text(KeyIn(stock_, key::stock::kName), *text);
    described_ = true;
  }

  /// Where the third underscore of "iso_a4_210x297mm_stationery" is.
  static std::size_t NameOfSize(const std::string& text) {
    std::size_t end = 0;
    for (int part = 0; part < 3 && end != text.npos; ++part)
      end = text.find('_', end == 0 ? 0 : end + 1);
    return end;
  }

  /// The ticket's number of a tray.
  static std::optional<std::int32_t> TrayOf(const std::string& source) {
    if (source == "inserter" || source == "post-fuser-inserter") return 0;
    if (source.size() == 6 && source.starts_with("tray-") && source[5] >= '1' && source[5] <= '9')
      return source[5] - '0';
    return std::nullopt;
  }

  void Tray(const std::string& path, const std::string& source, std::int32_t tray) {
    Set(Shown(path, source), key::stock::kSource, tray);
    tray_ = true;
  }

  void Source(Members* members) {
    const Attribute attribute = members->Take("media-source");
    if (!attribute) return;
    const std::string source = attribute.Text().value_or("");
    const std::string path = members->PathOf("media-source");
    if (std::find(std::begin(kOpenWords), std::end(kOpenWords), source) != std::end(kOpenWords)) {
      mapping_->From(Shown(path, source));
      mapping_->Number(KeyIn(stock_, key::stock::kSource), kAnyTray);
    } else if (const std::optional<std::int32_t> tray = TrayOf(source)) {
      Tray(path, source, *tray);
    } else {
      mapping_->Drop(Shown(path, source), "the printers have trays tray-1 to tray-9 and inserter");
    }
  }

  void Choice(Members* members, const char* member) {
    const Attribute attribute = members->Take(member);
    if (!attribute) return;
    const std::string value = attribute.Text().value_or("");
    if (std::find(std::begin(kOpenWords), std::end(kOpenWords), value) != std::end(kOpenWords))
      return;
    const std::string shown = Shown(members->PathOf(member), value);
    const auto row = std::find_if(
        std::begin(kStockWords), std::end(kStockWords),
        [&](const StockWord& word) { return word.member == member && word.value == value; });
    if (row != std::end(kStockWords)) {
      Set(shown, row->key, row->code);
      if (row->key2 != nullptr) Set(shown, row->key2, row->code2);
    } else if (!Custom(shown, member, value) && !VarietyOf(shown, member, value)) {
      mapping_->Drop(shown, kNoKind);
    }
  }

  /// "custom1" to "custom7", which the customer set up at the printer.
  bool Custom(const std::string& shown, std::string_view member, const std::string& value) {
    if (value.size() != 7 || value.substr(1, 5) != "ustom" || (value[0] | 32) != 'c') return false;
    const std::int32_t code = kFirstCustomStock + value[6] - '1';
    if (code < kFirstCustomStock || code > kLastCustomStock) return false;
    if (member != "media-type" && member != "media-color") return false;
    Set(shown, member == "media-type" ? key::stock::kType : key::stock::kColor, code);
    return true;
  }

  bool VarietyOf(const std::string& shown, std::string_view member, const std::string& value) {
    if (member != "media-type") return false;
    for (const Variety& row : kVarieties) {
      if (!value.starts_with(row.prefix)) continue;
      Set(shown, key::stock::kType, row.type);
      mapping_->Drop(shown, kOnlyKind);
      return true;
    }
    return false;
  }

  void Count(Members* members, const StockNumber& row) {
    const Attribute attribute = members->Take(row.member);
    if (!attribute) return;
    const std::optional<std::int32_t> number = attribute.Integer();
    const std::string path = members->PathOf(row.member);
    if (number && *number > 0) {
      Set(Shown(path, std::to_string(*number)), row.key, *number);
    } else if (number != 0) {
      mapping_->Drop(path, "it takes a whole number from 0 up");
    }
  }

  std::int32_t CoatingOf(Members* members, const char* member) {
    const Attribute attribute = members->Take(member);
    if (!attribute) return 0;
    const std::string value = attribute.Text().value_or("");
    for (const Coating& row : kCoatings) {
      if (row.value == value) return row.code;
    }
    mapping_->Drop(Shown(members->PathOf(member), value), kNoKind);
    return 0;
  }

  void Coatings(Members* members) {
    constexpr std::int32_t kBoth = 1, kFront = 2, kBack = 3;
    const std::int32_t front = CoatingOf(members, "media-front-coating");
    const std::int32_t back = CoatingOf(members, "media-back-coating");
    if (front == 0 && back == 0) return;
    const bool both = front != 0 && back != 0;
    if (both && front != back)
      mapping_->Drop(members->PathOf("media-back-coating"),
                     "both sides have the same coating; it is that of the front");
    const std::string path =
        members->PathOf(front != 0 ? "media-front-coating" : "media-back-coating");
    Set(path, key::stock::kCoating, front != 0 ? front : back);
    Set(path, key::stock::kCoatedSides, both ? kBoth : front != 0 ? kFront : kBack);
  }

  void Info(Members* members) {
    const std::optional<std::string> text = members->Take("media-info").Text();
    if (!text || text->empty()) return;
    mapping_->From(members->PathOf("media-info"));
    mapping_->Text(KeyIn(stock_, key::stock::kDescription), *text);
    described_ = true;
  }

  void TellUnsent(std::size_t first) {
    const auto& settings = mapping_->ticket().settings;
    std::string last;
    for (std::size_t i = first; i < settings.size(); ++i) {
      const std::string source = settings[i].source;
      if (source == last) continue;
      last = source;
      mapping_->Drop(source, tray_ ? "with a tray named, the printer takes what is in it"
                                   : "with a stock named, the printer takes that one");
    }
  }

  std::string stock_;
  Mapping* mapping_;
  bool tray_ = false;
  bool named_ = false;
  bool described_ = false;
};

}  // namespace

bool MapMedium(Members* members, const std::string& stock, Mapping* mapping) {
  StockMapper mapper(stock, mapping);
  if (Members column = members->Inner("media-col", mapping)) mapper.Column(&column);
  const Attribute media = members->Take("media");
  if (const std::optional<std::string> text = media.Text()) {
    mapper.Keyword(members->PathOf("media"), *text);
  } else if (media) {
    mapping->Drop(members->PathOf("media"), "it is not a name");
  }
  return mapper.described();
}

void MapJobStock(ipp_t* job, Mapping* mapping) {
  StockMapper mapper(key::kJobLevelStock, mapping);
  // The converters and the PPD see to the job's "media".
  const Attribute media = FindAttribute(job, "media-col");
  if (media && media.Collection() == nullptr) mapping->Drop("media-col", "it is not a collection");
  Members column(media.Collection(), "media-col");
  if (column) mapper.Column(&column);
  // The spooler's own attributes, which say the same without a collection.
  Members message(job, "");
  for (const char* member : {"media-type", "media-color", "media-source"}) {
    if (!FindAttribute(media.Collection(), member)) mapper.Single(&message, member);
  }
  if (!mapper.described()) return;
  mapping->NeedXml();
  if (!mapper.chosen()) mapping->Neutral(KeyIn(key::kJobLevelStock, key::stock::kSource), kAnyTray);
}

}  // namespace zarvo
