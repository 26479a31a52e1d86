// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/Editor.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zarvo::tool {
namespace {

/// While an editor has the terminal, the keys that end programs are for the editor.
class KeysAside {
 public:
  KeysAside() {
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    ::sigaction(SIGINT, &ignore, &interrupt_);
    ::sigaction(SIGQUIT, &ignore, &quit_);
  }
  KeysAside(const KeysAside&) = delete;
  KeysAside& operator=(const KeysAside&) = delete;
  ~KeysAside() {
    ::sigaction(SIGINT, &interrupt_, nullptr);
    ::sigaction(SIGQUIT, &quit_, nullptr);
  }

 private:
  struct sigaction interrupt_ {};
  struct sigaction quit_ {};
};

std::string EditorCommand() {
  for (const char* variable : {"VISUAL", "EDITOR"})
    if (const char* value = std::getenv(variable); value != nullptr && *value != '\0') return value;
  return "editor";
}

}  // namespace

Failure EditFile(const std::string& file) {
  const std::string command = EditorCommand();
  // The variable is a command line of the user's own; only that passes the shell.
  std::string program = "/bin/sh", flag = "-c", line = command + " \"$@\"", name = command,
              argument = file;
  const std::array<char*, 6> arguments = {program.data(), flag.data(),     line.data(),
                                          name.data(),    argument.data(), nullptr};
  const KeysAside keys;
  posix_spawnattr_t attributes;
  ::posix_spawnattr_init(&attributes);
  sigset_t usual;
  ::sigemptyset(&usual);
  ::sigaddset(&usual, SIGINT);
  ::sigaddset(&usual, SIGQUIT);
  ::posix_spawnattr_setsigdefault(&attributes, &usual);
  ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
  pid_t child = -1;
  const int error =
      ::posix_spawn(&child, program.c_str(), nullptr, &attributes, arguments.data(), environ);
  ::posix_spawnattr_destroy(&attributes);
  if (error != 0) return command + ": " + std::strerror(error);
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  constexpr int kNotFound = 127;
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return "";
  return command + (WIFEXITED(status) && WEXITSTATUS(status) == kNotFound
                        ? ": no such editor; name one in EDITOR"
                        : " ended with an error");
}

bool WantsToEditAgain() {
  if (::isatty(STDIN_FILENO) == 0 || ::isatty(STDERR_FILENO) == 0) return false;
  std::fputs("Back into the editor? [Y/n] ", stderr);
  std::array<char, 80> answer{};
  if (std::fgets(answer.data(), answer.size(), stdin) == nullptr) return false;
  return answer[0] != 'n' && answer[0] != 'N';
}

}  // namespace zarvo::tool
