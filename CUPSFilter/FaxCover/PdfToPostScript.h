// SPDX-License-Identifier: Apache-2.0
// Turns a PDF file into a PostScript document by programs that every print server has.
#pragma once

#include <chrono>
#include <cstdio>
#include <string>

#include "Platform/Failure.h"
#include "Platform/Process.h"

namespace zarvo {

/// Where the converters are and how long they may take.
struct PdfConverters {
  /// The folder of the spooler's filters "pdftops" and "pstops". The environment's
  /// ZARVO_FILTER_DIR names another one.
  std::string filter_folder = DefaultFilterFolder();
  /// The paper that the filters are told. The page keeps its size, but with a PPD its set-up asks
  /// the printer for this one.
  std::string media = "Letter";
  /// Used alone when one of the filters is missing.
  std::string poppler = "/usr/bin/pdftops";
  /// Both together are killed after this time. The environment may name another one.
  std::chrono::milliseconds limit = ProcessTimeLimit(std::chrono::seconds(20));

  static std::string DefaultFilterFolder();
};

/// Converts the open PDF file `pdf` (anywhere positioned, at any offset) and writes the PostScript
/// document, from its first line that contains "%!PS-Adobe-3.0" to the first one that contains
/// "%%EOF", to `document`. When it fails `document` may hold a
/// part of it.
Failure ConvertPdfToPostScript(int pdf, const PdfConverters& converters, FILE* document);

}  // namespace zarvo
