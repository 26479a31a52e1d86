// SPDX-License-Identifier: Apache-2.0
// Settings of one value.
#pragma once

#include "Platform/Value.h"

namespace zarvo {

/// Always written: a ticket that doesn't say is one-sided.
void WriteJTMLDuplex(const Dictionary& ticket);
void WriteJTMLOutputDestination(const Dictionary& ticket);
void WriteJTMLLightenDarken(const Dictionary& ticket);
void WriteJTMLTonerSaver(const Dictionary& ticket);
/// The job offset, then the number of pages of a subset.
void WriteJTMLOffset(const Dictionary& ticket);
void WriteJTMLPrinterEmulation(const Dictionary& ticket);
void WriteJTMLImageRotation(const Dictionary& ticket);
/// The spelling is that of the print dialog's key.
void WriteJTMLOPISubsitution(const Dictionary& ticket);
void WriteJTMLOPIPreScan(const Dictionary& ticket);
void WriteJTMLAntiAliasing(const Dictionary& ticket);
void WriteJTMLOutputOrder(const Dictionary& ticket);
void WriteJTMLOutputColor(const Dictionary& ticket);
void WriteJTMLResolution(const Dictionary& ticket);
void WriteJTMLHalftone(const Dictionary& ticket);

}  // namespace zarvo
