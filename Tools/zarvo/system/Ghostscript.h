// SPDX-License-Identifier: Apache-2.0
// Lets Ghostscript draw.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/ScratchFolder.h"

namespace zarvo::tool {

struct Drawing {
  std::vector<std::string> inputs;  ///< PostScript or PDF files
  std::string device;               ///< "pdfwrite" or "png16m"
  std::string output;               ///< of pictures with "%d" for the page's number
  int resolution = 100;             ///< of pictures, dots per inch
  std::uint64_t first = 0;          ///< the pages wanted, counted from 1; 0 for the first
  std::uint64_t last = 0;           ///< and for the last
  /// Whether the interpreter is to end after the last page that is wanted, instead of looking for
  /// faults in what follows.
  bool stop = false;
  /// Hears, from another thread's point of view at any time, that a page has been drawn.
  std::function<void()> page = {};
};

/// Draws; the interpreter's temporary files go into the folder. It fails, with what the interpreter
/// said, when it could not draw all.
Failure Draw(const Drawing& drawing, const ScratchFolder& scratch);

/// What Ghostscript said was wrong, from all that it has said.
std::string InterpreterError(const std::string& log);

}  // namespace zarvo::tool
