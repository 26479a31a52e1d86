// SPDX-License-Identifier: Apache-2.0
// Puts the fax cover sheet into the job.
//
//   ticket -> FaxCoverFromTicket (Source/) -> the helper zarvodraw draws it: a PDF file
//          -> the spooler's converters (PdfToPostScript): a PostScript document
//          -> written ahead of the job's first document, kept for any other
//
// None of this needs room on a disk: both documents are kept in memory, and so are the converters'
// temporary files where TMPDIR has no room. What fails on the way leaves the cover out, in one log
// line, and the job goes out whole; unless the queue refuses such jobs.
#pragma once

#include <cstdio>
#include <memory>

#include "CUPSFilter/FaxCover/PdfToPostScript.h"
#include "CUPSFilter/JobOutput.h"
#include "CUPSFilter/SpoolFile.h"
#include "Platform/Value.h"

namespace zarvo {

/// A job's cover sheet once it is drawn. A job may have any number of document headers, and each
/// gets the cover; drawing it takes two programs and a second.
struct FaxCoverDocument {
  /// Set by the caller, for jobs of any program: the cover is put on paper of its own size, and the
  /// printer is left as it was before. Otherwise every cover is set up for Letter, as drivers of
  /// old do, and the document has to set its paper itself.
  bool own_paper = false;
  /// Set by the caller: the job does not go out without the cover, and a failure is told so.
  bool required = false;
  bool drawn = false;  ///< or tried, or not asked for
  std::unique_ptr<SpoolFile> postscript;
  int width = 0;  ///< of its paper, whole points
  int height = 0;
};

/// Draws the cover sheet that the ticket asks for, at the first call for `kept`. False when it asks
/// for one that cannot be drawn, which one log line has told.
bool PrepareFaxCover(const Dictionary& ticket, FaxCoverDocument* kept,
                     const PdfConverters& converters = PdfConverters());

/// Writes the cover sheet that the ticket asks for as a PostScript document of its own; prepares it
/// at the first call for `kept` and writes the same bytes from then on. Writes nothing when none is
/// asked for; when drawing or conversion fails, writes nothing of the cover and, the first time,
/// one log line, so that the job goes out whole. False, with errno set, when a cover that
/// had been drawn could not be read back whole.
bool WriteFaxCover(JobOutput& output, const Dictionary& ticket, FaxCoverDocument* kept,
                   const PdfConverters& converters = PdfConverters());

}  // namespace zarvo
