// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <pugixml.hpp>
#include <span>
#include <sstream>

#include "Tools/zarvo/job/Words.h"

namespace zarvo::tool {
namespace {

enum class Kind {
  kText,
  kKeyword,     // one of `keywords`
  kSecret,      // never shown
  kGroup,       // has elements of its own
  kSize,        // x-dimension and y-dimension, 1/100 mm
  kCodes,       // a set of numbers that are told in one line
  kDots,        // a resolution across and along the feed
  kHundredths,  // of a millimetre
};

struct Element {
  std::string_view name;
  const char* words;
  Kind kind = Kind::kText;
  std::string_view keywords = "";  // each with one blank before and after it
  const char* unit = "";           // of a number
};

constexpr std::string_view kProfileKeywords =
    " kvc-mode-rgb kvc-mode-rgb-gamma1 Smpte-240m sRGB native-cmyk swop system-specified ";
constexpr std::string_view kIntents =
    " saturation relative-colorimetric absolute-colorimetric perceptual pure-text automatic ";

using enum Kind;
constexpr Element kElements[] = {
    {"job-name", "job name"},
    {"requesting-user-name", "sent by"},
    {"document-format", "document format"},
    {"copies", "copies"},
    {"sheet-collate", "collated", kKeyword, " collated uncollated "},
    {"sides", "sides", kKeyword, " one-sided two-sided-long-edge two-sided-short-edge "},
    {"orientation-requested", "orientation", kKeyword, " 3 4 5 6 "},
    {"output-bin", "output bin", kKeyword,
     " automatic top stacker side top-1 top-2 stacker-1 stacker-2 "},
    {"adjust-bw-darkness-value", "darkness"},
    {"adjust-bw-darkness-mode", "darkness of another printer", kKeyword,
     " normal corvanta180-adjustable "},
    {"toner-saver", "toner saving", kKeyword, " none standard "},
    {"job-offset", "offset", kGroup, " none offset-set offset-subset offset-job "},
    {"pages-per-subset", "pages in a subset", kGroup},
    {"page-rotation", "pages turned", kKeyword, " rotate-0 rotate-180 "},
    {"separator-sheets", "separator sheets", kGroup},
    {"separator-sheets-type", "kind", kKeyword, " slip-sheets "},
    {"opi-image-insertion", "OPI images", kKeyword, " insert do-not-insert "},
    {"opi-image-pre-scan", "look for OPI images first", kKeyword,
     " no-pre-scan pre-scan pre-scan-and-gather "},
    {"anti-aliasing", "smoothing of edges", kKeyword, " none standard "},
    {"adjust-lightness", "lightness"},
    {"adjust-contrast", "contrast"},
    {"adjust-saturation", "saturation"},
    {"adjust-cyan-red", "cyan to red"},
    {"adjust-magenta-green", "magenta to green"},
    {"adjust-yellow-blue", "yellow to blue"},
    {"trapping", "trapping", kKeyword, " all off "},
    {"trap-width-fast", "trap width across the feed"},
    {"trap-width-slow", "trap width along the feed"},
    {"black-overprint", "black overprint", kKeyword, " black-overprint-on black-overprint-off "},
    {"rendering-intent-images", "rendering of images", kKeyword, kIntents},
    {"rendering-intent-text", "rendering of text", kKeyword, kIntents},
    {"rendering-intent-graphics", "rendering of graphics", kKeyword, kIntents},
    {"page-delivery", "delivery", kKeyword,
     " same-order-face-down reverse-order-face-up same-order-face-up reverse-order-face-down "},
    {"color-effects-type", "colour", kKeyword, " monochrome-grayscale color "},
    {"finishings-col", "finishing", kGroup},
    {"finishing-template", "template"},
    {"finishings", "finishing", kCodes,
     " 3 13 20 21 22 23 28 29 30 31 32 33 34 35 50 52 90 91 92 93 94 95 96 110 111 1000 1001 1003 "
     "1004 1005 1008 1011 1012 "},
    {"job-message-to-operator", "message to the operator"},
    {"job-recipient-name", "printed for"},
    {"job-sheet-message", "message on the banner page"},
    {"job-accounting-data", "additional accounting data", kSecret},
    {"printer-resolution", "resolution", kDots},
    {"trc", "tone reproduction curve", kGroup},
    {"trc-name", "name"},
    {"undefined-source-rgb-images", "profile of RGB images", kKeyword, kProfileKeywords},
    {"undefined-source-rgb-text", "profile of RGB text", kKeyword, kProfileKeywords},
    {"undefined-source-rgb-graphics", "profile of RGB graphics", kKeyword, kProfileKeywords},
    {"undefined-source-cmyk-images", "profile of CMYK images", kKeyword, kProfileKeywords},
    {"undefined-source-cmyk-text", "profile of CMYK text", kKeyword, kProfileKeywords},
    {"undefined-source-cmyk-graphics", "profile of CMYK graphics", kKeyword, kProfileKeywords},
    {"undefined-source-gray-images", "profile of gray images"},
    {"undefined-source-gray-text", "profile of gray text"},
    {"undefined-source-gray-graphics", "profile of gray graphics"},
    {"color-destination-profile-front", "destination profile, front", kKeyword, kProfileKeywords},
    {"color-destination-profile-back", "destination profile, back", kKeyword, kProfileKeywords},
    {"halftone-graphics", "halftone of graphics"},
    {"halftone-images", "halftone of images"},
    {"halftone-text", "halftone of text"},
    {"job-hold-until", "held until released", kKeyword, " indefinite "},
    {"job-save-disposition", "saved job", kGroup},
    {"save-disposition", "what becomes of it", kKeyword, " none save-only print-save "},
    {"save-info", "where", kGroup},
    {"save-location", "folder"},
    {"save-name", "name"},
    {"save-document-format", "format"},
    {"form-save", "stored as a form", kGroup},
    {"form-save-disposition", "what becomes of it", kKeyword, " save-only "},
    {"form-save-info", "where", kGroup},
    {"form-save-location", "folder"},
    {"form-save-name", "name"},
    {"form-save-format", "format"},
    {"forms-col", "background form", kGroup},
    {"form-name", "name"},
    {"form-cycle-start", "pages in a cycle"},
    {"forms-x-image-shift", "offset to the right", kHundredths},
    {"forms-y-image-shift", "offset upwards", kHundredths},
    {"job-accounting-user-id", "accounting user", kSecret},
    {"job-account-id", "account", kSecret},
    {"page-ranges", "pages", kGroup},
    {"x-side1-image-shift", "shift to the right, side 1", kHundredths},
    {"x-side2-image-shift", "shift to the right, side 2", kHundredths},
    {"y-side1-image-shift", "shift upwards, side 1", kHundredths},
    {"y-side2-image-shift", "shift upwards, side 2", kHundredths},
    {"cover-front", "front cover", kGroup},
    {"cover-back", "back cover", kGroup},
    {"cover-type", "printed sides", kKeyword,
     " no-cover print-none print-front print-back print-both "},
    {"insert-sheet", "inserts", kGroup},
    {"insert-after-page-number", "after page"},
    {"insert-count", "sheets"},
    {"page-overrides", "page exceptions", kGroup},
    {"input-documents", "in document", kGroup},
    {"pages", "pages", kGroup},
    {"media", "paper from"},
    {"media-col", "paper", kGroup},
    {"media-key", "stock name"},
    {"media-type", "type"},
    {"media-pre-printed", "printed already", kKeyword, " blank pre-printed letter-head "},
    {"media-recycled", "recycled", kKeyword, " none standard "},
    {"media-order-count", "sheets in a set"},
    {"media-weight-metric", "weight", kText, "", " g/m2"},
    {"media-description", "description"},
    {"media-hole-count", "holes"},
    {"media-color", "colour"},
    {"media-size", "size", kSize},
    {"media-front-coating", "coating, front", kKeyword,
     " none glossy high-gloss semi-gloss satin matte "},
    {"media-back-coating", "coating, back", kKeyword,
     " none glossy high-gloss semi-gloss satin matte "},
    {"media-tooth", "surface", kKeyword, " fine medium coarse "},
    {"media-grain", "grain", kKeyword, " y-grain x-grain "},
    {"highlight-colorant", "highlight colorant", kKeyword, " red green blue royal use-ready "},
    {"highlight-map-color", "highlighted colour", kKeyword,
     " red green blue cyan magenta yellow cardinal royal black ruby violet brown other "},
    {"highlight-map-color-custom-col", "highlighted custom colour", kGroup},
    {"color-srgb-col", "sRGB", kGroup},
    {"color-srgb-red", "red"},
    {"color-srgb-green", "green"},
    {"color-srgb-blue", "blue"},
    {"color-hsv-col", "HSV", kGroup},
    {"color-hsv-hue", "hue"},
    {"color-hsv-saturation", "saturation"},
    {"color-hsv-value", "value"},
    {"highlight-colorant-mismatch", "when the colorant is not loaded", kKeyword,
     " use-ready abort hold "},
    {"highlight-map", "highlight mapping", kKeyword,
     " object-based pictorial presentation color-to-highlight monochrome-grayscale "},
};

struct CodeName {
  int code;
  const char* words;
};
constexpr CodeName kFinishings[] = {
    {3, "none"},
    {13, "folded to a booklet"},
    {20, "stapled top left"},
    {21, "stapled bottom left"},
    {22, "stapled top right"},
    {23, "stapled bottom right"},
    {28, "two staples at the left"},
    {29, "two staples at the top"},
    {30, "two staples at the right"},
    {31, "two staples at the bottom"},
    {32, "three staples at the left"},
    {33, "three staples at the top"},
    {34, "three staples at the right"},
    {35, "three staples at the bottom"},
    {50, "bound at the left"},
    {52, "bound at the right"},
    {90, "two holes"},
    {91, "three holes"},
    {92, "four holes"},
    {93, "punched at the left"},
    {94, "punched at the top"},
    {95, "punched at the right"},
    {96, "punched at the bottom"},
    {110, "folded in the middle and stapled there"},
    {111, "folded in the middle"},
    {1000, "C fold"},
    {1001, "Z fold"},
    {1003, "fold 1003 of the printer"},
    {1004, "fold 1004 of the printer"},
    {1005, "fold 1005 of the printer"},
    {1008, "fold 1008 of the printer"},
    {1011, "fold 1011 of the printer"},
    {1012, "fold 1012 of the printer"},
};
constexpr CodeName kOrientations[] = {
    {3, "portrait"}, {4, "landscape"}, {5, "reverse landscape"}, {6, "reverse portrait"}};

struct KeywordWords {
  std::string_view keyword;
  const char* words;
};
// Keywords that are no words yet; of others only the hyphens are in the way.
constexpr KeywordWords kKeywordWords[] = {
    {"one-sided", "one side of each sheet"},
    {"two-sided-long-edge", "both sides, turned over the long edge"},
    {"two-sided-short-edge", "both sides, turned over the short edge"},
    {"print-none", "none"},
    {"print-front", "the outside"},
    {"print-back", "the inside"},
    {"print-both", "both"},
    {"no-cover", "no cover"},
    {"offset-set", "each set"},
    {"offset-subset", "each subset"},
    {"offset-job", "each job"},
    {"rotate-180", "by 180 degrees"},
    {"rotate-0", "no"},
    {"monochrome-grayscale", "shades of gray"},
    {"save-only", "kept on the printer, not printed"},
    {"print-save", "printed, and kept on the printer"},
};

const Element* FindElement(std::string_view name) {
  for (const Element& element : kElements) {
    if (element.name == name) return &element;
  }
  return nullptr;
}

const char* FindName(std::span<const CodeName> names, std::string_view text) {
  int code = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), code).ec != std::errc())
    return nullptr;
  for (const CodeName& row : names) {
    if (row.code == code) return row.words;
  }
  return nullptr;
}

