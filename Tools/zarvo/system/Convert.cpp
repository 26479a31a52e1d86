// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/Convert.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>

#include "CUPSFilter/JobNotices.h"
#include "Platform/Phrase.h"
#include "Platform/Process.h"
#include "Platform/UniqueFd.h"
#include "Tools/zarvo/system/Office.h"
#include "Tools/zarvo/system/SheetPdf.h"

namespace zarvo::tool {
namespace {

std::string StartOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string start(kKindBytes, '\0');
  file.read(start.data(), static_cast<std::streamsize>(start.size()));
  start.resize(static_cast<std::size_t>(file.gcount()));
  return start;
}

/// The spooler's chain of converters, or nothing when it is not installed.
std::vector<std::string> SpoolerChain(const JobSource& source, JobKind kind) {
  const std::string program = FindProgram("cupsfilter");
  if (program.empty()) return {};
  std::vector<std::string> arguments = {program};
  // Other kinds are for the spooler to tell.
  if (kind == JobKind::kPdf) arguments.insert(arguments.end(), {"-i", "application/pdf"});
  if (kind == JobKind::kPostScript)
    arguments.insert(arguments.end(), {"-i", "application/postscript"});
  arguments.insert(arguments.end(), {"-m", "application/vnd.cups-postscript", "-t", source.title,
                                     "-n", std::to_string(source.copies)});
  if (!source.ppd.empty()) arguments.insert(arguments.end(), {"-p", source.ppd});
  if (!source.options.empty()) arguments.insert(arguments.end(), {"-o", source.options});
  arguments.push_back(source.file);
  return arguments;
}

/// The filter with what feeds it: a converter, or else a file.
class Chain {
 public:
  Chain(const JobSource& source, const std::vector<std::string>& converter)
      : source_(source), arguments_(converter) {}

  /// Whether the converter, if there is one, brought something to an end.
  bool Run(const ScratchFolder& scratch, const PageListener& page, PostScriptFiles* split) {
    const UniqueFd errors = OpenMemoryFile("");
    const UniqueFd filter_errors = OpenMemoryFile("");
    std::optional<Process> converter;
    UniqueFd feed;
    if (!arguments_.empty()) {
      ProcessOptions options;
      options.arguments = arguments_;
      options.environment = ChildEnvironment(scratch, source_.ppd);
      options.error_fd = errors.get();
      options.wall_clock = kLongestRun;
      converter = Process::Start(options);
      if (!converter) return Failed(arguments_[0] + ": " + std::strerror(errno));
      feed = converter->TakeOutput();
    } else {
      feed = UniqueFd(open(source_.file.c_str(), O_RDONLY | O_CLOEXEC));
      if (!feed) return Failed(std::strerror(errno));
    }
    const char* user = std::getenv("USER");
    ProcessOptions options;
    options.arguments = {FilterPath(),
                         "1",
                         user != nullptr ? user : "zarvo",
                         source_.title,
                         std::to_string(source_.copies),
                         source_.options};
    options.environment = ChildEnvironment(scratch, source_.ppd);
    options.input_fd = feed.get();
    options.error_fd = filter_errors.get();
    options.wall_clock = kLongestRun;
    std::optional<Process> filter = Process::Start(options);
    if (!filter) return Failed(options.arguments[0] + ": " + std::strerror(errno));
    feed.reset();
    std::FILE* const job = filter->output();
    if (job == nullptr) return Failed(std::strerror(ENOMEM));
    failure_ = SplitJob(job, scratch, page, split);
    const int status = filter->Wait();
    filter_log_ = ReadLog(filter_errors.get());
    if (converter) {
      const int converted = converter->Wait();
      converter_log_ = ReadLog(errors.get());
      // A filter that refuses a job ends before the converter does.
      if (filter_log_.find(kRefusal) != std::string::npos) return Failed(ErrorLines(filter_log_));
      // A document may have none of the pages that are asked for, which the filter tells.
      const bool nothing = split->files.empty() && !filter_log_.starts_with("WARNING: ") &&
                           filter_log_.find("\nWARNING: ") == std::string::npos;
      if (!WIFEXITED(converted) || WEXITSTATUS(converted) != 0 || nothing) return false;
    }
    if (failure_.empty() && (!WIFEXITED(status) || WEXITSTATUS(status) != 0))
      failure_ = FilterPath() + ": " + ErrorLines(filter_log_);
    return true;
  }

  const Failure& failure() const { return failure_; }
  const std::string& converter_log() const { return converter_log_; }
  const std::string& filter_log() const { return filter_log_; }

 private:
  bool Failed(std::string why) {
    failure_ = std::move(why);
    return true;
  }

