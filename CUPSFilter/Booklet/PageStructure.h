// SPDX-License-Identifier: Apache-2.0
// Whether a document's page comments can be believed.
//
// Imposition takes a document apart at its page comments and puts it together again in another
// order. That only comes out right when each page stands for itself, ends with one showpage that is
// looked up by name, and sets no page up in ways the imposition knows nothing of. Nobody can see
// all that from outside: an n-up program wraps pages into its own, a figure's program hides
// showpage in a dictionary, a converter announces one page for a document of fifty. What can be
// seen is who wrote the document. So only what a few converters write is taken as it is, when its
// comments fit together and nobody has wrapped it since; these are the converters that nearly every
// job comes through. Everything else is written anew first.
#pragma once

#include <sys/types.h>

#include <string>

namespace zarvo {

struct PageStructure {
  bool reliable = false;
  /// What the document's set-up asks of the printer's features, as text that can be run ahead of
  /// the first page of another document: the number of copies, for one, is nothing a page shows.
  std::string features;
};

/// Reads the document that stands in the file at [begin, end). Throws std::bad_alloc.
PageStructure ReadPageStructure(const char* path, off_t begin, off_t end);

}  // namespace zarvo
