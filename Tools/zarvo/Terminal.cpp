// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/Terminal.h"

#include <termios.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace zarvo::tool {

namespace {

volatile std::sig_atomic_t noted_signal = 0;  // a handler has no other place

/// Signals that ask to end only interrupt what is being read.
class SignalsNoted {
 public:
  SignalsNoted() {
    struct sigaction note {};
    note.sa_handler = [](int signal) { noted_signal = signal; };
    for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &note, &before_[i]);
  }
  SignalsNoted(const SignalsNoted&) = delete;
  SignalsNoted& operator=(const SignalsNoted&) = delete;
  ~SignalsNoted() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &before_[i], nullptr);
  }

 private:
  static constexpr std::array kSignals = {SIGINT, SIGQUIT, SIGTERM, SIGHUP};
  std::array<struct sigaction, kSignals.size()> before_{};
};

}  // namespace

bool ColorWanted(int fd) {
  const char* no_color = std::getenv("NO_COLOR");
  return isatty(fd) == 1 && (no_color == nullptr || *no_color == '\0');
}

std::string ReadSecret(const char* prompt) {
  std::fputs(prompt, stderr);
  termios shown{};
  const bool is_terminal = tcgetattr(STDIN_FILENO, &shown) == 0;
  termios hidden = shown;
  hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
  std::string line;
  {
    // Whoever gives up by a key is to find a terminal that shows again what is typed.
    const SignalsNoted noted;
    if (is_terminal) tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    for (int c = std::getchar(); c != EOF && c != '\n'; c = std::getchar())
      line += static_cast<char>(c);
    if (is_terminal) tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown);
    std::fputc('\n', stderr);
  }
  if (const int signal = noted_signal; signal != 0) {
    noted_signal = 0;
    std::raise(signal);
  }
  return line;
}

Palette::Palette(bool color)
    : bold(color ? "\033[1m" : ""),
      good(color ? "\033[32m" : ""),
      bad(color ? "\033[31m" : ""),
      plain(color ? "\033[0m" : "") {}

Progress::Progress() {
  if (isatty(STDERR_FILENO) == 1)
    thread_ = std::jthread([this](const std::stop_token& stop) { Show(stop); });
}

Progress::~Progress() {
  if (thread_.joinable()) {
    thread_.request_stop();
    thread_.join();
  }
  if (shown_) std::fputs("\r\033[K", stderr);
}

void Progress::Stage(std::string what) {
  const std::lock_guard lock(mutex_);
  what_ = std::move(what);
  done_ = total_ = 0;
}

void Progress::Count(std::uint64_t done, std::uint64_t total) {
  const std::lock_guard lock(mutex_);
  done_ = done;
  total_ = total > 0 ? std::max(done, total) : 0;
}

void Progress::Show(const std::stop_token& stop) {
  using namespace std::chrono_literals;
  const auto start = std::chrono::steady_clock::now();
  std::unique_lock lock(mutex_);
  while (!changed_.wait_for(lock, stop, 1s, [&stop] { return stop.stop_requested(); })) {
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
    std::string line = what_;
    if (done_ > 0) line += ", page " + std::to_string(done_);
    if (done_ > 0 && total_ > 0) line += " of " + std::to_string(total_);
    std::fprintf(stderr, "\r\033[K%s ... %ld s", line.c_str(), static_cast<long>(seconds.count()));
    shown_ = true;
  }
}

}  // namespace zarvo::tool
