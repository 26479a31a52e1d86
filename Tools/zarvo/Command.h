// SPDX-License-Identifier: Apache-2.0
// What every subcommand of the tool has in common.
#pragma once

#include <functional>
#include <string>

// Only what declares or reads a command line includes the library, which takes long to compile.
namespace CLI {
class App;
}

namespace zarvo::tool {

/// Exit statuses, the same for all subcommands and part of their interface.
enum ExitStatus : int {
  kExitOk = 0,
  kExitFindings = 1,  ///< done, and what was looked at has something wrong
  kExitFailure = 2,   ///< could not be done: wrong usage, a missing file, a failed program
};

/// What is to be run once the command line has been read.
using Action = std::function<int()>;

/// A subcommand. `set_up` declares its arguments and has its callback put the work into `action`,
/// so that nothing runs before the whole command line has been found right.
struct Command {
  const char* name;
  const char* summary;   ///< one line, without a full stop
  const char* examples;  ///< one command a line, shown below the help
  void (*set_up)(CLI::App& app, Action* action);
};

void SetUpPreview(CLI::App& app, Action* action);
void SetUpExplain(CLI::App& app, Action* action);
void SetUpTicket(CLI::App& app, Action* action);
/// The subcommands of "ticket" for those that are kept under a name.
void SetUpHouseTickets(CLI::App& app, Action* action);
void SetUpPrint(CLI::App& app, Action* action);
void SetUpCompose(CLI::App& app, Action* action);
void SetUpWatermark(CLI::App& app, Action* action);
void SetUpRecipient(CLI::App& app, Action* action);
void SetUpFax(CLI::App& app, Action* action);
void SetUpWhy(CLI::App& app, Action* action);
void SetUpDoctor(CLI::App& app, Action* action);
void SetUpMetrics(CLI::App& app, Action* action);
void SetUpAccounting(CLI::App& app, Action* action);
void SetUpStore(CLI::App& app, Action* action);
void SetUpManual(CLI::App& app, Action* action);

/// Tells on standard error what went wrong (where, why, what to do; the last may be empty) and
/// gives kExitFailure.
int Fail(const std::string& place, const std::string& cause, const std::string& remedy = "");

/// Reads a file, or standard input for "-", of at most 64 MiB. Returns false, having told why,
/// when that fails.
bool ReadInput(const std::string& path, std::string* content);

/// Writes the text to a file, or to standard output for "-". Returns an exit status.
int WriteOutput(const std::string& path, const std::string& content);

}  // namespace zarvo::tool
