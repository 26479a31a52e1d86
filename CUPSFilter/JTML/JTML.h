// SPDX-License-Identifier: Apache-2.0
// Turns the decoded job ticket into the printer's XML job ticket (JTML), which goes ahead of the
// PostScript and applies to the whole job.
//
//   ticket ---> JTML.cpp            which sections are written, and in which order
//                 |
//                 v
//               ...Section.cpp      a section: reads its keys, maps their codes, fills a record
//                 |                 (TicketReading: numbers, XML-safe texts, code tables)
//                 v
//               jtmlgen/...         a writer: the element and its words, in the printer's format
//                 |
//                 v
//               writeData           the sink, here always the job's stream
//
// A new setting takes a key in Source/TicketNames.h, a line in a section, a row or function in its
// writer and, when it is a function of its own, its declaration in the section's header and a row
// in the table of JTML.cpp. A section given `ticket` reads the whole job ticket; one given
// `options` reads the short keys of that dictionary. docs/ticket.md lists the keys and what they
// write.
#pragma once

#include <cstdio>

#include "CUPSFilter/jtmlgen/Jtmlgen.h"
#include "Platform/Value.h"

namespace zarvo {

/// The sink of all sections: DevWriteJtml.
extern const JtmlSink writeData;

/// Writes the sections that the ticket's "JTMLOptions" ask for to `ofp`, ahead of the job; nothing
/// when that dictionary is missing. A missing or wrongly typed key leaves its section out or takes
/// the section's default; output errors show on the stream. `ofp` is not owned.
void WriteJTML(std::FILE* ofp, const Dictionary& ticket);

}  // namespace zarvo
