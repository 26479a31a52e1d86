// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <optional>
#include <string>

#include "Platform/Log.h"
#include "Platform/PropertyList.h"
#include "Tools/zarvodraw/FaxCoverPage.h"
#include "Tools/zarvodraw/Jobs.h"

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

}  // namespace

int RunFaxCoverJob(char**) {
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
  const cairo_status_t status =
      DrawFaxCover(stdout, FaxCoverFromDictionary(*description->AsDictionary()));
  if (status != CAIRO_STATUS_SUCCESS || std::fflush(stdout) != 0) {
    LogLine("ERROR: The fax cover sheet was left out: drawing failed: %s; send the job again",
            cairo_status_to_string(status));
    return kJobFailed;
  }
  return kJobDone;
}

}  // namespace zarvo
