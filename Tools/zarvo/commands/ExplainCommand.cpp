// SPDX-License-Identifier: Apache-2.0
// zarvo explain: what a job that the filter wrote asks of the printer.
#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <nlohmann/json.hpp>

#include "Platform/Log.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/Terminal.h"
#include "Tools/zarvo/job/Findings.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

using nlohmann::ordered_json;

// A job that takes longer to draw is told as far as that.
constexpr std::chrono::milliseconds kLongestLook = std::chrono::minutes(2);

struct ExplainOptions {
  std::string file = "-";
  bool json = false;
  bool quick = false;
};

std::vector<std::string> SizeList(const PostScriptFacts& facts) {
  std::vector<std::string> list;
  for (const auto& [size, times] : facts.page_sizes)
    list.push_back(PointSizeWords(size.first, size.second));
  return list;
}

/// The facts of the document itself, in the form of the others.
std::vector<Statement> DocumentStatements(const JobReport& report) {
  const PostScriptFacts& facts = report.job.postscript;
  std::vector<Statement> statements;
  const auto say = [&](const char* name, std::string value) {
    if (!value.empty()) statements.push_back({name, std::move(value), "", 0});
  };
  say("title", facts.title);
  say("owner", facts.owner);
  const std::uint64_t drawn = DrawnPages(report);
  std::string pages = std::to_string(drawn);
  if (drawn != facts.pages && facts.pages > 0)
    pages += " (its comments tell of " + std::to_string(facts.pages) + ")";
  say(facts.booklet ? "sheet sides" : "pages", pages);
  if (facts.booklet) say("layout", "booklet, two pages on each sheet side");
  if (facts.copies > 0) say("copies", std::to_string(facts.copies));
  for (const std::string& size : SizeList(facts)) say("page size", size);
  if (facts.documents > 1) say("documents", std::to_string(facts.documents));
  if (report.job.jobs.size() > 1) say("PostScript jobs", std::to_string(report.job.jobs.size()));
  for (const std::string& mark : MarkWords(facts)) say("watermark", mark);
  if (facts.negative) say("negative", "yes");
  if (facts.mirrored) say("mirrored", "yes");
  say("size", std::to_string(facts.bytes) + " bytes");
  return statements;
}

void PrintStatements(const char* title, const std::vector<Statement>& statements,
                     const Palette& palette) {
  if (statements.empty()) return;
  std::printf("%s%s%s\n", palette.bold, title, palette.plain);
  for (const Statement& statement : statements) {
    std::string line(2 + 2 * static_cast<std::size_t>(statement.level), ' ');
    line += statement.name;
    if (!statement.Words().empty()) line += ": " + statement.Words();
    std::printf("%s\n", PrintableText(line).c_str());
  }
}

void PrintReport(const JobReport& report, const std::vector<std::string>& findings) {
  const Palette palette(ColorWanted(STDOUT_FILENO));
  PrintStatements("Job header", report.header.statements, palette);
  PrintStatements("XML ticket", report.ticket.statements, palette);
  PrintStatements("Document", DocumentStatements(report), palette);
  if (findings.empty()) return;
  std::printf("%sWhat looks wrong%s\n", palette.bold, palette.plain);
  for (const std::string& finding : findings)
    std::printf("  %s%s%s\n", palette.bad, PrintableText(finding).c_str(), palette.plain);
}

ordered_json ToJson(const std::vector<Statement>& statements) {
  ordered_json list = ordered_json::array();
  for (const Statement& statement : statements) {
    list.push_back({{"name", statement.name},
                    {"value", statement.value},
                    {"words", statement.Words()},
                    {"code", statement.code},
                    {"level", statement.level}});
  }
  return list;
}

void PrintJson(const JobReport& report, const std::vector<std::string>& findings) {
  const PostScriptFacts& facts = report.job.postscript;
  const ordered_json json = {{"header", ToJson(report.header.statements)},
                             {"ticket", ToJson(report.ticket.statements)},
                             {"document",
                              {{"title", facts.title},
                               {"owner", facts.owner},
                               {"pages", DrawnPages(report)},
                               {"page_comments", facts.pages},
                               {"booklet", facts.booklet},
                               {"copies", facts.copies},
                               {"documents", facts.documents},
                               {"postscript_jobs", report.job.jobs.size()},
                               {"bytes", facts.bytes},
                               {"page_sizes", SizeList(facts)},
                               {"watermarks", MarkWords(facts)},
                               {"negative", facts.negative},
                               {"mirrored", facts.mirrored}}},
                             {"findings", findings}};
  // Names come from the job and need not be valid UTF-8.
  std::printf("%s\n", json.dump(2, ' ', false, ordered_json::error_handler_t::replace).c_str());
}

/// Has the pages drawn, unless there is nobody to do it.
void Look(const PostScriptFiles& split, const ScratchFolder& scratch, Progress* progress,
          JobReport* report) {
  if (FindProgram("gs").empty()) {
    std::fprintf(stderr, "zarvo: the pages are not looked at: Ghostscript is not installed\n");
    return;
  }
  auto left = kLongestLook;
  for (std::size_t i = 0; i < split.files.size(); ++i) {
    progress->Stage("Looking at the pages");
    const auto start = std::chrono::steady_clock::now();
    report->looks.push_back(LookAtPages(split.files[i], report->job.jobs[i], left, scratch));
    left -= std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() -
                                                                  start);
    if (left.count() > 0 && report->looks.back().whole) continue;
    report->looks.clear();
    std::fprintf(stderr, "zarvo: the pages are not looked at: drawing them takes too long\n");
    return;
  }
}

int Explain(const ExplainOptions& options) {
  Stream file;
  std::FILE* input = stdin;
  if (options.file != "-") {
    file.reset(std::fopen(options.file.c_str(), "rbe"));
    if (!file) return Fail(options.file, std::strerror(errno));
    input = file.get();
  }
  const std::unique_ptr<ScratchFolder> scratch = MakeScratchFolder();
  if (!scratch) return kExitFailure;
  JobReport report;
  {
    Progress progress;
    progress.Stage("Reading the job");
    PostScriptFiles split;
    const Failure failure = SplitJob(input, *scratch, {}, &split);
    if (!failure.empty()) return Fail(options.file, failure);
    const JobKind kind = KindOfJob(split.facts.start, options.file);
    if (kind == JobKind::kPdf || kind == JobKind::kOffice)
      return Fail(options.file, std::string("is ") + KindWords(kind) + ", no job of the filter yet",
                  "\"zarvo preview\" shows what becomes of it");
    report = ReportOn(std::move(split.facts));
    if (!options.quick) Look(split, *scratch, &progress, &report);
  }
  const std::vector<std::string> findings = Findings(report);
  if (options.json) {
    PrintJson(report, findings);
  } else {
    PrintReport(report, findings);
  }
  if (std::fflush(stdout) != 0) return Fail("(stdout)", std::strerror(errno));
  return findings.empty() ? kExitOk : kExitFindings;
}

}  // namespace

void SetUpExplain(CLI::App& app, Action* action) {
  const auto options = std::make_shared<ExplainOptions>();
  app.add_option("file", options->file, "a job that the filter wrote; - for standard input")
      ->capture_default_str();
  app.add_flag("--json", options->json, "for programs");
  app.add_flag("--quick", options->quick,
               "read the job only, do not draw its pages to look at them");
  app.callback([=] { *action = [=] { return Explain(*options); }; });
}

}  // namespace zarvo::tool
