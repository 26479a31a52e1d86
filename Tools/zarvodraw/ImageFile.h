// SPDX-License-Identifier: Apache-2.0
// Decoding of image files.
#pragma once

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <cstdint>
#include <memory>

#include "Platform/Failure.h"

namespace zarvo {

/// Images with more pixels are refused, before they are decoded where their header tells.
constexpr std::int64_t kMaxImagePixels = 100'000'000;

struct PixbufDeleter {
  void operator()(GdkPixbuf* image) const { g_object_unref(image); }
};
using Image = std::unique_ptr<GdkPixbuf, PixbufDeleter>;

/// Loads the program that decodes the kind of image in the open file, for those who cannot load it
/// later. Looks at the file's first bytes only.
void PrepareDecoder(int file);

/// The first picture of an open file of a kind that ImageFile.cpp lists, 8 bits per component, with
/// or without an alpha channel that is not premultiplied. The kind is told by the content, not by
/// the name. Fails when the file cannot be read whole and without errors.
Failure DecodeImage(int file, Image* image);

}  // namespace zarvo
