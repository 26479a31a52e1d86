// SPDX-License-Identifier: Apache-2.0
#include "Desk/sheets/Request.h"

// Each field is named once, and stands in the text under its own name; one that is missing throws.
namespace zarvo::tool {

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(PlannedSide, kind, page, sheet, front, count, stock, text,
                                   exception, width, height, turn)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(SpecialSheet, place, after_page, count, blank, text)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(SheetPlan, sides, special, finishings, pages, sheets, booklet,
                                   two_sided, copies)

}  // namespace zarvo::tool

namespace zarvo::desk {

using nlohmann::json;

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(SheetRequest, file, title, ppd, options, converter_options,
                                   cache, copies, dots, pages, ahead, known)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(PlanReport, plan, findings, complaints, notes, marks, content,
                                   ahead)

SheetRequest RequestFromJson(const json& from) { return from.get<SheetRequest>(); }

json RequestToJson(const SheetRequest& request) { return request; }

json PlanToJson(const PlanReport& report) { return report; }

PlanReport PlanFromJson(const json& from) { return from.get<PlanReport>(); }

}  // namespace zarvo::desk
