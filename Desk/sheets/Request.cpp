// SPDX-License-Identifier: Apache-2.0
#include "Desk/sheets/Request.h"

namespace zarvo::desk {

using nlohmann::json;

SheetRequest RequestFromJson(const json& from) {
  SheetRequest request;
  from.at("file").get_to(request.file);
  from.at("title").get_to(request.title);
  from.at("ppd").get_to(request.ppd);
  from.at("options").get_to(request.options);
  from.at("converter-options").get_to(request.converter_options);
  from.at("cache").get_to(request.cache);
  from.at("copies").get_to(request.copies);
  from.at("dots").get_to(request.dots);
  from.at("pages").get_to(request.pages);
  from.at("ahead").get_to(request.ahead);
  return request;
}

json RequestToJson(const SheetRequest& request) {
  return {{"file", request.file},
          {"title", request.title},
          {"ppd", request.ppd},
          {"options", request.options},
          {"converter-options", request.converter_options},
          {"cache", request.cache},
          {"copies", request.copies},
          {"dots", request.dots},
          {"pages", request.pages},
          {"ahead", request.ahead}};
}

json PlanToJson(const PlanReport& report) {
  json sides = json::array();
  for (const tool::PlannedSide& side : report.plan.sides)
    sides.push_back({static_cast<int>(side.kind), side.page, side.sheet, side.front, side.count,
                     side.stock, side.text, side.exception, side.width, side.height, side.turn});
  std::vector<std::string> special;
  for (const tool::SpecialSheet& sheet : report.plan.special) special.push_back(sheet.text);
  return {{"sides", sides},
          {"special", special},
          {"finishings", report.plan.finishings},
          {"page-count", report.plan.pages},
          {"sheets", report.plan.sheets},
          {"booklet", report.plan.booklet},
          {"two-sided", report.plan.two_sided},
          {"copies", report.plan.copies},
          {"findings", report.findings},
          {"complaints", report.complaints},
          {"notes", report.notes},
          {"marks", report.marks},
          {"content", report.content},
          {"ahead", report.ahead}};
}

PlanReport PlanFromJson(const json& from) {
  PlanReport report;
  for (const json& each : from.at("sides")) {
    tool::PlannedSide side;
    side.kind = static_cast<tool::PlannedSide::Kind>(each.at(0).get<int>());
    each.at(1).get_to(side.page);
    each.at(2).get_to(side.sheet);
    each.at(3).get_to(side.front);
    each.at(4).get_to(side.count);
    each.at(5).get_to(side.stock);
    each.at(6).get_to(side.text);
    each.at(7).get_to(side.exception);
    each.at(8).get_to(side.width);
    each.at(9).get_to(side.height);
    each.at(10).get_to(side.turn);
    report.plan.sides.push_back(std::move(side));
  }
  for (const json& text : from.at("special"))
    report.plan.special.push_back(
        {tool::SpecialSheet::Place::kInsert, 0, 1, true, text.get<std::string>()});
  from.at("finishings").get_to(report.plan.finishings);
  from.at("page-count").get_to(report.plan.pages);
  from.at("sheets").get_to(report.plan.sheets);
  from.at("booklet").get_to(report.plan.booklet);
  from.at("two-sided").get_to(report.plan.two_sided);
  from.at("copies").get_to(report.plan.copies);
  from.at("findings").get_to(report.findings);
  from.at("complaints").get_to(report.complaints);
  from.at("notes").get_to(report.notes);
  from.at("marks").get_to(report.marks);
  from.at("content").get_to(report.content);
  from.at("ahead").get_to(report.ahead);
  return report;
}

}  // namespace zarvo::desk
