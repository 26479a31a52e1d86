// SPDX-License-Identifier: Apache-2.0
// The PJL envelope of a job.
//
//   ESC%-12345X@PJL JOB                                 WriteEnvelopeStart
//   @PJL COMMENT ZRVbegin
//   @PJL COMMENT OID_ATT_ACCOUNTING_INFORMATION_AVP     WriteAccounting      AccountingComments
//   @PJL COMMENT OID_ATT_JOB_TYPE, _JOB_PASSWORD,
//     _SAVE_*, _JOB_PRINT_AFTER                         WriteJobType         JobTypeComments
//   @PJL COMMENT OID_ATT_FAX_*, _CREDIT_CARD,
//     _JOB_FAX_AFTER                                    (job type fax)       FaxComments
//   @PJL COMMENT OID_ATT_FIRST(LAST)_PAGE_MEDIA_SIZE    WriteCovers          CoverComments
//   @PJL COMMENT OID_ATT_INTERLEAVE                     WriteSeparators
//   @PJL COMMENT OID_ATT_START_SHEET                    WriteBannerPage      BannerComments
//   @PJL SET JOBOFFSET                                  WriteRequestOffset
//   @PJL COMMENT ZRVend
//   @PJL SET ...                                        what the job has brought
//   @PJL ENTER LANGUAGE = POSTSCRIPT
//   %!PS-Adobe-3.0 ...                                  the document, behind the XML ticket (JTML/)
//   ESC%-12345X@PJL EOJ                                 WriteEnvelopeEnd
//
// Every writer takes the output stream and the whole ticket and writes whole lines. A missing key
// is no error: its line is left out. A job that brings an envelope of its own keeps it; then only
// the lines that it cannot know are put behind its begin comment. Ticket text passes PjlText, which
// lets no text end its line.
#pragma once

#include <cstdio>
#include <string_view>

#include "Platform/Value.h"

namespace zarvo {

/// What ends whatever the printer was reading.
constexpr std::string_view kUniversalExit = "\x1b%-12345X";

/// The envelope's head, up to the switch to PostScript. `settings` are whole PJL lines that a job
/// has brought without an envelope of ours.
void WriteEnvelopeStart(FILE* output, const Dictionary& ticket, std::string_view settings = {});
void WriteEnvelopeEnd(FILE* output);

/// The lines for an envelope that the job has brought. Returns the job type, a JobTypeCode or
/// whatever number the ticket has.
int WriteOwnComments(FILE* output, const Dictionary& ticket);

}  // namespace zarvo
