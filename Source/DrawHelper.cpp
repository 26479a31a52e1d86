// SPDX-License-Identifier: Apache-2.0
#include "Source/DrawHelper.h"

#include <limits.h>
#include <unistd.h>

#include <string_view>
#include <utility>

namespace zarvo {

std::string DrawHelperPath() {
  constexpr char kName[] = "zarvodraw";
  char program[PATH_MAX];
  const ssize_t length = ::readlink("/proc/self/exe", program, sizeof program);
  if (length > 0) {
    const std::string_view path(program, static_cast<std::size_t>(length));
    const std::string beside = std::string(path.substr(0, path.rfind('/') + 1)) + kName;
    if (::access(beside.c_str(), X_OK) == 0) return beside;
  }
  return std::string(ZARVO_LIBEXEC_DIR) + '/' + kName;
}

std::optional<Process> StartDrawHelper(std::vector<std::string> job, int input_fd) {
  ProcessOptions options;
  options.arguments = std::move(job);
  options.arguments.insert(options.arguments.begin(), DrawHelperPath());
  options.input_fd = input_fd;
  options.cpu_seconds = 60;
  options.wall_clock = ProcessTimeLimit(std::chrono::minutes(2));
  options.readers_time_counts = false;
  options.address_space = std::uint64_t{3} << 29;
  return Process::Start(options);
}

}  // namespace zarvo
