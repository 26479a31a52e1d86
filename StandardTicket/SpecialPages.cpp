// SPDX-License-Identifier: Apache-2.0
// Covers, inserted sheets, page exceptions and the shift of the image.
#include <algorithm>
#include <iterator>
#include <limits>

#include "Source/TicketNames.h"
#include "StandardTicket/AttributeTable.h"
#include "StandardTicket/Mapping.h"

namespace zarvo {
namespace {

struct CoverType {
  std::string_view value;
  std::int32_t code;
};
constexpr CoverType kCoverTypes[] = {{"print-none", kCoverBlank},
                                     {"print-front", kCoverFront},
                                     {"print-back", kCoverBack},
                                     {"print-both", kCoverBothSides}};

void MapCover(ipp_t* job, const char* name, const char* cover, Mapping* mapping) {
  const Attribute attribute = FindAttribute(job, name);
  if (!attribute) return;
  Members members(attribute.Collection(), name);
  if (!members) return mapping->Drop(name, "it is not a collection");
  const std::string type = members.Take("cover-type").Text().value_or("print-none");
  if (type == "no-cover") return mapping->Without(cover);
  const auto row = std::find_if(std::begin(kCoverTypes), std::end(kCoverTypes),
                                [&](const CoverType& known) { return known.value == type; });
  if (row == std::end(kCoverTypes))
    return mapping->Drop(Shown(members.PathOf("cover-type"), type), "it is no kind of cover");
  mapping->From(Shown(members.PathOf("cover-type"), type));
  mapping->NeedXml();
  mapping->Number(KeyIn(cover, key::special_page::kSidesImaged), row->code);
  MapMedium(&members, KeyIn(cover, key::special_page::kStock), mapping);
  members.TellRest(mapping, name);
}

/// The values of a set that become elements of a list of the ticket; tells of those beyond the
/// most.
int CountOf(const Attribute& attribute, const char* name, Mapping* mapping) {
  constexpr int kMost = static_cast<int>(kMostSpecialPages);
  if (attribute.count() > kMost)
    mapping->Drop(name, "only its first " + std::to_string(kMost) + " values count");
  return std::min(attribute.count(), kMost);
}

void MapInserts(ipp_t* job, Mapping* mapping) {
  const std::string path = "insert-sheet";
  const Attribute attribute = FindAttribute(job, path.c_str());
  const int count = CountOf(attribute, path.c_str(), mapping);
  std::size_t made = 0;
  for (int i = 0; i < count; ++i) {
    Members members(attribute.Collection(i), path);
    if (!members) {
      mapping->Drop(path, "it is not a collection");
      continue;
    }
    const Attribute after = members.Take("insert-after-page-number");
    const Attribute number = members.Take("insert-count");
    const std::optional<std::int32_t> page = after ? after.Integer() : std::optional(0);
    const std::optional<std::int32_t> sheets = number ? number.Integer() : std::optional(1);
    if (!page || *page < 0 || !sheets || *sheets < 0) {
      mapping->Drop(page && *page >= 0 ? members.PathOf("insert-count")
                                       : members.PathOf("insert-after-page-number"),
                    "it takes a whole number from 0 up; this insert is left out");
      continue;
    }
    if (*sheets == 0) continue;
    mapping->From(Shown(path, "after page " + std::to_string(*page)));
    mapping->NeedXml();
    const std::string insert = ElementOf(key::kInsertList, made++);
    mapping->Number(KeyIn(insert, key::special_page::kStartPage), *page);
    mapping->Number(KeyIn(insert, key::special_page::kQuantity), *sheets);
    MapMedium(&members, KeyIn(insert, key::special_page::kStock), mapping);
    members.TellRest(mapping, path);
  }
}

/// The six attributes of the image's shift, in hundredths of a millimetre as in the XML ticket.
struct Shift {
  const char* attribute;
  const char* side1;
  const char* side2;
};
constexpr Shift kShifts[] = {{"x-image-shift", key::shift::kX1, key::shift::kX2},
                             {"y-image-shift", key::shift::kY1, key::shift::kY2},
                             {"x-side1-image-shift", key::shift::kX1, nullptr},
                             {"x-side2-image-shift", key::shift::kX2, nullptr},
                             {"y-side1-image-shift", key::shift::kY1, nullptr},
                             {"y-side2-image-shift", key::shift::kY2, nullptr}};

bool MapShifts(Members* members, const std::string& dictionary, Mapping* mapping) {
  bool any = false;
  for (const Shift& row : kShifts) {
    const Attribute attribute = members->Take(row.attribute);
    if (!attribute) continue;
    const std::optional<std::int32_t> shift = attribute.Integer();
    if (!shift) {
      mapping->Drop(members->PathOf(row.attribute),
                    "it takes a whole number, in hundredths of a millimeter");
      continue;
    }
    mapping->From(Shown(members->PathOf(row.attribute), std::to_string(*shift)));
    if (!any) mapping->Boolean(KeyIn(dictionary, key::shift::kFullPrecision), true);
    any = true;
    mapping->Number(KeyIn(dictionary, row.side1), *shift);
    if (row.side2 != nullptr) mapping->Number(KeyIn(dictionary, row.side2), *shift);
  }
  return any;
}

/// Pages with settings of their own; the names of the settings lack the list's element.
struct Exception {
  PageRange pages;
  std::vector<StandardSetting> settings;
};

bool SameSettings(const Exception& left, const Exception& right) {
  return std::equal(left.settings.begin(), left.settings.end(), right.settings.begin(),
                    right.settings.end(), [](const StandardSetting& a, const StandardSetting& b) {
                      return a.name == b.name && a.value == b.value;
                    });
}

/// What an override asks for, but for the pages. Tells of what cannot be for single pages.
std::vector<StandardSetting> OverrideSettings(Members* members, Mapping* mapping) {
  Mapping own;
  own.From(members->path());
  const Attribute sides = members->Take("sides");
  if (sides) {
    const std::string value = sides.Text().value_or("");
    const std::int32_t code = value == "one-sided"              ? kOneSided
                              : value == "two-sided-long-edge"  ? kLongEdge
                              : value == "two-sided-short-edge" ? kShortEdge
                                                                : 0;
    if (code != 0) {
      own.Number(KeyIn("", key::special_page::kSidesImaged), code);
    } else {
      own.Drop(Shown(members->PathOf("sides"), value), "it is no way to print sides");
    }
  }
  if (const Attribute mode = members->Take("print-color-mode")) {
    const std::string value = mode.Text().value_or("");
    const std::string shown = Shown(members->PathOf("print-color-mode"), value);
    const bool gray = value.ends_with("monochrome"), two_levels = value.ends_with("bi-level");
    if (value == "color" || gray || two_levels)
      own.Number(KeyIn("", key::special_page::kOutputColor), value == "color" ? 2 : 1);
    if (two_levels) own.Drop(shown, "it is printed in shades of gray");
    if (value != "color" && value != "auto" && !gray && !two_levels)
      own.Drop(shown, "pages are in color or gray");
  }
  MapRendering(members, KeyIn("", key::special_page::kFullColor), &own);
  MapMedium(members, KeyIn("", key::special_page::kStock), &own);
  MapShifts(members, KeyIn("", key::special_page::kImageShift), &own);
  const Attribute copies = members->Take("document-copies");
  const std::optional<PageRange> all = copies.Range();
  if (copies && (!all || all->low > 1 || all->high != std::numeric_limits<std::int32_t>::max()))
    own.Drop(members->PathOf("document-copies"), "exceptions are the same in every copy");
  const Attribute documents = members->Take("document-numbers");
  if (documents && (!documents.Range() || documents.Range()->low > 1))
    own.Drop(members->PathOf("document-numbers"), "a job is one document to the printers");
  members->TellRest(&own, "overrides/member");
  StandardTicket ticket = own.Take();
  for (NotHonoured& dropped : ticket.not_honoured)
    mapping->Drop(std::move(dropped.attribute), std::move(dropped.reason));
  return std::move(ticket.settings);
}

/// Joins neighbours that say the same; the order of those that differ stays, for of two that name
/// one page the later counts.
void Join(std::vector<Exception>* exceptions) {
  std::vector<Exception> joined;
  for (Exception& next : *exceptions) {
    Exception* last = joined.empty() ? nullptr : &joined.back();
    const bool touching =
        last != nullptr && next.pages.low <= last->pages.high && last->pages.low <= next.pages.high;
    const bool adjoining = last != nullptr && last->pages.high + std::int64_t{1} == next.pages.low;
    if ((touching || adjoining) && SameSettings(*last, next)) {
      last->pages.low = std::min(last->pages.low, next.pages.low);
      last->pages.high = std::max(last->pages.high, next.pages.high);
    } else {
      joined.push_back(std::move(next));
    }
  }
  *exceptions = std::move(joined);
}

void MapOverrides(ipp_t* job, Mapping* mapping) {
  const std::string path = "overrides";
  const Attribute attribute = FindAttribute(job, path.c_str());
  const int count = CountOf(attribute, path.c_str(), mapping);
  std::vector<Exception> exceptions;
  bool too_many = false;
  for (int i = 0; i < count; ++i) {
    Members members(attribute.Collection(i), path);
    const Attribute pages = members.Take("pages");
    if (!members || !pages) {
      mapping->Drop(members ? members.PathOf("pages") : path,
                    members ? "an exception names its pages" : "it is not a collection");
      continue;
    }
    const std::vector<StandardSetting> settings = OverrideSettings(&members, mapping);
    if (settings.empty()) continue;
    for (int range = 0; range < CountOf(pages, "overrides/pages", mapping); ++range) {
      const std::optional<PageRange> named = pages.Range(range);
      if (!named || named->low < 1) {
        mapping->Drop(members.PathOf("pages"), "it takes ranges of pages from 1 up");
      } else if (exceptions.size() < kMostSpecialPages) {
        exceptions.push_back({*named, settings});
      } else {
        too_many = true;
      }
    }
  }
  if (too_many)
    mapping->Drop(path, "only its first " + std::to_string(kMostSpecialPages) + " ranges count");
  Join(&exceptions);
  for (std::size_t i = 0; i < exceptions.size(); ++i) {
    const Exception& exception = exceptions[i];
    const std::string element = ElementOf(key::kExceptionList, i);
    mapping->From(Shown(path, "pages " + std::to_string(exception.pages.low) + "-" +
                                  std::to_string(exception.pages.high)));
    mapping->NeedXml();
    mapping->Number(KeyIn(element, key::special_page::kStartPage), exception.pages.low);
    mapping->Number(KeyIn(element, key::special_page::kEndPage), exception.pages.high);
    for (const StandardSetting& setting : exception.settings) mapping->Copy(element, setting);
  }
}

}  // namespace

void MapSpecialPages(ipp_t* job, Mapping* mapping) {
  MapCover(job, "cover-front", key::kFrontCover, mapping);
  MapCover(job, "cover-back", key::kBackCover, mapping);
  MapInserts(job, mapping);
  MapOverrides(job, mapping);
  Members message(job, "");
  if (MapShifts(&message, key::kImageShiftOptionsJob, mapping)) mapping->NeedXml();
}

}  // namespace zarvo
