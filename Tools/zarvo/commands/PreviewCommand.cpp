// SPDX-License-Identifier: Apache-2.0
// zarvo preview: the sheets as the printer will deliver them.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

#include "Platform/AtomicFile.h"
#include "Platform/Log.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/Terminal.h"
#include "Tools/zarvo/job/JobOptions.h"
#include "Tools/zarvo/job/Sheets.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

namespace fs = std::filesystem;

struct Options {
  std::string job;
  std::string queue;
  std::string ppd;
  JobOptions options;
  std::string output;
  int resolution = 100;
  bool open = false;
};

enum class JobKind { kPostScript, kPrinterReady, kPdf, kUnknown };

JobKind KindOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string start(1024, '\0');
  file.read(start.data(), static_cast<std::streamsize>(start.size()));
  start.resize(static_cast<std::size_t>(file.gcount()));
  if (start.starts_with("\033%-12345X") || start.starts_with("@PJL")) return JobKind::kPrinterReady;
  if (start.starts_with("%!")) return JobKind::kPostScript;
  // Other programs' headers may stand ahead of a PDF file.
  return start.find("%PDF-") != std::string::npos ? JobKind::kPdf : JobKind::kUnknown;
}

/// Shows a file on the desktop. Returns an exit status.
int Show(const std::string& file) {
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

/// One preview, from the job to its sheets. Every step gives an empty text or why it failed.
class Preview {
 public:
  Preview(const Options& options, std::string option_text, std::string ppd)
      : options_(options), option_text_(std::move(option_text)), ppd_(std::move(ppd)) {}

  int Run() {
    if (!scratch_) return Fail("TMPDIR", "no folder for temporary files can be made");
    std::error_code error;
    job_file_ = fs::absolute(options_.job, error);
    const fs::file_type type = fs::status(options_.job, error).type();
    if (options_.job == "-" || type == fs::file_type::fifo || type == fs::file_type::character) {
      // It can be read only once.
      job_file_ = File("job");
      const int status = Deliver(options_.job == "-" ? "/dev/stdin" : options_.job, job_file_);
      if (status != kExitOk) return status;
    }
    std::string failure = Draw();
    if (!failure.empty()) return Fail(Title(), failure);
    const int status = DeliverSheets();
    if (status == kExitOk && options_.output != "-") PrintPlan();
    return status;
  }

  /// What there is to look at.
  std::string FirstFile() const { return first_.empty() ? options_.output : first_; }

 private:
  std::string Draw() {
    Progress progress;
    progress.Stage("Converting the job");
    std::string failure = Convert();
    progress.Stage("Filtering the job");
    if (failure.empty()) failure = Filter();
    if (failure.empty()) failure = TakePostScript(File("job.prn"), File("job.ps"), &job_);
    progress.Stage("Drawing the sheets");
    if (failure.empty()) failure = Render(File("job.ps"), "pdfwrite", 0, File("pages.pdf"));
    if (!failure.empty()) return failure;
    if (!job_.ticket.empty()) ticket_ = ExplainTicketXml(job_.ticket);
    sheets_ = FindSpecialSheets(ticket_);
    failure = AddSpecialSheets();
    if (failure.empty() && WantsPng())
      failure = Render(File("sheets.pdf"), "png16m", options_.resolution, File("sheet-%d.png"));
    return failure;
  }

  std::string File(const char* name) const { return scratch_.File(name); }

  bool WantsPng() const { return options_.output.ends_with(".png"); }

  /// What the spooler would do ahead of the filter.
  std::string Convert() {
    const JobKind kind = KindOf(job_file_);
    if (kind == JobKind::kUnknown) return "is neither PostScript nor PDF";
    std::error_code error;
    if (kind == JobKind::kPrinterReady) {
      fs::copy_file(job_file_, File("input.ps"), error);
      return error ? error.message() : "";
    }
    const bool pdf = kind == JobKind::kPdf;
    ChildRun chain;
    chain.output = File("input.ps");
    std::string log;
    if (const std::string program = FindProgram("cupsfilter"); !program.empty()) {
      chain.arguments = {program,
                         "-i",
                         pdf ? "application/pdf" : "application/postscript",
                         "-m",
                         "application/vnd.cups-postscript",
                         "-t",
                         Title()};
      if (!ppd_.empty()) chain.arguments.insert(chain.arguments.end(), {"-p", ppd_});
      if (!option_text_.empty())
        chain.arguments.insert(chain.arguments.end(), {"-o", option_text_});
      chain.arguments.push_back(job_file_);
      if (RunChild(chain, &log) && fs::file_size(File("input.ps"), error) > 0) return "";
    }
    if (!pdf) {
      fs::copy_file(job_file_, File("input.ps"), fs::copy_options::overwrite_existing, error);
      return error ? error.message() : "";
    }
    const std::string poppler = FindProgram("pdftops");
    if (poppler.empty())
      return "no program can convert PDF; install the package cups-filters or poppler-utils";
    chain.arguments = {poppler, "-level3", job_file_, "-"};
    return RunChild(chain, &log) ? "" : "cannot be converted: " + ErrorLines(log);
  }

  std::string Filter() {
    if (ppd_.empty()) {
      unsetenv("PPD");
    } else {
      setenv("PPD", ppd_.c_str(), 1);
    }
    const char* user = std::getenv("USER");
    ChildRun filter;
    filter.arguments = {FilterPath(),    "1", user != nullptr ? user : "zarvo",
                        Title(),         "1", option_text_,
                        File("input.ps")};
    filter.output = File("job.prn");
    std::string log;
    if (!RunChild(filter, &log)) return filter.arguments[0] + ": " + ErrorLines(log);
    // A job that printed without its watermark is a job to hear about.
    if (const std::string lost = Complaints(log); !lost.empty())
      std::fprintf(stderr, "zarvo: the filter says: %s\n", PrintableText(lost).c_str());
    return "";
  }

  std::string Title() const {
    return options_.job == "-" ? "(stdin)" : fs::path(options_.job).filename().string();
  }

  /// Puts a page for each blank cover and each insert among the pages. In a booklet the pages of
  /// the document are not those of the sheets: there they are only named.
  std::string AddSpecialSheets() {
    std::vector<std::string> pieces;
    unsigned next = 1;
    const unsigned last = static_cast<unsigned>(job_.postscript.pages);
    const auto pages = [&](unsigned to) {
      if (to < next) return;
      pieces.insert(pieces.end(), {"-dFirstPage=" + std::to_string(next),
                                   "-dLastPage=" + std::to_string(to), File("pages.pdf")});
      next = to + 1;
    };
    std::string failure;
    const auto add = [&](SpecialSheet::Place place) {
      std::vector<const SpecialSheet*> here;
      for (const SpecialSheet& sheet : sheets_) {
        if (sheet.place == place && sheet.blank) here.push_back(&sheet);
      }
      std::stable_sort(here.begin(), here.end(),
                       [](const auto* a, const auto* b) { return a->after_page < b->after_page; });
      for (const SpecialSheet* sheet : here) {
        if (place == SpecialSheet::Place::kInsert) pages(std::min(sheet->after_page, last));
        const std::string file = File(("sheet" + std::to_string(pieces.size()) + ".ps").c_str());
        if (WriteFileAtomically(file, SheetPage(*sheet, Width(), Height()), 0600) != 0)
          failure = std::strerror(errno);
        pieces.insert(pieces.end(), {"-dFirstPage=1", "-dLastPage=1", file});
      }
    };
    if (last > 0 && !job_.postscript.booklet) {
      add(SpecialSheet::Place::kFront);
      add(SpecialSheet::Place::kInsert);
      pages(last);
      add(SpecialSheet::Place::kBack);
    }
    constexpr std::size_t kPiece = 3;
    if (pieces.size() <= kPiece || !failure.empty()) {
      std::error_code error;
      fs::rename(File("pages.pdf"), File("sheets.pdf"), error);
      return failure;
    }
    return Join(pieces);
  }

  std::string Join(const std::vector<std::string>& pieces) {
    ChildRun gs;
    gs.arguments = {FindProgram("gs"),
                    "-q",
                    "-dBATCH",
                    "-dNOPAUSE",
                    "-dSAFER",
                    "-sDEVICE=pdfwrite",
                    "-dAutoRotatePages=/None",
                    "-sOutputFile=" + File("sheets.pdf")};
    gs.arguments.insert(gs.arguments.end(), pieces.begin(), pieces.end());
    std::string log;
    return RunChild(gs, &log) ? "" : "covers and inserts cannot be added: " + ErrorLines(log);
  }

  int Width() const { return MainSize().first; }
  int Height() const { return MainSize().second; }

  /// The size that most pages have.
  std::pair<int, int> MainSize() const {
    const auto& sizes = job_.postscript.page_sizes;
    const auto most =
        std::max_element(sizes.begin(), sizes.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == sizes.end() ? std::pair(612, 792) : most->first;
  }

  int DeliverSheets() {
    if (!WantsPng()) return Deliver(File("sheets.pdf"), options_.output);
    const fs::path target = options_.output;
    for (int sheet = 1; fs::exists(File(("sheet-" + std::to_string(sheet) + ".png").c_str()));
         ++sheet) {
      fs::path name = target;
      const bool only = !fs::exists(File("sheet-2.png"));
      if (!only)
        name.replace_filename(target.stem().string() + "-" + std::to_string(sheet) + ".png");
      const int status = Deliver(File(("sheet-" + std::to_string(sheet) + ".png").c_str()), name);
      if (status != kExitOk) return status;
      first_ = sheet == 1 ? name.string() : first_;
    }
    return kExitOk;
  }

  bool TwoSided() const {
    if (job_.postscript.booklet) return true;
    return std::any_of(ticket_.statements.begin(), ticket_.statements.end(), [](const auto& s) {
      return s.code == "sides" && s.level == 0 && s.value.starts_with("two");
    });
  }

  void PrintPlan() const {
    const PostScriptFacts& facts = job_.postscript;
    const std::uint64_t sheets = TwoSided() ? (facts.pages + 1) / 2 : facts.pages;
    const auto plural = [](std::uint64_t count, const char* what) {
      return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
    };
    std::string line = options_.output + ": " +
                       plural(facts.pages, facts.booklet ? "sheet side" : "page") + " on " +
                       plural(sheets, "sheet") + (facts.booklet ? ", booklet" : "");
    if (facts.pages == 0) line = options_.output + ": the job does not say where its pages begin";
    if (facts.page_sizes.size() == 1) {
      const auto [width, height] = facts.page_sizes.begin()->first;
      line += ", " + PointSizeWords(width, height);
    }
    std::printf("%s\n", PrintableText(line).c_str());
    for (const SpecialSheet& sheet : sheets_)
      std::printf("  %s\n", PrintableText(sheet.text).c_str());
    if (facts.text_overlay || facts.image_watermark) std::printf("  watermark\n");
  }

  const Options& options_;
  std::string option_text_;
  std::string ppd_;
  ScratchFolder scratch_;
  std::string job_file_;
  JobFile job_;
  Explanation ticket_;
  std::vector<SpecialSheet> sheets_;
  std::string first_;
};

int RunPreview(Options options) {
  if (options.open && options.output == "-")
    return Fail("--open", "shows files, not standard output", "Give --output a name");
  const std::optional<std::string> text = OptionTextOf(options.options);
  if (!text) return kExitFailure;
  if (options.job != "-" && access(options.job.c_str(), R_OK) != 0)
    return Fail(options.job, std::strerror(errno));
  std::unique_ptr<QueuePpd> queue;
  std::string ppd = options.ppd;
  if (!options.queue.empty()) {
    std::string error;
    queue = std::make_unique<QueuePpd>(options.queue, &error);
    if (queue->path().empty())
      return Fail(options.queue, error, "\"lpstat -e\" shows the queues; -p takes a PPD file");
    ppd = queue->path();
  }
  if (!ppd.empty()) {
    if (const std::string fault = PpdFault(ppd); !fault.empty()) return Fail(ppd, fault);
  }
  if (options.output.empty())
    options.output =
        options.job == "-" ? "preview.pdf" : fs::path(options.job).stem().string() + "-preview.pdf";
  Preview preview(options, *text, ppd);
  const int status = preview.Run();
  return status == kExitOk && options.open ? Show(preview.FirstFile()) : status;
}

}  // namespace

void SetUpPreview(CLI::App& app, Action* action) {
  const auto options = std::make_shared<Options>();
  app.add_option("job", options->job, "PostScript or PDF file; - for standard input")->required();
  CLI::Option* queue = app.add_option("-q,--queue", options->queue, "take this queue's PPD");
  app.add_option("-p,--ppd", options->ppd, "take this PPD file")->excludes(queue);
  app.add_option("-o", options->options.options, "an option, as for lp; may be repeated")
      ->allow_extra_args(false);
  app.add_option("-s,--settings", options->options.settings,
                 "settings in the readable form; - for standard input");
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
