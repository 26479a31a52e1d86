// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/commands/FinishedJobs.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <string_view>

#include "CUPSFilter/JobNotices.h"
#include "Tools/zarvo/ticket/JobTicket.h"

namespace zarvo::tool {
namespace {

/// So far a clock may be set back, in seconds.
constexpr std::time_t kOverlap = 600;
/// Asked for at first; the answer comes newest first, and the scheduler works for each job in it.
constexpr int kFirstAnswer = 256;

constexpr std::size_t kLongestState = 16 << 20;

const std::string& MakeFolder(const std::string& folder) {
  std::error_code error;  // the lock says why, where there is none
  std::filesystem::create_directories(folder, error);
  return folder;
}

/// Attributes that the scheduler knows without reading a job's file.
constexpr const char* kListed[] = {"job-id", "job-state", "time-at-completed"};

/// At most `limit` jobs that have ended, newest first.
Failure AskForEnded(http_t* spooler, int limit, std::vector<EndedJob>* jobs, int* count) {
  IppMessage request = NewSpoolerRequest(IPP_OP_GET_JOBS);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr,
               "completed");
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "limit", limit);
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                static_cast<int>(std::size(kListed)), nullptr, kListed);
  const IppMessage answer(cupsDoRequest(spooler, request.release(), "/"));
  if (!answer || ippGetStatusCode(answer.get()) > IPP_STATUS_OK_EVENTS_COMPLETE)
    return cupsLastErrorString();
  jobs->clear();
  *count = 0;
  EndedJob job;
  int state = 0;
  for (ipp_attribute_t* attribute = ippFirstAttribute(answer.get());;
       attribute = ippNextAttribute(answer.get())) {
    if (attribute == nullptr || ippGetName(attribute) == nullptr) {
      if (job.number > 0) ++*count;
      if (job.number > 0 && job.ended > 0 && state >= static_cast<int>(JobState::kCanceled))
        jobs->push_back(job);
      job = EndedJob();
      state = 0;
      if (attribute == nullptr) return "";
      continue;
    }
    const std::string_view name = ippGetName(attribute);
    if (name == "job-id") job.number = ippGetInteger(attribute, 0);
    if (name == "job-state") state = ippGetInteger(attribute, 0);
    if (name == "time-at-completed") job.ended = ippGetInteger(attribute, 0);
  }
}

}  // namespace

bool HistoryMark::Has(const EndedJob& job) const {
  const auto taken = taken_.find(job.number);
  return job.ended < oldest() || (taken != taken_.end() && taken->second == job.ended);
}

void HistoryMark::Take(const EndedJob& job) {
  newest_ = std::max(newest_, job.ended);
  taken_[job.number] = job.ended;
  std::erase_if(taken_, [this](const auto& taken) { return taken.second < oldest(); });
}

std::time_t HistoryMark::oldest() const {
  // A clock that was far ahead must not hide what ends until then.
  return std::min(newest_, std::time(nullptr)) - kOverlap;
}

nlohmann::json HistoryMark::ToJson() const {
  nlohmann::json taken = nlohmann::json::array();
  for (const auto& [number, ended] : taken_) taken.push_back({number, ended});
  return {{"newest", newest_}, {"taken", std::move(taken)}};
}

HistoryMark HistoryMark::FromJson(const nlohmann::json& json) {
  HistoryMark mark;
  try {
    mark.newest_ = json.at("newest").get<std::time_t>();
    for (const nlohmann::json& taken : json.at("taken"))
      mark.taken_[taken.at(0).get<int>()] = taken.at(1).get<std::time_t>();
  } catch (const nlohmann::json::exception&) {
    return HistoryMark();
  }
  return mark;
}

