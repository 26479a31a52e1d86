// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/Office.h"

#include <chrono>
#include <filesystem>

#include "Platform/Process.h"

namespace zarvo::tool {

namespace fs = std::filesystem;

namespace {

// The limits of the drawing helper, with twice the room: the program takes half of it for itself.
constexpr std::chrono::seconds kUsualTime{120};
constexpr unsigned kCpuSeconds = 60;
constexpr std::uint64_t kAddressSpace = std::uint64_t{3} << 30;

}  // namespace

std::string OfficeProgram() {
  const std::string program = FindProgram("soffice");
  return program.empty() ? FindProgram("libreoffice") : program;
}

Failure ConvertOfficeDocument(const std::string& document, const ScratchFolder& scratch,
                              std::string* pdf) {
  const std::string program = OfficeProgram();
  if (program.empty())
    return std::string("is an office document, which nothing here can read. ") + kOfficeRemedy;
  // A running office program of the same user would take the work over, without any limit; so this
  // one gets settings of its own. Macros of the document do not run in these.
  ChildRun run;
  run.environment = ChildEnvironment(scratch);
  run.arguments = {program,
                   "-env:UserInstallation=file://" + scratch.File("office"),
                   "--headless",
                   "--norestore",
                   "--nolockcheck",
                   "--convert-to",
                   "pdf",
                   "--outdir",
                   scratch.File("converted"),
                   document};
  run.limit = ProcessTimeLimit(kUsualTime);
  run.cpu_seconds = kCpuSeconds;
  run.address_space = kAddressSpace;
  std::string log;
  const bool done = RunChild(run, &log);
  *pdf = scratch.File("converted") + "/" + fs::path(document).stem().string() + ".pdf";
  std::error_code error;
  if (done && fs::file_size(*pdf, error) > 0 && !error) return "";
  return "cannot be converted by LibreOffice: " +
         (log.empty() ? "no PDF came out" : ErrorLines(log));
}

}  // namespace zarvo::tool
