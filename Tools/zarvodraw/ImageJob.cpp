// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <string>
#include <vector>

#include "Platform/Log.h"
#include "Tools/zarvodraw/ImageFile.h"
#include "Tools/zarvodraw/Jobs.h"

namespace zarvo {
namespace {

constexpr unsigned kWhite = 255;

/// One component laid over white, rounded to the nearest.
guchar OverWhite(unsigned component, unsigned alpha) {
  return static_cast<guchar>((component * alpha + kWhite * (255 - alpha) + 127) / 255);
}

void WritePpm(const GdkPixbuf* image, std::FILE* output) {
  const auto width = static_cast<std::size_t>(gdk_pixbuf_get_width(image));
  const int height = gdk_pixbuf_get_height(image);
  const auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(image));
  const auto channels = static_cast<std::size_t>(gdk_pixbuf_get_n_channels(image));
  const bool has_alpha = gdk_pixbuf_get_has_alpha(image);
  const guchar* pixels = gdk_pixbuf_read_pixels(image);
  std::fprintf(output, "P6\n%zu %d\n255\n", width, height);
  std::vector<guchar> row(3 * width);
  for (int y = 0; y < height; ++y, pixels += stride) {
    for (std::size_t x = 0; x < width; ++x) {
      const guchar* from = pixels + x * channels;
      const unsigned alpha = has_alpha ? from[3] : 255;
      for (std::size_t i = 0; i < 3; ++i) row[3 * x + i] = OverWhite(from[i], alpha);
    }
    std::fwrite(row.data(), 1, row.size(), output);
  }
}

}  // namespace

int RunImageJob(char** arguments) {
  std::string error;
  const Image image = DecodeImage(arguments[0], &error);
  if (image == nullptr) {
    LogLine("INFO: Unable to use watermark image \"%s\" - %s; save it anew as PNG or JPEG",
            arguments[0], error.c_str());
    return kJobFailed;
  }
  WritePpm(image.get(), stdout);
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? kJobDone : kJobFailed;
}

}  // namespace zarvo
