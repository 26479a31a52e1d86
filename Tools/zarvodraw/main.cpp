// SPDX-License-Identifier: Apache-2.0
// The drawing helper: one job per process, started by the filter under limits.
#include <glib.h>

#include <cstring>

#include "Platform/Log.h"
#include "Tools/zarvodraw/Confinement.h"
#include "Tools/zarvodraw/Jobs.h"

namespace {

struct Job {
  const char* name;
  int arguments;  // how many follow the name
  int (*run)(char** arguments);
};

constexpr Job kJobs[] = {
    {"image", 2, &zarvo::RunImageJob},
    {"faxcover", 1, &zarvo::RunFaxCoverJob},
    {"check", 1, &zarvo::RunCheckJob},
};

/// What the drawing libraries have to say goes to the spooler's log like everything else.
GLogWriterOutput LogFromLibrary(GLogLevelFlags, const GLogField* fields, gsize count, gpointer) {
  for (gsize i = 0; i < count; ++i)
    if (std::strcmp(fields[i].key, "MESSAGE") == 0)
      zarvo::LogLine("DEBUG: drawing: %s", static_cast<const char*>(fields[i].value));
  return G_LOG_WRITER_HANDLED;
}

}  // namespace

int main(int argc, char** argv) {
  zarvo::LeaveRoot();
  g_log_set_writer_func(&LogFromLibrary, nullptr, nullptr);
  for (const Job& job : kJobs)
    if (argc == job.arguments + 2 && std::strcmp(argv[1], job.name) == 0) return job.run(argv + 2);
  zarvo::LogLine("ERROR: zarvodraw is started by the print filter; it draws nothing by itself");
  return zarvo::kBadUsage;
}
