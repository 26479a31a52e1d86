// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/Ghostscript.h"

#include <algorithm>
#include <charconv>
#include <sstream>

#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

constexpr std::string_view kPageMark = "%%zarvo-page ";

/// PostScript that tells the number of each page that ends, by the page device's own hook, and ends
/// the interpreter where `stop` says. What a job sets in its place is the job's business: then less
/// is told.
std::string PageTeller(std::uint64_t stop) {
  std::string text =
      "userdict /zarvoEndPage currentpagedevice /EndPage get put << /EndPage { dup 2 ne { ";
  if (stop > 0) text += "1 index " + std::to_string(stop) + " ge { quit } if ";
  text += "(" + std::string(kPageMark) +
          ") print 1 index 1 add 20 string cvs print (\\n) print flush } if "
          "userdict /zarvoEndPage get exec } bind >> setpagedevice";
  return text;
}

std::string WithoutPages(const std::string& log) {
  std::string rest;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);)
    if (!line.starts_with(kPageMark)) rest += line + '\n';
  return rest;
}

}  // namespace

std::string InterpreterError(const std::string& log) {
  // What the document prints may hold anything; only what the interpreter says counts.
  const std::size_t error = log.find("Error: ");
  if (error == std::string::npos) return ErrorLines(log);
  return log.substr(error, log.find('\n', error) - error);
}

Failure Draw(const Drawing& drawing, const ScratchFolder& scratch) {
  const std::string program = FindProgram("gs");
  if (program.empty()) return "Ghostscript is not installed; install the package ghostscript";
  ChildRun run;
  run.environment = ChildEnvironment(scratch);
  run.arguments = {program,
                   "-q",
                   "-dBATCH",
                   "-dNOPAUSE",
                   "-dSAFER",
                   "-dAutoRotatePages=/None",
                   "-sDEVICE=" + drawing.device,
                   "-sOutputFile=" + drawing.output};
  if (drawing.device != "pdfwrite") {
    // Drawn finer than asked for and averaged: a see-through watermark is a pattern of dots, which
    // a coarse raster would lose.
    const int finer = drawing.resolution <= 300 ? 3 : 1;
    run.arguments.insert(run.arguments.end(), {"-r" + std::to_string(drawing.resolution * finer),
                                               "-dDownScaleFactor=" + std::to_string(finer)});
  }
  if (drawing.first > 0) run.arguments.push_back("-dFirstPage=" + std::to_string(drawing.first));
  if (drawing.last > 0) run.arguments.push_back("-dLastPage=" + std::to_string(drawing.last));
  if (drawing.page) {
    run.arguments.insert(run.arguments.end(),
                         {"-c", PageTeller(drawing.stop ? drawing.last : 0), "-f"});
    run.line = [&drawing](std::string_view line) {
      if (!line.starts_with(kPageMark)) return;
      std::uint64_t page = 0;
      line.remove_prefix(kPageMark.size());
      std::from_chars(line.data(), line.data() + line.size(), page);
      if (page >= drawing.first && (drawing.last == 0 || page <= drawing.last)) drawing.page();
    };
  }
  run.arguments.insert(run.arguments.end(), drawing.inputs.begin(), drawing.inputs.end());
  std::string log;
  const bool ended_well = RunChild(run, &log);
  // It ends with 0 even when the last of the file cannot be written, and only says so.
  if (ended_well && log.find(" on closing " + drawing.device + " device") == std::string::npos)
    return "";
  Failure failure = InterpreterError(WithoutPages(log));
  // Nor does it always say anything.
  const bool said_nothing = failure.empty();
  if (said_nothing) failure = "it ended without a word";
  if (said_nothing || failure.find("ioerror") != std::string::npos)
    failure += "; is there room for temporary files (TMPDIR)?";
  return failure;
}

}  // namespace zarvo::tool
