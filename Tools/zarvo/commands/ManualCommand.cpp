// SPDX-License-Identifier: Apache-2.0
// zarvo manual: manual pages and shell completion, made from the command line itself.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/CommandTable.h"
#include "Tools/zarvo/job/Recipients.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/ticket/HouseText.h"

namespace zarvo::tool {
namespace {

struct ManualOptions {
  std::string folder;
  std::string shell;
  bool complete = false;
  std::vector<std::string> words;
};

bool IsQueueOption(const std::string& word) {
  return word == "-q" || word == "--queue" || word == "-d";
}

/// Whether the subcommand of "ticket" is given the name of one that there is.
bool TakesHouseTicket(const std::string& command) {
  constexpr std::string_view kCommands[] = {"show", "edit",    "remove",    "rename",
                                            "diff", "publish", "unpublish", "save"};
  return std::find(std::begin(kCommands), std::end(kCommands), command) != std::end(kCommands);
}

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
         "of watermarks, their fonts, house tickets and shared fax recipients\n.TP\n.B "
         "ZARVO_ADDRESS_BOOK\nthe folder of fax recipients\n"
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

/// What may stand at the end of a command line that begins with these words, the last one
/// unfinished: every shell's completion asks this. Files are the shell's own business.
std::vector<std::string> Completions(const std::vector<std::string>& words) {
  CLI::App app("", "zarvo");
  Action ignored;
  BuildCommandLine(app, &ignored);
  CLI::App* at = &app;
  std::string queue;
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    for (CLI::App* part : i < 2 ? Subcommands(at) : std::vector<CLI::App*>())
      if (part->get_name() == words[i]) at = part;
    if (i > 0 && IsQueueOption(words[i - 1])) queue = words[i];
  }
  const std::string last = words.empty() ? "" : words.back();
  const std::string previous = words.size() > 1 ? words[words.size() - 2] : "";
  std::vector<std::string> found;
  const bool house = previous == "--ticket" || previous == "--based-on" ||
                     (words.size() == 3 && words[0] == "ticket" && TakesHouseTicket(words[1]));
  if (house) {
    HouseStores stores;
    if (stores.Read().empty())
      for (const HouseTicketStore* store : stores.All())
        for (std::string& name : store->Names()) found.push_back(std::move(name));
  } else if (previous == "--to") {
    for (const AddressBookRecord& record : AddressBookRecords())
      found.push_back(RecipientName(record));
  } else if (IsQueueOption(previous)) {
    ListQueues(&found);
  } else if (previous == "-o") {
    QueuePpd ppd;
    ppd.Fetch(queue.empty() ? DefaultQueue() : queue);
    found = OptionWords(ppd.path(), last.find('=') != last.npos);
  } else {
    for (CLI::App* part : Subcommands(at)) found.push_back(part->get_name());
    for (const CLI::Option* option : at->get_options()) {
      for (const std::string& name : option->get_lnames()) found.push_back("--" + name);
      for (const std::string& name : option->get_snames()) found.push_back("-" + name);
    }
  }
  std::erase_if(found, [&last](const std::string& word) { return !word.starts_with(last); });
  return found;
}

struct Shell {
  const char* name;
  const char* completion;
};
// Bash takes what stands after "=" for a word of its own, and wants only that completed; of names
// it wants blanks and the like escaped.
constexpr Shell kShells[] = {
    {"bash", R"sh(# bash completion for zarvo
_zarvo() {
  local line=${COMP_LINE:0:COMP_POINT} word i
  local -a words
  read -a words <<< "$line"
  [[ $line == *[[:space:]] ]] && words+=("")
  word=${words[-1]}
  mapfile -t COMPREPLY < <(zarvo manual --complete -- "${words[@]:1}" 2>/dev/null)
  [[ ${COMPREPLY[0]-} == *= ]] && compopt -o nospace
  for i in "${!COMPREPLY[@]}"; do printf -v "COMPREPLY[i]" %q "${COMPREPLY[i]}"; done
  [[ $word == *=* ]] && COMPREPLY=("${COMPREPLY[@]#"${word%"${word##*=}"}"}")
}
complete -o default -F _zarvo zarvo
)sh"},
    {"zsh", R"sh(#compdef zarvo
local -a found
found=(${(f)"$(zarvo manual --complete -- "${(@)words[2,CURRENT]}" 2>/dev/null)"})
if (( $#found )); then
  compadd -S '' -- ${(M)found:#*=}
  compadd -- ${found:#*=}
else
  _files
fi
)sh"},
    {"fish", R"sh(# fish completion for zarvo
function __zarvo_complete
    set -l found (zarvo manual --complete -- (commandline -opc)[2..-1] (commandline -ct) 2>/dev/null)
    if set -q found[1]
        printf '%s\n' $found
    else
        __fish_complete_path (commandline -ct)
    end
end
complete -c zarvo -f -a '(__zarvo_complete)'
)sh"},
};

int Write(const ManualOptions& options) {
  if (!options.folder.empty()) return WriteManual(options.folder);
  if (options.complete) {
    std::string list;
    for (const std::string& word : Completions(options.words)) list += word + "\n";
    return WriteOutput("-", list);
  }
  for (const Shell& shell : kShells)
    if (options.shell == shell.name) return WriteOutput("-", shell.completion);
  if (options.shell.empty())
    return Fail("manual", "has nothing to do", "Give --man or --completion");
  return Fail(options.shell, "is no shell known here", "bash, zsh and fish are");
}

}  // namespace

void SetUpManual(CLI::App& app, Action* action) {
  const auto options = std::make_shared<ManualOptions>();
  app.add_option("--man", options->folder, "folder for manual pages");
  app.add_option("--completion", options->shell,
                 "completion for bash, zsh or fish, on standard output");
  // What the shells' completion asks; not for people.
  app.add_flag("--complete", options->complete)->group("");
  app.add_option("words", options->words)->group("");
  app.callback([=] { *action = [=] { return Write(*options); }; });
}

}  // namespace zarvo::tool
