// SPDX-License-Identifier: Apache-2.0
// zarvo compose: the desktop program, with a document.
#include <unistd.h>
#include <CLI/CLI.hpp>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <memory>

#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

namespace fs = std::filesystem;

struct ComposeOptions {
  std::string file, queue, settings;
};

/// In PATH, else beside this program (a build tree).
std::string DesktopProgram() {
  constexpr const char* kName = "zarvo-desk";
  if (std::string program = FindProgram(kName); !program.empty()) return program;
  std::error_code error;
  const fs::path beside = fs::read_symlink("/proc/self/exe", error).parent_path() / kName;
  return !error && access(beside.c_str(), X_OK) == 0 ? beside.string() : "";
}

int Compose(const ComposeOptions& options) {
  const std::string program = DesktopProgram();
  if (program.empty())
    return Fail("zarvo-desk", "is not installed", "Install the package zarvo-desktop");
  std::vector<std::string> arguments = {program};
  if (!options.queue.empty()) arguments.push_back("--queue=" + options.queue);
  if (!options.settings.empty()) arguments.push_back("--settings=" + options.settings);
  arguments.insert(arguments.end(), {"--", options.file});
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  execv(program.c_str(), pointers.data());
  return Fail(program, std::strerror(errno));
}

}  // namespace

void SetUpCompose(CLI::App& app, Action* action) {
  const auto options = std::make_shared<ComposeOptions>();
  app.add_option("file", options->file, "document to open")->required()->check(CLI::ExistingFile);
  app.add_option("-d,-q,--queue", options->queue, "queue to print on");
  app.add_option("-s,--settings", options->settings, "settings in the readable form")
      ->check(CLI::ExistingFile);
  app.callback([=] { *action = [=] { return Compose(*options); }; });
}

}  // namespace zarvo::tool