std::string KeywordText(const std::string& keyword) {
  for (const KeywordWords& row : kKeywordWords) {
    if (row.keyword == keyword) return row.words;
  }
  std::string words = keyword;
  std::replace(words.begin(), words.end(), '-', ' ');
  return words;
}

bool Lists(std::string_view keywords, std::string_view word) {
  std::string wanted = " ";
  wanted += word;
  wanted += ' ';
  return keywords.find(wanted) != std::string_view::npos;
}

class Explainer {
 public:
  void Document(const pugi::xml_node& root) {
    if (std::strcmp(root.name(), "jtml") != 0) Wrong("the root is no job ticket");
    for (const pugi::xml_node& section : root.children()) {
      const std::string_view name = section.name();
      if (name != "jtml-operation-attributes" && name != "job-template-attributes") {
        Wrong("unknown section " + std::string(name));
        continue;
      }
      for (const pugi::xml_node& element : section.children()) Node(element, nullptr, 0);
    }
  }

  void Wrong(std::string text) { explanation.findings.push_back(std::move(text)); }

  Explanation explanation;

 private:
  void Say(const char* name, std::string value, std::string_view code, int level,
           std::string words = "") {
    explanation.statements.push_back(
        {name, std::move(value), std::string(code), level, std::move(words)});
  }

