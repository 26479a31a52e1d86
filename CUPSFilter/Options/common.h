// SPDX-License-Identifier: Apache-2.0
// Page geometry of the job: set once from the PPD and the options, read everywhere.
#pragma once

#include <cups/cups.h>

#include "CUPSFilter/Options/Ppd.h"

namespace zarvo {

// All lengths are in points. The start values, a Letter page with the usual margins, hold when
// there is no PPD or no page size is marked in it.
extern float PageWidth;    // 612
extern float PageLength;   // 792
extern float PageLeft;     // 18: edges of the imageable area, from the page's lower left corner
extern float PageRight;    // 594
extern float PageBottom;   // 36
extern float PageTop;      // 756
extern int Orientation;    // 0 portrait, 1 landscape, 2 reverse portrait, 3 reverse landscape
extern int Duplex;         // 1 when a two-sided choice is marked in the PPD
extern int LanguageLevel;  // PostScript language level of the PPD, 1 without one
extern int ColorDevice;    // 1 for a colour printer, and without a PPD

/// Opens the PPD that the environment variable "PPD" names, marks its defaults and then the
/// options, and sets the page variables. With `change_size` non-zero they are turned to the job's
/// orientation. Returns the PPD, closed when there is none or it cannot be read; that is no error
/// for the job.
Ppd SetCommonOptions(int num_options, cups_option_t* options, int change_size);

/// Turns the page variables to `Orientation` (modulo 4, never negative).
void UpdatePageVars();

/// `Orientation` brought into 0 to 3.
int PageOrientation();

/// A page variable truncated toward zero to whole points; sizes no printer has are clamped to a
/// million points either way.
int WholePoints(float points);

}  // namespace zarvo
