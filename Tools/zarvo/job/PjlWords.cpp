// SPDX-License-Identifier: Apache-2.0
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <span>

#include "CUPSFilter/Header/JobTypeComments.h"
#include "CUPSFilter/Options/PinPolicy.h"
#include "Source/Mappings.h"
#include "Tools/zarvo/job/Words.h"

namespace zarvo::tool {
namespace {

enum class Kind {
  kCode,     // one of the codes
  kText,     // quoted text
  kBare,     // text without quotes
  kSecret,   // quoted, never shown
  kAccount,  // quoted "TAG,value"; the tag tells what it is
  kDate,     // quoted YYYYMMDDhhmmss
  kSize,     // quoted width and height in millimetres
};

struct Code {
  std::string_view code;
  const char* words;
};

struct Attribute {
  std::string_view name;  // after "@PJL COMMENT OID_ATT_" or "@PJL SET "
  const char* words;
  Kind kind;
  std::span<const Code> codes = {};
};

constexpr Code kJobTypes[] = {
    {"OID_VAL_JOB_TYPE_PRINT", "print"},
    {"OID_VAL_JOB_TYPE_SECURE_PRINT", "secure print: held until the PIN is typed"},
    {"OID_VAL_JOB_TYPE_PROOF_PRINT", "proof: one set, the others when it is released"},
    {"OID_VAL_JOB_TYPE_FAX_SEND", "fax"}};
constexpr Code kDispositions[] = {
    {"OID_VAL_SAVE_DISPOSITION_PRINT_SAVE", "print and keep on the printer"},
    {"OID_VAL_SAVE_DISPOSITION_SAVE_ONLY", "keep on the printer, do not print"}};
constexpr Code kSheets[] = {{"OID_VAL_JOB_SHEET_FULL", "yes"}, {"OID_VAL_JOB_SHEET_NONE", "no"}};
constexpr Code kOnOff[] = {{"ON", "yes"}, {"OFF", "no"}};
constexpr Code kTrueFalse[] = {{"TRUE", "yes"}, {"FALSE", "no"}};
constexpr Code kInterleave[] = {{"OID_VAL_INTERLEAVE_NONE", "none"},
                                {"OID_VAL_INTERLEAVE_BLANK", "blank sheets"},
                                {"OID_VAL_INTERLEAVE_IMAGED", "printed sheets"}};
constexpr Code kFaxResolutions[] = {{"0", "standard"}, {"1", "fine"}, {"2", "superfine"}};
constexpr Code kFaxTypes[] = {{"OID_VAL_FAX_TYPE_G3_FORCED_4800", "4800 bit/s"},
                              {"OID_VAL_FAX_TYPE_G3_14400", "14400 bit/s"},
                              {"OID_VAL_FAX_TYPE_G3_AUTO", "automatic"}};
constexpr Code kAccountTags[] = {{"ZRV_USERID", "user"},
                                 {"ZRV_GENERALACCT", "general account"},
                                 {"ZRV_GROUPACCT", "group account"},
                                 {"ZRV_ACCTID", "account"}};

constexpr Attribute kComments[] = {
    {"JOB_TYPE", "job type", Kind::kCode, kJobTypes},
    {"JOB_PASSWORD", "PIN", Kind::kSecret},
    {"SAVE_DISPOSITION", "saved job", Kind::kCode, kDispositions},
    {"SAVE_NAME", "saved under the name", Kind::kText},
    {"SAVE_LOCATION", "saved in the folder", Kind::kText},
    {"JOB_PRINT_AFTER", "printed after", Kind::kDate},
    {"START_SHEET", "banner page", Kind::kCode, kSheets},
    {"ACCOUNTING_INFORMATION_AVP", "accounting", Kind::kAccount, kAccountTags},
    {"FIRST_PAGE_MEDIA_SIZE", "paper of the front cover", Kind::kSize},
    {"FIRSTLAST_PAGE_MEDIA_SIZE", "paper of both covers", Kind::kSize},
    {"INTERLEAVE", "transparency separators", Kind::kCode, kInterleave},
    {"INTERLEAVE_COLOR", "colour of the separators", Kind::kText},
    {"FAX_COVER_SHEET", "fax cover sheet made by the printer", Kind::kCode, kTrueFalse},
    {"FAX_RESOLUTION", "fax resolution", Kind::kCode, kFaxResolutions},
    {"FAX_TYPE", "fax speed", Kind::kCode, kFaxTypes},
    {"FAX_CONFIRMATION_SHEET", "fax confirmation sheet", Kind::kCode, kTrueFalse},
    {"CREDIT_CARD", "billing code", Kind::kSecret},
    {"JOB_FAX_AFTER", "faxed after", Kind::kDate},
    {"FAX_DESTINATION_PHONE", "fax to", Kind::kText},
    {"FAX_MAILBOX", "fax to the mailbox", Kind::kBare},
};
constexpr Attribute kSettings[] = {{"JOBOFFSET", "offset in the tray", Kind::kCode, kOnOff}};

const char* FindCode(std::span<const Code> codes, std::string_view code) {
  for (const Code& row : codes) {
    if (row.code == code) return row.words;
  }
  return nullptr;
}

/// The text between the first and the last quote; quotes within it are not escaped.
bool Unquote(std::string_view* text) {
  const std::size_t open = text->find('"');
  const std::size_t close = text->rfind('"');
  if (open == std::string_view::npos || close == open) return false;
  *text = text->substr(open + 1, close - open - 1);
  return true;
}

/// The stock's name without what only the print dialog makes use of, and its measures.
std::string Named(const StockSize& size, const std::string& millimetres) {
  constexpr std::string_view kSuffix = "StockSize";
  std::string name = size.name;
  if (const std::size_t at = name.find(kSuffix); at != std::string::npos)
    name.erase(at, kSuffix.size());
  return name.find(" mm") == std::string::npos ? name + ", " + millimetres : name;
}

class Explainer {
 public:
  void Line(std::string_view line) {
    constexpr std::string_view kComment = "@PJL COMMENT OID_ATT_";
    constexpr std::string_view kSet = "@PJL SET ";
    if (line.starts_with(kComment)) {
      Attributed(line.substr(kComment.size()), ' ', kComments);
    } else if (line.starts_with(kSet)) {
      Attributed(line.substr(kSet.size()), '=', kSettings);
    } else if (line.starts_with("@PJL ENTER LANGUAGE")) {
      const bool postscript = line.find("POSTSCRIPT") != std::string_view::npos;
      if (!postscript) Wrong(std::string(line) + ": the job is not PostScript");
      Say("language", postscript ? "PostScript" : "unknown", "ENTER LANGUAGE");
    } else if (line != "@PJL JOB" && line != "@PJL EOJ" && line != "@PJL COMMENT ZRVbegin" &&
               line != "@PJL COMMENT ZRVend") {
      // What is unknown may hold a secret: values are not shown.
      const std::size_t value = line.find_first_of("=\"");
      const bool whole = value == std::string_view::npos;
      Say("another line", std::string(line.substr(0, value)) + (whole ? "" : " (not shown)"), "");
    }
  }

