// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvodraw/Confinement.h"

#include <fcntl.h>
#include <fontconfig/fontconfig.h>
#include <linux/landlock.h>
#include <sched.h>
#include <seccomp.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <termios.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Log.h"
#include "Platform/SpoolerUser.h"
#include "Platform/UniqueFd.h"
#include "Tools/zarvodraw/Jobs.h"

namespace zarvo {
namespace {

void SetLimit(__rlimit_resource_t resource, rlim_t value) {
  const rlimit limit{value, value};
  ::setrlimit(resource, &limit);
}

bool IsRegularFile(int fd) {
  struct stat info {};
  return ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode);
}

void CloseItself() {
  SetLimit(RLIMIT_CORE, 0);
  ::signal(SIGXFSZ, SIG_IGN);
  // The spooler's streams are pipes; who tries the helper by hand may have it write to a file.
  if (!IsRegularFile(STDOUT_FILENO) && !IsRegularFile(STDERR_FILENO)) SetLimit(RLIMIT_FSIZE, 0);
#ifndef __SANITIZE_ADDRESS__
  // (The leak sanitizer looks into its own process.)
  ::prctl(PR_SET_DUMPABLE, 0);
#endif
}

/// The folders that fonts and the lists of them are read from.
std::vector<std::string> FontFolders() {
  std::vector<std::string> folders;
  FcInit();
  for (FcStrList* list : {FcConfigGetFontDirs(nullptr), FcConfigGetCacheDirs(nullptr)}) {
    if (list == nullptr) continue;
    while (const FcChar8* folder = FcStrListNext(list))
      folders.emplace_back(reinterpret_cast<const char*>(folder));
    FcStrListDone(list);
  }
  return folders;
}

/// The kernel's records as of its sixth version; an older one takes the longer record as long as
/// what it does not know is zero.
struct Ruleset {
  std::uint64_t handled_access_fs = 0;
  std::uint64_t handled_access_net = 0;
  std::uint64_t scoped = 0;
};
constexpr std::uint64_t kReading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr int kNewestVersion = 6;

/// All that the kernel's version can forbid.
Ruleset EverythingForbidden(long version) {
  // Highest access of the file system that versions 1 to 6 know, then connections by TCP, then
  // abstract sockets and signals to others.
  constexpr int kLastAccess[] = {12, 13, 14, 14, 15, 15};
  const int last = kLastAccess[std::min<long>(version, kNewestVersion) - 1];
  return {(std::uint64_t{2} << last) - 1, version >= 4 ? 3u : 0u, version >= 6 ? 3u : 0u};
}

bool RestrictFiles(const std::vector<std::string>& readable) {
  const long version =
      ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
  if (version < 1) return false;
  const Ruleset everything = EverythingForbidden(version);
  const UniqueFd rules(
      static_cast<int>(::syscall(SYS_landlock_create_ruleset, &everything, sizeof everything, 0)));
  if (!rules) return false;
  for (const std::string& folder : readable) {
    const UniqueFd place(::open(folder.c_str(), O_PATH | O_CLOEXEC));
    if (!place) continue;  // configurations name folders that are not there
    const landlock_path_beneath_attr rule{kReading, place.get()};
    ::syscall(SYS_landlock_add_rule, rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
  }
  return ::syscall(SYS_landlock_restrict_self, rules.get(), 0) == 0;
}

/// Calls that reach nothing but this process, its memory and what it has open. Numbers that a
/// machine lacks are skipped.
constexpr int kHarmlessCalls[] = {
    SCMP_SYS(read),
    SCMP_SYS(pread64),
    SCMP_SYS(readv),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    SCMP_SYS(lseek),
    SCMP_SYS(_llseek),
    SCMP_SYS(close),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(fstat),
    SCMP_SYS(fstat64),
    SCMP_SYS(brk),
    SCMP_SYS(mmap),
    SCMP_SYS(mmap2),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(mprotect),
    SCMP_SYS(madvise),
    SCMP_SYS(futex),
    SCMP_SYS(futex_time64),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(rseq),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(getcpu),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigreturn),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_gettime64),
    SCMP_SYS(clock_getres),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(nanosleep),
    SCMP_SYS(getpid),
    SCMP_SYS(getppid),
    SCMP_SYS(gettid),
    SCMP_SYS(getuid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getegid),
    SCMP_SYS(uname),
    SCMP_SYS(sysinfo),
    SCMP_SYS(getrandom),
    SCMP_SYS(getrlimit),
    SCMP_SYS(ugetrlimit),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
};

/// Calls that tell about files, or let the fonts' folders be listed.
constexpr int kLookingCalls[] = {
    SCMP_SYS(stat),       SCMP_SYS(stat64),    SCMP_SYS(lstat),      SCMP_SYS(newfstatat),
    SCMP_SYS(fstatat64),  SCMP_SYS(statx),     SCMP_SYS(access),     SCMP_SYS(faccessat),
    SCMP_SYS(faccessat2), SCMP_SYS(readlink),  SCMP_SYS(readlinkat), SCMP_SYS(getdents64),
    SCMP_SYS(getdents),   SCMP_SYS(fstatfs),   SCMP_SYS(fstatfs64),  SCMP_SYS(statfs),
    SCMP_SYS(getcwd),     SCMP_SYS(fadvise64),
};

