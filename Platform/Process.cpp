// SPDX-License-Identifier: Apache-2.0
#include "Platform/Process.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <poll.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <new>
#include <thread>

namespace zarvo {
namespace {

using Clock = std::chrono::steady_clock;

// The signals by which a program is asked to end.
constexpr int kTerminating[] = {SIGTERM, SIGINT, SIGHUP};

using RunningGroups = std::array<std::atomic<pid_t>, 8>;
static_assert(std::atomic<pid_t>::is_always_lock_free);

/// The groups of the running children, for signal handlers and forked keepers; 0 in free places. A
/// job never has more than a few children at a time.
RunningGroups& Groups() {
  static RunningGroups own;
  static RunningGroups* const groups = [] {
    void* shared = ::mmap(nullptr, sizeof(RunningGroups), PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return shared != MAP_FAILED ? new (shared) RunningGroups() : &own;
  }();
  return *groups;
}

void ReplaceGroup(pid_t old_group, pid_t group) {
  for (std::atomic<pid_t>& place : Groups()) {
    pid_t expected = old_group;
    if (place.compare_exchange_strong(expected, group)) return;
  }
}

void KillGroupsAndDie(int signal) {
  KillRunningChildren();
  ::raise(signal);  // its disposition is the default again
}

std::atomic<int> noted_signal;

void KillGroupsAndNote(int signal) {
  noted_signal = signal;
  KillRunningChildren();
}

void HandleTermination(void (*handler)(int)) {
  Groups();  // makes them: no handler may be the first to
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : kTerminating) ::sigaction(signal, &action, nullptr);
}

/// Keeps the signals above off for its life.
class SignalsHeld {
 public:
  SignalsHeld() {
    sigset_t held;
    ::sigemptyset(&held);
    for (const int signal : kTerminating) ::sigaddset(&held, signal);
    ::sigprocmask(SIG_BLOCK, &held, &before_);
  }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;
  ~SignalsHeld() { ::sigprocmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_;
};

void SetLimit(__rlimit_resource_t resource, std::uint64_t soft, std::uint64_t hard) {
  const rlimit limit{soft, hard};
  ::setrlimit(resource, &limit);
}

void ApplyLimits(const ProcessOptions& options) {
  SetLimit(RLIMIT_CORE, 0, 0);
  if (options.cpu_seconds != 0) SetLimit(RLIMIT_CPU, options.cpu_seconds, options.cpu_seconds + 1);
#ifndef __SANITIZE_ADDRESS__
  // (A program built with the address sanitizer reserves terabytes.)
  if (options.address_space != 0) SetLimit(RLIMIT_AS, options.address_space, options.address_space);
#endif
}

/// What the child's side takes over, at numbers that it does not overwrite.
struct Streams {
  UniqueFd input, data, output, report;
};

/// The child's side between fork and exec. Reports the error number when it fails.
[[noreturn]] void RunChild(const ProcessOptions& options, char* const* argv, char* const* envp,
                           const Streams& streams, pid_t parent) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (::getppid() != parent) ::_exit(127);  // it died before the line above
  ::setpgid(0, 0);
  for (const int signal : {SIGPIPE, SIGXFSZ, SIGTERM, SIGINT, SIGHUP}) ::signal(signal, SIG_DFL);
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  ApplyLimits(options);
  if (::dup2(streams.input.get(), STDIN_FILENO) >= 0 &&
      ::dup2(streams.output.get(), STDOUT_FILENO) >= 0 &&
      (options.error_fd < 0 || ::dup2(options.error_fd, STDERR_FILENO) >= 0) &&
      (!streams.data || ::dup2(streams.data.get(), kDataFd) >= 0)) {
    ::close_range(streams.data ? kDataFd + 1 : kDataFd, ~0U, CLOSE_RANGE_CLOEXEC);
    ::execve(argv[0], argv, envp);
  }
  const int error = errno;
  [[maybe_unused]] const ssize_t written = ::write(streams.report.get(), &error, sizeof error);
  ::_exit(127);
}

/// The texts as exec takes them; they stay the caller's.
std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

/// A duplicate that is none of the descriptors which the child overwrites.
UniqueFd AboveStandard(int fd) { return UniqueFd(::fcntl(fd, F_DUPFD_CLOEXEC, kDataFd + 1)); }

bool OpenPipe(UniqueFd* reading, UniqueFd* writing) {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return false;
  // Room for the child to work on while its output is being read; less is only slower.
  ::fcntl(ends[1], F_SETPIPE_SZ, 1 << 20);
  const UniqueFd low_reading(ends[0]);
  const UniqueFd low_writing(ends[1]);
  *reading = AboveStandard(ends[0]);
  *writing = AboveStandard(ends[1]);
  return *reading && *writing;
}

}  // namespace

struct Process::Child {
  pid_t pid = -1;  // -1 once reaped
  int status = 0;
  UniqueFd end_fd;  // readable once the child has ended; without one the wall clock must do
  UniqueFd output_fd;
  std::FILE* output = nullptr;
  Clock::time_point deadline;
  bool readers_time_counts = true;
  Clock::time_point read_last;
  char buffer[1 << 16] = {};  // of `output`

