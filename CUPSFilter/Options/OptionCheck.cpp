// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/OptionCheck.h"

#include <strings.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "CUPSFilter/Options/HouseTicketOption.h"
#include "CUPSFilter/Options/TicketGaps.h"
#include "Source/CFAdditions.h"
#include "Source/NearestName.h"
#include "Source/TicketNames.h"
#include "StandardTicket/StandardTicket.h"

namespace zarvo {
namespace {

/// Its values name what is in the store of watermarks.
constexpr char kWatermarkOption[] = "Watermark";

/// Options of the spooler and its converters that people type. Names that differ from one of them,
/// or from one of the PPD, in a letter or two are taken for misspelt.
constexpr const char* kTypedNames[] = {"collate",
                                       "copies",
                                       "finishings",
                                       "fit-to-page",
                                       "fitplot",
                                       "job-accounting-user-id",
                                       "job-account-id",
                                       "job-hold-until",
                                       "job-password",
                                       "job-priority",
                                       "job-sheets",
                                       "landscape",
                                       "media",
                                       "mirror",
                                       "multiple-document-handling",
                                       "natural-scaling",
                                       "number-up",
                                       "number-up-layout",
                                       "orientation-requested",
                                       "outputorder",
                                       "output-bin",
                                       "page-border",
                                       "page-bottom",
                                       "page-delivery",
                                       "page-label",
                                       "page-left",
                                       "page-ranges",
                                       "page-right",
                                       "page-set",
                                       "page-top",
                                       "position",
                                       "ppi",
                                       "print-color-mode",
                                       "print-quality",
                                       "print-scaling",
                                       "printer-resolution",
                                       "raw",
                                       "scaling",
                                       "sides"};
/// Names that look like one of those above and are none.
constexpr const char* kOtherNames[] = {
    "job-id", "job-uuid",   "job-name",    "brightness",      "gamma",
    "hue",    "saturation", "profile",     "columns",         "cpi",
    "lpi",    "wrap",       "prettyprint", "document-format", "time-at-creation"};

bool Equals(const char* left, std::string_view right) {
  return std::string_view(left).size() == right.size() &&
         strncasecmp(left, right.data(), right.size()) == 0;
}

template <class List>
bool Contains(const List& list, const char* name) {
  return std::any_of(std::begin(list), std::end(list),
                     [&](const auto& entry) { return Equals(name, entry); });
}

/// Comparing names takes time; a job with this many faults is told of enough of them.
constexpr std::size_t kMostFound = 50;

std::string DidYouMean(const std::string& nearest) {
  return nearest.empty() ? "" : "; did you mean " + nearest + "?";
}

/// A name that nobody reads and that looks like one that somebody would.
void CheckName(const cups_option_t& option, const std::vector<std::string>& known,
               std::vector<std::string>* found) {
  const std::string_view name = option.name;
  constexpr std::size_t kMostLetters = 2;
  constexpr std::size_t kShortest = 4;
  if (name.size() < kShortest || name.find("..") != name.npos || name.starts_with("com.") ||
      Contains(known, option.name) || Contains(kOtherNames, option.name) ||
      IsStandardAttribute(option.name))
    return;
  const std::string nearest = NearestName(name, known);
  if (nearest.empty() || EditDistance(name, nearest) > kMostLetters + 1) return;
  // The spooler's own spelling of something that the PPD has, such as "media-type".
  std::string joined(name);
  std::erase(joined, '-');
  if (Equals(nearest.c_str(), joined)) return;
  found->push_back("option " + std::string(name) + ": nobody knows it, it was left out" +
                   DidYouMean(nearest));
}

/// The paper that a text asks for may be that of the job although no choice has its name.
bool IsJobsPaper(const std::string& name, const Ppd& ppd) {
  constexpr float kTolerance = 5;  // points, as the spooler's library has it
  const auto wanted = PaperOfName(name);
  const std::optional<PpdPageSize> size = ppd.MarkedPageSize();
  if (!wanted || !size) return false;
  return std::fabs(wanted->first - size->width) <= kTolerance &&
         std::fabs(wanted->second - size->length) <= kTolerance;
}

std::string MarkedChoice(const Ppd& ppd, const char* option) {
  for (const std::string& choice : ppd.Choices(option))
    if (ppd.IsMarked(option, choice.c_str())) return choice;
  return "nothing";
}

/// A choice that the PPD's option does not have.
void CheckChoice(const cups_option_t& option, const Ppd& ppd, std::vector<std::string>* found) {
  if (Equals(option.name, kHouseTicketOption))
    return;  // takes any name, and an unknown one ends it
  const std::string value = option.value;
  const bool custom = value.starts_with("Custom.") || value.starts_with("{");
  const bool own_text = ppd.TakesCustom(option.name);
  if (ppd.HasChoice(option.name, option.value) || (custom && own_text)) return;
  const bool paper = Equals(option.name, "PageSize") || Equals(option.name, "PageRegion");
  if (paper && IsJobsPaper(value, ppd)) return;
  std::string text = "option " + std::string(option.name) + ": ";
  const std::string nearest = NearestName(value, ppd.Choices(option.name));
  if (own_text && !paper) {  // the value may be a secret
    text += "no such choice, it was left out";
    const char* own = Equals(option.name, kWatermarkOption)
                          ? "; give a stored watermark's name as Custom.NAME"
                          : "; give a text of your own as Custom.TEXT";
    text += nearest.empty() ? own : DidYouMean(nearest);
  } else {
    text += "no choice " + value + ", the job is printed with " + MarkedChoice(ppd, option.name) +
            DidYouMean(nearest);
  }
  found->push_back(std::move(text));
}

/// Letters and digits of a name in lower case: "tray-2" is "Tray2".
std::string Folded(std::string_view name) {
  std::string folded;
  for (const char c : name) {
    if (c >= 'A' && c <= 'Z') folded += static_cast<char>(c | 0x20);
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) folded += c;
  }
  return folded;
}

constexpr const char* kMediaOptions[] = {"PageSize", "InputSlot", "MediaType"};

/// Whether the spooler's library maps a word of its own, such as "stationery", to a choice.
bool IsLibraryWord(const std::string& word) {
  Ppd fresh = Ppd::Open(std::getenv("PPD"));
  fresh.Mark(0, nullptr);
  std::string before, after;
  for (const char* option : kMediaOptions) before += MarkedChoice(fresh, option) + "/";
  std::string name = "media", value = word;
  cups_option_t media = {name.data(), value.data()};
  fresh.Mark(1, &media);
  for (const char* option : kMediaOptions) after += MarkedChoice(fresh, option) + "/";
  return before != after;
}

/// "media" holds a size, a tray and a type in any order.
void CheckMedia(const std::string& value, const Ppd& ppd, std::vector<std::string>* found) {
  constexpr std::size_t kMostWords = 10;  // the library has four
  std::size_t start = 0;
  for (std::size_t words = 0; start <= value.size() && words < kMostWords; ++words) {
    const std::size_t end = std::min(value.find(',', start), value.size());
    const std::string part = value.substr(start, end - start);
    start = end + 1;
    if (part.empty() || IsJobsPaper(part, ppd)) continue;
    std::vector<std::string> choices;
    bool known = false;
    for (const char* option : kMediaOptions) {
      for (std::string& choice : ppd.Choices(option)) {
        // Only the marked size is the job's; trays and types give way to options of their own.
        known = known || (Folded(choice) == Folded(part) &&
                          (option != kMediaOptions[0] || ppd.IsMarked(option, choice.c_str())));
        choices.push_back(std::move(choice));
      }
    }
    if (known || (!PaperOfName(part) && IsLibraryWord(part))) continue;
    const std::string nearest = PaperOfName(part) ? "" : NearestName(part, choices);
    std::string text = "option media: no paper " + part + ", the job is printed on " +
                       MarkedChoice(ppd, "PageSize");
    if (!nearest.empty()) {
      text += DidYouMean(nearest);
    } else if (!PaperOfName(part) && ppd.IsTrue("ZRVStandardTicket")) {
      text += "; a stock of the printer is named by media-col={media-key=" + part + "}";
    }
    found->push_back(std::move(text));
  }
}

}  // namespace

std::span<const char* const> TypedOptionNames() { return kTypedNames; }

std::vector<std::string> FindVainOptions(const JobRequest& request, const Ppd& ppd,
                                         const Dictionary& ticket) {
  std::vector<std::string> found;
  std::vector<std::string> known = ppd.OptionNames();
  known.insert(known.end(), std::begin(kTypedNames), std::end(kTypedNames));
  for (const cups_option_t& option : request.own) {
    if (found.size() > kMostFound) break;
    if (ppd.HasOption(option.name)) {
      CheckChoice(option, ppd, &found);
    } else if (Equals(option.name, "media")) {
      CheckMedia(option.value, ppd, &found);
    } else {
      CheckName(option, known, &found);
    }
  }
  for (const std::string_view name : request.leftOut)
    found.push_back("option " + std::string(name) +
                    ": its value or its place in the ticket cannot be read, it was left out");
  for (const TicketGap& gap : FindGaps(ticket)) found.push_back(GapLine(gap));
  return found;
}

}  // namespace zarvo
