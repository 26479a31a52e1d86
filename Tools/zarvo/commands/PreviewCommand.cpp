// SPDX-License-Identifier: Apache-2.0
// zarvo preview: the sheets as the printer will deliver them.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <thread>

#include "CUPSFilter/Options/PpdTicket.h"
#include "Platform/Log.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/Terminal.h"
#include "Tools/zarvo/job/Findings.h"
#include "Tools/zarvo/job/JobOptions.h"
#include "Tools/zarvo/job/Notes.h"
#include "Tools/zarvo/job/SheetPlan.h"
#include "Tools/zarvo/system/Convert.h"
#include "Tools/zarvo/system/DrawSheets.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

namespace fs = std::filesystem;

struct PreviewOptions {
  std::string job;
  std::string queue;
  std::string ppd;
  JobOptions options;
  std::string output;
  int resolution = 100;
  int copies = 0;
  bool open = false;
};

bool EndsIn(const std::string& name, const char* ending) {
  std::string lower(name);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower.ends_with(ending);
}

bool WritesPictures(const std::string& output) { return EndsIn(output, ".png"); }

/// Whether something can be written under that name: a PDF file, pictures, or whatever a device or
/// a pipe takes.
bool CanWrite(const std::string& output) {
  std::error_code error;
  const fs::file_type type = fs::status(output, error).type();
  return output == "-" || EndsIn(output, ".pdf") || WritesPictures(output) ||
         type == fs::file_type::character || type == fs::file_type::fifo;
}

bool IsSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

/// Shows a file on the desktop. Returns an exit status.
int Show(const std::string& file) {
  if (!IsSet("DISPLAY") && !IsSet("WAYLAND_DISPLAY"))
    return Fail(file, "is written, but there is no display to show it on");
  std::string program = FindProgram("xdg-open");
  std::string argument = file;
  char* const arguments[] = {program.data(), argument.data(), nullptr};
  int status = -1;
  std::fflush(stdout);
  // Not as a child that is ended with this program: the viewer may be one of its own.
  pid_t opener = 0;
  if (!program.empty() &&
      posix_spawn(&opener, program.c_str(), nullptr, nullptr, arguments, environ) == 0) {
    while (waitpid(opener, &status, 0) < 0 && errno == EINTR) {
    }
  }
  if (status == 0) return kExitOk;
  return Fail(file, "cannot be shown here", "Install the package xdg-utils, or open it yourself");
}

/// One preview, from the job to its sheets.
class Preview {
 public:
  Preview(const PreviewOptions& options, std::string option_text, std::string ppd)
      : options_(options), option_text_(std::move(option_text)), ppd_(std::move(ppd)) {}

  /// An exit status.
  int Run() {
    scratch_ = MakeScratchFolder();
    if (!scratch_) return kExitFailure;
    std::error_code error;
    job_file_ = fs::absolute(options_.job, error);
    const fs::file_type type = fs::status(options_.job, error).type();
    if (options_.job == "-" || type == fs::file_type::fifo || type == fs::file_type::character) {
      // It can be read only once.
      job_file_ = scratch_->File("job");
      const int status = Deliver(options_.job == "-" ? "/dev/stdin" : options_.job, job_file_);
      if (status != kExitOk) return status;
    }
    const Failure failure = DrawAll();
    if (status_ == kExitFailure) return status_;  // told already
    if (!failure.empty()) {
      for (const Complaint& complaint : complaints_)
        if (failure.find(complaint.text) == std::string::npos)
          Tell("the filter says: " + complaint.text);
      return Fail(Title(), failure);
    }
    const std::vector<std::string> findings = Findings(report_);
    if (options_.output != "-") PrintPlan();
    bool fault = !findings.empty();
    for (const Complaint& complaint : complaints_) {
      Tell("the filter says: " + complaint.text);
      fault = fault || complaint.fault;
    }
    for (const std::string& finding : findings) {
      // The filter may have seen it already.
      const bool told = std::any_of(complaints_.begin(), complaints_.end(),
                                    [&finding](const Complaint& complaint) {
                                      return complaint.text.find(finding) != std::string::npos;
                                    });
      if (!told) Tell(Title() + ": " + finding);
    }
    return fault ? kExitFindings : kExitOk;
  }

  /// What there is to look at; empty when nothing has been written.
  const std::string& FirstFile() const { return first_; }

 private:
  static void Tell(const std::string& text) {
    std::fprintf(stderr, "zarvo: %s\n", PrintableText(text).c_str());
  }

  bool WantsPictures() const { return WritesPictures(options_.output); }

  std::string Title() const {
    return options_.job == "-" ? "(stdin)" : fs::path(options_.job).filename().string();
  }

  /// As lp: its own option wins over one in the text of the options.
  int CopiesWanted() const {
    if (options_.copies > 0) return options_.copies;
    const OptionList list = OptionList::Parse(option_text_.c_str());
    const char* copies = cupsGetOption("copies", list.size(), list.data());
    constexpr int kMost = 9999;
    return std::clamp(copies != nullptr ? std::atoi(copies) : 1, 1, kMost);
  }

