// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvodraw/DrawWatermark.h"

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <memory>
#include <numbers>
#include <string>

#include "Platform/Log.h"
#include "Tools/zarvodraw/DrawableText.h"
#include "Tools/zarvodraw/ImageFile.h"

namespace zarvo {
namespace {

using FontDescription =
    std::unique_ptr<PangoFontDescription, decltype(&pango_font_description_free)>;

/// The installed font with a PostScript name; null when there is none.
FontDescription InstalledFont(const char* postscript_name) {
  FontDescription description(nullptr, &pango_font_description_free);
  FcPattern* pattern = FcPatternCreate();
  FcPatternAddString(pattern, FC_POSTSCRIPT_NAME,
                     reinterpret_cast<const FcChar8*>(postscript_name));
  FcObjectSet* properties = FcObjectSetBuild(FC_FAMILY, FC_STYLE, FC_WEIGHT, FC_SLANT, FC_WIDTH,
                                             static_cast<const char*>(nullptr));
  FcFontSet* fonts = FcFontList(nullptr, pattern, properties);
  if (fonts != nullptr && fonts->nfont > 0)
    description.reset(pango_fc_font_description_from_pattern(fonts->fonts[0], FALSE));
  if (fonts != nullptr) FcFontSetDestroy(fonts);
  FcObjectSetDestroy(properties);
  FcPatternDestroy(pattern);
  return description;
}

/// The nearest font: "Times-BoldItalic" is looked for as the family "Times", style "Bold Italic".
FontDescription NearestFont(const std::string& postscript_name) {
  const std::size_t hyphen = postscript_name.find('-');
  std::string name = postscript_name.substr(0, hyphen) + ",";
  if (hyphen != std::string::npos) {
    for (const char c : postscript_name.substr(hyphen + 1)) {
      if (c >= 'A' && c <= 'Z') name += ' ';
      name += c;
    }
  }
  return {pango_font_description_from_string(name.c_str()), &pango_font_description_free};
}

void DrawText(cairo_t* context, const cairo_rectangle_t& area, const _WatermarkData& watermark) {
  FontDescription font = InstalledFont(watermark.fontName);
  if (!font) font = NearestFont(watermark.fontName);
  pango_font_description_set_absolute_size(font.get(), double{PANGO_SCALE} * watermark.fontSize);

  const std::unique_ptr<PangoLayout, decltype(&g_object_unref)> layout(
      pango_cairo_create_layout(context), &g_object_unref);
  pango_layout_set_font_description(layout.get(), font.get());
  pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
  const std::string text = DrawableText(watermark.textString);
  pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));

  cairo_move_to(context, area.x + watermark.xPos, area.y + area.height - watermark.yPos);
  cairo_rotate(context, -watermark.angle * std::numbers::pi / 180);
  cairo_set_source_rgb(context, watermark.fontColorRed, watermark.fontColorGreen,
                       watermark.fontColorBlue);
  pango_cairo_show_layout_line(context, pango_layout_get_line_readonly(layout.get(), 0));
}

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

/// The image with its transparency; in an error state when memory is short.
Surface MakeSurface(const GdkPixbuf* image) {
  const int width = gdk_pixbuf_get_width(image);
  const int height = gdk_pixbuf_get_height(image);
  const bool has_alpha = gdk_pixbuf_get_has_alpha(image);
  const int channels = gdk_pixbuf_get_n_channels(image);
  const auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(image));
  Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height),
                  &cairo_surface_destroy);
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return surface;
  unsigned char* to = cairo_image_surface_get_data(surface.get());
  const auto to_stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
  const guchar* from = gdk_pixbuf_read_pixels(image);
  for (int y = 0; y < height; ++y, from += stride, to += to_stride) {
    auto* pixel = reinterpret_cast<std::uint32_t*>(to);
    for (const guchar* source = from; source != from + width * channels; source += channels) {
      const std::uint32_t alpha = has_alpha ? source[3] : 255;
      const auto premultiplied = [alpha](guchar value) { return (value * alpha + 127) / 255; };
      *pixel++ = alpha << 24 | premultiplied(source[0]) << 16 | premultiplied(source[1]) << 8 |
                 premultiplied(source[2]);
    }
  }
  cairo_surface_mark_dirty(surface.get());
  return surface;
}

void DrawImage(cairo_t* context, const cairo_rectangle_t& area, const _WatermarkData& watermark) {
  std::string error;
  const Image image = DecodeImage(watermark.filePath, &error);
  if (!image) {
    LogLine("INFO: Unable to use watermark image \"%s\" - %s; save it anew as PNG or JPEG",
            watermark.filePath, error.c_str());
    return;
  }
  const Surface surface = MakeSurface(image.get());
  cairo_translate(context, area.x + area.width / 2, area.y + area.height / 2);
  cairo_scale(context, watermark.scale / 100.0, watermark.scale / 100.0);
  cairo_set_source_surface(context, surface.get(), -gdk_pixbuf_get_width(image.get()) / 2.0,
                           -gdk_pixbuf_get_height(image.get()) / 2.0);
  cairo_paint(context);
}

}  // namespace

void DrawWatermark(cairo_t* context, const cairo_rectangle_t& area,
                   const _WatermarkData& watermark) {
  const auto draw = [&](auto function) {
    cairo_save(context);
    cairo_rectangle(context, area.x, area.y, area.width, area.height);
    cairo_clip(context);
    function(context, area, watermark);
    cairo_restore(context);
  };
  // A size of nothing would put the context into an error state, and the whole page with it.
  if (watermark.filename[0] != '\0' && watermark.scale > 0) draw(&DrawImage);
  if (watermark.textString[0] != '\0' && watermark.fontSize > 0) draw(&DrawText);
}

}  // namespace zarvo