#ifdef __s390x__
constexpr unsigned kCloneFlags = 1;  // which argument of clone()
#else
constexpr unsigned kCloneFlags = 0;
#endif
constexpr std::uint64_t kThread = CLONE_THREAD | CLONE_VM;
constexpr std::uint64_t kNewNamespaces = CLONE_NEWNS | CLONE_NEWCGROUP | CLONE_NEWUTS |
                                         CLONE_NEWIPC | CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET;

class CallFilter {
 public:
  // Like calls that a kernel does not have yet: libraries know what to do then.
  CallFilter() : context_(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)), &seccomp_release) {}

  void Allow(int call) {
    if (context_) seccomp_rule_add_array(context_.get(), SCMP_ACT_ALLOW, call, 0, nullptr);
  }
  void AllowIf(int call, scmp_arg_cmp condition) {
    if (context_) seccomp_rule_add_array(context_.get(), SCMP_ACT_ALLOW, call, 1, &condition);
  }
  template <std::size_t kCount>
  void AllowAll(const int (&calls)[kCount]) {
    for (const int call : calls) Allow(call);
  }
  bool Load() {
    return context_ && seccomp_attr_set(context_.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0 &&
           seccomp_load(context_.get()) == 0;
  }

 private:
  std::unique_ptr<void, decltype(&seccomp_release)> context_;
};

bool RestrictCalls(Task task) {
  CallFilter filter;
  filter.AllowAll(kHarmlessCalls);
  for (const std::uint64_t command : {F_GETFD, F_SETFD, F_GETFL, F_DUPFD_CLOEXEC}) {
    filter.AllowIf(SCMP_SYS(fcntl), SCMP_A1(SCMP_CMP_EQ, command));
    filter.AllowIf(SCMP_SYS(fcntl64), SCMP_A1(SCMP_CMP_EQ, command));
  }
  filter.AllowIf(SCMP_SYS(ioctl), SCMP_A1(SCMP_CMP_EQ, TCGETS));       // is it a terminal?
  filter.AllowIf(SCMP_SYS(prctl), SCMP_A0(SCMP_CMP_EQ, PR_SET_NAME));  // of a thread
  filter.AllowIf(SCMP_SYS(prctl), SCMP_A0(SCMP_CMP_EQ, PR_GET_DUMPABLE));
  filter.AllowIf(SCMP_SYS(prctl), SCMP_A0(SCMP_CMP_EQ, PR_GET_NO_NEW_PRIVS));
  filter.AllowIf(SCMP_SYS(prlimit64), SCMP_A2(SCMP_CMP_EQ, 0));  // asks only
  filter.AllowIf(SCMP_SYS(tgkill),
                 SCMP_A0(SCMP_CMP_EQ, static_cast<std::uint64_t>(::getpid())));  // abort()
  if (task == Task::kPage) {
    constexpr std::uint64_t kWriting =
        O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND | (O_TMPFILE & ~O_DIRECTORY);
    // A thread of this process, in no namespace of its own.
    filter.AllowIf(SCMP_SYS(clone),
                   {kCloneFlags, SCMP_CMP_MASKED_EQ, kThread | kNewNamespaces, kThread});
    filter.AllowAll(kLookingCalls);
    filter.AllowIf(SCMP_SYS(open), SCMP_A1(SCMP_CMP_MASKED_EQ, kWriting, O_RDONLY));
    filter.AllowIf(SCMP_SYS(openat), SCMP_A2(SCMP_CMP_MASKED_EQ, kWriting, O_RDONLY));
  } else {
    // The C library looks at open files through this call, with an empty path.
    filter.AllowIf(SCMP_SYS(newfstatat), SCMP_A3(SCMP_CMP_EQ, AT_EMPTY_PATH));
  }
  return filter.Load();
}

}  // namespace

void LeaveRoot() {
  if (::geteuid() != 0) return;
  const std::optional<SpoolerUser> user = FindSpoolerUser();
  if (user && BecomeSpoolerUser(*user)) return;
  LogLine(
      "ERROR: zarvodraw does not work as root, and there is no user of the spooler: %s; "
      "correct User and Group in cups-files.conf",
      user ? std::strerror(errno) : "it is unknown");
  std::exit(kJobFailed);
}

Confinement Confine(Task task) {
  CloseItself();
  ::tzset();  // reads a file
  const std::vector<std::string> readable =
      task == Task::kPage ? FontFolders() : std::vector<std::string>();
  Confinement done;
  ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  done.landlock = RestrictFiles(readable);
  // The text library looks for each font in a thread of its own, which this limit counts as well.
  if (task == Task::kImage) SetLimit(RLIMIT_NPROC, 0);
  done.seccomp = RestrictCalls(task);
  return done;
}

}  // namespace zarvo
