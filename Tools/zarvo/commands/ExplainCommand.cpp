// SPDX-License-Identifier: Apache-2.0
// zarvo explain: what a job that the filter wrote asks of the printer.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <nlohmann/json.hpp>

#include "Platform/Log.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/Terminal.h"
#include "Tools/zarvo/job/JobFile.h"
#include "Tools/zarvo/job/Words.h"

namespace zarvo::tool {
namespace {

using nlohmann::ordered_json;

struct Options {
  std::string file = "-";
  bool json = false;
};

struct StreamCloser {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};

/// Everything there is to say about one job.
struct Report {
  JobFile job;
  Explanation ticket;
  Explanation header;
  std::vector<std::string> findings;
};

void CheckFrame(Report* report) {
  const JobFile& job = report->job;
  const PostScriptFacts& postscript = job.postscript;
  const auto wrong = [report](const char* text) { report->findings.emplace_back(text); };
  if (job.ticket_cut) wrong("the XML ticket does not end");
  if (job.pjl_cut) wrong("more PJL lines than any job needs");
  if (job.stray_lines > 0) wrong("the job header holds a line that is no PJL");
  if (job.pjl.empty()) wrong("no PJL envelope: the printer takes it for plain PostScript");
  if (job.envelopes > job.ends) wrong("the end of the job (PJL EOJ) is missing");
  if (job.envelopes > 1) wrong("more than one job envelope");
  if (postscript.documents == 0) wrong("no PostScript document");
  if (postscript.documents > 0 && !postscript.ended) wrong("the PostScript does not end (%%EOF)");
  if (postscript.documents > 0 && postscript.pages == 0)
    wrong("no page comments: pages cannot be counted, and nothing can be drawn on them");
}

std::vector<std::string> SizeList(const PostScriptFacts& facts) {
  std::vector<std::string> list;
  for (const auto& [size, times] : facts.page_sizes)
    list.push_back(PointSizeWords(size.first, size.second));
  return list;
}

/// The facts of the document itself, in the form of the others.
std::vector<Statement> DocumentStatements(const PostScriptFacts& facts) {
  std::vector<Statement> statements;
  const auto say = [&](const char* name, std::string value) {
    statements.push_back({name, std::move(value), "", 0});
  };
  say(facts.booklet ? "sheet sides" : "pages", std::to_string(facts.pages));
  if (facts.booklet) say("layout", "booklet, two pages on each sheet side");
  for (const std::string& size : SizeList(facts)) say("page size", size);
  if (facts.documents > 1) say("documents", std::to_string(facts.documents));
  if (facts.text_overlay) say("watermark", "text that the page shows through");
  if (facts.image_watermark) say("watermark", "image");
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
    if (!statement.value.empty()) line += ": " + statement.value;
    std::printf("%s\n", PrintableText(line).c_str());
  }
}

void PrintReport(const Report& report) {
  const Palette palette(ColorWanted(STDOUT_FILENO));
  PrintStatements("Job header", report.header.statements, palette);
  PrintStatements("XML ticket", report.ticket.statements, palette);
  PrintStatements("Document", DocumentStatements(report.job.postscript), palette);
  if (report.findings.empty()) return;
  std::printf("%sWhat looks wrong%s\n", palette.bold, palette.plain);
  for (const std::string& finding : report.findings)
    std::printf("  %s%s%s\n", palette.bad, PrintableText(finding).c_str(), palette.plain);
}

ordered_json ToJson(const std::vector<Statement>& statements) {
  ordered_json list = ordered_json::array();
  for (const Statement& statement : statements) {
    list.push_back({{"name", statement.name},
                    {"value", statement.value},
                    {"code", statement.code},
                    {"level", statement.level}});
  }
  return list;
}

void PrintJson(const Report& report) {
  const PostScriptFacts& facts = report.job.postscript;
  const ordered_json json = {{"header", ToJson(report.header.statements)},
                             {"ticket", ToJson(report.ticket.statements)},
                             {"document",
                              {{"pages", facts.pages},
                               {"booklet", facts.booklet},
                               {"documents", facts.documents},
                               {"bytes", facts.bytes},
                               {"page_sizes", SizeList(facts)},
                               {"text_overlay", facts.text_overlay},
                               {"image_watermark", facts.image_watermark}}},
                             {"findings", report.findings}};
  // Names come from the job and need not be valid UTF-8.
  std::printf("%s\n", json.dump(2, ' ', false, ordered_json::error_handler_t::replace).c_str());
}

int Explain(const Options& options) {
  std::unique_ptr<std::FILE, StreamCloser> file;
  std::FILE* input = stdin;
  if (options.file != "-") {
    file.reset(std::fopen(options.file.c_str(), "rbe"));
    if (!file) return Fail(options.file, std::strerror(errno));
    input = file.get();
  }
  Report report;
  {
    Progress progress;
    progress.Stage("Reading the job");
    report.job = ReadJobFile(input, nullptr);
  }
  if (std::ferror(input) != 0) return Fail(options.file, std::strerror(errno));
  report.header = ExplainPjl(report.job.pjl);
  if (!report.job.ticket.empty()) report.ticket = ExplainTicketXml(report.job.ticket);
  CheckFrame(&report);
  for (const Explanation* part : {&report.header, &report.ticket})
    report.findings.insert(report.findings.end(), part->findings.begin(), part->findings.end());
  if (options.json) {
    PrintJson(report);
  } else {
    PrintReport(report);
  }
  if (std::fflush(stdout) != 0) return Fail("(stdout)", std::strerror(errno));
  return report.findings.empty() ? kExitOk : kExitFindings;
}

}  // namespace

void SetUpExplain(CLI::App& app, Action* action) {
  const auto options = std::make_shared<Options>();
  app.add_option("file", options->file, "a job that the filter wrote; - for standard input")
      ->capture_default_str();
  app.add_flag("--json", options->json, "for programs");
  app.callback([=] { *action = [=] { return Explain(*options); }; });
}

}  // namespace zarvo::tool
