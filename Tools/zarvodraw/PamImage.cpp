// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvodraw/PamImage.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace zarvo {
namespace {

constexpr int kMostOnASide = 32767;

/// A pixel as the drawing library has it.
std::uint32_t Premultiplied(const unsigned char* rgba) {
  const std::uint32_t alpha = rgba[3];
  const auto times = [alpha](std::uint32_t value) { return (value * alpha + 127) / 255; };
  return alpha << 24 | times(rgba[0]) << 16 | times(rgba[1]) << 8 | times(rgba[2]);
}

}  // namespace

Failure ReadPamImage(std::FILE* input, Surface* image) {
  int width = 0, height = 0, depth = 0;
  if (std::fscanf(input, "P7 WIDTH %9d HEIGHT %9d DEPTH %1d MAXVAL 255 TUPLTYPE RGB_ALPHA ENDHDR",
                  &width, &height, &depth) != 3 ||
      std::getc(input) != '\n' || depth != 4 || width < 1 || height < 1)
    return "";
  if (width > kMostOnASide || height > kMostOnASide)
    return "it has more than " + std::to_string(kMostOnASide) + " pixels on a side";
  Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height),
                  &cairo_surface_destroy);
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
    return cairo_status_to_string(cairo_surface_status(surface.get()));
  unsigned char* to = cairo_image_surface_get_data(surface.get());
  const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
  std::vector<unsigned char> row(4 * static_cast<std::size_t>(width));
  for (int y = 0; y < height; ++y, to += stride) {
    if (std::fread(row.data(), row.size(), 1, input) != 1) return "";
    auto* pixel = reinterpret_cast<std::uint32_t*>(to);
    for (std::size_t x = 0; x < row.size(); x += 4) *pixel++ = Premultiplied(&row[x]);
  }
  cairo_surface_mark_dirty(surface.get());
  *image = std::move(surface);
  return "";
}

}  // namespace zarvo
