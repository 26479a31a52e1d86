// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/SpoolerJobs.h"

#include <cups/cups.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <string_view>

#include "CUPSFilter/JobNotices.h"
#include "Tools/zarvo/system/Spooler.h"

namespace zarvo::tool {
namespace {

struct IppDeleter {
  void operator()(ipp_t* ipp) const { ippDelete(ipp); }
};
using Answer = std::unique_ptr<ipp_t, IppDeleter>;

constexpr const char* kWanted[] = {"job-id", "job-state", "job-name", "job-printer-uri",
                                   "job-printer-state-message"};

Answer Ask(http_t* spooler, ipp_op_t operation, int number) {
  ipp_t* request = ippNewRequest(operation);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  if (operation == IPP_OP_GET_JOBS) {
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "all");
    ippAddBoolean(request, IPP_TAG_OPERATION, "my-jobs", 1);
  } else {
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", number);
  }
  ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                static_cast<int>(std::size(kWanted)), nullptr, kWanted);
  return Answer(cupsDoRequest(spooler, request, "/"));
}

void Take(ipp_attribute_t* attribute, SpoolerJob* job) {
  const std::string_view name = ippGetName(attribute);
  const char* text = ippGetString(attribute, 0, nullptr);
  const std::string value = text != nullptr ? text : "";
  if (name == "job-id") job->number = ippGetInteger(attribute, 0);
  if (name == "job-state") job->state = static_cast<JobState>(ippGetInteger(attribute, 0));
  if (name == "job-name") job->title = value;
  if (name == "job-printer-uri") job->queue = value.substr(value.rfind('/') + 1);
  if (name == "job-printer-state-message") job->message = value;
}

/// The job of the highest number in the answer; 0 when there is none.
SpoolerJob Newest(ipp_t* answer) {
  SpoolerJob newest;
  SpoolerJob job;
  for (ipp_attribute_t* attribute = ippFirstAttribute(answer);;
       attribute = ippNextAttribute(answer)) {
    if (attribute != nullptr && ippGetGroupTag(attribute) == IPP_TAG_JOB &&
        ippGetName(attribute) != nullptr) {
      Take(attribute, &job);
      continue;
    }
    if (job.number > newest.number) newest = job;
    job = SpoolerJob();
    if (attribute == nullptr) return newest;
  }
}

/// What a converter finds strange in a PDF file that it prints all the same:
/// "/var/spool/cups/d00024-001 (object 120 0, offset 57435): dictionary has duplicated key".
bool IsOnFile(const std::string& message) {
  const std::size_t place = message.find(" (");
  const std::size_t text = message.find("): ");
  return message.starts_with('/') && place < text && text != std::string::npos &&
         message.find("offset ", place) < text;
}

}  // namespace

Failure FindSpoolerJob(int number, SpoolerJob* job) {
  const SpoolerConnection spooler = ConnectToSpooler();
  if (!spooler) return kNoAnswer;
  const Answer answer =
      Ask(spooler.get(), number != 0 ? IPP_OP_GET_JOB_ATTRIBUTES : IPP_OP_GET_JOBS, number);
  SpoolerJob found;
  if (answer) found = Newest(answer.get());
  if (found.number <= 0)
    return !answer || ippGetStatusCode(answer.get()) > IPP_STATUS_OK_EVENTS_COMPLETE
               ? cupsLastErrorString()
               : "no job of yours is in the spooler's records";
  *job = std::move(found);
  return "";
}

int JobNumber(const std::string& name) {
  const std::size_t dash = name.rfind('-');
  const char* begin = name.c_str() + (dash == std::string::npos ? 0 : dash + 1);
  const char* end = name.c_str() + name.size();
  int number = 0;
  const auto [stop, error] = std::from_chars(begin, end, number);
  return error == std::errc() && stop == end && number > 0 ? number : 0;
}

std::vector<std::string> NoticesOf(const std::string& message) {
  if (message.empty()) return {};
  const std::size_t summary = message.find(kSummaryStart + std::string("(1) "));
  if (summary == std::string::npos) {
    if (IsOnFile(message)) return {};
    // Two converters have written into one line.
    if (message.starts_with("STATE: "))
      return {
          "the spooler has lost the reason among lines of its converters; it stands in the "
          "error log"};
    return {message};
  }
  std::vector<std::string> notices;
  constexpr std::string_view kBefore = ". ";
  if (summary > kBefore.size()) notices.push_back(message.substr(0, summary - kBefore.size()));
  std::size_t at = message.find("(1) ", summary);
  for (int number = 1; at != std::string::npos; ++number) {
    at += ("(" + std::to_string(number) + ") ").size();
    const std::size_t next = message.find(" (" + std::to_string(number + 1) + ") ", at);
    notices.push_back(message.substr(at, next == std::string::npos ? next : next - at));
    at = next == std::string::npos ? next : next + 1;
  }
  return notices;
}

}  // namespace zarvo::tool
