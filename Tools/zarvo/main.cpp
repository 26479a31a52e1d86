// SPDX-License-Identifier: Apache-2.0
// zarvo: see what a print job will be, set it up, explain it.
#include <CLI/CLI.hpp>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <sstream>

#include "Platform/Process.h"
#include "Source/NearestName.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/CommandTable.h"

namespace zarvo::tool {
namespace {

constexpr const char* kFooter =
    "Exit status: 0 done; 1 done, and something looks wrong; 2 could not be done.\n"
    "\"zarvo COMMAND --help\" tells more about a command.";

/// Those of the examples that show this command line.
std::string ExamplesText(const char* examples, const std::string& command) {
  std::string text = "Examples:";
  std::istringstream lines(examples);
  for (std::string line; std::getline(lines, line);)
    if ((line + " ").find("zarvo " + command + " ") != line.npos) text += "\n  " + line;
  return text;
}

/// The library's message, with the place and the way to more; it does not name unknown commands.
int WrongUsage(const CLI::App& app, const CLI::ParseError& error) {
  std::string command;
  const CLI::App* at = &app;
  while (!at->get_subcommands().empty()) {
    at = at->get_subcommands().front();
    command += at->get_name() + " ";
  }
  const std::vector<std::string> unknown = at->remaining();
  std::string cause = error.what();
  if (at->get_require_subcommand_min() > 0 && !unknown.empty()) {
    cause = "no such command: " + unknown[0];
    std::vector<std::string> names;
    for (const CLI::App* known : at->get_subcommands([](const CLI::App*) { return true; }))
      names.push_back(known->get_name());
    if (const std::string nearest = NearestName(unknown[0], names); !nearest.empty())
      cause += "; did you mean " + nearest + "?";
  }
  return Fail(command.empty() ? "command line" : command.substr(0, command.size() - 1), cause,
              "\"zarvo " + command + "--help\" tells more");
}

int Main(int argc, char** argv) {
  CLI::App app("See what a print job will be, set it up, explain it.", "zarvo");
  Action action;
  BuildCommandLine(app, &action);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    // Help and version go to standard output and are no failure.
    return error.get_exit_code() == 0 ? app.exit(error), kExitOk : WrongUsage(app, error);
  }
  int status = kExitFailure;
  try {
    status = action();
  } catch (const std::exception& error) {
    Fail("(internal)", error.what());
  }
  if ((std::fflush(stdout) != 0 || std::ferror(stdout) != 0) && status != kExitFailure)
    status = Fail("(stdout)", std::strerror(errno));
  if (const int signal = NotedTermination(); signal != 0) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
  }
  return status;
}

}  // namespace