  static ssize_t Read(void* cookie, char* buffer, std::size_t size) {
    auto* child = static_cast<Child*>(cookie);
    child->LeaveOutReadersTime();
    const ssize_t got = child->ReadInTime(buffer, size);
    child->read_last = Clock::now();
    return got;
  }

  void LeaveOutReadersTime() {
    if (!readers_time_counts) deadline += Clock::now() - read_last;
    read_last = Clock::now();
  }

  ssize_t ReadInTime(char* into, std::size_t size) const {
    for (;;) {
      const auto left =
          std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
      pollfd ready[] = {{output_fd.get(), POLLIN, 0}, {end_fd.get(), POLLIN, 0}};
      // A child that never stops writing must not outlast its time either.
      const int count = left.count() > 0 ? ::poll(ready, 2, static_cast<int>(left.count())) : 0;
      // Nothing more is to come from a child that has ended, whoever else holds its output open.
      if (count > 0 && ready[0].revents == 0) ::kill(-pid, SIGKILL);
      if (count == 0) {
        ::kill(-pid, SIGKILL);
        errno = ETIMEDOUT;
        return -1;
      }
      const ssize_t got = count > 0 ? ::read(output_fd.get(), into, size) : -1;
      if (got >= 0 || errno != EINTR) return got;
    }
  }

  /// Reaps the child if it has ended (or, without WNOHANG, when it has), and kills what it has
  /// left behind before its number can be given to another process.
  bool Reap(int flags) {
    siginfo_t ended{};
    while (::waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOWAIT | flags) < 0 &&
           errno == EINTR) {
    }
    if (ended.si_pid == 0 && (flags & WNOHANG) != 0) return false;
    ::kill(-pid, SIGKILL);
    ReplaceGroup(pid, 0);
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    pid = -1;
    return true;
  }

  void CloseOutput() {
    LeaveOutReadersTime();
    if (output != nullptr) std::fclose(output);
    output = nullptr;
    output_fd.reset();
  }
};

void Process::Reaper::operator()(Child* child) const {
  const int error = errno;  // that of whatever ends the use of the child
  child->CloseOutput();
  if (child->pid > 0) {
    ::kill(-child->pid, SIGKILL);
    child->Reap(0);
  }
  delete child;
  errno = error;
}

