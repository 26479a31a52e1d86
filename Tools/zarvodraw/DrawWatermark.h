// SPDX-License-Identifier: Apache-2.0
// Drawing of a watermark onto a page.
#pragma once

#include <cairo.h>

#include "Source/WatermarkSupport.h"

namespace zarvo {

/// Draws a watermark into `area` (points, y downwards as cairo counts) and leaves the context as it
/// was. A record with a text has it drawn as printing does: its baseline begins at (xPos, yPos)
/// from the area's lower left corner, turned counter-clockwise by `angle` degrees about that point,
/// in the font (the installed one with that PostScript name, else the nearest), size and colour of
/// the record. `image`, unless null, is drawn in the middle of the area, one point per pixel times
/// `scale` percent. The text is drawn over the image. What lies outside the area is cut off. The
/// colour's alpha plays no part, as in printing; opacity is the caller's matter.
void DrawWatermark(cairo_t* context, const cairo_rectangle_t& area, const WatermarkData& watermark,
                   cairo_surface_t* image);

}  // namespace zarvo
