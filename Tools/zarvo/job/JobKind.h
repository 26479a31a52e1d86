// SPDX-License-Identifier: Apache-2.0
// What kind of file somebody wants to print, from how it begins.
#pragma once

#include <string>
#include <string_view>

namespace zarvo::tool {

/// How much of a file is looked at.
constexpr std::size_t kKindBytes = 1024;

enum class JobKind {
  kEmpty,
  kPrinterReady,  ///< what the filter writes
  kPostScript,
  kPdf,
  kOffice,  ///< a document of an office program
  kOther,   ///< pictures, text and whatever else the spooler may know
};

/// `start` is the beginning of the file, `name` its name; a package of files is told by both.
JobKind KindOfJob(std::string_view start, std::string_view name);

/// "a PDF file" and so on.
const char* KindWords(JobKind kind);

}  // namespace zarvo::tool
