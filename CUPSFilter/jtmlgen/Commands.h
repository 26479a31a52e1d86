// SPDX-License-Identifier: Apache-2.0
// Elements of one value.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// What WriteJtmlCommands writes; the numbers are shared with the code that fills the records.
enum JtmlCommand : int {
  kJtmlCopies = 0,
  kJtmlSheetCollate = 1,
  kJtmlSides = 2,
  kJtmlOrientation = 3,
  kJtmlOutputBin = 4,
  kJtmlDarknessValue = 5,
  kJtmlTonerSaver = 6,
  kJtmlJobOffset = 7,
  kJtmlPagesPerSubset = 8,
  kJtmlDarknessMode = 9,
  kJtmlPageRotation = 10,
  kJtmlSeparatorSheets = 11,
  kJtmlOpiInsertion = 12,
  kJtmlOpiPreScan = 13,
  kJtmlAntiAliasing = 14,
  kJtmlHalftone = 15,  ///< writes nothing; the screens have a writer of their own
  kJtmlLightness = 16,
  kJtmlContrast = 17,
  kJtmlSaturation = 18,
  kJtmlCyanRed = 19,
  kJtmlMagentaGreen = 20,
  kJtmlYellowBlue = 21,
  kJtmlTrapping = 22,
  kJtmlTrapWidthFast = 23,
  kJtmlTrapWidthSlow = 24,
  kJtmlBlackOverprint = 25,
  kJtmlRenderingImages = 26,
  kJtmlRenderingText = 27,
  kJtmlRenderingGraphics = 28,
  kJtmlPageDelivery = 29,
  kJtmlColorEffects = 30,
};
/// One element chosen by a JtmlCommand. `value` is a number or the code of a keyword.
JtmlGenError WriteJtmlCommands(const JtmlSink* sink, int enumCommand, int value);

}  // namespace zarvo