HistoryState::HistoryState(std::string file)
    : content(nlohmann::json::object()),
      file_(std::move(file)),
      folder_(std::filesystem::absolute(file_).parent_path()),
      lock_(MakeFolder(folder_)) {
  if (!lock_) return;
  if (const std::optional<std::string> text = ReadWholeFile(file_, kLongestState))
    content = nlohmann::json::parse(*text, nullptr, false);
  if (!content.is_object()) content = nlohmann::json::object();
  mark = HistoryMark::FromJson(content.value("mark", nlohmann::json()));
}

bool HistoryState::Save() {
  content["mark"] = mark.ToJson();
  return WriteFileAtomically(file_, content.dump(), S_IRUSR | S_IWUSR);
}

IppMessage NewSpoolerRequest(ipp_op_t operation) {
  IppMessage request(ippNewRequest(operation));
  ippSetVersion(request.get(), 2, 0);  // answers of older versions leave collections out
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
               "ipp://localhost/");
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
               cupsUser());
  return request;
}

const char* OutcomeOf(const FinishedJob& job) {
  const auto& [printed, not_as_asked, canceled, refused, failed] = kOutcomes;
  // The spooler stops a job that a filter refuses, until somebody cancels it.
  if (job.state != JobState::kDone && job.message.find(kRefusal) != std::string::npos)
    return refused;
  if (job.state == JobState::kCanceled) return canceled;
  if (job.state == JobState::kAborted) return failed;
  return NoticesOf(job.message).empty() ? printed : not_as_asked;
}

Failure ListEnded(http_t* spooler, const HistoryMark& mark, std::vector<EndedJob>* jobs) {
  std::vector<EndedJob> found;
  int count = 0;
  int limit = kFirstAnswer;
  for (;; limit *= 8) {
    if (Failure failure = AskForEnded(spooler, limit, &found, &count); !failure.empty())
      return failure;
    if (count < limit || (!found.empty() && found.back().ended < mark.oldest())) break;
  }
  std::erase_if(found, [&](const EndedJob& job) { return mark.Has(job); });
  std::sort(found.begin(), found.end(), [](const EndedJob& left, const EndedJob& right) {
    return std::pair(left.ended, left.number) < std::pair(right.ended, right.number);
  });
  *jobs = std::move(found);
  return "";
}

Failure DescribeJob(http_t* spooler, const EndedJob& end, FinishedJob* job) {
  IppMessage request = NewSpoolerRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", end.number);
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
               "all");
  const IppMessage answer(cupsDoRequest(spooler, request.release(), "/"));
  if (!answer || ippGetStatusCode(answer.get()) > IPP_STATUS_OK_EVENTS_COMPLETE)
    return cupsLastErrorString();
  FinishedJob read;
  read.end = end;
  read.options = OptionsOfJob(answer.get(), &read.queue);
  const auto number = [&](const char* name, auto* value) {
    if (ipp_attribute_t* found = ippFindAttribute(answer.get(), name, IPP_TAG_ZERO))
      if (ippGetValueTag(found) == IPP_TAG_INTEGER || ippGetValueTag(found) == IPP_TAG_ENUM)
        *value = ippGetInteger(found, 0);
  };
  const auto text = [&](const char* name, std::string* value) {
    ipp_attribute_t* found = ippFindAttribute(answer.get(), name, IPP_TAG_ZERO);
    if (const char* string = found != nullptr ? ippGetString(found, 0, nullptr) : nullptr)
      *value = string;
  };
  int state = static_cast<int>(read.state);
  number("job-state", &state);
  read.state = static_cast<JobState>(state);
  number("job-media-sheets-completed", &read.sheets);
  number("job-impressions-completed", &read.sides);
  number("copies", &read.copies);
  number("time-at-creation", &read.created);
  number("time-at-processing", &read.started);
  text("job-uuid", &read.uuid);
  text("job-originating-user-name", &read.user);
  text("job-originating-host-name", &read.host);
  text("job-printer-state-message", &read.message);
  if (read.user.empty() || read.created == 0)
    return "the spooler does not tell this user about other people's jobs; run this as root";
  *job = std::move(read);
  return "";
}

}  // namespace zarvo::tool
