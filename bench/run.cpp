// SPDX-License-Identifier: Apache-2.0
// Runs one command as a whole process and prints what it cost:
//
//   bench_run INPUT BYTES COMMAND [ARGUMENT...]
//
// INPUT "-": standard input is empty. BYTES 0: standard input is the file INPUT itself; more than
// 0: a pipe through which INPUT is sent over and over until BYTES have passed. Standard output is a
// pipe that is read to its end. Prints "user system wall peak-KiB bytes-out status", times in
// seconds.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

[[noreturn]] void Fail(const char* what) {
  std::perror(what);
  std::exit(2);
}

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Sends the file through the pipe until `bytes` have passed; the kernel moves the pages.
[[noreturn]] void Feed(const char* file, long long bytes, int out) {
  while (bytes > 0) {
    const int in = open(file, O_RDONLY);
    if (in < 0) Fail(file);
    for (;;) {
      const ssize_t moved = splice(in, nullptr, out, nullptr,
                                   static_cast<std::size_t>(bytes < 1 << 20 ? bytes : 1 << 20), 0);
      if (moved < 0) _exit(0);  // the reader has ended
      if (moved == 0) break;
      if ((bytes -= moved) <= 0) _exit(0);
    }
    close(in);
  }
  _exit(0);
}

/// The largest resident set the process has had so far, or 0 once it has ended.
long PeakKiB(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmHWM:", 0) == 0) return std::atol(line.c_str() + 6);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  const long long bytes = std::atoll(argv[2]);
  int input = open(argv[1][0] == '-' ? "/dev/null" : argv[1], O_RDONLY);
  if (input < 0) Fail(argv[1]);
  pid_t feeder = 0;
  if (bytes > 0) {
    int feed[2];
    if (pipe(feed) != 0) Fail("pipe");
    feeder = fork();
    if (feeder == 0) {
      close(feed[0]);
      Feed(argv[1], bytes, feed[1]);
    }
    close(feed[1]);
    close(input);
    input = feed[0];
  }
  int output[2];
  if (pipe(output) != 0) Fail("pipe");
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    dup2(input, STDIN_FILENO);
    dup2(output[1], STDOUT_FILENO);
    close(input);
    close(output[0]);
    close(output[1]);
    execvp(argv[3], argv + 3);
    Fail(argv[3]);
  }
  close(input);
  close(output[1]);
  const int sink = open("/dev/null", O_WRONLY);
  long long read_bytes = 0;
  long peak = 0;
  for (;;) {
    const ssize_t moved = splice(output[0], nullptr, sink, nullptr, 1 << 20, 0);
    if (moved <= 0) break;
    read_bytes += moved;
    if (const long now = PeakKiB(child)) peak = now;
  }
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) < 0) Fail("wait4");
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
  if (feeder > 0) waitpid(feeder, nullptr, 0);
  std::printf("%.6f %.6f %.6f %ld %lld %d\n", Seconds(usage.ru_utime), Seconds(usage.ru_stime),
              wall.count(), peak, read_bytes, status);
  return 0;
}
