// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvodraw/DrawWatermark.h"

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <memory>
#include <numbers>
#include <string>

#include "Tools/zarvodraw/DrawableText.h"

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

void DrawText(cairo_t* context, const cairo_rectangle_t& area, const WatermarkData& watermark) {
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

void DrawImage(cairo_t* context, const cairo_rectangle_t& area, const WatermarkData& watermark,
               cairo_surface_t* image) {
  cairo_translate(context, area.x + area.width / 2, area.y + area.height / 2);
  cairo_scale(context, watermark.scale / 100.0, watermark.scale / 100.0);
  cairo_set_source_surface(context, image, -cairo_image_surface_get_width(image) / 2.0,
                           -cairo_image_surface_get_height(image) / 2.0);
  cairo_paint(context);
}

}  // namespace

void DrawWatermark(cairo_t* context, const cairo_rectangle_t& area, const WatermarkData& watermark,
                   cairo_surface_t* image) {
  const auto draw = [&](auto function, auto... more) {
    cairo_save(context);
    cairo_rectangle(context, area.x, area.y, area.width, area.height);
    cairo_clip(context);
    function(context, area, watermark, more...);
    cairo_restore(context);
  };
  // A size of nothing would put the context into an error state, and the whole page with it.
  if (image != nullptr && watermark.scale > 0) draw(&DrawImage, image);
  if (watermark.textString[0] != '\0' && watermark.fontSize > 0) draw(&DrawText);
}

}  // namespace zarvo
