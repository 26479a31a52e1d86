// SPDX-License-Identifier: Apache-2.0
// Sends a job to a queue as lp does. It speaks to the spooler itself, because the arguments of a
// program, and so a PIN or a fax number, can be read by everybody on the machine.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace zarvo::tool {

struct PrintJob {
  std::string file;  ///< "-" for standard input
  std::string queue;
  int copies = 0;     ///< 0 for what the queue does by itself
  std::string title;  ///< empty for the file's name
  bool force = false;
};

/// Declares what is given of a job on the command line, but for the file and the settings.
void AddPrintOptions(CLI::App& app, PrintJob* job);

/// Prints with these options. What has something wrong, which is told, is not printed unless that
/// is forced; `told` holds what has been told already. An office document becomes a
/// PDF file first. Returns an exit status.
int PrintChecked(PrintJob job, const std::string& options, const std::vector<std::string>& told);

}  // namespace zarvo::tool
