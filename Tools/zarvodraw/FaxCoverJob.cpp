// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <optional>
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
Surface ReadImage(const _WatermarkData& watermark) {
  Surface image(nullptr, &cairo_surface_destroy);
  std::FILE* input = watermark.filename[0] != '\0' ? ::fdopen(kDataFd, "r") : nullptr;
  if (input == nullptr) return image;
  std::string problem;
  image = ReadPamImage(input, &problem);
  std::fclose(input);
  if (!problem.empty()) LogImageFailure(watermark.filePath, problem);
  return image;
}

}  // namespace

int RunFaxCoverJob(char**) {
  Confine(Task::kPage);
  std::string error = "it is no dictionary";
  const std::optional<Value> description =
      ParsePropertyList(ReadStream(stdin, kMaxPropertyListBytes), &error);
  if (!description || description->AsDictionary() == nullptr) {
    LogLine(
        "ERROR: The fax cover sheet was left out: its description is damaged: %s; "
        "install the package zarvo again",
        error.c_str());
    return kJobFailed;
  }
  const FaxCover cover = FaxCoverFromDictionary(*description->AsDictionary());
  const Surface image = ReadImage(cover.watermark);
  const cairo_status_t status = DrawFaxCover(stdout, cover, image.get());
  if (status != CAIRO_STATUS_SUCCESS || std::fflush(stdout) != 0) {
    LogLine("ERROR: The fax cover sheet was left out: drawing failed: %s; send the job again",
            cairo_status_to_string(status));
    return kJobFailed;
  }
  return kJobDone;
}

}  // namespace zarvo