  void CheckWhole() {
    if (secure_ && !pin_) Wrong("secure print without a PIN");
    if (fax_ && destinations_ == 0) Wrong("fax without a destination");
  }

  Explanation explanation;

 private:
  void Say(std::string name, std::string value, std::string_view code) {
    explanation.statements.push_back({std::move(name), std::move(value), std::string(code), 0});
  }
  void Wrong(std::string text) { explanation.findings.push_back(std::move(text)); }

  void Attributed(std::string_view text, char separator, std::span<const Attribute> attributes) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view name = text.substr(0, end);
    std::string_view value = text.substr(std::min(end + 1, text.size()));
    if (value.ends_with(';')) value.remove_suffix(1);
    for (const Attribute& attribute : attributes) {
      if (attribute.name == name) return Known(attribute, value);
    }
    // An unknown line may hold a secret: its value is not shown.
    Say("unknown setting", "(not shown)", name);
    Wrong("unknown setting " + std::string(name));
  }

  void Known(const Attribute& attribute, std::string_view value) {
    const bool quoted = attribute.kind != Kind::kCode && attribute.kind != Kind::kBare;
    if (quoted && !Unquote(&value)) {
      Say(attribute.words, "(damaged)", attribute.name);
      return Wrong(std::string(attribute.words) + ": the value is not in quotes");
    }
    std::string words(value);
    switch (attribute.kind) {
      case Kind::kCode:
        if (const char* known = FindCode(attribute.codes, value)) {
          words = known;
        } else {
          Wrong(std::string(attribute.words) + ": unknown code " + words);
        }
        break;
      case Kind::kSecret:
        words = value.empty() ? "not set" : "set";
        if (value.empty()) Wrong(std::string(attribute.words) + " is empty");
        break;
      case Kind::kAccount:
        words = Account(attribute, value);
        break;
      case Kind::kDate:
        words = Date(attribute, value);
        break;
      case Kind::kSize:
        words = Size(attribute, words);
        break;
      case Kind::kText:
      case Kind::kBare:
        break;
    }
    Remember(attribute.name, value);
    Say(attribute.words, words, attribute.name);
  }

