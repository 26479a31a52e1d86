// SPDX-License-Identifier: Apache-2.0
// zarvo why: what became of a job, from the spooler's own records.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>

#include "Platform/Log.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/system/SpoolerJobs.h"

namespace zarvo::tool {
namespace {

struct WhyOptions {
  std::string job;
  bool json = false;
};

struct StateRow {
  JobState state;
  const char* word;
  const char* message;  ///< what its message means
  const char* remedy;   ///< "%" stands for the job's name
};

constexpr StateRow kStates[] = {
    {JobState::kWaiting, "waits to be printed", "its last try", ""},
    {JobState::kHeld, "is held", "its last try", "lp -i % -H resume"},
    {JobState::kPrinting, "is being printed", "so far", ""},
    {JobState::kStopped, "was not printed", "the reason",
     "print it again as the reason says, and remove this one: cancel %"},
    {JobState::kCanceled, "was canceled", "before that", ""},
    {JobState::kAborted, "was not printed", "the reason", "print it again as the reason says"},
    {JobState::kDone, "was printed", "not as asked", ""},
};

const StateRow& RowOf(JobState state) {
  for (const StateRow& row : kStates)
    if (row.state == state) return row;
  return kStates[0];
}

std::string Remedy(const StateRow& row, const std::string& name) {
  std::string text = row.remedy;
  if (const std::size_t at = text.find('%'); at != std::string::npos) text.replace(at, 1, name);
  return text;
}

int Why(const WhyOptions& options) {
  const int number = JobNumber(options.job);
  if (number == 0 && !options.job.empty())
    return Fail(options.job, "is no job", "Take the number that lp told, or none for the newest");
  SpoolerJob job;
  if (const Failure failure = FindSpoolerJob(number, &job); !failure.empty())
    return Fail(options.job.empty() ? "newest job" : options.job, failure,
                "\"lpstat -W all\" lists the jobs that the spooler knows");
  const StateRow& row = RowOf(job.state);
  const std::string name = job.queue + "-" + std::to_string(job.number);
  const std::vector<std::string> notices = NoticesOf(job.message);
  const bool failed = job.state == JobState::kStopped || job.state == JobState::kAborted;
  const int status = failed || !notices.empty() ? kExitFindings : kExitOk;
  if (options.json) {
    const nlohmann::ordered_json json = {{"job", name},
                                         {"title", job.title},
                                         {"state", row.word},
                                         {"notices", notices},
                                         {"remedy", Remedy(row, name)}};
    std::printf("%s\n", json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace).c_str());
    return status;
  }
  std::printf("%s\n", PrintableText(name + (job.title.empty() ? " " : " \"" + job.title + "\" ") +
                                    row.word +
                                    (notices.empty() ? "." : std::string("; ") + row.message + ":"))
                          .c_str());
  for (const std::string& notice : notices) std::printf("  - %s\n", PrintableText(notice).c_str());
  if (failed && notices.empty())
    std::printf("  The spooler keeps no reason; its administrator finds it in the error log.\n");
  if (*row.remedy != '\0') std::printf("  -> %s\n", PrintableText(Remedy(row, name)).c_str());
  return status;
}

}  // namespace

void SetUpWhy(CLI::App& app, Action* action) {
  const auto options = std::make_shared<WhyOptions>();
  app.add_option("job", options->job, "job as lp told it, or its number; without, your newest one");
  app.add_flag("--json", options->json, "for programs");
  app.callback([=] { *action = [=] { return Why(*options); }; });
}

}  // namespace zarvo::tool