  std::string DrawAll() {
    Progress progress;
    progress.Stage("Converting the job");
    JobSource source;
    source.file = job_file_;
    source.title = Title();
    source.ppd = ppd_;
    source.options = option_text_;
    source.copies = CopiesWanted();
    PostScriptFiles split;
    const Failure failure = MakeJob(
        source, *scratch_,
        [&progress](std::uint64_t done, std::uint64_t total) { progress.Count(done, total); },
        &split, &complaints_);
    if (!failure.empty()) return failure;
    if (split.files.empty()) return NoPage();
    report_ = ReportOn(split.facts);
    special_ = FindSpecialSheets(report_.ticket);
    if (FindProgram("gs").empty())
      return "Ghostscript is not installed; install the package ghostscript";
    return WantsPictures() ? DrawAsPictures(split, &progress) : DrawAsPdf(split, &progress);
  }

  std::string DrawAsPdf(const PostScriptFiles& split, Progress* progress) {
    Failure failure = DrawAllPages(split, progress);
    if (!failure.empty()) return failure;
    progress->Stage("Putting the sheets together");
    const std::string sheets = scratch_->File("sheets.pdf");
    failure = WriteSheetPdf(sides_, 0, sides_.size(), sheets);
    if (!failure.empty()) return failure;
    status_ = Deliver(sheets, options_.output);
    first_ = options_.output;
    return "";
  }

  std::string DrawAsPictures(const PostScriptFiles& split, Progress* progress) {
    // While the first pages turn into pictures, the others are drawn.
    std::size_t shown = 0;
    std::vector<SheetSide> ahead;
    {
      progress->Stage("Drawing the first pages");
      const std::vector<DrawnPage> pages = DrawFirstPages(split, *scratch_);
      ahead = SidesOf(PlanSheets(report_, report_.job.postscript.pages), pages, NotesOn(report_));
      while (shown < ahead.size() && !(ahead[shown].file.empty() && ahead[shown].text.empty()))
        ++shown;
      if (pages.empty()) shown = 0;
    }
    Failure failure;
    {
      std::jthread pictures;
      std::string picture_failure;
      if (shown > 0) {
        pictures = std::jthread([&] { picture_failure = Pictures(ahead, 0, shown, nullptr); });
      }
      failure = DrawAllPages(split, progress);
      if (pictures.joinable()) pictures.join();
      if (failure.empty()) failure = picture_failure;
    }
    if (!failure.empty() || status_ == kExitFailure) return failure;
    progress->Stage("Drawing the sheets");
    return Pictures(sides_, std::min(shown, sides_.size()), sides_.size(), progress);
  }

  std::string Pictures(const std::vector<SheetSide>& sides, std::size_t first, std::size_t last,
                       Progress* progress) {
    return DrawPictures(sides, first, last, options_.resolution, *scratch_,
                        [&, this](std::size_t side, const std::string& picture) {
                          const std::string name = PictureName(side, sides.size());
                          if (Deliver(picture, name) != kExitOk) status_ = kExitFailure;
                          if (side == 0) first_ = name;
                          ++pictures_;
                          if (progress != nullptr) progress->Count(pictures_, sides.size());
                        });
  }

  std::string PictureName(std::size_t side, std::size_t sides) const {
    fs::path name = options_.output;
    if (sides > 1)
      name.replace_filename(name.stem().string() + "-" + std::to_string(side + 1) +
                            name.extension().string());
    return name;
  }

  /// Draws the pages and arranges them as sides.
  std::string DrawAllPages(const PostScriptFiles& split, Progress* progress) {
    progress->Stage("Drawing the pages");
    const std::uint64_t total = report_.job.postscript.pages;
    std::uint64_t done = 0;
    const std::vector<DrawnPage> pages = DrawPages(
        split, *scratch_, [&] { progress->Count(++done, total); }, &report_.looks);
    if (pages.empty()) return NoPage();
    LookForMarks(split, progress);
    sides_ = SidesOf(PlanSheets(report_, pages.size()), pages, NotesOn(report_));
    return "";
  }

  std::string NoPage() const {
    for (const PageLook& look : report_.looks) {
      if (!look.fault.empty()) return "Ghostscript cannot draw the job: " + look.fault;
    }
    return "the printer would print no page of this job";
  }

  /// Marks that lie behind the page may be hidden by it.
  void LookForMarks(const PostScriptFiles& split, Progress* progress) {
    for (std::size_t i = 0; i < split.files.size(); ++i) {
      if (!report_.job.jobs[i].HasMarkBehind()) continue;
      progress->Stage("Looking for the watermark");
      report_.looks[i].hidden =
          LookAtPages(split.files[i], report_.job.jobs[i], kLongestRun, *scratch_).hidden;
    }
  }

