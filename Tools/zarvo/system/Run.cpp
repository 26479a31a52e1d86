// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/Run.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <sstream>

#include "CUPSFilter/FaxCover/PdfToPostScript.h"
#include "Platform/Process.h"
#include "Platform/UniqueFd.h"
#include "Tools/zarvo/Command.h"

namespace zarvo::tool {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxLog = 1 << 20;

/// Hands on what a program says, line by line and as a whole.
void ReadLines(std::FILE* output, const std::function<void(std::string_view)>& hear,
               std::string* said) {
  std::string line;
  for (int c; (c = std::getc(output)) != EOF;) {
    if (said->size() < kMaxLog) *said += static_cast<char>(c);
    if (!hear) continue;
    if (c == '\n') {
      hear(line);
      line.clear();
    } else if (line.size() < kMaxLog) {
      line += static_cast<char>(c);
    }
  }
}

}  // namespace

std::unique_ptr<ScratchFolder> MakeScratchFolder() {
  NoteTermination();
  std::unique_ptr<ScratchFolder> scratch = ScratchFolder::Create();
  if (!scratch)
    Fail(TemporaryFolder(), "no folder for temporary files can be made in it",
         "Let TMPDIR name another one");
  return scratch;
}

std::vector<std::string> ChildEnvironment(const ScratchFolder& scratch, const std::string& ppd) {
  std::vector<std::string> environment = scratch.Environment();
  std::erase_if(environment, [](const std::string& entry) { return entry.starts_with("PPD="); });
  if (!ppd.empty()) environment.push_back("PPD=" + ppd);
  return environment;
}

bool CopyAll(std::FILE* input, std::FILE* output) {
  char block[65536];
  while (const std::size_t got = std::fread(block, 1, sizeof block, input)) {
    if (std::fwrite(block, 1, got, output) != got) return false;
  }
  return std::ferror(input) == 0 && std::fflush(output) == 0;
}

std::string ReadLog(int file) {
  std::string log(kMaxLog, '\0');
  const ssize_t length = pread(file, log.data(), log.size(), 0);
  log.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return log;
}

bool RunChild(const ChildRun& run, std::string* log) {
  if (NotedTermination() != 0) return false;
  UniqueFd input;
  if (!run.input.empty()) {
    input = UniqueFd(open(run.input.c_str(), O_RDONLY | O_CLOEXEC));
    if (!input) {
      *log = run.input + ": " + std::strerror(errno);
      return false;
    }
  }
  const UniqueFd errors = OpenMemoryFile("");
  ProcessOptions options;
  options.arguments = run.arguments;
  options.environment = run.environment;
  options.input_fd = input.get();
  options.error_fd = errors.get();
  options.wall_clock = run.limit;
  options.cpu_seconds = run.cpu_seconds;
  options.address_space = run.address_space;
  std::optional<Process> process = Process::Start(options);
  if (!process) {
    *log = run.arguments[0] + ": cannot be started: " + std::strerror(errno);
    return false;
  }
  std::FILE* const source = process->output();
  if (source == nullptr) {
    *log = run.arguments[0] + ": there is not enough memory to read what it writes";
    return false;
  }
  const Stream output(std::fopen(run.output.empty() ? "/dev/null" : run.output.c_str(), "wbe"));
  bool copied = false;
  std::string said;
  if (run.output.empty()) {
    ReadLines(source, run.line, &said);
    copied = std::ferror(source) == 0;
  } else if (output) {
    copied = CopyAll(source, output.get());
  }
  const int error = errno;
  const int status = process->Wait();
  *log = ReadLog(errors.get()) + said;
  if (!copied) *log += "\nERROR: " + run.output + ": " + std::strerror(error);
  return copied && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string FindProgram(const std::string& name) {
  const char* path = std::getenv("PATH");
  std::istringstream folders(path != nullptr ? path : "");
  // The administrator's programs are not in everybody's path.
  for (std::string folder; std::getline(folders, folder, ':');) {
    const std::string program = folder + "/" + name;
    if (access(program.c_str(), X_OK) == 0) return program;
  }
  const std::string program = "/usr/sbin/" + name;
  return access(program.c_str(), X_OK) == 0 ? program : "";
}

std::string FilterPath() {
  constexpr const char* kName = "zarvofilter";
  std::error_code error;
  const fs::path tool = fs::read_symlink("/proc/self/exe", error);
  if (!error && access((tool.parent_path() / kName).c_str(), X_OK) == 0)
    return tool.parent_path() / kName;
  return PdfConverters::DefaultFilterFolder() + "/" + kName;
}

std::string ErrorLines(const std::string& log) {
  std::string errors;
  std::string last;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    constexpr std::string_view kPrefix = "ERROR: ";
    if (line.starts_with("DEBUG") || line.empty()) continue;
    last = line;
    if (line.starts_with(kPrefix))
      errors += (errors.empty() ? "" : "; ") + line.substr(kPrefix.size());
  }
  return errors.empty() ? last : errors;
}

std::vector<Complaint> Complaints(const std::string& log) {
  // The summary of all others, for the spooler.
  constexpr std::string_view kSummary = "WARNING: Not as asked: ";
  std::vector<Complaint> complaints;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(kSummary)) continue;
    for (const std::string_view prefix : {"ERROR: ", "WARNING: ", "INFO: "}) {
      if (line.starts_with(prefix))
        complaints.push_back({prefix != "INFO: ", line.substr(prefix.size())});
    }
  }
  return complaints;
}

Failure SplitJob(std::FILE* job, const ScratchFolder& scratch,
                 const std::function<void(std::uint64_t, std::uint64_t)>& page,
                 PostScriptFiles* split) {
  Stream output;
  Failure failure;
  std::uint64_t pages = 0;
  std::uint64_t announced = 0;
  PostScriptSink sink;
  const auto close = [&] {
    if (output && (std::fflush(output.get()) != 0 || std::ferror(output.get()) != 0))
      failure = std::strerror(errno);
  };
  sink.begin = [&] {
    close();
    const std::string file = scratch.File("job-" + std::to_string(split->files.size() + 1) + ".ps");
    split->files.push_back(file);
    output.reset(std::fopen(file.c_str(), "wbe"));
    if (!output) failure = file + ": " + std::strerror(errno);
  };
  sink.write = [&](std::string_view bytes) {
    if (output) std::fwrite(bytes.data(), 1, bytes.size(), output.get());
    if (!page || !bytes.starts_with("%%Page")) return;
    if (bytes.starts_with("%%Pages:")) {
      announced += std::strtoul(std::string(bytes.substr(8, 20)).c_str(), nullptr, 10);
    } else if (bytes.starts_with("%%Page:")) {
      page(++pages, announced);
    }
  };
  split->facts = ReadJobFile(job, sink);
  close();
  return std::ferror(job) != 0 ? std::strerror(errno) : failure;
}

int Deliver(const std::string& file, const std::string& target) {
  const Stream input(std::fopen(file.c_str(), "rbe"));
  if (!input) return Fail(file, std::strerror(errno));
  if (target == "-")
    return CopyAll(input.get(), stdout) ? kExitOk : Fail("(stdout)", std::strerror(errno));
  const Stream output(std::fopen(target.c_str(), "wbe"));
  if (!output || !CopyAll(input.get(), output.get())) return Fail(target, std::strerror(errno));
  return kExitOk;
}

}  // namespace zarvo::tool
