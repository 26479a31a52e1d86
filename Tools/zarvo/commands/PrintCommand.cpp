// SPDX-License-Identifier: Apache-2.0
// zarvo print: lp, with settings in the readable form.
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/job/JobOptions.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

struct Options {
  std::string file;
  std::string queue;
  int copies = 0;
  std::string title;
  JobOptions options;
};

int Print(const Options& options) {
  const std::optional<std::string> text = OptionTextOf(options.options);
  if (!text) return kExitFailure;
  const std::string program = FindProgram("lp");
  if (program.empty()) return Fail("lp", "is not installed", "Install the package cups-client");
  std::vector<std::string> arguments = {program, "-d", options.queue};
  if (!text->empty()) arguments.insert(arguments.end(), {"-o", *text});
  if (options.copies > 0) arguments.insert(arguments.end(), {"-n", std::to_string(options.copies)});
  if (!options.title.empty()) arguments.insert(arguments.end(), {"-t", options.title});
  arguments.insert(arguments.end(), {"--", options.file});
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  // lp takes over: its messages, its questions and its status are the user's.
  std::fflush(stdout);
  execv(argv[0], argv.data());
  return Fail(program, std::strerror(errno),
              errno == E2BIG ? "The settings are too long for a command line" : "");
}

}  // namespace

void SetUpPrint(CLI::App& app, Action* action) {
  const auto options = std::make_shared<Options>();
  app.add_option("file", options->file, "file to print; - for standard input")->required();
  app.add_option("settings", options->options.settings, "settings in the readable form");
  app.add_option("-d,--queue", options->queue, "queue")->required();
  app.add_option("-o", options->options.options, "an option, as for lp; may be repeated")
      ->allow_extra_args(false);
  app.add_option("-n,--copies", options->copies, "number of copies")->check(CLI::PositiveNumber);
  app.add_option("-t,--title", options->title, "title of the job");
  app.callback([=] { *action = [=] { return Print(*options); }; });
}

}  // namespace zarvo::tool