  const JobSource& source_;
  std::vector<std::string> arguments_;
  Failure failure_;
  std::string converter_log_;
  std::string filter_log_;
};

/// The ways to make PostScript of the file, the best first; an empty one takes it as it is.
std::vector<std::vector<std::string>> Converters(const JobSource& source, JobKind kind) {
  std::vector<std::vector<std::string>> converters;
  if (kind != JobKind::kPrinterReady) {
    if (auto chain = SpoolerChain(source, kind); !chain.empty())
      converters.push_back(std::move(chain));
  }
  if (kind == JobKind::kPrinterReady || kind == JobKind::kPostScript) converters.emplace_back();
  if (kind == JobKind::kPdf) {
    const std::string poppler = FindProgram("pdftops");
    if (!poppler.empty()) converters.push_back({poppler, "-level3", source.file, "-"});
  }
  return converters;
}

}  // namespace

namespace {

/// What is to be converted, and how: an office document is a PDF file from now on.
Failure LookAtSource(const ScratchFolder& scratch, JobSource* source,
                     std::vector<std::vector<std::string>>* converters, JobKind* kind) {
  *kind = KindOfJob(StartOf(source->file), source->file);
  if (*kind == JobKind::kEmpty) return Phrase("is empty: neither PostScript nor PDF");
  if (*kind == JobKind::kOffice) {
    std::string pdf;
    Failure failure = ConvertOfficeDocument(source->file, scratch, &pdf);
    if (!failure.empty()) return failure;
    source->file = pdf;
    *kind = JobKind::kPdf;
  }
  *converters = Converters(*source, *kind);
  return converters->empty()
             ? Phrase("cannot be converted here; install the packages cups and cups-filters")
             : "";
}

/// How many pages will come, as far as the file tells; 0 where it does not.
std::uint64_t ExpectedPages(const JobSource& source, JobKind kind) {
  if (kind != JobKind::kPdf) return 0;
  for (const char* other : {"page-ranges=", "page-set=", "number-up=", "Booklet"})
    if (source.options.find(other) != std::string::npos) return 0;
  return CountPdfPages(source.file);
}

Failure Unconverted(JobKind kind, const std::string& log) {
  return kind == JobKind::kOther ? Phrase("is nothing that the spooler can print: %1", {log})
                                 : Phrase("cannot be converted: %1", {log});
}

}  // namespace

Failure MakeJob(const JobSource& given, const ScratchFolder& scratch, const PageListener& page,
                PostScriptFiles* split, std::vector<Complaint>* complaints) {
  JobSource source = given;
  JobKind kind{};
  std::vector<std::vector<std::string>> converters;
  if (Failure failure = LookAtSource(scratch, &source, &converters, &kind); !failure.empty())
    return failure;
  const std::uint64_t expected = ExpectedPages(source, kind);
  const auto page_of_all = [&](std::uint64_t done, std::uint64_t announced) {
    page(done, std::max(announced, expected));
  };
  std::string log;
  for (const std::vector<std::string>& converter : converters) {
    *split = {};
    Chain chain(source, converter);
    if (chain.Run(scratch, page_of_all, split)) {
      *complaints = Complaints(chain.filter_log());
      return chain.failure();
    }
    log = ErrorLines(chain.converter_log());
  }
  return Unconverted(kind, log);
}

Failure ConvertJob(const JobSource& given, const ScratchFolder& scratch,
                   const std::string& output) {
  JobSource source = given;
  JobKind kind{};
  std::vector<std::vector<std::string>> converters;
  if (Failure failure = LookAtSource(scratch, &source, &converters, &kind); !failure.empty())
    return failure;
  std::string log;
  for (const std::vector<std::string>& converter : converters) {
    std::error_code error;
    if (converter.empty()) {
      std::filesystem::copy_file(source.file, output,
                                 std::filesystem::copy_options::overwrite_existing, error);
      return error ? error.message() : "";
    }
    ChildRun run;
    run.arguments = converter;
    run.environment = ChildEnvironment(scratch, source.ppd);
    run.output = output;
    if (RunChild(run, &log) && std::filesystem::file_size(output, error) > 0) return "";
    log = ErrorLines(log);
  }
  return Unconverted(kind, log);
}

Failure FilterJob(const JobSource& source, const ScratchFolder& scratch, PostScriptFiles* split,
                  std::vector<Complaint>* complaints) {
  *split = {};
  Chain chain(source, {});
  chain.Run(scratch, nullptr, split);
  *complaints = Complaints(chain.filter_log());
  return chain.failure();
}

}  // namespace zarvo::tool