  /// Not every level is told on a level of its own, so they are counted apart.
  void Node(const pugi::xml_node& node, const Element* parent, int level) {
    if (node.type() != pugi::node_element) return;
    constexpr int kDeepest = 20;
    if (depth_ > kDeepest) return Wrong("elements nest too deep");
    ++depth_;
    Tell(node, parent, level);
    --depth_;
  }

  void Tell(const pugi::xml_node& node, const Element* parent, int level) {
    const std::string_view name = node.name();
    if (name == "value" || name == "lower-bound" || name == "upper-bound")
      return Member(node, parent, level);
    const Element* element = FindElement(name);
    if (element == nullptr) {
      Wrong("unknown element " + std::string(name));
      Say("unknown element", "(not shown)", name, level);
      return;
    }
    switch (element->kind) {
      case kGroup:
        if (PlainSet(node, *element, level)) break;
        Say(element->words, "", name, level);
        for (const pugi::xml_node& child : node.children()) Node(child, element, level + 1);
        break;
      case kSize:
        Size(node, *element, level);
        break;
      case kCodes:
        Codes(node, *element, level);
        break;
      case kDots:
        Dots(node, *element, level);
        break;
      case kSecret:
        Say(element->words, *node.child_value() == '\0' ? "empty" : "set", name, level);
        break;
      default:
        Leaf(node, *element, level);
    }
  }

