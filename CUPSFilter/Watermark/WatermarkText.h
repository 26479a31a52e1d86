// SPDX-License-Identifier: Apache-2.0
// The PostScript that draws a text watermark.
#pragma once

#include <cstdio>

#include "Source/WatermarkSupport.h"

namespace zarvo {

/// Draws the text at the start of a page.
void WriteBackgroundText(FILE* output, const WatermarkData& watermark);

/// Draws the text at the end of a page, inside the save object of the page that ends. `endp` tells
/// which of the two page-end operators, and so which save object, the job uses.
void WriteForegroundText(FILE* output, const WatermarkData& watermark, bool endp);

/// What that draws, after a "gsave" whose "grestore" it ends with.
void WriteForegroundDrawing(FILE* output, const WatermarkData& watermark);

/// Defines the form OverlayForm, which paints the text through a pattern of dots.
void WriteOverlayForm(FILE* output, const WatermarkData& watermark);

/// Defines that form and redefines `showpage` to run it. In a booklet `showpage` is a procedure
/// already; there its present value is kept under another name first, because a bound redefinition
/// would call itself for ever. As even jobs that bind their showpage see the new one there, it also
/// takes away what the form leaves on the stack.
void WriteOverlayDefinitions(FILE* output, const WatermarkData& watermark, bool booklet);

/// Writes a font program of the store on lines of its own; nothing when it is empty.
void WriteWatermarkFont(FILE* output, const Data& font);

}  // namespace zarvo
