// SPDX-License-Identifier: Apache-2.0
// The document around the elements.
#pragma once

#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

/// XML declaration, document type and root start tag. `dtdFileVer` 0 to 5 picks the version of
/// the document type; any other value leaves that line out.
JtmlGenError WriteJtmlHeader(const JtmlSink* sink, int dtdFileVer);
/// The operation attributes: job name and user; or, when `bJobRecipient` is 1, one recipient
/// element that holds the user name. A null text is written empty.
JtmlGenError WriteJtmlOpAttrib(const JtmlSink* sink, int bJobRecipient, const char* szJobName,
                               const char* szUserName);
JtmlGenError WriteJtmlJobAttribStart(const JtmlSink* sink);
JtmlGenError WriteJtmlJobAttribEnd(const JtmlSink* sink);
/// The root end tag, without a line feed: the job follows on the same line.
JtmlGenError WriteJtmlTrailer(const JtmlSink* sink);

}  // namespace zarvo