  /// A set of nothing but plain values and ranges is told in one line.
  bool PlainSet(const pugi::xml_node& node, const Element& element, int level) {
    std::string text;
    std::string words;
    for (const pugi::xml_node& child : node.children()) {
      if (child.type() != pugi::node_element) continue;
      const bool range = std::strcmp(child.attribute("syntax").value(), "rangeOfInteger") == 0;
      if (std::strcmp(child.name(), "value") != 0 || (!range && HasElements(child))) return false;
      const std::string value = range ? Range(child) : child.child_value();
      if (!range && !element.keywords.empty() && !Lists(element.keywords, value))
        Wrong(std::string(element.words) + ": unknown code " + value);
      text += (text.empty() ? "" : ", ") + value;
      words += (words.empty() ? "" : ", ") + (range ? value : KeywordText(value));
    }
    if (text.empty()) return false;
    Say(element.words, text, element.name, level, words);
    return true;
  }

  static bool HasElements(const pugi::xml_node& node) {
    return !node.find_child(
                    [](const pugi::xml_node& child) { return child.type() == pugi::node_element; })
                .empty();
  }

  /// All codes of a set in one line: holes have two of them, where and how many.
  void Codes(const pugi::xml_node& node, const Element& element, int level) {
    std::string codes;
    std::string words;
    for (const pugi::xml_node& child : node.children()) {
      if (child.type() != pugi::node_element) continue;
      const std::string code = child.child_value();
      const char* known = FindName(kFinishings, code);
      if (!Lists(element.keywords, code))
        Wrong(std::string(element.words) + ": unknown code " + code);
      if (Lists(" " + codes + " ", code)) continue;
      codes += (codes.empty() ? "" : " ") + code;
      words += (words.empty() ? "" : ", ") + (known != nullptr ? known : "the code " + code);
    }
    Say(element.words, codes, element.name, level, words);
  }

  void Dots(const pugi::xml_node& node, const Element& element, int level) {
    const std::string across = node.child_value("cross-feed");
    const std::string along = node.child_value("feed-direction");
    const std::string unit = node.child_value("units");
    if (unit != "3") Wrong(std::string(element.words) + ": unknown unit " + unit);
    Say(element.words, across == along ? across : across + " x " + along, element.name, level,
        (across == along ? across : across + " x " + along) + " dots per inch");
  }