  /// The files that have been written.
  std::string Written() const {
    if (!WantsPictures()) return options_.output;
    const std::string first = PictureName(0, sides_.size());
    return sides_.size() == 1 ? first
                              : first + " to " + PictureName(sides_.size() - 1, sides_.size());
  }

  void PrintPlan() const {
    const PostScriptFacts& facts = report_.job.postscript;
    const std::uint64_t pages = DrawnPages(report_);
    const std::uint64_t sheets = IsTwoSided(report_) ? (pages + 1) / 2 : pages;
    const auto plural = [](std::uint64_t count, const char* what) {
      return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
    };
    std::string line = Written() + ": " + plural(pages, facts.booklet ? "sheet side" : "page") +
                       " on " + plural(sheets, "sheet") + (facts.booklet ? ", booklet" : "");
    if (facts.page_sizes.size() == 1) {
      const auto [width, height] = facts.page_sizes.begin()->first;
      line += ", " + PointSizeWords(width, height);
    }
    std::printf("%s\n", PrintableText(line).c_str());
    for (const SpecialSheet& sheet : special_)
      std::printf("  %s\n", PrintableText(sheet.text).c_str());
    for (const std::string& mark : MarkWords(facts))
      std::printf("  %s\n", PrintableText("watermark " + mark).c_str());
    for (const PageNote& note : NotesOn(report_))
      std::printf("  %s\n", PrintableText(note.text).c_str());
  }

  const PreviewOptions& options_;
  std::string option_text_;
  std::string ppd_;
  std::unique_ptr<ScratchFolder> scratch_;
  std::string job_file_;
  JobReport report_;
  std::vector<SpecialSheet> special_;
  std::vector<SheetSide> sides_;
  std::vector<Complaint> complaints_;
  std::string first_;
  std::size_t pictures_ = 0;
  int status_ = kExitOk;
};

int RunPreview(PreviewOptions options) {
  if (options.open && options.output == "-")
    return Fail("--open", "shows files, not standard output", "Give --output a name");
  if (options.job != "-" && access(options.job.c_str(), R_OK) != 0)
    return Fail(options.job, std::strerror(errno));
  QueuePpd queue;
  std::string ppd = options.ppd;
  std::string renderer = kBestRenderer;
  if (!options.queue.empty()) {
    if (const Failure failure = queue.Fetch(options.queue); !failure.empty())
      return Fail(options.queue, failure, "\"lpstat -e\" shows the queues; -p takes a PPD file");
    ppd = queue.path();
    renderer = QueueDefault(options.queue, kRendererOption);
  }
  if (!ppd.empty()) {
    if (const std::string fault = PpdFault(ppd); !fault.empty()) return Fail(ppd, fault);
  }
  const std::optional<std::string> text = OptionTextOf(options.options, ppd);
  if (!text) return kExitFailure;
  if (options.output.empty())
    options.output =
        options.job == "-" ? "preview.pdf" : fs::path(options.job).stem().string() + "-preview.pdf";
  if (!CanWrite(options.output))
    return Fail(options.output, "ends neither in .pdf nor in .png",
                "These two are what a preview can be written as");
  // As the queue converts; without one, as a queue should.
  std::string option_text = *text;
  if (!renderer.empty() && option_text.find(kRendererOption) == std::string::npos)
    option_text += std::string(option_text.empty() ? "" : " ") + kRendererOption + "=" + renderer;
  if (const Failure fault = HidePins(&option_text); !fault.empty()) return Fail("settings", fault);
  Preview preview(options, option_text, ppd);
  const int status = preview.Run();
  if (!options.open || preview.FirstFile().empty() || status == kExitFailure) return status;
  const int shown = Show(preview.FirstFile());
  return shown == kExitOk ? status : shown;
}

}  // namespace

void SetUpPreview(CLI::App& app, Action* action) {
  const auto options = std::make_shared<PreviewOptions>();
  app.add_option("job", options->job,
                 "file to look at: whatever lp takes, and office documents; - for standard input")
      ->required();
  CLI::Option* queue = app.add_option("-q,--queue", options->queue, "take this queue's PPD");
  app.add_option("-p,--ppd", options->ppd, "take this PPD file")->excludes(queue);
  app.add_option("-o", options->options.options, "an option, as for lp; may be repeated")
      ->allow_extra_args(false);
  AddHouseOption(app, &options->options);
  app.add_option("-s,--settings", options->options.settings,
                 "settings in the readable form; - for standard input");
  app.add_option("-n,--copies", options->copies, "number of copies")->check(CLI::PositiveNumber);
  app.add_option("--output", options->output,
                 "PDF or PNG file to write, by its name's end; - for PDF on standard output; "
                 "else JOB-preview.pdf");
  app.add_option("--resolution", options->resolution, "of PNG pages, dots per inch")
      ->check(CLI::Range(10, 1200))
      ->capture_default_str();
  app.add_flag("--open", options->open, "show the sheets on the desktop");
  app.callback([=] { *action = [=] { return RunPreview(*options); }; });
}

}  // namespace zarvo::tool
