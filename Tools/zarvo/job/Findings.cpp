// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/Findings.h"

#include <algorithm>

#include "CUPSFilter/Options/TicketGaps.h"
#include "Platform/Phrase.h"

namespace zarvo::tool {
namespace {

constexpr std::size_t kMostRanges = 10;

void CheckFrame(const JobFile& job, std::vector<std::string>* findings) {
  const PostScriptFacts& postscript = job.postscript;
  const auto wrong = [findings](std::string text) { findings->push_back(std::move(text)); };
  if (job.ticket_cut) wrong(Phrase("the XML ticket does not end"));
  if (job.pjl_cut) wrong(Phrase("more PJL lines than any job needs"));
  if (job.stray_lines > 0) wrong(Phrase("the job header holds a line that is no PJL"));
  if (job.pjl.empty()) wrong(Phrase("no PJL envelope: the printer takes it for plain PostScript"));
  if (job.envelopes > job.ends) wrong(Phrase("the end of the job (PJL EOJ) is missing"));
  if (job.envelopes > 1)
    wrong(Phrase("%1 job envelopes: the printer takes it for as many jobs and starts anew at each",
                 {std::to_string(job.envelopes)}));
  if (job.jobs_cut) wrong(Phrase("more PostScript jobs than can be told apart"));
  if (postscript.documents == 0) wrong(Phrase("no PostScript document"));
  // A job that has been ended in its envelope is whole without the comment.
  if (postscript.documents > 0 && !postscript.ended &&
      (job.envelopes == 0 || job.ends < job.envelopes))
    wrong(Phrase("the PostScript does not end (%%EOF)"));
  if (postscript.documents > 0 && postscript.pages == 0)
    wrong(Phrase("no page comments: pages cannot be counted, and nothing can be drawn on them"));
}

/// Which of several PostScript jobs is meant; empty when there is only one.
std::string Which(const JobReport& report, std::size_t job) {
  if (report.looks.size() < 2) return "";
  return Phrase("PostScript job %1 of %2",
                {std::to_string(job + 1), std::to_string(report.looks.size())}) +
         ": ";
}

void CheckPages(const JobReport& report, std::vector<std::string>* findings) {
  if (!report.looks.empty() && DrawnPages(report) == 0)
    findings->push_back(Phrase("no page is printed"));
  for (std::size_t i = 0; i < report.looks.size(); ++i) {
    const PageLook& look = report.looks[i];
    const std::string which = Which(report, i);
    if (!look.fault.empty() && look.whole)
      findings->push_back(which +
                          (look.pages == 0
                               ? Phrase("the printer stops before the first page: %1", {look.fault})
                               : Phrase("the printer stops after page %1: %2",
                                        {std::to_string(look.pages), look.fault})));
    // What follows the end of a document is often no more than comments.
    if (look.pages == 0 && look.whole && look.fault.empty() && report.job.jobs[i].documents > 0 &&
        DrawnPages(report) > 0)
      findings->push_back(which + Phrase("no page is printed"));
    if (!look.hidden.empty()) {
      const bool all = look.hidden.size() == look.pages;
      findings->push_back(
          which + Phrase("the watermark behind the page cannot be seen on %1, where the document "
                         "paints its own ground; put it over the page (WMPlace=Overlay)",
                         {all ? Phrase("any page") : Phrase("page %1", {PageList(look.hidden)})}));
    }
  }
}

/// Folding in the middle asks for pages that are laid out for it.
void CheckFold(const JobReport& report, std::vector<std::string>* findings) {
  if (report.job.postscript.booklet) return;
  for (const Statement& statement : report.ticket.statements) {
    if (statement.code != "finishings") continue;
    for (const char* fold : {"13", "110", "111"}) {
      if ((" " + statement.value + " ").find(" " + std::string(fold) + " ") == std::string::npos)
        continue;
      findings->push_back(GapLine(FoldGap()));
      return;
    }
  }
}

}  // namespace

JobReport ReportOn(JobFile job) {
  JobReport report;
  report.job = std::move(job);
  report.header = ExplainPjl(report.job.pjl);
  if (!report.job.ticket.empty()) report.ticket = ExplainTicketXml(report.job.ticket);
  return report;
}

std::vector<std::string> Findings(const JobReport& report) {
  std::vector<std::string> findings;
  CheckFrame(report.job, &findings);
  CheckFold(report, &findings);
  CheckPages(report, &findings);
  for (const Explanation* part : {&report.header, &report.ticket})
    findings.insert(findings.end(), part->findings.begin(), part->findings.end());
  return findings;
}

std::uint64_t DrawnPages(const JobReport& report) {
  if (report.looks.empty()) return report.job.postscript.pages;
  std::uint64_t pages = 0;
  for (const PageLook& look : report.looks) pages += look.pages;
  return pages;
}

std::string PageList(const std::vector<std::uint64_t>& pages) {
  std::vector<std::string> ranges;
  for (std::size_t i = 0; i < pages.size();) {
    std::size_t end = i + 1;
    while (end < pages.size() && pages[end] == pages[end - 1] + 1) ++end;
    if (ranges.size() == kMostRanges) {
      ranges.emplace_back("others");
      break;
    }
    ranges.push_back(std::to_string(pages[i]) +
                     (end - i > 1 ? " to " + std::to_string(pages[end - 1]) : ""));
    i = end;
  }
  std::string list;
  for (std::size_t i = 0; i < ranges.size(); ++i)
    list += (i == 0 ? "" : i + 1 == ranges.size() ? " and " : ", ") + ranges[i];
  return list;
}

}  // namespace zarvo::tool
