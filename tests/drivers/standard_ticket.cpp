// SPDX-License-Identifier: Apache-2.0
// Says of every registered attribute, member and value what the mapper makes of it, as the rows of
// a Markdown table: standard_ticket ipp-registrations.tsv
#include <cups/cups.h>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "StandardTicket/AttributeTable.h"
#include "StandardTicket/StandardTicket.h"

namespace zarvo {
namespace {

/// 2026-11-23 12:00:00, a Monday.
constexpr std::int64_t kNow = 3878280000;

struct Pair {
  const char* path;
  const char* value;
};

/// What an attribute means nothing without; the longest path that begins a row's counts.
struct Context {
  std::string_view path;
  std::vector<Pair> pairs;
};
const Context kContexts[] = {
    {"confirmation-sheet-print", {{"destination-uris/destination-uri", "tel:4711"}}},
    {"cover-sheet-info", {{"destination-uris/destination-uri", "tel:4711"}}},
    {"destination-uris/", {{"destination-uris/destination-uri", "tel:4711"}}},
    {"finishings-col/binding/binding-type",
     {{"finishings-col/binding/binding-reference-edge", "left"}}},
    {"finishings-col/punching/punching-reference-edge", {}},
    {"finishings-col/punching/", {{"finishings-col/punching/punching-reference-edge", "left"}}},
    {"finishings-col/stitching/stitching-reference-edge", {}},
    {"finishings-col/stitching/", {{"finishings-col/stitching/stitching-reference-edge", "left"}}},
    {"job-account-type", {{"job-account-id", "4711"}, {"job-accounting-user-id", "jo"}}},
    {"job-account", {{"job-originating-user-name", "jo"}}},
    {"job-password-encryption", {{"job-password", "4711"}}},
    {"job-save-disposition/save-info", {{"job-save-disposition/save-disposition", "save-only"}}},
    {"job-storage/job-storage-disposition", {}},
    {"job-storage/job-storage-", {{"job-storage/job-storage-disposition", "store-only"}}},
    {"media-col/media-size/",
     {{"media-col/media-size/x-dimension", "21000"},
      {"media-col/media-size/y-dimension", "42000"}}},
    {"overrides/", {{"overrides/sides", "one-sided"}, {"overrides/pages", "2-4"}}},
    {"overrides/pages", {{"overrides/sides", "one-sided"}}},
    {"presentation-direction-number-up", {{"imposition-template", "booklet"}}},
    {"separator-sheets/media", {{"separator-sheets/separator-sheets-type", "slip-sheets"}}},
};

/// Values for attributes of which none are registered.
const Pair kSamples[] = {
    {"destination-uris/destination-uri", "tel:+49-911-4711"},
    {"destination-uris/pre-dial-string", "0,"},
    {"destination-uris/post-dial-string", "#99"},
    {"finishings-col/folding/folding-offset", "14850"},
    {"finishings-col/punching/punching-locations", "1000|2000"},
    {"finishings-col/stitching/stitching-locations", "1000|2000|3000"},
    {"job-delay-output-until-time", "2027-01-31T18:00"},
    {"job-storage/job-storage-access", "owner"},
    {"job-storage/job-storage-disposition", "print-and-store store-only"},
    {"media-col/media-front-coating", "glossy"},
    {"media-col/media-size/x-dimension", "29700"},
    {"media-col/media-size/y-dimension", "20000"},
    {"output-bin", "top stacker stacker-1 stacker-2 top-1 top-2 auto face-down"},
    {"overrides/document-copies", "2-4"},
    {"overrides/document-numbers", "2-4"},
    {"printer-resolution", "300dpi 600dpi 1200x600dpi 1200dpi 2400dpi"},
};

std::string SampleOf(const std::string& path, const std::string& syntax) {
  for (const Pair& sample : kSamples) {
    if (path == sample.path) return sample.value;
  }
  if (path.ends_with("media") || path.ends_with("size-name")) return "iso_a4_210x297mm";
  const auto is = [&](const char* word) { return syntax.find(word) != syntax.npos; };
  if (is("boolean")) return "true";
  if (is("rangeOfInteger")) return "2-4";
  if (is("mimeMediaType")) return "application/pdf image/tiff text/plain";
  if (is("uri")) return "https://example.org/";
  if (is("integer") || is("enum") || is("dimension")) return "2";
  return is("collection") ? "{}" : is("octetString") ? "4711" : "Sample";
}

ipp_tag_t TagOf(const std::string& syntax) {
  if (syntax.find("enum") != syntax.npos) return IPP_TAG_ENUM;
  if (syntax.find("keyword") != syntax.npos) return IPP_TAG_KEYWORD;
  // A sender that does not know an attribute sends names; the mapper reads them by what they mean.
  return IPP_TAG_NAME;
}

/// Puts a value below `root`, making the collections on the way. "{}" is an empty collection, a bar
/// parts the values of a set.
void Put(ipp_t* root, const std::string& path, ipp_tag_t tag, const std::string& value) {
  const std::size_t slash = path.find('/');
  if (slash != path.npos || value == "{}") {
    const std::string head = path.substr(0, slash);
    ipp_attribute_t* found = ippFindAttribute(root, head.c_str(), IPP_TAG_BEGIN_COLLECTION);
    if (found == nullptr) {
      ipp_t* made = ippNew();
      found = ippAddCollection(root, IPP_TAG_JOB, head.c_str(), made);
      ippDelete(made);  // the message keeps it
    }
    if (slash != path.npos) Put(ippGetCollection(found, 0), path.substr(slash + 1), tag, value);
    return;
  }
  if (ipp_attribute_t* old = ippFindAttribute(root, path.c_str(), IPP_TAG_ZERO))
    ippDeleteAttribute(root, old);
  ipp_attribute_t* attribute = nullptr;
  std::istringstream values(value);
  for (std::string one; std::getline(values, one, '|');) {
    if (tag == IPP_TAG_ENUM) {
      ippAddInteger(root, IPP_TAG_JOB, tag, path.c_str(), std::stoi(one));
    } else if (attribute == nullptr) {
      attribute = ippAddString(root, IPP_TAG_JOB, tag, path.c_str(), nullptr, one.c_str());
    } else {
      ippSetString(root, &attribute, ippGetCount(attribute), one.c_str());
    }
  }
}

std::string Short(const std::string& name) {
  constexpr std::string_view kPrefix = "com.zarvo.print.";
  return name.starts_with(kPrefix) ? name.substr(kPrefix.size()) : name;
}

/// What the row's value adds to what its context gives.
std::string OutcomeOf(const std::string& path, ipp_tag_t tag, const std::string& value) {
  const Context* context = nullptr;
  for (const Context& row : kContexts) {
    if (path.starts_with(row.path) && (!context || context->path.size() < row.path.size()))
      context = &row;
  }
  ipp_t* with = ippNew();
  ipp_t* without = ippNew();
  for (const Pair& pair : context ? context->pairs : std::vector<Pair>()) {
    Put(with, pair.path, IPP_TAG_NAME, pair.value);
    Put(without, pair.path, IPP_TAG_NAME, pair.value);
  }
  Put(with, path, tag, value);
  const StandardTicket ticket = MapStandardAttributes(with, kNow);
  const StandardTicket before = MapStandardAttributes(without, kNow);
  ippDelete(with);
  ippDelete(without);
  std::string text;
  for (const StandardSetting& setting : ticket.settings) {
    // What only keeps a default away is no news.
    bool known = setting.quiet && (setting.value == "0" || setting.value == "-1" ||
                                   setting.name.find("JTMLOptions") != setting.name.npos);
    for (const StandardSetting& old : before.settings)
      known = known || (old.name == setting.name && old.value == setting.value);
    if (!known)
      text += (text.empty() ? "`" : ", `") + Short(setting.name) + "=" + setting.value + "`";
  }
  for (const NotHonoured& dropped : ticket.not_honoured) {
    bool known = false;
    for (const NotHonoured& old : before.not_honoured)
      known = known || old.reason == dropped.reason;
    if (!known) text += (text.empty() ? "" : "; ") + std::string("told: ") + dropped.reason;
  }
  for (const std::string& dictionary : ticket.without)
    text += "takes away a `" + Short(dictionary) + "` of the queue's defaults";
  if (!ticket.refusal.empty() && before.refusal.empty()) text += "; **not printed**";
  if (!text.empty()) return text;
  const bool left = DispositionOf(path).kind == Disposition::kLeft;
  return left ? "left to the spooler and its converters" : "asks for nothing by itself";
}

/// A cell of values and a cell of what becomes of them, for each outcome one.
void WriteRows(const std::string& path, const std::string& syntax, const std::string& registered) {
  std::vector<std::pair<std::string, std::string>> outcomes;  // and the values
  std::istringstream values(registered.empty() ? SampleOf(path, syntax) : registered);
  for (std::string value; values >> value;) {
    const std::string sent = value.substr(0, value.find('='));
    const std::string outcome = OutcomeOf(path, TagOf(syntax), sent);
    const std::string shown = value == "{}" ? "" : "`" + value + "`";
    auto row = outcomes.begin();
    while (row != outcomes.end() && row->first != outcome) ++row;
    if (row == outcomes.end()) {
      outcomes.emplace_back(outcome, shown);
    } else {
      row->second += ", " + shown;
    }
  }
  for (const auto& [outcome, shown] : outcomes)
    std::cout << "| `" << path << "` | " << shown << " | " << outcome << " |\n";
}

}  // namespace
}  // namespace zarvo

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::ifstream list(argv[1]);
  std::string line;
  std::getline(list, line);  // headings
  while (std::getline(list, line)) {
    std::istringstream columns(line);
    std::string path, syntax, registration, values;
    std::getline(columns, path, '\t');
    std::getline(columns, syntax, '\t');
    std::getline(columns, registration, '\t');
    std::getline(columns, values, '\t');
    zarvo::WriteRows(path, syntax, values);
  }
  return 0;
}
