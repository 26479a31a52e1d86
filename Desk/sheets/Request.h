// SPDX-License-Identifier: Apache-2.0
// What the desktop program asks of the program that makes its sheets, and how it is answered.
//
// Design. Everything that reads a document works in a process of its own, zarvosheets: it can be
// ended at any time, so a change of a setting never waits for what it has made stale, and a
// document that breaks a library takes no window along. It is handed one request, a line of JSON on
// its standard input, and answers in lines of JSON on its standard output:
//
//   {"stage": "Converting the job"}                            what takes time now
//   {"plan": {...}}                                            the sheets; see PlanToJson
//   {"page": 7, "file": "/tmp/.../p7-96.png", "dots": 96}      a picture; whoever reads it removes
//   it
//   {"drawn": true}                                            what was asked for has been drawn
//   {"failure": "..."}                                         and it ends
//
// After the plan, a line {"pages": [7, 8], "dots": 96} asks for more pictures. What can be used
// again (the converted document, the drawn pages) is kept in the folder that the request names,
// under names that are made of what it was made from.
//
// No secret is in a request: what is no picture's business is masked before (see MaskedTicket in
// Desk/model/RenderSettings.h), because the filter gets its options as arguments, which everybody
// can read.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "Tools/zarvo/job/SheetPlan.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::desk {

struct SheetRequest {
  std::string file;
  std::string title;
  std::string ppd;
  std::string options;            ///< of the job, as lp takes them
  std::string converter_options;  ///< those of them that work before the filter
  std::string cache;              ///< folder for what can be used again
  int copies = 1;
  int dots = 96;                     ///< per inch, of the first pictures
  std::vector<std::uint64_t> pages;  ///< that are to be drawn first
  /// Whether only these pages of a PDF file are taken, which is done long before all of them are.
  bool ahead = false;
  /// PlanReport::content of the pictures that are there; of the same none is drawn first.
  std::string known;
};

/// Throws what the library throws when the text is no request.
SheetRequest RequestFromJson(const nlohmann::json& json);
nlohmann::json RequestToJson(const SheetRequest& request);

struct PlanReport {
  tool::SheetPlan plan;
  std::vector<std::string> findings;    ///< what looks wrong
  std::vector<std::string> complaints;  ///< what the filter left out
  std::vector<std::string> notes;       ///< of the whole job
  std::vector<std::string> marks;       ///< watermarks
  std::string content;                  ///< differs where the drawn pages differ
  bool ahead = false;                   ///< made of some of the pages
};
nlohmann::json PlanToJson(const PlanReport& report);
PlanReport PlanFromJson(const nlohmann::json& json);

}  // namespace zarvo::desk
