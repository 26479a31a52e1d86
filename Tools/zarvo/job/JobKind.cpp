// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/JobKind.h"

#include <algorithm>
#include <cctype>

namespace zarvo::tool {
namespace {

// How the packages of office programs begin: those of the last decades are ZIP files, those before
// are compound files.
constexpr std::string_view kZip = "PK\003\004";
constexpr std::string_view kCompound = "\320\317\021\340\241\261\032\341";
constexpr std::string_view kRichText = "{\\rtf";
constexpr std::string_view kOpenDocument = "application/vnd.oasis.opendocument";
constexpr std::string_view kEndings[] = {".odt", ".ods",  ".odp", ".odg",  ".fodt", ".doc", ".docx",
                                         ".xls", ".xlsx", ".ppt", ".pptx", ".rtf",  ".wpd", ".ott"};

bool HasOfficeEnding(std::string_view name) {
  std::string lower(name);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return std::any_of(std::begin(kEndings), std::end(kEndings),
                     [&lower](std::string_view ending) { return lower.ends_with(ending); });
}

}  // namespace

JobKind KindOfJob(std::string_view start, std::string_view name) {
  const auto contains = [start](std::string_view text) {
    return start.find(text) != std::string_view::npos;
  };
  if (start.empty()) return JobKind::kEmpty;
  if (start.starts_with("\033%-12345X") || start.starts_with("@PJL") ||
      (start.starts_with("<?xml") && contains("<!DOCTYPE jtml")))
    return JobKind::kPrinterReady;
  if (start.starts_with("%!") || start.starts_with("\004%!")) return JobKind::kPostScript;
  if (start.starts_with(kRichText) || (start.starts_with(kZip) && contains(kOpenDocument)))
    return JobKind::kOffice;
  if ((start.starts_with(kZip) || start.starts_with(kCompound)) &&
      (HasOfficeEnding(name) || contains("[Content_Types].xml")))
    return JobKind::kOffice;
  if (start.starts_with("<?xml") && contains("urn:oasis:names:tc:opendocument"))
    return JobKind::kOffice;
  // Other programs' headers may stand ahead of a PDF file.
  return contains("%PDF-") ? JobKind::kPdf : JobKind::kOther;
}

const char* KindWords(JobKind kind) {
  switch (kind) {
    case JobKind::kEmpty:
      return "empty";
    case JobKind::kPrinterReady:
      return "a job for the printer";
    case JobKind::kPostScript:
      return "a PostScript file";
    case JobKind::kPdf:
      return "a PDF file";
    case JobKind::kOffice:
      return "an office document";
    case JobKind::kOther:
      break;
  }
  return "no PostScript";
}

}  // namespace zarvo::tool
