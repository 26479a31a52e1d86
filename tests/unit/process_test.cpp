// SPDX-License-Identifier: Apache-2.0
#include "Platform/Process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cerrno>

namespace zarvo {
namespace {

std::optional<Process> Shell(const std::string& script, ProcessOptions options = {}) {
  options.arguments = {"/bin/sh", "-c", script};
  return Process::Start(options);
}

std::string ReadAll(Process& process) {
  std::string text;
  for (int c; (c = std::getc(process.output())) != EOF;) text += static_cast<char>(c);
  return text;
}

TEST(Process, ArgumentsReachTheProgramUntouched) {
  ProcessOptions options;
  options.arguments = {"/usr/bin/printf", "%s|", "$(id) `id`; \"x'", "", "-"};
  std::optional<Process> process = Process::Start(options);
  ASSERT_TRUE(process);
  EXPECT_EQ(ReadAll(*process), "$(id) `id`; \"x'||-|");
  EXPECT_EQ(process->Wait(), 0);
}

TEST(Process, ProgramsThatCannotStartGiveTheReason) {
  ProcessOptions options;
  options.arguments = {"/no/such/program"};
  EXPECT_FALSE(Process::Start(options));
  EXPECT_EQ(errno, ENOENT);
  options.arguments = {"/etc/passwd"};
  EXPECT_FALSE(Process::Start(options));
  EXPECT_EQ(errno, EACCES);
}

TEST(Process, TheStatusIsKnownWhereEndedChildrenWereThrownAway) {
  ::signal(SIGCHLD, SIG_IGN);
  std::optional<Process> process = Shell("exit 3");
  ASSERT_TRUE(process);
  EXPECT_EQ(WEXITSTATUS(process->Wait()), 3);
}

TEST(Process, InheritsNothingButTheStandardThree) {
  const UniqueFd file = OpenMemoryFile("x");
  const int leaked = ::fcntl(file.get(), F_DUPFD, 200);  // not close-on-exec
  ASSERT_GE(leaked, 200);
  std::optional<Process> process = Shell("ls /proc/self/fd | grep -c '^2..$'");
  ASSERT_TRUE(process);
  EXPECT_EQ(ReadAll(*process), "0\n");
  ::close(leaked);
}

TEST(Process, TheEnvironmentMayNameTheTime) {
  const std::pair<const char*, int> cases[] = {{"1", 1},     {"3600", 3600}, {"0", 20},
                                               {"3601", 20}, {"-5", 20},     {"", 20},
                                               {"9s", 20},   {" 9", 20},     {"99999999999", 20}};
  for (const auto& [text, seconds] : cases) {
    ::setenv("ZARVO_HELPER_SECONDS", text, 1);
    EXPECT_EQ(ProcessTimeLimit(std::chrono::seconds(20)), std::chrono::seconds(seconds)) << text;
  }
  ::unsetenv("ZARVO_HELPER_SECONDS");
}

TEST(Process, SignalsThatTheFilterIgnoresEndItsChildren) {
  for (const int number : {SIGPIPE, SIGXFSZ}) {
    const auto before = ::signal(number, SIG_IGN);
    std::optional<Process> process = Shell("kill -" + std::to_string(number) + " $$; echo alive");
    ASSERT_TRUE(process);
    EXPECT_EQ(ReadAll(*process), "");
    EXPECT_EQ(WTERMSIG(process->Wait()), number);
    ::signal(number, before);
  }
}

/// Whether limits of the address space reach the kernel: an emulator of another machine keeps them
/// out.
bool LimitsAddressSpace() {
#ifdef __SANITIZE_ADDRESS__
  return false;
#else
  rlimit before{}, seen{};
  ::getrlimit(RLIMIT_AS, &before);
  const rlimit wide{std::min(before.rlim_max, rlim_t{1} << 46), before.rlim_max};
  ::setrlimit(RLIMIT_AS, &wide);
  ::getrlimit(RLIMIT_AS, &seen);
  ::setrlimit(RLIMIT_AS, &before);
  return seen.rlim_cur == wide.rlim_cur;
#endif
}

TEST(Process, LimitsHold) {
  rlimit core{};
  ::getrlimit(RLIMIT_CORE, &core);
  core.rlim_cur = core.rlim_max;
  ::setrlimit(RLIMIT_CORE, &core);
  ProcessOptions options;
  options.cpu_seconds = 1;
  options.address_space = 512 << 20;
  std::optional<Process> process =
      Shell("ulimit -t; ulimit -c; ulimit -v; while :; do :; done", options);
  ASSERT_TRUE(process);
  EXPECT_EQ(ReadAll(*process), LimitsAddressSpace() ? "1\n0\n524288\n" : "1\n0\nunlimited\n");
  const int status = process->Wait();
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGXCPU);
}

TEST(Process, NoChildOutlivesTheProgramThatStartedIt) {
  int report[2];
  ASSERT_EQ(::pipe(report), 0);
  const pid_t filter = ::fork();
  if (filter == 0) {
    std::optional<Process> process = Shell("echo $$; exec sleep 60");
    int child = 0;
    if (std::fscanf(process->output(), "%d", &child) != 1) ::_exit(1);
    [[maybe_unused]] const ssize_t written = ::write(report[1], &child, sizeof child);
    ::raise(SIGKILL);
  }
  int child = 0;
  ASSERT_EQ(::read(report[0], &child, sizeof child), ssize_t{sizeof child});
  ::waitpid(filter, nullptr, 0);
  // The orphan is reaped by whoever adopts it; until then it is a zombie, which is dead as well.
  const std::string is_dead =
      "! grep -q '^State:[^ZX]*$' /proc/" + std::to_string(child) + "/status 2>/dev/null";
  int tries = 200;
  while (tries > 0 && std::system(is_dead.c_str()) != 0) --tries;
  EXPECT_GT(tries, 0);
}

}  // namespace
}  // namespace zarvo
