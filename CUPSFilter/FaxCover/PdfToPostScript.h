// SPDX-License-Identifier: Apache-2.0
// Turns a PDF file into a PostScript document by programs that every print server has.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>

#include "Platform/Failure.h"
#include "Platform/Process.h"
#include "Platform/ScratchFolder.h"

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

/// The room for temporary files that converting a page may take, in bytes: with a full-page picture
/// some tens of megabytes. Without that they go into memory.
inline constexpr std::uint64_t kConverterRoom = 64u << 20;

/// Converts the open PDF file `pdf` (anywhere positioned, at any offset) and writes the PostScript
/// document, from its first line that contains "%!PS-Adobe-3.0" to the first one that contains
/// "%%EOF", to `document`. The converters' temporary files go into a folder in `scratch`. When it
/// fails `document` may hold a part of it.
Failure ConvertPdfToPostScript(
    int pdf, const PdfConverters& converters, FILE* document,
    const std::string& scratch = TemporaryFolderWithRoom(kConverterRoom));

}  // namespace zarvo
