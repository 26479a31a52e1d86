// SPDX-License-Identifier: Apache-2.0
// What is shown only to a person at a terminal: colour and progress.
#pragma once

#include <unistd.h>

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>

namespace zarvo::tool {

/// Whether colour may be written to the descriptor: a terminal, and NO_COLOR is not set.
bool ColorWanted(int fd);

/// Asks for a line on the terminal that is standard input, without showing what is typed.
std::string ReadSecret(const char* prompt);

/// Text styles; with `color` false they are empty texts.
struct Palette {
  explicit Palette(bool color);
  const char* bold;
  const char* good;
  const char* bad;
  const char* plain;
};

/// Tells on standard error, once work has taken a second and only on a terminal, what is being
/// done and for how long; the line goes when the work is done.
class Progress {
 public:
  Progress();
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// What is being done from now on.
  void Stage(std::string what);

  /// How much of it has been done, in pages; `total` is 0 when nobody knows.
  void Count(std::uint64_t done, std::uint64_t total);

 private:
  void Show(const std::stop_token& stop);

  std::mutex mutex_;
  std::condition_variable_any changed_;
  std::string what_;
  std::uint64_t done_ = 0;
  std::uint64_t total_ = 0;
  bool shown_ = false;
  std::jthread thread_;  // none when nobody watches
};

}  // namespace zarvo::tool
