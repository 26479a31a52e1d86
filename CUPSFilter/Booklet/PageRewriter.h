// SPDX-License-Identifier: Apache-2.0
// Writes a PostScript document anew, as pages that stand each for itself.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>

#include "Platform/Failure.h"
#include "Platform/Process.h"

namespace zarvo {

struct PageRewriter {
  /// Every print server has it: the spooler's own converters need it.
  std::string ghostscript = "/usr/bin/gs";
  /// It is killed after this time. The environment may name another one.
  std::chrono::milliseconds limit = ProcessTimeLimit(std::chrono::minutes(10));
  /// The page, in whole points, of a document that sets none.
  int width = 612;
  int height = 792;
};

/// Runs the document that the open file `document` holds from its present place to its end, and
/// writes its pages, of which there must be one at least, as a document of their own to `output`.
/// When it fails `output` may hold a part of it.
Failure RewritePages(int document, const PageRewriter& rewriter, FILE* output);

}  // namespace zarvo
