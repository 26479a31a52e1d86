// SPDX-License-Identifier: Apache-2.0
// Finishing: "finishings", "finishings-col", separator sheets and imposition. IPP has a set of
// processes, the ticket one preset and a value for each kind; the numbers of the two have nothing
// in common and are never passed through.
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <set>

#include "Source/TicketNames.h"
#include "StandardTicket/AttributeTable.h"
#include "StandardTicket/Mapping.h"

namespace zarvo {
namespace {

enum Kind : std::uint8_t {
  kNone,
  kStaple,   ///< code: staple
  kPunch,    ///< code: edge; more: holes, 0 for the printer's number
  kFold,     ///< code: fold; more: preset
  kBind,     ///< code: edge
  kBooklet,  ///< code: finish
  kOffset,
  kCannot,
};

/// A value of "finishings", its keyword as a template's name, and what it is here.
struct Finishing {
  std::int32_t value;
  std::string_view name;
  Kind kind;
  std::int32_t code = 0;
  std::int32_t more = 0;
  const char* reason = nullptr;
};

constexpr char kOneHole[] = "the finisher punches two, three or four holes";
constexpr char kNoFold[] = "no fold of the finisher has this name; see the PPD's option Fold";
constexpr char kNoBindEdge[] = "the finisher binds on the left or right edge";
constexpr char kNoTrim[] = "the finisher does not trim";

constexpr Finishing kFinishings[] = {
    {3, "none", kNone},
    {4, "staple", kStaple, kStapleTopLeft},
    {5, "punch", kPunch, kPunchLeft},
    {6, "cover", kCannot, 0, 0, "use cover-front and cover-back"},
    {7, "bind", kBind, kBindLeft},
    {8, "saddle-stitch", kBooklet, kBookletFoldAndStaple},
    {9, "edge-stitch", kStaple, kStapleDualLeft},
    {10, "fold", kFold, kFoldHalf, kPresetFold},
    {11, "trim", kCannot, 0, 0, kNoTrim},
    {12, "bale", kCannot, 0, 0, "the finisher does not bale"},
    {13, "booklet-maker", kBooklet, kBookletFoldAndStaple},
    {14, "jog-offset", kOffset},
    {15, "coat", kCannot, 0, 0, "the finisher does not coat"},
    {16, "laminate", kCannot, 0, 0, "the finisher does not laminate"},
    {20, "staple-top-left", kStaple, kStapleTopLeft},
    {21, "staple-bottom-left", kStaple, kStapleBottomLeft},
    {22, "staple-top-right", kStaple, kStapleTopRight},
    {23, "staple-bottom-right", kStaple, kStapleBottomRight},
    {24, "edge-stitch-left", kStaple, kStapleDualLeft},
    {25, "edge-stitch-top", kStaple, kStapleDualTop},
    {26, "edge-stitch-right", kStaple, kStapleDualRight},
    {27, "edge-stitch-bottom", kStaple, kStapleDualBottom},
    {28, "staple-dual-left", kStaple, kStapleDualLeft},
    {29, "staple-dual-top", kStaple, kStapleDualTop},
    {30, "staple-dual-right", kStaple, kStapleDualRight},
    {31, "staple-dual-bottom", kStaple, kStapleDualBottom},
    {32, "staple-triple-left", kStaple, kStapleTripleLeft},
    {33, "staple-triple-top", kStaple, kStapleTripleTop},
    {34, "staple-triple-right", kStaple, kStapleTripleRight},
    {35, "staple-triple-bottom", kStaple, kStapleTripleBottom},
    {50, "bind-left", kBind, kBindLeft},
    {51, "bind-top", kCannot, 0, 0, kNoBindEdge},
    {52, "bind-right", kBind, kBindRight},
    {53, "bind-bottom", kCannot, 0, 0, kNoBindEdge},
    {60, "trim-after-pages", kCannot, 0, 0, kNoTrim},
    {61, "trim-after-documents", kCannot, 0, 0, kNoTrim},
    {62, "trim-after-copies", kCannot, 0, 0, kNoTrim},
    {63, "trim-after-job", kCannot, 0, 0, kNoTrim},
    {70, "punch-top-left", kCannot, 0, 0, kOneHole},
    {71, "punch-bottom-left", kCannot, 0, 0, kOneHole},
    {72, "punch-top-right", kCannot, 0, 0, kOneHole},
    {73, "punch-bottom-right", kCannot, 0, 0, kOneHole},
    {74, "punch-dual-left", kPunch, kPunchLeft, kTwoHoles},
    {75, "punch-dual-top", kPunch, kPunchTop, kTwoHoles},
    {76, "punch-dual-right", kPunch, kPunchRight, kTwoHoles},
    {77, "punch-dual-bottom", kPunch, kPunchBottom, kTwoHoles},
    {78, "punch-triple-left", kPunch, kPunchLeft, kThreeHoles},
    {79, "punch-triple-top", kPunch, kPunchTop, kThreeHoles},
    {80, "punch-triple-right", kPunch, kPunchRight, kThreeHoles},
    {81, "punch-triple-bottom", kPunch, kPunchBottom, kThreeHoles},
    {82, "punch-quad-left", kPunch, kPunchLeft, kFourHoles},
    {83, "punch-quad-top", kPunch, kPunchTop, kFourHoles},
    {84, "punch-quad-right", kPunch, kPunchRight, kFourHoles},
    {85, "punch-quad-bottom", kPunch, kPunchBottom, kFourHoles},
    {86, "punch-multiple-left", kCannot, 0, 0, kOneHole},
    {87, "punch-multiple-top", kCannot, 0, 0, kOneHole},
    {88, "punch-multiple-right", kCannot, 0, 0, kOneHole},
    {89, "punch-multiple-bottom", kCannot, 0, 0, kOneHole},
    {90, "fold-accordion", kCannot, 0, 0, kNoFold},
    {91, "fold-double-gate", kCannot, 0, 0, kNoFold},
    {92, "fold-gate", kCannot, 0, 0, kNoFold},
    {93, "fold-half", kFold, kFoldHalf, kPresetFold},
    {94, "fold-half-z", kCannot, 0, 0, kNoFold},
    {95, "fold-left-gate", kCannot, 0, 0, kNoFold},
    {96, "fold-letter", kFold, kFoldC, kPresetLetterFold},
    {97, "fold-parallel", kCannot, 0, 0, kNoFold},
    {98, "fold-poster", kCannot, 0, 0, kNoFold},
    {99, "fold-right-gate", kCannot, 0, 0, kNoFold},
    {100, "fold-z", kFold, kFoldZ, kPresetLetterFold},
    {101, "fold-engineering-z", kCannot, 0, 0, kNoFold},
};

const Finishing* Find(const std::string& value) {
  const auto row =
      std::find_if(std::begin(kFinishings), std::end(kFinishings), [&](const Finishing& finishing) {
        return finishing.name == value || std::to_string(finishing.value) == value;
      });
  return row != std::end(kFinishings) ? row : nullptr;
}

/// A process that the job asked for, and by which attribute.
struct Wish {
  Finishing finishing;
  std::string source;
};

/// All that the job asked for; of each kind the first counts.
class Wishes {
 public:
  explicit Wishes(Mapping* mapping) : mapping_(mapping) {}