std::optional<Process> Process::Start(const ProcessOptions& options) {
  const std::vector<char*> argv = Pointers(options.arguments);
  const std::vector<char*> envp =
      options.environment ? Pointers(*options.environment) : std::vector<char*>();

  UniqueFd nothing;
  if (options.input_fd < 0) nothing.reset(::open("/dev/null", O_RDONLY | O_CLOEXEC));
  Streams streams;
  streams.input = AboveStandard(options.input_fd < 0 ? nothing.get() : options.input_fd);
  if (options.data_fd >= 0) streams.data = AboveStandard(options.data_fd);
  UniqueFd output_reading, report_reading;
  if (!streams.input || (options.data_fd >= 0 && !streams.data) ||
      !OpenPipe(&output_reading, &streams.output) || !OpenPipe(&report_reading, &streams.report))
    return std::nullopt;

  // Whoever started this program may have left it set to throw ended children away unseen.
  ::signal(SIGCHLD, SIG_DFL);
  const pid_t parent = ::getpid();
  const SignalsHeld held;  // until the child is known to the signal handler
  const pid_t pid = ::fork();
  if (pid < 0) return std::nullopt;
  if (pid == 0)
    RunChild(options, argv.data(), options.environment ? envp.data() : environ, streams, parent);

  ::setpgid(pid, pid);  // the child does the same; whoever comes first
  ReplaceGroup(0, pid);
  UniqueFd end(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)));
  Process process(new Child{pid, 0, std::move(end), std::move(output_reading), nullptr,
                            Clock::now() + options.wall_clock, options.readers_time_counts,
                            Clock::now()});
  streams = Streams();
  int error = 0;
  ssize_t got;
  do got = ::read(report_reading.get(), &error, sizeof error);
  while (got < 0 && errno == EINTR);
  if (got != 0) {  // end of file means that exec closed the pipe
    process.child_.reset();
    errno = got == sizeof error ? error : EIO;
    return std::nullopt;
  }
  return process;
}

std::FILE* Process::output() {
  if (child_->output == nullptr && child_->output_fd) {
    const cookie_io_functions_t functions{&Child::Read, nullptr, nullptr, nullptr};
    child_->output = ::fopencookie(child_.get(), "r", functions);
    // The library takes a size only together with a buffer.
    if (child_->output != nullptr)
      std::setvbuf(child_->output, child_->buffer, _IOFBF, sizeof child_->buffer);
  }
  return child_->output;
}

UniqueFd Process::TakeOutput() { return std::move(child_->output_fd); }

int Process::Wait() {
  using namespace std::chrono_literals;
  child_->CloseOutput();
  if (child_->pid < 0) return child_->status;
  // A child that has closed its output is about to end; polling finds that soon enough.
  for (auto pause = 100us; !child_->Reap(WNOHANG); pause = std::min(pause * 2, 20000us)) {
    if (Clock::now() >= child_->deadline) {
      ::kill(-child_->pid, SIGKILL);
      child_->Reap(0);
      break;
    }
    std::this_thread::sleep_for(pause);
  }
  return child_->status;
}

std::chrono::milliseconds TimeLimit(const char* variable, std::chrono::milliseconds usual) {
  constexpr int kLongest = 3600;
  const char* value = std::getenv(variable);
  const std::string_view text = value != nullptr ? value : "";
  int seconds = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  const bool valid = error == std::errc() && end == text.data() + text.size();
  return valid && seconds >= 1 && seconds <= kLongest ? std::chrono::seconds(seconds) : usual;
}

std::chrono::milliseconds ProcessTimeLimit(std::chrono::seconds usual) {
  return TimeLimit("ZARVO_HELPER_SECONDS", usual);
}

void EndChildrenOnTermination() { HandleTermination(&KillGroupsAndDie); }

void NoteTermination() { HandleTermination(&KillGroupsAndNote); }

void KillRunningChildren() {
  for (const std::atomic<pid_t>& place : Groups())
    if (const pid_t group = place.load(); group != 0) ::kill(-group, SIGKILL);
}

int NotedTermination() { return noted_signal; }

UniqueFd OpenMemoryFile(std::string_view bytes) {
  UniqueFd file(::memfd_create("zarvo", MFD_CLOEXEC));
  while (file && !bytes.empty()) {
    const ssize_t written = ::write(file.get(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) {
      const int error = errno;
      file.reset();
      errno = error;
      break;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  if (file) ::lseek(file.get(), 0, SEEK_SET);
  return file;
}

}  // namespace zarvo
