// SPDX-License-Identifier: Apache-2.0
// The sections of the printer's job ticket. Each driver reads its keys, fills a record and calls
// one writer. A driver given `ticket` reads the whole job ticket; one given `options` reads the
// short keys of that dictionary. docs/ticket.md lists the keys and what they write.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"
#include "Platform/Value.h"

namespace zarvo {

/// The sink of all sections: DevWriteJtml.
extern const _WRITEDATA writeData;

// --- Job.cpp: what the job is called and what becomes of it ---
/// The operation attributes; nothing unless both the job name and the user name are known.
void WriteJTMLJobNameAndUser(const Dictionary& ticket);
void WriteJTMLJobNotes(const Dictionary& ticket);
/// Always written: a ticket without a job type is a normal print.
void WriteJTMLJobType(const Dictionary& ticket);
void WriteJTMLAccounting(const Dictionary& ticket);
void WriteJTMLPagesToPrint(const Dictionary& ticket);

// --- BackgroundForms.cpp ---
void WriteJTMLBackgroundForms(const Dictionary& ticket);

// --- Finishing.cpp ---
/// Slip sheets, the finishing element, then the job offset.
void WriteJTMLFinishing(const Dictionary& ticket);

// --- Commands.cpp: settings of one value ---
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

// --- ImageShift.cpp ---
/// Shifts per side and axis in the ticket format's unit.
struct ImageShift {
  std::int32_t x1 = 0, x2 = 0, y1 = 0, y2 = 0;
};
/// Reads the shifts of the job or of a page exception. A shift that leaves the 32-bit range is
/// held at its end.
ImageShift FillImageShift(const Dictionary& options);
void WriteJTMLImageShift(const Dictionary& options);

// --- Color.cpp ---
void WriteJTMLHighlightColor(const Dictionary& options);
void WriteJTMLFullColor(const Dictionary& options);

// --- SpecialPages.cpp ---
void WriteJTMLJobLevelStock(const Dictionary& ticket);
void WriteJTMLFrontCover(const Dictionary& ticket);
void WriteJTMLBackCover(const Dictionary& ticket);
void WriteJTMLInserts(const Dictionary& ticket);
void WriteJTMLExceptions(const Dictionary& ticket);

}  // namespace zarvo
