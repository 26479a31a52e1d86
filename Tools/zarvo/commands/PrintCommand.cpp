// SPDX-License-Identifier: Apache-2.0
// zarvo print: like lp, with settings in the readable form.
#include <CLI/CLI.hpp>
#include <memory>

#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/job/JobOptions.h"
#include "Tools/zarvo/job/PrintJob.h"
#include "Tools/zarvo/system/Queues.h"

namespace zarvo::tool {
namespace {

struct PrintOptions {
  PrintJob job;
  JobOptions options;
};

int Print(const PrintOptions& options) {
  std::vector<std::string> told;
  QueuePpd ppd;
  if (!options.options.house.empty())
    if (const Failure failure = ppd.Fetch(options.job.queue); !failure.empty())
      return Fail(options.job.queue, failure, "\"lpstat -e\" lists the queues");
  const std::optional<std::string> text = OptionTextOf(options.options, ppd.path(), &told);
  return text ? PrintChecked(options.job, *text, told) : kExitFailure;
}

}  // namespace

void SetUpPrint(CLI::App& app, Action* action) {
  const auto options = std::make_shared<PrintOptions>();
  app.add_option("file", options->job.file, "file to print; - for standard input")->required();
  app.add_option("settings", options->options.settings, "settings in the readable form");
  AddHouseOption(app, &options->options);
  AddPrintOptions(app, &options->job);
  app.add_option("-o", options->options.options, "an option, as for lp; may be repeated")
      ->allow_extra_args(false);
  app.add_option("-n,--copies", options->job.copies, "number of copies")
      ->check(CLI::PositiveNumber);
  app.callback([=] { *action = [=] { return Print(*options); }; });
}

}  // namespace zarvo::tool