  void Add(const Finishing& finishing, const std::string& source) {
    if (finishing.kind == kNone) return;
    if (finishing.kind == kCannot) return mapping_->Drop(source, finishing.reason);
    if (const Wish* other = Of(finishing.kind)) {
      const Finishing& first = other->finishing;
      if (first.code != finishing.code || first.more != finishing.more)
        mapping_->Drop(source, "the finisher does one of this kind; the job has " + other->source);
      return;
    }
    wishes_.push_back({finishing, source});
  }

  const Wish* Of(Kind kind) const {
    for (const Wish& wish : wishes_) {
      if (wish.finishing.kind == kind) return &wish;
    }
    return nullptr;
  }

  std::string finishing_template;  ///< name of one on the printer; empty for none
  std::string template_source;
  std::optional<bool> booklet;  ///< whether pages are to be imposed as a booklet
  std::string booklet_source;

 private:
  Mapping* mapping_;
  std::vector<Wish> wishes_;
};

void ReadFinishings(ipp_t* job, Wishes* wishes, Mapping* mapping) {
  const Attribute attribute = FindAttribute(job, "finishings");
  constexpr int kMost = 100;  // more than there are values
  std::set<std::string> seen;
  for (int i = 0; i < std::min(attribute.count(), kMost); ++i) {
    const std::string value = attribute.Text(i).value_or("");
    if (!seen.insert(value).second) continue;
    if (const Finishing* finishing = Find(value)) {
      wishes->Add(*finishing, Shown("finishings", finishing->name));
    } else {
      mapping->Drop(Shown("finishings", value), "it is no registered value");
    }
  }
  if (attribute.count() > kMost) mapping->Drop("finishings", "only its first hundred values count");
}

/// An edge and what is done along it, by the number of places.
struct Edge {
  std::string_view name;
  std::int32_t bind, punch, dual, triple;  ///< 0: not possible
  std::int32_t near_corner, far_corner;    ///< of one staple: towards the origin, away from it
};
constexpr Edge kEdges[] = {
    {"left", kBindLeft, kPunchLeft, kStapleDualLeft, kStapleTripleLeft, kStapleBottomLeft,
     kStapleTopLeft},
    {"right", kBindRight, kPunchRight, kStapleDualRight, kStapleTripleRight, kStapleBottomRight,
     kStapleTopRight},
    {"top", 0, kPunchTop, kStapleDualTop, kStapleTripleTop, kStapleTopLeft, kStapleTopRight},
    {"bottom", 0, kPunchBottom, kStapleDualBottom, kStapleTripleBottom, kStapleBottomLeft,
     kStapleBottomRight},
};

const Edge* EdgeOf(Members* members, const char* member, Mapping* mapping) {
  const std::string name = members->Take(member).Text().value_or("");
  for (const Edge& edge : kEdges) {
    if (edge.name == name) return &edge;
  }
  mapping->Drop(Shown(members->PathOf(member), name), "it has to be left, right, top or bottom");
  return nullptr;
}

void ReadStitching(Members members, Wishes* wishes, Mapping* mapping) {
  if (!members) return;
  // Places count from the lower left corner; this is about half an A4 or Letter sheet either way.
  constexpr std::int32_t kHalfLength = 14400, kHalfWidth = 10600;
  const Attribute places = members.Take("stitching-locations");
  const std::string method = members.Take("stitching-method").Text().value_or("auto");
  if (method != "auto" && method != "wire")
    mapping->Drop(Shown(members.PathOf("stitching-method"), method), "the finisher uses wire");
  if (const Edge* edge = EdgeOf(&members, "stitching-reference-edge", mapping)) {
    const bool upright = edge->name == "left" || edge->name == "right";
    const bool far = places.Integer().value_or(0) > (upright ? kHalfLength : kHalfWidth);
    const std::int32_t codes[] = {edge->dual, far ? edge->far_corner : edge->near_corner,
                                  edge->dual, edge->triple};
    if (places.count() < 4) {
      wishes->Add({0, {}, kStaple, codes[places.count()]}, members.path());
    } else {
      mapping->Drop(members.PathOf("stitching-locations"),
                    "the finisher sets one to three staples");
    }
  }
  members.TellRest(mapping, "finishings-col/stitching");
}

void ReadPunching(Members members, Wishes* wishes, Mapping* mapping) {
  if (!members) return;
  const int holes = members.Take("punching-locations").count();
  const Edge* edge = EdgeOf(&members, "punching-reference-edge", mapping);
  if (holes == 1 || holes > 4) {
    mapping->Drop(members.PathOf("punching-locations"), kOneHole);
  } else if (edge != nullptr) {
    const std::int32_t codes[] = {0, 0, kTwoHoles, kThreeHoles, kFourHoles};
    wishes->Add({0, {}, kPunch, edge->punch, codes[holes]}, members.path());
  }
  members.TellRest(mapping, "finishings-col/punching");
}

void ReadBinding(Members members, Wishes* wishes, Mapping* mapping) {
  if (!members) return;
  if (const Edge* edge = EdgeOf(&members, "binding-reference-edge", mapping)) {
    if (edge->bind != 0) {
      wishes->Add({0, {}, kBind, edge->bind}, members.path());
    } else {
      mapping->Drop(members.path(), kNoBindEdge);
    }
  }
  members.TellRest(mapping, "finishings-col/binding");
}

/// One fold is a half fold; of two in one direction it is a letter's, of two against each other a
/// Z.
void ReadFolding(const Attribute& folding, const std::string& path, Wishes* wishes,
                 Mapping* mapping) {
  if (!folding) return;
  std::string first, second;
  for (int i = 0; i < std::min(folding.count(), 3); ++i) {
    Members members(folding.Collection(i), path);
    const std::string direction = members.Take("folding-direction").Text().value_or("inward");
    (i == 0 ? first : second) = direction;
    members.TellRest(mapping, "finishings-col/folding");
  }
  if (folding.count() > 2 || folding.Collection() == nullptr) {
    mapping->Drop(path, kNoFold);
  } else if (folding.count() == 1) {
    wishes->Add({0, {}, kFold, kFoldHalf, kPresetFold}, path);
  } else {
    wishes->Add({0, {}, kFold, first == second ? kFoldC : kFoldZ, kPresetLetterFold}, path);
  }
}

void ReadImposition(const Attribute& attribute, const std::string& path, Wishes* wishes,
                    Mapping* mapping) {
  if (!attribute) return;
  const std::string value = attribute.Text().value_or("");
  if (value == "booklet" || value == "signature" || value == "none") {
    wishes->booklet = value != "none";
    wishes->booklet_source = Shown(path, value);
  } else {
    mapping->Drop(Shown(path, value), "pages are imposed as a booklet or, with number-up, in rows");
  }
}

void ReadTemplate(const Attribute& attribute, const std::string& path, Wishes* wishes,
                  Mapping* mapping) {
  const std::string name = attribute.Text().value_or("");
  if (name.empty()) return;
  const std::string shown = Shown(path, name);
  if (const Finishing* finishing = Find(name)) {
    wishes->Add(*finishing, shown);
  } else if (name.starts_with("jdf-") && !attribute.IsName()) {
    mapping->Drop(shown, kNoFold);
  } else if (wishes->finishing_template.empty()) {
    wishes->finishing_template = name;
    wishes->template_source = shown;
  } else {
    mapping->Drop(shown, "the finisher follows one template at a time");
  }
}

void ReadFinishingsCol(ipp_t* job, Wishes* wishes, Mapping* mapping) {
  const std::string path = "finishings-col";
  const Attribute attribute = FindAttribute(job, path.c_str());
  constexpr int kMost = 100;
  for (int i = 0; i < std::min(attribute.count(), kMost); ++i) {
    Members members(attribute.Collection(i), path);
    if (!members) {
      mapping->Drop(path, "it is not a collection");
      continue;
    }
    ReadTemplate(members.Take("finishing-template"), members.PathOf("finishing-template"), wishes,
                 mapping);
    ReadImposition(members.Take("imposition-template"), members.PathOf("imposition-template"),
                   wishes, mapping);
    ReadStitching(members.Inner("stitching", mapping), wishes, mapping);
    ReadPunching(members.Inner("punching", mapping), wishes, mapping);
    ReadBinding(members.Inner("binding", mapping), wishes, mapping);
    ReadFolding(members.Take("folding"), members.PathOf("folding"), wishes, mapping);
    members.TellRest(mapping, path);
  }
  if (attribute.count() > kMost) mapping->Drop(path, "only its first hundred values count");
}

/// Of what cannot be done together the first in this order is done.
void MapWishes(const Wishes& wishes, Mapping* mapping) {
  const Wish* done = nullptr;
  std::string winner = wishes.template_source;
  if (!winner.empty()) {
    mapping->From(winner);
    mapping->NeedXml();
    mapping->Number(key::kFinishingOptions, kPresetTemplate);
    mapping->Text(key::kFinishingCustom, wishes.finishing_template);
  }
  for (const Kind kind : {kBooklet, kFold, kBind, kStaple, kPunch}) {
    const Wish* wish = wishes.Of(kind);
    if (wish == nullptr) continue;
    const bool together = done != nullptr && done->finishing.kind == kStaple && kind == kPunch;
    if (!winner.empty() && !together) {
      mapping->Drop(wish->source, "the finisher cannot do it together with " + winner);
      continue;
    }
    const Finishing& finishing = wish->finishing;
    mapping->From(wish->source);
    mapping->NeedXml();
    switch (kind) {
      case kBooklet:
        mapping->Number(key::kFinishingOptions, kPresetBooklet);
        mapping->Number(key::kBookletFoldStaple, finishing.code);
        break;
      case kFold:
        mapping->Number(key::kFinishingOptions, finishing.more);
        mapping->Number(key::kFinishingFoldValue, finishing.code);
        break;
      case kBind:
        mapping->Number(key::kFinishingOptions, kPresetBind);
        mapping->Number(key::kFinishingBindValue, finishing.code);
        break;
      case kStaple:
        mapping->Number(key::kFinishingOptions, kPresetZFoldPunchStaple);
        mapping->Number(key::kFinishingStaple1Value, finishing.code);
        break;
      default:
        mapping->Number(key::kFinishingOptions, kPresetZFoldPunchStaple);
        mapping->Number(key::kFinishingHolePunchValue, finishing.code);
        if (finishing.more != 0) mapping->Number(key::kFinishingHolePunchOptions, finishing.more);
        break;
    }
    done = wish;
    winner = wish->source;
  }
  if (done != nullptr && (done->finishing.kind == kStaple || done->finishing.kind == kPunch)) {
    mapping->Neutral(key::kFinishingStaple1Value, 0);
    mapping->Neutral(key::kFinishingHolePunchValue, 0);
    mapping->Neutral(key::kFinishingZFoldValue, 0);
  }
}

/// Folding sheets as a booklet takes pages that lie on them as a booklet.
void MapBooklet(ipp_t* job, Wishes* wishes, Mapping* mapping) {
  const Wish* finish = wishes->Of(kBooklet);
  if (!wishes->booklet && finish != nullptr) {
    wishes->booklet = true;
    wishes->booklet_source = finish->source;
  }
  if (!wishes->booklet) return;
  mapping->From(wishes->booklet_source);
  mapping->Boolean(key::kBookletLayout, *wishes->booklet);
  if (!*wishes->booklet) return;
  const std::string direction =
      FindAttribute(job, "presentation-direction-number-up").Text().value_or("toright-tobottom");
  const bool leftward = direction.find("toleft") != direction.npos;
  mapping->Number(key::kBookletReadingOrder, leftward ? kRightToLeft : kLeftToRight);
  // The sheets are turned over their short edge, unless the job says how.
  const std::string sides = FindAttribute(job, "sides").Text().value_or("one-sided");
  if (sides != "one-sided") return;
  mapping->Number(key::kFinishingDuplex, kShortEdge);
  mapping->Text("sides", "two-sided-short-edge");
}

void MapDirection(ipp_t* job, const Wishes& wishes, Mapping* mapping) {
  const Attribute attribute = FindAttribute(job, "presentation-direction-number-up");
  const std::string value = attribute.Text().value_or("");
  if (!attribute || wishes.booklet == true || value == "toright-tobottom") return;
  if (FindAttribute(job, "number-up").Integer().value_or(1) <= 1) return;
  mapping->Drop(Shown("presentation-direction-number-up", value),
                "the converters take the order of pages from number-up-layout");
}

void MapSeparators(ipp_t* job, Mapping* mapping) {
  const std::string path = "separator-sheets";
  const Attribute attribute = FindAttribute(job, path.c_str());
  if (!attribute) return;
  Members members(attribute.Collection(), path);
  if (!members) return mapping->Drop(path, "it is not a collection");
  const Attribute types = members.Take("separator-sheets-type");
  bool slip_sheets = false;
  for (int i = 0; i < std::min(types.count(), 10); ++i) {
    const std::string type = types.Text(i).value_or("");
    if (type == "slip-sheets") {
      slip_sheets = true;
    } else if (type != "none") {
      mapping->Drop(Shown(members.PathOf("separator-sheets-type"), type),
                    "the printers lay slip sheets between sets and no others");
    }
  }
  if (slip_sheets) {
    mapping->From(Shown(path, "slip-sheets"));
    mapping->NeedXml();
    mapping->Number(key::kFinishingSlipSheet, kSlipSheetsOn);
    members.TellRest(mapping, path);
  } else if (types.count() == 1 && types.Text() == "none") {
    mapping->From(Shown(path, "none"));
    mapping->Number(key::kFinishingSlipSheet, kSlipSheetsOff);
  }
}

}  // namespace

void MapFinishing(ipp_t* job, Mapping* mapping) {
  Wishes wishes(mapping);
  ReadFinishings(job, &wishes, mapping);
  ReadFinishingsCol(job, &wishes, mapping);
  ReadImposition(FindAttribute(job, "imposition-template"), "imposition-template", &wishes,
                 mapping);
  MapWishes(wishes, mapping);
  if (const Wish* offset = wishes.Of(kOffset)) {
    mapping->From(offset->source);
    mapping->NeedXml();
    mapping->Boolean(key::kRequestOffset, true);
    mapping->Number(key::kFinishingOffset, kOffsetSets);
  }
  MapBooklet(job, &wishes, mapping);
  MapDirection(job, wishes, mapping);
  MapSeparators(job, mapping);
}

}  // namespace zarvo
