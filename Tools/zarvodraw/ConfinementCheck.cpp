// SPDX-License-Identifier: Apache-2.0
// Tries from inside what the confinement forbids.
#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "Platform/ScratchFolder.h"
#include "Platform/UniqueFd.h"
#include "Tools/zarvodraw/Confinement.h"
#include "Tools/zarvodraw/Jobs.h"

namespace zarvo {
namespace {

bool Opens(const std::string& path, int flags) {
  return static_cast<bool>(UniqueFd(::open(path.c_str(), flags | O_CLOEXEC, 0600)));
}

bool Connects() {
  for (const int family : {AF_INET, AF_INET6, AF_UNIX, AF_NETLINK})
    if (UniqueFd(::socket(family, SOCK_DGRAM, 0))) return true;
  int pair[2];
  return ::socketpair(AF_UNIX, SOCK_STREAM, 0, pair) == 0;
}

bool RunsPrograms() {
  char* const none[] = {nullptr};
  ::execve("/dev/null", none, none);  // who may start programs is told that this is none
  return errno == EACCES || errno == ENOEXEC;
}

bool Forks() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  if (child > 0) ::waitpid(child, nullptr, 0);
  return child > 0;
}

bool WritesFiles() {
  const std::string path = TemporaryFolder() + "/zarvo-confinement-check";
  if (!Opens(path, O_WRONLY | O_CREAT)) return Opens(TemporaryFolder(), O_TMPFILE | O_RDWR);
  ::unlink(path.c_str());
  return true;
}

bool ReadsFiles() { return Opens("/etc/passwd", O_RDONLY); }

bool ReachesItsStarter() {
  const pid_t starter = ::getppid();
  char byte;
  iovec here{&byte, 1}, there{&byte, 1};
  const auto refused = [](long result) {
    return result < 0 && (errno == ENOSYS || errno == EPERM);
  };
  return Opens("/proc/" + std::to_string(starter) + "/mem", O_RDONLY) ||
         !refused(::ptrace(PTRACE_SEIZE, starter, nullptr, nullptr)) ||
         !refused(::process_vm_readv(starter, &here, 1, &there, 1, 0)) ||
         !refused(::kill(starter, 0));
}

bool DumpsItsMemory() {
  rlimit limit{};
  return ::getrlimit(RLIMIT_CORE, &limit) != 0 || limit.rlim_max != 0 ||
         ::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0) != 0;
}

bool GainsPrivileges() { return ::geteuid() == 0 || ::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) != 1; }

struct Attempt {
  const char* what;
  bool (*succeeds)();
};

constexpr Attempt kAttempts[] = {
    {"network", &Connects},          {"programs", &RunsPrograms},
    {"processes", &Forks},           {"other-processes", &ReachesItsStarter},
    {"writing", &WritesFiles},       {"reading", &ReadsFiles},
    {"core-dumps", &DumpsItsMemory}, {"privileges", &GainsPrivileges},
};

}  // namespace

int RunCheckJob(char** arguments) {
  const Task task = std::strcmp(arguments[0], "page") == 0 ? Task::kPage : Task::kImage;
  const Confinement layers = Confine(task);
  std::printf("landlock %s\nseccomp %s\n", layers.landlock ? "on" : "off",
              layers.seccomp ? "on" : "off");
  for (const Attempt& attempt : kAttempts)
    std::printf("%s %s\n", attempt.what, attempt.succeeds() ? "possible" : "refused");
  return std::fflush(stdout) == 0 ? kJobDone : kJobFailed;
}

}  // namespace zarvo
