// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/FaxCover/PdfToPostScript.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "CUPSFilter/CopyPass/psgets.h"

namespace zarvo {
namespace {

/// A page takes a tenth of a megabyte, with a full-page picture some tens; what is longer is a
/// converter gone wild.
constexpr std::size_t kMaxDocumentBytes = 256u << 20;

/// The converter reads the file by this name: it is its own standard input opened again, which
/// works for a file without a name and saves the converter a temporary copy.
constexpr char kStandardInput[] = "/dev/fd/0";

bool IsProgram(const std::string& path) { return ::access(path.c_str(), X_OK) == 0; }

enum class CopyEnd { kComplete, kNoDocument, kTimeOut, kTooLong };

/// Whether the line holds the comment that ends a document. In parentheses it is a string: some
/// converters' own procedures look for the end of the file by it.
bool EndsDocument(std::string_view line) {
  constexpr std::string_view mark = "%%EOF";
  for (std::size_t at = line.find(mark); at != std::string_view::npos;
       at = line.find(mark, at + mark.size()))
    if (at == 0 || line[at - 1] != '(') return true;
  return false;
}

/// Copies the document out of the converter's output and reads that to its end, because a
/// converter that is cut off in the middle fails.
CopyEnd CopyDocument(FILE* input, FILE* document) {
  char line[8192];
  bool begun = false;
  bool ended = false;
  std::size_t total = 0;
  for (;;) {
    unsigned long length = sizeof line;
    if (psgets(line, &length, input) == nullptr) break;
    total += length;
    if (total > kMaxDocumentBytes) return CopyEnd::kTooLong;
    const std::string_view text(line, length);
    if (ended) continue;
    begun = begun || text.find("%!PS-Adobe-3.0") != std::string_view::npos;
    if (!begun) continue;
    std::fwrite(text.data(), 1, text.size(), document);
    ended = EndsDocument(text);
  }
  if (std::ferror(input) != 0) return CopyEnd::kTimeOut;
  return begun ? CopyEnd::kComplete : CopyEnd::kNoDocument;
}

/// A program's path and its arguments.
using Command = std::vector<std::string>;

/// One converter or two, the second one reading what the first one writes; none when no program
/// is there.
std::vector<Command> ChooseCommands(const PdfConverters& converters) {
  const std::string pdf_filter = converters.filter_folder + "/pdftops";
  const std::string ps_filter = converters.filter_folder + "/pstops";
  // Job number, user, title, copies and options, as the spooler would give them.
  const std::string media = "media=" + converters.media;
  if (IsProgram(pdf_filter) && IsProgram(ps_filter))
    return {{pdf_filter, "1", "Zarvo", "FaxCover", "1", media, kStandardInput},
            {ps_filter, "1", "Zarvo", "FaxCover", "1", media}};
  if (IsProgram(converters.poppler)) return {{converters.poppler, "-level3", kStandardInput, "-"}};
  return {};
}

Failure FailureText(const std::string& program, const std::string& cause) {
  return program + " " + cause +
         "; see the log lines before this one, or install its package again";
}

/// The failure of the converter that failed first.
Failure CheckStatuses(const std::vector<Command>& commands, std::vector<Process>& running) {
  Failure failure;
  for (std::size_t i = 0; i < running.size(); ++i) {
    const int status = running[i].Wait();
    if (status == 0) continue;
    // A converter that lost its reader is a victim of that one.
    const bool lost_reader = WIFSIGNALED(status) && WTERMSIG(status) == SIGPIPE;
    failure = FailureText(commands[i][0],
                          WIFSIGNALED(status)
                              ? "was ended by signal " + std::to_string(WTERMSIG(status))
                              : "ended with status " + std::to_string(WEXITSTATUS(status)));
    if (!lost_reader) break;
  }
  return failure;
}

}  // namespace

std::string PdfConverters::DefaultFilterFolder() {
  const char* folder = std::getenv("ZARVO_FILTER_DIR");
  return folder != nullptr && *folder != '\0' ? folder : ZARVO_CUPS_FILTER_DIR;
}

Failure ConvertPdfToPostScript(int pdf, const PdfConverters& converters, FILE* document,
                               const std::string& scratch) {
  const std::vector<Command> commands = ChooseCommands(converters);
  if (commands.empty())
    return "there is no PDF converter in " + converters.filter_folder +
           "; install the package cups-filters or poppler-utils";

  const std::unique_ptr<ScratchFolder> folder = ScratchFolder::Create(scratch);
  if (folder == nullptr)
    return std::string("no folder for the converters' files: ") + std::strerror(errno) +
           "; let TMPDIR name a folder that the spooler may write";
  std::vector<Process> running;
  for (const Command& command : commands) {
    const UniqueFd between = running.empty() ? UniqueFd() : running.back().TakeOutput();
    ProcessOptions options;
    options.arguments = command;
    options.environment = folder->Environment();
    options.input_fd = running.empty() ? pdf : between.get();
    options.wall_clock = converters.limit;
    std::optional<Process> process = Process::Start(options);
    if (!process) return FailureText(command[0], std::strerror(errno));
    running.push_back(*std::move(process));
  }
  FILE* output = running.back().output();
  if (output == nullptr) return "there is not enough memory; send the job again";
  switch (CopyDocument(output, document)) {
    case CopyEnd::kTimeOut:
      return commands[0][0] + " did not finish in time; send the job again when the server is " +
             "less busy";
    case CopyEnd::kTooLong:
      return FailureText(commands[0][0], "wrote without end");
    case CopyEnd::kNoDocument: {
      const Failure failure = CheckStatuses(commands, running);
      return failure.empty() ? FailureText(commands[0][0], "wrote no PostScript document")
                             : failure;
    }
    case CopyEnd::kComplete:
      break;
  }
  return CheckStatuses(commands, running);
}

}  // namespace zarvo
