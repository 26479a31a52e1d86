// SPDX-License-Identifier: Apache-2.0
// zarvo manual: manual pages and shell completion, made from the command line itself.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/CommandTable.h"

namespace zarvo::tool {
namespace {

struct Options {
  std::string folder;
  bool bash = false;
};

/// A text for troff: backslashes and minus signs as such, no line that begins with a command.
std::string Troff(const std::string& text) {
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool line_start = i == 0 || text[i - 1] == '\n';
    if (line_start && (text[i] == '.' || text[i] == '\'')) escaped += "\\&";
    if (text[i] == '\\') {
      escaped += "\\e";
    } else if (text[i] == '-') {
      escaped += "\\-";
    } else {
      escaped += text[i];
    }
  }
  return escaped;
}

std::vector<CLI::App*> Subcommands(CLI::App* app) {
  return app->get_subcommands([](const CLI::App*) { return true; });
}

void AppendOptions(CLI::App* app, std::string* page) {
  for (const CLI::Option* option : app->get_options()) {
    const bool positional = option->get_positional();
    std::string names = option->get_name(positional, !positional);
    std::replace(names.begin(), names.end(), ',', ' ');
    *page += ".TP\n.B " + Troff(names) + "\n" + Troff(option->get_description());
    if (!option->get_default_str().empty()) *page += " (" + Troff(option->get_default_str()) + ")";
    *page += "\n";
  }
}

std::string PageHead(const std::string& name, const std::string& summary) {
  std::string capitals = name;
  std::transform(capitals.begin(), capitals.end(), capitals.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return ".TH " + Troff(capitals) + " 1 \"\" \"zarvo " ZARVO_VERSION "\" \"User Commands\"\n" +
         ".SH NAME\n" + Troff(name) + " \\- " + Troff(summary) + "\n";
}

constexpr const char* kStatusSection =
    ".SH EXIT STATUS\n.TP\n.B 0\ndone\n.TP\n.B 1\ndone, and something looks wrong\n.TP\n.B 2\n"
    "could not be done: wrong usage, a missing file, a failed program\n";

std::string CommandPage(const Command& command, CLI::App* app) {
  const std::string name = std::string("zarvo-") + command.name;
  std::string page =
      PageHead(name, command.summary) + ".SH SYNOPSIS\n.B zarvo " + Troff(command.name) + "\n";
  const std::vector<CLI::App*> parts = Subcommands(app);
  page += parts.empty() ? "[options] [arguments]\n" : "command [options] [arguments]\n";
  if (!parts.empty()) page += ".SH COMMANDS\n";
  for (CLI::App* part : parts) {
    page += ".SS " + Troff(part->get_name()) + "\n" + Troff(part->get_description()) + "\n";
    AppendOptions(part, &page);
  }
  if (parts.empty()) {
    page += ".SH OPTIONS\n";
    AppendOptions(app, &page);
  }
  return page + ".SH EXAMPLES\n.nf\n" + Troff(command.examples) + "\n.fi\n" + kStatusSection +
         ".SH SEE ALSO\n.BR zarvo (1)\n";
}

std::string OverviewPage() {
  std::string page = PageHead("zarvo", "see what a print job will be, set it up, explain it") +
                     ".SH SYNOPSIS\n.B zarvo\ncommand [options] [arguments]\n.SH COMMANDS\n";
  std::string pages;
  for (const Command& command : Commands()) {
    page += std::string(".TP\n.B ") + command.name + "\n" + Troff(command.summary) + "\n";
    pages += std::string(pages.empty() ? "" : ",\n") + ".BR zarvo\\-" + command.name + " (1)";
  }
  std::replace(pages.begin(), pages.end(), ',', ' ');
  return page + kStatusSection +
         ".SH ENVIRONMENT\n.TP\n.B ZARVO_APPLICATION_SUPPORT\nthe folder that holds the folder "
         "Zarvo "
         "of watermarks and their fonts\n.TP\n.B ZARVO_ADDRESS_BOOK\nthe folder of fax recipients\n"
         ".TP\n.B NO_COLOR\nif set, no colour\n.SH SEE ALSO\n" +
         pages + "\n.BR lp (1)\n";
}

int WriteManual(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) return Fail(folder, error.message());
  CLI::App app("", "zarvo");
  Action ignored;
  BuildCommandLine(app, &ignored);
  int status = WriteOutput(folder + "/zarvo.1", OverviewPage());
  for (const Command& command : Commands()) {
    if (status != kExitOk) return status;
    status = WriteOutput(folder + "/zarvo-" + command.name + ".1",
                         CommandPage(command, app.get_subcommand(command.name)));
  }
  return status;
}

std::string LongOptions(CLI::App* app) {
  std::string list;
  for (const CLI::Option* option : app->get_options()) {
    for (const std::string& name : option->get_lnames()) list += " --" + name;
    for (const std::string& name : option->get_snames()) list += " -" + name;
  }
  return list;
}

std::string BashCompletion() {
  CLI::App app("", "zarvo");
  Action ignored;
  BuildCommandLine(app, &ignored);
  std::string cases;
  std::string commands;
  for (const Command& command : Commands()) {
    CLI::App* top = app.get_subcommand(command.name);
    commands += std::string(" ") + command.name;
    std::string words = LongOptions(top);
    for (CLI::App* part : Subcommands(top)) {
      words += " " + part->get_name();
      cases += "    \"" + std::string(command.name) + " " + part->get_name() + "\") words=\"" +
               LongOptions(part).substr(1) + "\" ;;\n";
    }
    cases += "    \"" + std::string(command.name) + " \"*) words=\"" + words.substr(1) + "\" ;;\n";
  }
  return "# bash completion for zarvo\n"
         "_zarvo() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} words=\"" +
         commands.substr(1) +
         "\"\n"
         "  local previous=${COMP_WORDS[COMP_CWORD-1]}\n"
         "  case $previous in\n"
         "    -q|--queue|-d) COMPREPLY=($(compgen -W \"$(lpstat -e 2>/dev/null)\" -- \"$word\"))"
         "; return ;;\n"
         "  esac\n"
         "  if [ \"$COMP_CWORD\" -gt 1 ]; then\n"
         "    local second=\n"
         "    [ \"$COMP_CWORD\" -gt 2 ] && second=${COMP_WORDS[2]}\n"
         "    case \"${COMP_WORDS[1]} $second\" in\n" +
         cases +
         "    esac\n"
         "  fi\n"
         "  COMPREPLY=($(compgen -W \"$words\" -- \"$word\"))\n"
         "}\n"
         "complete -o default -F _zarvo zarvo\n";
}

int Write(const Options& options) {
  if (!options.folder.empty()) return WriteManual(options.folder);
  return WriteOutput("-", BashCompletion());
}

}  // namespace

void SetUpManual(CLI::App& app, Action* action) {
  const auto options = std::make_shared<Options>();
  app.add_option("--man", options->folder, "folder for manual pages");
  app.add_flag("--bash", options->bash, "completion for bash, on standard output");
  app.require_option(1);
  app.callback([=] { *action = [=] { return Write(*options); }; });
}

}  // namespace zarvo::tool
