// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvodraw/FaxCoverPage.h"

#include <cairo-pdf.h>

#include <algorithm>
#include <memory>

#include "Tools/zarvodraw/DrawWatermark.h"
#include "Tools/zarvodraw/DrawableText.h"

namespace zarvo {
namespace {

constexpr double kInset = 31;     // of the draw box, on every side
constexpr double kFirstPen = 72;  // below the draw box's top
constexpr Fixed kBlockGap = 12 * kFixedOne;
constexpr double kTextSize = 12;
constexpr double kTextGray = 255.0 / 65535;  // a near-black
static_assert(kFixedOne % PANGO_SCALE == 0);
constexpr Fixed kFixedPerPangoUnit = kFixedOne / PANGO_SCALE;

template <auto Function>
struct Deleter {
  template <class T>
  void operator()(T* object) const {
    Function(object);
  }
};
template <class T, auto Function>
using Owner = std::unique_ptr<T, Deleter<Function>>;
using Font = Owner<PangoFontDescription, pango_font_description_free>;
using Layout = Owner<PangoLayout, g_object_unref>;

Fixed ToFixed(double points) { return static_cast<Fixed>(points * kFixedOne); }
double ToPoints(Fixed value) { return static_cast<double>(value) / kFixedOne; }

/// The two text styles. No family is named: it is the system's default one.
const PangoFontDescription* Style(PangoWeight weight) {
  const auto make = [](PangoWeight of_weight) {
    Font font(pango_font_description_from_string("Sans"));
    pango_font_description_set_absolute_size(font.get(), kTextSize * PANGO_SCALE);
    pango_font_description_set_weight(font.get(), of_weight);
    return font;
  };
  static const Font gDefaultStyle = make(PANGO_WEIGHT_NORMAL);
  static const Font gLabelStyle = make(PANGO_WEIGHT_BOLD);
  return (weight == PANGO_WEIGHT_BOLD ? gLabelStyle : gDefaultStyle).get();
}

Layout MakeLayout(cairo_t* context, PangoWeight weight, const std::string& text) {
  Layout layout(pango_cairo_create_layout(context));
  // Metrics of the outlines, not of some screen.
  const Owner<cairo_font_options_t, cairo_font_options_destroy> options(
      cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  PangoContext* pango = pango_layout_get_context(layout.get());
  pango_cairo_context_set_font_options(pango, options.get());
  pango_context_set_round_glyph_positions(pango, FALSE);
  pango_layout_context_changed(layout.get());

  pango_layout_set_font_description(layout.get(), Style(weight));
  pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
  // A hyphen where a long number or address is broken would become a part of it.
  const Owner<PangoAttrList, pango_attr_list_unref> attributes(pango_attr_list_new());
  pango_attr_list_insert(attributes.get(), pango_attr_insert_hyphens_new(FALSE));
  pango_layout_set_attributes(layout.get(), attributes.get());
  // Each paragraph starts at the side that its own script starts at.
  pango_layout_set_auto_dir(layout.get(), TRUE);
  pango_layout_set_alignment(layout.get(), PANGO_ALIGN_LEFT);
  pango_layout_set_justify(layout.get(), FALSE);
  pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
  return layout;
}

void DrawBlock(cairo_t* context, const cairo_rectangle_t& draw_box, Fixed& pen_x, Fixed& pen_y,
               const FaxCoverBlock& block) {
  const auto render = [&](const std::string& wanted, PangoWeight weight) {
    // Laying a long text out takes time; on a full page it would be for nothing.
    if (wanted.empty() || ToPoints(pen_y) < draw_box.y) return;
    const std::string text = DrawableText(wanted);
    const Layout layout = MakeLayout(context, weight, text);
    RenderWrappingText(context, layout.get(), draw_box, static_cast<int>(text.size()), pen_x, pen_y,
                       draw_box.width);
  };
  render(block.label, PANGO_WEIGHT_BOLD);
  render(block.text, PANGO_WEIGHT_NORMAL);
}

cairo_status_t WriteToStream(void* stream, const unsigned char* data, unsigned length) {
  return std::fwrite(data, 1, length, static_cast<std::FILE*>(stream)) == length
             ? CAIRO_STATUS_SUCCESS
             : CAIRO_STATUS_WRITE_ERROR;
}

void DrawWatermarkLayer(cairo_t* context, const cairo_rectangle_t& media_box,
                        const WatermarkData& watermark, cairo_surface_t* image) {
  const double alpha = std::clamp(watermark.density / 100.0, 0.0, 1.0);
  // An invisible layer would still make converters turn the whole page into one big picture.
  if (alpha == 0 || (watermark.textString[0] == '\0' && image == nullptr)) return;
  cairo_push_group(context);
  DrawWatermark(context, media_box, watermark, image);
  cairo_pop_group_to_source(context);
  cairo_paint_with_alpha(context, alpha);
}

}  // namespace

cairo_status_t DrawFaxCover(std::FILE* consumer, const FaxCover& cover, cairo_surface_t* image) {
  const cairo_rectangle_t media_box{0, 0, cover.width, cover.height};
  const cairo_rectangle_t draw_box{kInset, kInset, cover.width - 2 * kInset,
                                   cover.height - 2 * kInset};
  const Owner<cairo_surface_t, cairo_surface_destroy> surface(cairo_pdf_surface_create_for_stream(
      &WriteToStream, consumer, media_box.width, media_box.height));
  const Owner<cairo_t, cairo_destroy> context(cairo_create(surface.get()));
  cairo_set_source_rgb(context.get(), 1, 1, 1);
  cairo_paint(context.get());

  cairo_save(context.get());
  cairo_set_source_rgb(context.get(), kTextGray, kTextGray, kTextGray);
  cairo_translate(context.get(), 0, media_box.height);
  Fixed pen_x = ToFixed(draw_box.x);
  Fixed pen_y = ToFixed(draw_box.y + draw_box.height - kFirstPen);
  if (!cover.sender.text.empty()) {
    DrawFaxCoverSender(context.get(), draw_box, pen_x, pen_y, cover.sender);
    pen_y -= kBlockGap;
  }
  if (!cover.recipients.text.empty()) {
    DrawFaxCoverRecipients(context.get(), draw_box, pen_x, pen_y, cover.recipients);
    pen_y -= kBlockGap;
  }
  if (!cover.notes.text.empty())
    DrawFaxCoverNotes(context.get(), draw_box, pen_x, pen_y, cover.notes);
  cairo_restore(context.get());

  DrawWatermarkLayer(context.get(), media_box, cover.watermark, image);
  cairo_show_page(context.get());
  cairo_surface_finish(surface.get());
  const cairo_status_t status = cairo_status(context.get());
  return status != CAIRO_STATUS_SUCCESS ? status : cairo_surface_status(surface.get());
}

void DrawFaxCoverSender(cairo_t* context, const cairo_rectangle_t& draw_box, Fixed& pen_x,
                        Fixed& pen_y, const FaxCoverBlock& block) {
  DrawBlock(context, draw_box, pen_x, pen_y, block);
}

void DrawFaxCoverRecipients(cairo_t* context, const cairo_rectangle_t& draw_box, Fixed& pen_x,
                            Fixed& pen_y, const FaxCoverBlock& block) {
  DrawBlock(context, draw_box, pen_x, pen_y, block);
}

void DrawFaxCoverNotes(cairo_t* context, const cairo_rectangle_t& draw_box, Fixed& pen_x,
                       Fixed& pen_y, const FaxCoverBlock& block) {
  DrawBlock(context, draw_box, pen_x, pen_y, block);
}

void RenderWrappingText(cairo_t* context, PangoLayout* layout, const cairo_rectangle_t& draw_box,
                        int text_length, Fixed& pen_x, Fixed& pen_y, double line_break_width) {
  pango_layout_set_width(layout, static_cast<int>(line_break_width * PANGO_SCALE));
  const Owner<PangoLayoutIter, pango_layout_iter_free> line(pango_layout_get_iter(layout));
  do {
    // After a line break at the very end comes an empty line that is not part of the text.
    if (pango_layout_iter_get_index(line.get()) >= text_length) break;
    PangoRectangle bounds;
    pango_layout_iter_get_line_extents(line.get(), nullptr, &bounds);
    const int baseline = pango_layout_iter_get_baseline(line.get());
    const Fixed ascent = (baseline - bounds.y) * kFixedPerPangoUnit;
    const Fixed descent = bounds.height * kFixedPerPangoUnit - ascent;
    pen_x = ToFixed(draw_box.x);
    pen_y -= ascent;
    const bool page_full = ToPoints(pen_y - descent) < draw_box.y;
    if (!page_full) {
      cairo_move_to(context, ToPoints(pen_x + bounds.x * kFixedPerPangoUnit), -ToPoints(pen_y));
      pango_cairo_show_layout_line(context, pango_layout_iter_get_line_readonly(line.get()));
    }
    pen_y -= descent;
    if (page_full) break;
  } while (pango_layout_iter_next_line(line.get()));
}

}  // namespace zarvo
