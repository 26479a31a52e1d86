// SPDX-License-Identifier: Apache-2.0
// zarvo metrics: figures for Prometheus, as node-exporter collects them from files.
//
// Counters are added up in the state, one number for each series under its whole name, so they go
// on growing however short the spooler's memory is. What is the case at the moment is asked for.
#include <sys/stat.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <map>
#include <memory>
#include <sstream>

#include "CUPSFilter/Watermark/outputPICT.h"
#include "Platform/AtomicFile.h"
#include "Source/FaxCover.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/commands/FinishedJobs.h"

namespace zarvo::tool {
namespace {

struct MetricsOptions {
  std::string output = "-";
  std::string state = "/var/lib/zarvo-tools/metrics.json";
};

struct Family {
  const char* name;
  const char* type;
  const char* help;
};
constexpr Family kFamilies[] = {
    {"zarvo_jobs_total", "counter", "Jobs that have ended, by what became of them."},
    {"zarvo_sheets_total", "counter", "Sheets asked of the printer, of all copies."},
    {"zarvo_settings_dropped_total", "counter", "Settings that jobs asked for and did not get."},
    {"zarvo_helper_failures_total", "counter", "Jobs for which something could not be drawn."},
    {"zarvo_job_seconds", "histogram",
     "Seconds from the start of a job's filters until the printer has it."},
    {"zarvo_queue_state", "gauge", "1 for the state that a queue is in."},
    {"zarvo_queue_accepting", "gauge", "Whether a queue takes jobs."},
    {"zarvo_queue_jobs", "gauge", "Jobs that have not ended, by their state."},
    {"zarvo_queue_oldest_seconds", "gauge", "How long the oldest of them has been there."},
    {"zarvo_spooler_up", "gauge", "Whether the spooler answers."},
};
constexpr int kSeconds[] = {1, 2, 5, 10, 30, 60, 300, 1800};
/// Names of settings come from jobs: past so many all others are one.
constexpr std::size_t kMostSettings = 100;
constexpr std::size_t kLongestSetting = 40;
constexpr char kDropped[] = "zarvo_settings_dropped_total";

/// What a filter tells when a helper did not do its work.
struct HelperFailure {
  std::string_view text;
  const char* helper;
};
constexpr HelperFailure kHelperFailures[] = {{kImageLeftOut, "image"},
                                             {kCoverLeftOut, "cover"},
                                             {kCoverRefused, "cover"},
                                             {"booklet: ", "booklet"}};

/// Numbers by their series: its name and labels, as they are written.
using SeriesTable = std::map<std::string, double>;

std::string Series(const std::string& name,
                   std::initializer_list<std::pair<const char*, std::string>> labels) {
  std::string series = name;
  char before = '{';
  for (const auto& [label, value] : labels) {
    series += std::exchange(before, ',') + std::string(label) + "=\"";
    for (const char c : value) {
      if (c == '\\' || c == '"') series += '\\';
      series += c == '\n' ? std::string("\\n") : std::string(1, c);
    }
    series += '"';
  }
  return series + "}";
}

/// The names of what a notice is about, "Staple, Punch" of "Staple, Punch: no finisher".
std::vector<std::string> SettingsIn(const std::string& notice) {
  const std::size_t end = notice.find(": ");
  if (end == notice.npos) return {"other"};
  std::vector<std::string> names;
  std::istringstream list(notice.substr(0, end));
  for (std::string name; std::getline(list, name, ',');) {
    name.erase(0, name.find_first_not_of(' '));
    name = name.substr(0, name.find('='));
    const bool plain =
        !name.empty() && name.size() <= kLongestSetting &&
        std::all_of(name.begin(), name.end(), [](unsigned char c) {
          return c < 0x80 && (std::isalnum(c) != 0 || std::strchr("-_.", c) != nullptr);
        });
    names.push_back(plain ? name : "other");
  }
  return names;
}

void Count(const FinishedJob& job, SeriesTable* totals) {
  const std::string& queue = job.queue;
  const std::string_view became = OutcomeOf(job);
  for (const char* outcome : kOutcomes)
    (*totals)[Series("zarvo_jobs_total", {{"queue", queue}, {"outcome", outcome}})] +=
        outcome == became ? 1 : 0;
  (*totals)[Series("zarvo_sheets_total", {{"queue", queue}})] += job.sheets;
  if (job.started > 0 && job.end.ended >= job.started) {
    const double seconds = static_cast<double>(job.end.ended - job.started);
    for (const int bound : kSeconds)
      (*totals)[Series("zarvo_job_seconds_bucket",
                       {{"queue", queue}, {"le", std::to_string(bound)}})] +=
          seconds <= bound ? 1 : 0;
    (*totals)[Series("zarvo_job_seconds_bucket", {{"queue", queue}, {"le", "+Inf"}})] += 1;
    (*totals)[Series("zarvo_job_seconds_sum", {{"queue", queue}})] += seconds;
    (*totals)[Series("zarvo_job_seconds_count", {{"queue", queue}})] += 1;
  }
  for (const HelperFailure& failure : kHelperFailures)
    (*totals)[Series("zarvo_helper_failures_total", {{"helper", failure.helper}})] +=
        job.message.find(failure.text) != job.message.npos ? 1 : 0;
  if (job.state != JobState::kDone) return;
  for (const std::string& notice : NoticesOf(job.message))
    for (const std::string& name : SettingsIn(notice)) {
      std::string series = Series(kDropped, {{"setting", name}});
      const auto first = totals->lower_bound(kDropped);
      const auto end = totals->lower_bound(std::string(kDropped) + "~");
      if (totals->count(series) == 0 &&
          static_cast<std::size_t>(std::distance(first, end)) >= kMostSettings)
        series = Series(kDropped, {{"setting", "other"}});
      (*totals)[series] += 1;
    }
}

/// What attribute groups of one kind in an answer say, one after the other.
template <typename Take>
void ForEachGroup(ipp_t* answer, ipp_tag_t kind, Take take) {
  std::map<std::string, ipp_attribute_t*> group;
  for (ipp_attribute_t* attribute = ippFirstAttribute(answer);;
       attribute = ippNextAttribute(answer)) {
    const char* name = attribute != nullptr ? ippGetName(attribute) : nullptr;
    if (name != nullptr && ippGetGroupTag(attribute) == kind) group[name] = attribute;
    if (name == nullptr && !group.empty()) take(std::exchange(group, {}));
    if (attribute == nullptr) return;
  }
}

IppMessage Ask(http_t* spooler, ipp_op_t operation, std::initializer_list<const char*> attributes) {
  IppMessage request = NewSpoolerRequest(operation);
  ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                static_cast<int>(attributes.size()), nullptr, attributes.begin());
  return IppMessage(cupsDoRequest(spooler, request.release(), "/"));
}

const char* WordOf(int state) {
  constexpr const char* kWords[] = {"waiting", "held", "printing", "stopped"};
  const int at = state - static_cast<int>(JobState::kWaiting);
  return at >= 0 && at < static_cast<int>(std::size(kWords)) ? kWords[at] : "waiting";
}

/// What queues are doing now.
void Look(http_t* spooler, SeriesTable* now) {
  constexpr std::pair<int, const char*> kStates[] = {{IPP_PSTATE_IDLE, "idle"},
                                                     {IPP_PSTATE_PROCESSING, "printing"},
                                                     {IPP_PSTATE_STOPPED, "stopped"}};
  const IppMessage queues = Ask(spooler, IPP_OP_CUPS_GET_PRINTERS,
                                {"printer-name", "printer-state", "printer-is-accepting-jobs"});
  ForEachGroup(queues.get(), IPP_TAG_PRINTER, [&](auto queue) {
    const std::string name = ippGetString(queue["printer-name"], 0, nullptr);
    for (const auto& [state, word] : kStates)
      (*now)[Series("zarvo_queue_state", {{"queue", name}, {"state", word}})] =
          ippGetInteger(queue["printer-state"], 0) == state ? 1 : 0;
    (*now)[Series("zarvo_queue_accepting", {{"queue", name}})] =
        ippGetBoolean(queue["printer-is-accepting-jobs"], 0);
    for (const int state : {3, 4, 5, 6})
      (*now)[Series("zarvo_queue_jobs", {{"queue", name}, {"state", WordOf(state)}})] = 0;
    (*now)[Series("zarvo_queue_oldest_seconds", {{"queue", name}})] = 0;
  });
  const IppMessage jobs =
      Ask(spooler, IPP_OP_GET_JOBS, {"job-id", "job-state", "job-printer-uri", "time-at-creation"});
  const std::time_t time = std::time(nullptr);
  ForEachGroup(jobs.get(), IPP_TAG_JOB, [&](auto job) {
    const char* uri = ippGetString(job["job-printer-uri"], 0, nullptr);
    std::string name = uri != nullptr ? uri : "";
    name.erase(0, name.rfind('/') + 1);
    (*now)[Series("zarvo_queue_jobs",
                  {{"queue", name}, {"state", WordOf(ippGetInteger(job["job-state"], 0))}})] += 1;
    if (job["time-at-creation"] == nullptr) return;
    double& oldest = (*now)[Series("zarvo_queue_oldest_seconds", {{"queue", name}})];
    oldest =
        std::max(oldest, static_cast<double>(time - ippGetInteger(job["time-at-creation"], 0)));
  });
}

std::string TextOf(const SeriesTable& series) {
  std::string text;
  for (const Family& family : kFamilies) {
    const std::string name = family.name;
    text += "# HELP " + name + " " + family.help + "\n# TYPE " + name + " " + family.type + "\n";
    for (const char* suffix : {"{", "_bucket{", "_sum{", "_count{", ""}) {
      const auto end = *suffix == '\0' ? series.upper_bound(name) : series.end();
      for (auto at = series.lower_bound(name + suffix); at != end; ++at) {
        if (!at->first.starts_with(name + suffix)) break;
        text += at->first + " " + nlohmann::json(std::llround(at->second)).dump() + "\n";
      }
    }
  }
  return text;
}

int Metrics(const MetricsOptions& options) {
  HistoryState state(options.state);
  if (!state.locked()) return Fail(state.folder(), std::strerror(errno), kWhoMay);
  SeriesTable totals;
  try {
    totals = state.content.value("totals", SeriesTable());
  } catch (const nlohmann::json::exception&) {
    state.mark = HistoryMark();  // begun anew, as counters may
  }
  SeriesTable now;
  const SpoolerConnection spooler = ConnectToSpooler();
  now["zarvo_spooler_up"] = spooler ? 1 : 0;
  if (spooler) {
    std::vector<EndedJob> ended;
    if (const Failure failure = ListEnded(spooler.get(), state.mark, &ended); !failure.empty())
      return Fail("spooler", failure);
    for (const EndedJob& end : ended) {
      FinishedJob job;
      const Failure failure = DescribeJob(spooler.get(), end, &job);
      if (!failure.empty() && &end == ended.data())
        return Fail("job " + std::to_string(end.number), failure);
      if (failure.empty()) Count(job, &totals);
      state.mark.Take(end);
    }
    state.content["totals"] = totals;
    if (!ended.empty() && !state.Save()) return Fail(options.state, std::strerror(errno));
    Look(spooler.get(), &now);
  }
  now.merge(totals);
  constexpr mode_t kReadable = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
  if (options.output == "-") return WriteOutput("-", TextOf(now));
  // Whoever collects it must not meet half of it.
  return WriteFileAtomically(options.output, TextOf(now), kReadable)
             ? kExitOk
             : Fail(options.output, std::strerror(errno));
}

}  // namespace

void SetUpMetrics(CLI::App& app, Action* action) {
  const auto options = std::make_shared<MetricsOptions>();
  app.add_option("--output", options->output, "file of node-exporter's, or - for standard output")
      ->capture_default_str();
  app.add_option("--state", options->state, "the file that holds the counters")
      ->capture_default_str();
  app.callback([=] { *action = [=] { return Metrics(*options); }; });
}

}  // namespace zarvo::tool