std::span<const Command> Commands() {
  static constexpr Command kCommands[] = {
      {"preview", "Draw the sheets as the printer will deliver them",
       "zarvo preview report.pdf -q office\n"
       "zarvo preview report.ps --settings booklet.json --output sheets.pdf\n"
       "zarvo preview report.pdf -p printer.ppd -o media=A4 --output page.png\n"
       "man -t lp | zarvo preview - -q office --open",
       &SetUpPreview},
      {"explain", "Say what a job asks of the printer",
       "zarvo explain job.prn\n"
       "cupsfilter -e -p printer.ppd -m printer/any report.pdf 2>/dev/null | zarvo explain -\n"
       "zarvo explain --json job.prn | jq .findings",
       &SetUpExplain},
      {"ticket", "Translate, check and keep job tickets",
       "zarvo ticket encode settings.json\n"
       "lp -d office -o \"$(zarvo ticket encode settings.json)\" report.pdf\n"
       "zarvo ticket decode options.txt > settings.json\n"
       "zarvo ticket check settings.json\n"
       "zarvo ticket keys | grep -i staple\n"
       "sudo zarvo ticket save payslips settings.json --shared --title 'de=Lohnzettel'\n"
       "zarvo ticket save reports --own --from-job office-1\n"
       "zarvo ticket save annual --own --from annual.prn\n"
       "zarvo ticket list\n"
       "zarvo ticket show payslips --settings\n"
       "zarvo ticket edit reports --own --title 'fr=Rapports'\n"
       "zarvo ticket diff payslips reports\n"
       "zarvo ticket rename reports weekly --own\n"
       "zarvo ticket remove weekly --own\n"
       "sudo zarvo ticket publish payslips -q office\n"
       "sudo zarvo ticket unpublish payslips -q office",
       &SetUpTicket},
      {"print", "Print with settings in the readable form",
       "zarvo print report.pdf -d office settings.json\n"
       "zarvo print report.pdf -d office --ticket payslips\n"
       "zarvo print report.pdf -d office secure.json -o copies=2",
       &SetUpPrint},
      {"compose", "Open a document in the desktop program, its sheets beside its settings",
       "zarvo compose report.pdf -d office", &SetUpCompose},
      {"watermark", "Look after the watermarks of this machine",
       "zarvo watermark list\n"
       "sudo zarvo watermark add-text DRAFT --angle 45 --color '#cc0000'\n"
       "sudo zarvo watermark add-image logo.png --scale 50\n"
       "zarvo watermark show DRAFT --output draft.png\n"
       "sudo zarvo watermark publish -q office\n"
       "sudo zarvo watermark font garamond.pfb\n"
       "sudo zarvo watermark remove logo.png",
       &SetUpWatermark},
      {"recipient", "Look after your fax recipients",
       "zarvo recipient add --first Ada --last Byron --fax '+44 20 7946 0018'\n"
       "zarvo recipient add --organization Mill --fax 0911-4711 --email mill@example.org\n"
       "zarvo recipient edit 'Ada Byron' --phone '+44 20 7946 0000'\n"
       "zarvo recipient list --json > recipients.json\n"
       "zarvo recipient group Branches 'Ada Byron' Mill\n"
       "zarvo recipient remove Mill",
       &SetUpRecipient},
      {"fax", "Send a fax, see its cover sheet",
       "zarvo fax send report.pdf -d office --to '+44 20 7946 0018' --to 'Ada Byron'\n"
       "zarvo fax send report.pdf -d office --to Branches --cover a4 --from 'Charles' --at 22:30\n"
       "zarvo recipient list --json | zarvo fax send report.pdf -d office -s -\n"
       "zarvo fax preview --to Branches --cover a4 --notes 'Please call back' --output cover.pdf",
       &SetUpFax},
      {"why", "Say what became of a job and what was left out of it",
       "zarvo why\nzarvo why office-3\nzarvo why 3 --json", &SetUpWhy},
      {"doctor", "Check the installation and say what to do", "zarvo doctor\nzarvo doctor --json",
       &SetUpDoctor},
      {"store", "Make a package of watermarks, fonts, house tickets and shared recipients",
       "zarvo store pack --name house-store --version 7 --maintainer 'Ada <ada@example.org>'",
       &SetUpStore},
      {"metrics", "Write figures about jobs and queues for Prometheus",
       "zarvo metrics --output zarvo.prom --state figures.json", &SetUpMetrics},
      {"accounting", "Write a line for each job that has ended",
       "zarvo accounting --log jobs.log --state jobs.json\n"
       "jq -s 'map(.sheets) | add' jobs.log",
       &SetUpAccounting},
      {"manual", "Write manual pages and shell completion",
       "zarvo manual --man man1\nzarvo manual --completion fish > zarvo.fish", &SetUpManual},
  };
  return kCommands;
}

void BuildCommandLine(CLI::App& app, Action* action) {
  app.set_version_flag("--version", "zarvo " ZARVO_VERSION);
  app.require_subcommand(1);
  app.footer(kFooter);
  for (const Command& command : Commands()) {
    CLI::App* subcommand = app.add_subcommand(command.name, command.summary);
    subcommand->footer(ExamplesText(command.examples, command.name));
    command.set_up(*subcommand, action);
    for (CLI::App* part : subcommand->get_subcommands([](const CLI::App*) { return true; }))
      part->footer(ExamplesText(command.examples, command.name + (" " + part->get_name())));
  }
}

}  // namespace zarvo::tool

int main(int argc, char** argv) {
  // A reader such as "head" that goes away early ends the tool quietly.
  std::signal(SIGPIPE, SIG_DFL);
  return zarvo::tool::Main(argc, argv);
}
