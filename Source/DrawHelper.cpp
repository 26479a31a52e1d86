// SPDX-License-Identifier: Apache-2.0
#include "Source/DrawHelper.h"

#include <limits.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "Platform/AtomicFile.h"
#include "Platform/Log.h"
#include "Platform/PropertyList.h"

namespace zarvo {
namespace {

constexpr int kHelperHasLogged = 1;  // its exit status then

/// What a helper sees of the environment: nothing that could make it load a program of somebody's
/// choice, or tell it what it need not know.
std::vector<std::string> HelperEnvironment() {
  constexpr std::string_view kKept[] = {"LANG=",
                                        "LANGUAGE=",
                                        "LC_",
                                        "TZ=",
                                        "HOME=",
                                        "XDG_",
                                        "FONTCONFIG_FILE=",
                                        "FONTCONFIG_PATH=",
                                        "TMPDIR=",
                                        "CUPS_SERVERROOT=",
                                        "ZARVO_",
                                        "ASAN_OPTIONS="};
  std::vector<std::string> environment;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string_view text = *entry;
    if (std::any_of(std::begin(kKept), std::end(kKept),
                    [text](std::string_view start) { return text.starts_with(start); }))
      environment.emplace_back(text);
  }
  return environment;
}

}  // namespace

std::string DrawHelperPath() {
  constexpr char kName[] = "zarvodraw";
  char program[PATH_MAX];
  const ssize_t length = ::readlink("/proc/self/exe", program, sizeof program);
  if (length > 0) {
    const std::string_view path(program, static_cast<std::size_t>(length));
    std::string beside = std::string(path.substr(0, path.rfind('/') + 1)) + kName;
    if (::access(beside.c_str(), X_OK) == 0) return beside;
  }
  return std::string(ZARVO_LIBEXEC_DIR) + '/' + kName;
}

std::optional<Process> StartDrawHelper(std::vector<std::string> job, int input_fd, int data_fd) {
  ProcessOptions options;
  options.arguments = std::move(job);
  options.arguments.insert(options.arguments.begin(), DrawHelperPath());
  options.environment = HelperEnvironment();
  options.input_fd = input_fd;
  options.data_fd = data_fd;
  options.cpu_seconds = 60;
  options.wall_clock = ProcessTimeLimit(std::chrono::minutes(2));
  options.readers_time_counts = false;
  options.address_space = std::uint64_t{3} << 29;
  return Process::Start(options);
}

std::optional<Process> StartImageDecoder(const char* path, const char* form) {
  const UniqueFd image = OpenRegularFile(path);
  if (!image) {
    LogImageFailure(path, errno == EINVAL ? "it is not a regular file" : std::strerror(errno));
    return std::nullopt;
  }
  std::optional<Process> decoder = StartDrawHelper({"image", form, path}, image.get());
  if (!decoder)
    LogLine("INFO: Unable to start %s - %s; reinstall the printer driver to print image watermarks",
            DrawHelperPath().c_str(), std::strerror(errno));
  return decoder;
}

void LogImageFailure(const char* path, const std::string& reason) {
  LogLine("INFO: Unable to use watermark image \"%s\" - %s; save it anew as PNG or JPEG", path,
          reason.c_str());
}

void LogDecoderFailure(const char* path, Process& decoder) {
  const int status = decoder.Wait();
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
    LogImageFailure(path, "decoding it took too long or too much memory");
  else if (WIFSIGNALED(status) && WTERMSIG(status) != SIGPIPE)
    LogImageFailure(path, std::string("decoding it failed: ") + strsignal(WTERMSIG(status)));
  else if (WIFEXITED(status) && WEXITSTATUS(status) != kHelperHasLogged)
    LogImageFailure(path, "the decoder gave no image");
}

Failure FaxCoverDrawing::Start(const FaxCover& cover, bool required,
                               std::optional<FaxCoverDrawing>* drawing) {
  const std::optional<std::string> description = SerializePropertyList(FaxCoverToDictionary(cover));
  if (!description)
    return "the watermark holds characters that no text may hold; type its text again";
  const char* image = cover.watermark.filePath;
  const bool draws_image = cover.watermark.filename[0] != '\0' && image[0] != '\0' &&
                           cover.watermark.scale > 0 && cover.watermark.density > 0;
  std::optional<Process> decoder = draws_image ? StartImageDecoder(image, "pam") : std::nullopt;
  const UniqueFd pixels = decoder ? decoder->TakeOutput() : UniqueFd();
  const UniqueFd input = OpenMemoryFile(*description);
  std::optional<Process> page =
      input ? StartDrawHelper({"faxcover", required ? "required" : "optional"}, input.get(),
                              pixels.get())
            : std::nullopt;
  if (!page)
    return DrawHelperPath() + " cannot be started: " + std::strerror(errno) +
           "; install the package zarvo again";
  drawing->emplace(FaxCoverDrawing(*std::move(page), std::move(decoder), image));
  return "";
}

int FaxCoverDrawing::Wait() {
  const int status = page_.Wait();
  if (decoder_ && decoder_->Wait() != 0) LogDecoderFailure(image_.c_str(), *decoder_);
  return status;
}

}  // namespace zarvo
