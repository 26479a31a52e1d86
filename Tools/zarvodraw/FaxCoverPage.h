// SPDX-License-Identifier: Apache-2.0
// Draws the cover sheet of a fax as a PDF page.
#pragma once

#include <cairo.h>
#include <pango/pangocairo.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "Source/FaxCover.h"

namespace zarvo {

/// A 16.16 fixed-point count of points.
using Fixed = std::int32_t;
constexpr Fixed kFixedOne = 1 << 16;

/// Draws one page onto `consumer` as a PDF document: sender, recipients and notes from the top
/// down, above them the watermark at its density, its image in `image` (null for none). What does
/// not fit on the page is left out. Returns the last status of the drawing library; the stream's
/// own errors are in its ferror().
cairo_status_t DrawFaxCover(std::FILE* consumer, const FaxCover& cover,
                            cairo_surface_t* image = nullptr);

// The pen and the draw box are in points from the sheet's lower left corner, which has to be the
// context's origin; the context itself counts downwards, as the drawing library does.

// The three block painters: the label in bold on lines of its own, when there is one, and the text
// beneath it. The pen is at the lower edge of the last line and moves down.
void DrawFaxCoverSender(cairo_t* context, const cairo_rectangle_t& draw_box, Fixed& pen_x,
                        Fixed& pen_y, const FaxCoverBlock& block);
void DrawFaxCoverRecipients(cairo_t* context, const cairo_rectangle_t& draw_box, Fixed& pen_x,
                            Fixed& pen_y, const FaxCoverBlock& block);
void DrawFaxCoverNotes(cairo_t* context, const cairo_rectangle_t& draw_box, Fixed& pen_x,
                       Fixed& pen_y, const FaxCoverBlock& block);

/// Draws the layout's text in lines as wide as `line_break_width` points at most, from the pen
/// downwards without extra leading, each line at the left edge of the draw box or, when it runs
/// from right to left, at the other end of the width. Stops at the first line whose descent would
/// pass the lower edge of the draw box. `text_length` is in bytes.
void RenderWrappingText(cairo_t* context, PangoLayout* layout, const cairo_rectangle_t& draw_box,
                        int text_length, Fixed& pen_x, Fixed& pen_y, double line_break_width);

}  // namespace zarvo
