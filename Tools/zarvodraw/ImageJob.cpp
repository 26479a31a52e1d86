// SPDX-License-Identifier: Apache-2.0
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "Source/DrawHelper.h"
#include "Tools/zarvodraw/Confinement.h"
#include "Tools/zarvodraw/ImageFile.h"
#include "Tools/zarvodraw/Jobs.h"

namespace zarvo {
namespace {

constexpr unsigned kWhite = 255;

/// One component laid over white, rounded to the nearest.
guchar OverWhite(unsigned component, unsigned alpha) {
  return static_cast<guchar>((component * alpha + kWhite * (255 - alpha) + 127) / 255);
}

/// Three components of a pixel over white, or four with its alpha.
void ConvertPixel(const guchar* from, unsigned alpha, bool keep_alpha, guchar* to) {
  for (std::size_t i = 0; i < 3; ++i) to[i] = keep_alpha ? from[i] : OverWhite(from[i], alpha);
  if (keep_alpha) to[3] = static_cast<guchar>(alpha);
}

void WriteImage(const GdkPixbuf* image, bool as_pam, std::FILE* output) {
  const auto width = static_cast<std::size_t>(gdk_pixbuf_get_width(image));
  const int height = gdk_pixbuf_get_height(image);
  const auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(image));
  const auto channels = static_cast<std::size_t>(gdk_pixbuf_get_n_channels(image));
  const bool has_alpha = gdk_pixbuf_get_has_alpha(image);
  const guchar* pixels = gdk_pixbuf_read_pixels(image);
  std::fprintf(output,
               as_pam ? "P7\nWIDTH %zu\nHEIGHT %d\nDEPTH 4\nMAXVAL 255\nTUPLTYPE "
                        "RGB_ALPHA\nENDHDR\n"
                      : "P6\n%zu %d\n255\n",
               width, height);
  const std::size_t written = as_pam ? 4 : 3;
  std::vector<guchar> row(written * width);
  for (int y = 0; y < height; ++y, pixels += stride) {
    for (std::size_t x = 0; x < width; ++x) {
      const guchar* from = pixels + x * channels;
      ConvertPixel(from, has_alpha ? from[3] : 255, as_pam, &row[written * x]);
    }
    std::fwrite(row.data(), 1, row.size(), output);
  }
}

}  // namespace

int RunImageJob(char** arguments) {
  PrepareDecoder(STDIN_FILENO);
  Confine(Task::kImage);
  Image image;
  if (const Failure failure = DecodeImage(STDIN_FILENO, &image); !failure.empty()) {
    LogImageFailure(arguments[1], failure);
    return kJobFailed;
  }
  WriteImage(image.get(), std::strcmp(arguments[0], "pam") == 0, stdout);
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? kJobDone : kJobFailed;
}

}  // namespace zarvo