  /// A member of a set: a range, a collection, or one value of the parent's kind.
  void Member(const pugi::xml_node& node, const Element* parent, int level) {
    if (parent == nullptr) return Wrong("a value stands outside a set");
    if (std::strcmp(node.attribute("syntax").value(), "rangeOfInteger") == 0)
      return Say("from", Range(node), "value", level);
    if (HasElements(node)) {
      for (const pugi::xml_node& child : node.children()) Node(child, parent, level);
      return;
    }
    const std::string text = node.child_value();
    Say("value", text, "value", level, KeywordText(text));
    if (!parent->keywords.empty() && !Lists(parent->keywords, text))
      Wrong(std::string(parent->words) + ": unknown code " + text);
  }

  std::string Range(const pugi::xml_node& node) {
    const std::string low = node.child_value("lower-bound");
    const std::string high = node.child_value("upper-bound");
    return low == high ? low : low + " to " + high;
  }

  void Leaf(const pugi::xml_node& node, const Element& element, int level) {
    std::string text = node.child_value();
    // A profile by name is free text; only a keyword comes from the table.
    const bool named = std::strcmp(node.attribute("syntax").value(), "name") == 0;
    if (element.kind == kKeyword && !named && !Lists(element.keywords, text))
      Wrong(std::string(element.words) + ": unknown code " + text);
    std::string words;
    if (element.kind == kKeyword && !named) words = KeywordText(text);
    if (element.kind == kHundredths) words = Millimetres(text);
    if (*element.unit != '\0') words = text + element.unit;
    if (element.name == "orientation-requested") {
      if (const char* known = FindName(kOrientations, text)) words = known;
    }
    Say(element.words, text, element.name, level, words);
  }

  static std::string Millimetres(const std::string& hundredths) {
    const long value = std::atol(hundredths.c_str());
    std::string text = std::to_string(std::labs(value / 100));
    if (const long rest = std::labs(value % 100); rest != 0) {
      text += "." + std::to_string(rest / 10);
      if (rest % 10 != 0) text += std::to_string(rest % 10);
    }
    return (value < 0 ? "-" : "") + text + " mm";
  }

  void Size(const pugi::xml_node& node, const Element& element, int level) {
    const long width = std::atol(node.child_value("x-dimension"));
    const long height = std::atol(node.child_value("y-dimension"));
    if (width <= 0 || height <= 0) Wrong("paper without a size");
    Say(element.words, SizeWords(width, height), element.name, level);
  }

  int depth_ = 0;
};

}  // namespace

std::string WithMatchingAccountTags(std::string_view xml) {
  constexpr std::string_view kEnd = "</job-accounting-id>";
  std::string text(xml);
  if (const std::size_t at = text.find(kEnd); at != std::string::npos)
    text.replace(at, kEnd.size(), "</job-account-id>");
  return text;
}

Explanation ExplainTicketXml(std::string_view xml) {
  Explainer explainer;
  const std::string text = WithMatchingAccountTags(xml);
  pugi::xml_document document;
  const pugi::xml_parse_result result =
      document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!result) {
    const auto line = 1 + std::count(text.begin(), text.begin() + result.offset, '\n');
    explainer.Wrong("the XML ticket is not well-formed: line " + std::to_string(line) + ": " +
                    result.description());
  }
  // What was read before the fault is told all the same.
  if (document.document_element()) explainer.Document(document.document_element());
  return std::move(explainer.explanation);
}

std::vector<std::string> TicketXmlTexts() {
  std::vector<std::string> texts;
  for (const Element& element : kElements) {
    texts.emplace_back(element.words);
    // Profiles have names, and numbers have words of their own.
    if (element.keywords == kProfileKeywords || element.kind == kCodes) continue;
    std::istringstream keywords{std::string(element.keywords)};
    for (std::string keyword; keywords >> keyword;)
      if (std::isalpha(static_cast<unsigned char>(keyword[0])) != 0)
        texts.push_back(KeywordText(keyword));
  }
  for (const std::span<const CodeName> names :
       {std::span<const CodeName>(kFinishings), std::span<const CodeName>(kOrientations)})
    for (const CodeName& row : names) texts.emplace_back(row.words);
  return texts;
}

}  // namespace zarvo::tool
