// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvodraw/ImageFile.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include "Platform/AtomicFile.h"

namespace zarvo {
namespace {

/// As long as the largest uncompressed image.
constexpr std::size_t kMaxFileBytes = 512 << 20;

struct Format {
  std::string_view signature;
  const char* loader;
  bool (*is_whole)(std::string_view file);  // null when the loader notices cut files itself
};

bool EndsPng(std::string_view file) { return file.rfind("IEND") != file.npos; }

/// A cut file may still hold the end marker of the small preview inside it.
bool EndsJpeg(std::string_view file) {
  const std::size_t end = file.rfind("\xFF\xD9");
  const std::size_t last_scan = file.rfind("\xFF\xDA");
  return end != file.npos && (last_scan == file.npos || end > last_scan);
}

/// Only these loaders ever see a file; others of the library are not meant for hostile input.
constexpr Format kFormats[] = {
    {"\x89PNG\r\n\x1a\n", "png", &EndsPng},
    {"\xFF\xD8\xFF", "jpeg", &EndsJpeg},
    {std::string_view("II*\0", 4), "tiff", nullptr},
    {std::string_view("MM\0*", 4), "tiff", nullptr},
    {"GIF87a", "gif", nullptr},
    {"GIF89a", "gif", nullptr},
    {"BM", "bmp", nullptr},
};

constexpr std::size_t kLongestSignature = 8;

/// Null when the file is none of them.
const Format* FindFormat(std::string_view file) {
  const auto* format =
      std::find_if(std::begin(kFormats), std::end(kFormats),
                   [&](const Format& row) { return file.starts_with(row.signature); });
  return format != std::end(kFormats) ? format : nullptr;
}

bool TooLarge(int width, int height) { return std::int64_t{width} * height > kMaxImagePixels; }

/// One run of a loader. It reports rows as they are decoded; the rows of a damaged image that never
/// came hold whatever memory held before, so they must be known.
class Decoder {
 public:
  explicit Decoder(const char* type) : loader_(gdk_pixbuf_loader_new_with_type(type, &problem_)) {
    if (loader_ == nullptr) return;
    g_signal_connect(loader_, "size-prepared", G_CALLBACK(&Decoder::SizeKnown), this);
    g_signal_connect(loader_, "area-prepared", G_CALLBACK(&Decoder::MemoryTaken), this);
    g_signal_connect(loader_, "area-updated", G_CALLBACK(&Decoder::RowsDecoded), this);
  }
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder() {
    g_clear_error(&problem_);
    if (loader_ == nullptr) return;
    if (!closed_) gdk_pixbuf_loader_close(loader_, nullptr);
    g_object_unref(loader_);
  }

  Failure Run(std::string_view file, Image* image) {
    bool fed = loader_ != nullptr;
    constexpr std::size_t kBlock = 1 << 16;
    for (; fed && !too_large_ && !file.empty(); file.remove_prefix(std::min(file.size(), kBlock)))
      fed = gdk_pixbuf_loader_write(loader_, reinterpret_cast<const guchar*>(file.data()),
                                    std::min(file.size(), kBlock), &problem_);
    if (fed && !too_large_) {
      closed_ = true;
      fed = gdk_pixbuf_loader_close(loader_, &problem_);
    }
    if (too_large_) return "it has more than 100 million pixels";
    GdkPixbuf* decoded = fed ? gdk_pixbuf_loader_get_pixbuf(loader_) : nullptr;
    if (decoded == nullptr || std::find(decoded_.begin(), decoded_.end(), false) != decoded_.end())
      return problem_ != nullptr ? problem_->message : "it is damaged";
    image->reset(GDK_PIXBUF(g_object_ref(decoded)));
    return "";
  }

 private:
  static void SizeKnown(GdkPixbufLoader* loader, int width, int height, Decoder* self) {
    if (!TooLarge(width, height)) return;
    self->too_large_ = true;
    gdk_pixbuf_loader_set_size(loader, 0, 0);  // makes the loader give up
  }
  static void MemoryTaken(GdkPixbufLoader* loader, Decoder* self) {
    GdkPixbuf* image = gdk_pixbuf_loader_get_pixbuf(loader);
    const int height = gdk_pixbuf_get_height(image);
    self->too_large_ = self->too_large_ || TooLarge(gdk_pixbuf_get_width(image), height);
    self->decoded_.assign(static_cast<std::size_t>(height), false);
  }
  static void RowsDecoded(GdkPixbufLoader*, int, int y, int, int height, Decoder* self) {
    const auto limit = static_cast<int>(self->decoded_.size());
    for (int row = std::max(y, 0); row < std::min(y + height, limit); ++row)
      self->decoded_[static_cast<std::size_t>(row)] = true;
  }

  GError* problem_ = nullptr;
  GdkPixbufLoader* loader_;
  bool closed_ = false;
  bool too_large_ = false;
  std::vector<bool> decoded_;
};

}  // namespace

void PrepareDecoder(int file) {
  char head[kLongestSignature];
  const ssize_t length = ::pread(file, head, sizeof head, 0);
  const Format* format =
      length > 0 ? FindFormat({head, static_cast<std::size_t>(length)}) : nullptr;
  if (format != nullptr) Decoder decoder(format->loader);
}

Failure DecodeImage(int file, Image* image) {
  const std::optional<std::string> content = ReadWholeFile(file, kMaxFileBytes);
  if (!content) return errno == EINVAL ? "it is not a regular file" : std::strerror(errno);
  const Format* format = FindFormat(*content);
  if (format == nullptr) return "it is not a PNG, JPEG, TIFF, GIF or BMP image";
  if (format->is_whole != nullptr && !format->is_whole(*content)) return "its end is missing";
  return Decoder(format->loader).Run(*content, image);
}

}  // namespace zarvo