  void Remember(std::string_view name, std::string_view value) {
    if (name == "JOB_TYPE") secure_ = value.ends_with("SECURE_PRINT");
    if (name == "JOB_TYPE") fax_ = value.ends_with("FAX_SEND");
    if (name == "JOB_PASSWORD") CheckPin(std::string(value));
    if (name == "FAX_DESTINATION_PHONE" || name == "FAX_MAILBOX") ++destinations_;
    if (name == "FAX_DESTINATION_PHONE" && value.empty()) Wrong("fax number without a digit");
  }

  void CheckPin(std::string pin) {
    pin_ = true;
    p_encrypt(pin.data());  // which undoes itself
    if (!pin.empty() && !TypedPinFault(pin).empty())
      Wrong("PIN: not " + std::string(kPinDigits) +
            "; other characters may be cut on their way to the printer");
  }

  std::string Account(const Attribute& attribute, std::string_view value) {
    const std::size_t comma = value.find(',');
    const char* what = FindCode(attribute.codes, value.substr(0, comma));
    if (comma == std::string_view::npos || what == nullptr) {
      Wrong("accounting: unknown kind of entry");
      return "(not shown)";
    }
    if (comma + 1 < value.size()) return std::string(what) + " set";
    Wrong(std::string("accounting: the ") + what + " is empty");
    return std::string(what) + " empty";
  }

  std::string Date(const Attribute& attribute, std::string_view value) {
    constexpr std::size_t kDigits = 14;
    if (value.size() != kDigits ||
        value.find_first_not_of("0123456789") != std::string_view::npos) {
      Wrong(std::string(attribute.words) + ": no date and time" +
            (value.empty() ? "" : ": " + std::string(value)));
      return value.empty() ? "(not given)" : std::string(value);
    }
    const std::string text(value);
    return text.substr(0, 4) + "-" + text.substr(4, 2) + "-" + text.substr(6, 2) + " " +
           text.substr(8, 2) + ":" + text.substr(10, 2);
  }

  std::string Size(const Attribute& attribute, const std::string& value) {
    long width = 0;
    long height = 0;
    if (std::sscanf(value.c_str(), "%ld %ld", &width, &height) != 2 || width <= 0 || height <= 0)
      Wrong(std::string(attribute.words) + ": no size that the printer knows");
    constexpr long kHundredths = 100;
    return SizeWords(width * kHundredths, height * kHundredths);
  }

  bool secure_ = false;
  bool fax_ = false;
  bool pin_ = false;
  int destinations_ = 0;
};

}  // namespace

Explanation ExplainPjl(const std::vector<std::string>& lines) {
  Explainer explainer;
  for (const std::string& line : lines) explainer.Line(line);
  explainer.CheckWhole();
  return std::move(explainer.explanation);
}

std::vector<std::string> PjlTexts() {
  std::vector<std::string> texts;
  for (const std::span<const Attribute> attributes :
       {std::span<const Attribute>(kComments), std::span<const Attribute>(kSettings)}) {
    for (const Attribute& attribute : attributes) {
      texts.emplace_back(attribute.words);
      for (const Code& code : attribute.codes) texts.emplace_back(code.words);
    }
  }
  return texts;
}

std::string SizeWords(long width, long height) {
  const std::string millimetres =
      std::to_string((width + 50) / 100) + " x " + std::to_string((height + 50) / 100) + " mm";
  for (const StockSize* size = CompleteStockSizeMap; size->code != 0; ++size) {
    if (size->width <= 0) continue;
    if (size->width == width && size->height == height) return Named(*size, millimetres);
    if (size->width == height && size->height == width)
      return Named(*size, millimetres) + ", landscape";
  }
  return millimetres;
}

std::string PointSizeWords(int width, int height) {
  const auto near = [](int left, int right) { return std::abs(left - right) <= 1; };
  for (const StockSize* size = CompleteStockSizeMap; size->code != 0; ++size) {
    if (size->width <= 0) continue;
    if (near(size->widthPts, width) && near(size->heightPts, height))
      return SizeWords(size->width, size->height);
    if (near(size->widthPts, height) && near(size->heightPts, width))
      return SizeWords(size->height, size->width);
  }
  constexpr double kHundredthsPerPoint = 2540.0 / 72;
  return SizeWords(std::lround(width * kHundredthsPerPoint),
                   std::lround(height * kHundredthsPerPoint));
}

}  // namespace zarvo::tool
