// SPDX-License-Identifier: Apache-2.0
// Child programs: started without a shell, bounded in time and memory, never left behind.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/UniqueFd.h"

namespace zarvo {

struct ProcessOptions {
  /// The program's path (no search takes place) and its arguments.
  std::vector<std::string> arguments;
  /// The child's environment, each entry NAME=VALUE; nothing gives it this program's.
  std::optional<std::vector<std::string>> environment;
  /// What the child reads as its standard input; -1 gives it nothing to read. The descriptor
  /// stays the caller's, who may close it once the child is started. To feed a text, pass
  /// OpenMemoryFile's; to chain two children, the first one's TakeOutput.
  int input_fd = -1;
  /// Where its standard error goes; -1 leaves it the caller's. It stays the caller's, too.
  int error_fd = -1;
  /// What the child finds open as its descriptor kDataFd; -1 gives it none. It stays the caller's.
  int data_fd = -1;
  /// Limits of the child; 0 means none. The address space is in bytes.
  unsigned cpu_seconds = 0;
  std::uint64_t address_space = 0;
  /// After this time reading fails and the child is killed.
  std::chrono::milliseconds wall_clock = std::chrono::minutes(5);
  /// Whether the time between two reads counts as well. It must not where the reader hands on what
  /// it reads to a printer, which may be out of paper for an hour.
  bool readers_time_counts = true;
};

/// The descriptor of a child's second input.
constexpr int kDataFd = 3;

/// A running child whose standard output can be read. It inherits no descriptor but the three
/// standard ones and kDataFd, and gets SIGKILL when this process dies. It is the leader of a
/// process group of its own, which is killed as a whole, and reaped, when the object goes.
class Process {
 public:
  /// Starts the child. Nothing, with errno set, when it cannot be started; a program that is
  /// missing or may not be run is such a case.
  static std::optional<Process> Start(const ProcessOptions& options);

  /// The child's output as a stream, opened at the first call; it belongs to the object. Reading
  /// fails (ferror, errno ETIMEDOUT) when the wall clock has run out. Null when the output was
  /// handed over or memory is short.
  std::FILE* output();

  /// Hands the reading end of the child's output over, for the next child of a chain; only before
  /// the first call of output().
  UniqueFd TakeOutput();

  /// Waits for the child to end and gives its status as waitpid does (WIFEXITED and so on). A
  /// child that still runs when the wall clock runs out is killed. Output that has not been read
  /// is lost, so that a child never waits here for its reader.
  int Wait();

 private:
  struct Child;
  struct Reaper {
    void operator()(Child* child) const;
  };
  explicit Process(Child* child) : child_(child) {}
  std::unique_ptr<Child, Reaper> child_;
};

/// The whole seconds (1 to 3600) that this variable of the environment names, else `usual`.
std::chrono::milliseconds TimeLimit(const char* variable, std::chrono::milliseconds usual);

/// How long a child may take in all: `usual`, or the whole seconds (1 to 3600) that the
/// environment's ZARVO_HELPER_SECONDS names, for servers that are slower or less patient than most.
std::chrono::milliseconds ProcessTimeLimit(std::chrono::seconds usual);

/// From now on a signal that asks this program to end (SIGTERM, SIGINT, SIGHUP) ends its running
/// children first, with all that they have started, and then this program.
void EndChildrenOnTermination();

/// From now on such a signal ends the running children and is noted; this program goes on, to clear
/// away what it has made. A second one ends it.
void NoteTermination();

/// Kills this program's running children with all that they have started. A process that was forked
/// from this program kills the same ones, those too that were started since.
void KillRunningChildren();

/// The signal that has been noted, or 0.
int NotedTermination();

/// A file in memory that holds `bytes`, positioned at its start; none, with errno set, on failure.
UniqueFd OpenMemoryFile(std::string_view bytes);

}  // namespace zarvo
