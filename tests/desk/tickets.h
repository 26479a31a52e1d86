// SPDX-License-Identifier: Apache-2.0
// The tickets that a person would write by hand for what the tests do in the window.
#pragma once

struct Task {
  const char* name;
  const char* ticket;
};

constexpr Task kTasks[] = {
    {"thesis", R"({"FinishingDuplex": "long-edge", "sides": "two-sided-long-edge",
      "JTMLOptions": {"JTMLOptionAll": true}, "FinishingOptions": 14, "FinishingBindValue": 15,
      "SpecialPages.FrontCover": {"SidesImaged": "none", "Stock": {"Color": "blue"}},
      "SpecialPages.BackCover": {"SidesImaged": "none", "Stock": {"Color": "blue"}},
      "SpecialPages.ExceptionList": [{"StartPage": 5, "EndPage": 8, "SidesImaged": "one-sided",
                                      "Stock": {"Weight": 160}}],
      "SpecialPages.InsertList": [{"StartPage": 60, "Quantity": 1, "Stock": {"Color": "yellow"}}]})"},
    {"booklet", R"({"BookletLayout": true, "AdvancedBookletLayoutOrderStr": "left-to-right",
      "FinishingDuplex": "short-edge", "FinishingOptions": 24, "BookletFoldStaple": "fold-and-staple",
      "JTMLOptions": {"JTMLOptionAll": true}, "watermark.Watermark": "DRAFT",
      "watermark.FirstPageOnly": 1})"},
    {"handout", R"({"JobType": {"JobType": "secure", "SecurePrintPassword": "0391"},
      "com.zarvo.Act.On": "user", "com.zarvo.Act.AT": "general", "com.zarvo.Act.UID": "ada",
      "com.zarvo.Act.AID": "4711", "JTMLOptions": {"JTMLOptionAll": true},
      "FinishingOptions": 4, "FinishingStaple1Value": 5})"},
    {"fax", R"({"JobType": {"JobType": "fax"},
      "FaxOptions": {"CoverSheet": true, "Size": "a4", "ShowRecipients": "names",
                     "LocalizedToLabel": "To"},
      "FaxRecipientList": [
        {"FirstName": "Ada", "LastName": "Byron", "FaxNumber": "+44 20 7946 0018", "UID": "ada"},
        {"LastName": "Mill", "FaxNumber": "0911-4711", "UID": "mill"},
        {"FaxNumber": "030 1234"}]})"},
    // The house ticket "handout" with its staple at another corner, kept as "right handout".
    {"house", R"({"FinishingDuplex": 2, "FinishingOptions": 4, "FinishingStaple1Value": 7,
      "JTMLOptions": {"JTMLOptionAll": true}})"},
};
