// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <cstring>
#include <string>

#include "Platform/Log.h"
#include "Platform/PropertyList.h"
#include "Source/DrawHelper.h"
#include "Tools/zarvodraw/Confinement.h"
#include "Tools/zarvodraw/FaxCoverPage.h"
#include "Tools/zarvodraw/Jobs.h"
#include "Tools/zarvodraw/PamImage.h"

namespace zarvo {
namespace {

/// Everything up to the end of the stream, but not much more than `max_bytes`.
std::string ReadStream(std::FILE* input, std::size_t max_bytes) {
  std::string text;
  char block[1 << 16];
  while (const std::size_t got = std::fread(block, 1, sizeof block, input)) {
    text.append(block, got);
    if (text.size() > max_bytes) break;
  }
  return text;
}

/// The image of the cover's watermark; null when it has none, or none that can be drawn.
Surface ReadImage(const WatermarkData& watermark) {
  Surface image(nullptr, &cairo_surface_destroy);
  std::FILE* input = watermark.filename[0] != '\0' ? ::fdopen(kDataFd, "r") : nullptr;
  if (input == nullptr) return image;
  const Failure failure = ReadPamImage(input, &image);
  std::fclose(input);
  if (!failure.empty()) LogImageFailure(watermark.filePath, failure);
  return image;
}

}  // namespace

int RunFaxCoverJob(char** arguments) {
  const char* const begin =
      std::strcmp(arguments[0], "required") == 0 ? kCoverRefused : kCoverLeftOut;
  Confine(Task::kPage);
  Value description;
  Failure failure = ParsePropertyList(ReadStream(stdin, kMaxPropertyListBytes), &description);
  if (failure.empty() && description.AsDictionary() == nullptr) failure = "it is no dictionary";
  if (!failure.empty()) {
    LogLine("ERROR: %sits description is damaged: %s; install the package zarvo again", begin,
            failure.c_str());
    return kJobFailed;
  }
  const FaxCover cover = FaxCoverFromDictionary(*description.AsDictionary());
  const Surface image = ReadImage(cover.watermark);
  const cairo_status_t status = DrawFaxCover(stdout, cover, image.get());
  if (status != CAIRO_STATUS_SUCCESS || std::fflush(stdout) != 0) {
    LogLine("ERROR: %sdrawing failed: %s; send the job again", begin,
            cairo_status_to_string(status));
    return kJobFailed;
  }
  return kJobDone;
}

}  // namespace zarvo
