// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/DocumentShape.h"

#include "CUPSFilter/CopyPass/CopyRules.h"
#include "Platform/Text.h"

namespace zarvo {
namespace {

constexpr std::string_view kExit = "\x1b%-12345X";
constexpr std::string_view kEnd = "%%EOF";

/// What can be embedded; the letter is the kind. Documents and files may have pages and parts of
/// their own, the others not.
struct Embedded {
  std::string_view name;
  char kind;
};
constexpr char kDocument = 'd';
constexpr char kFile = 'f';
constexpr char kData = 'b';
constexpr Embedded kEmbedded[] = {
    {"Document", kDocument}, {"File", kFile}, {"Resource", 'r'}, {"Font", 'o'},
    {"ProcSet", 'p'},        {"Data", kData}, {"Binary", kData},
};

/// Nobody embeds as deeply; a hostile job may.
constexpr std::size_t kDeepest = 64;

/// The kind that a comment after "%%Begin" or "%%End" names, or 0.
char KindOf(std::string_view name) {
  for (const Embedded& row : kEmbedded)
    if (name.starts_with(row.name)) return row.kind;
  return 0;
}

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r') || c == '\0'; }

/// Whether the comment stands between the parts of a document, where no procedure set is open.
bool EndsPart(std::string_view line) {
  return line.starts_with("%%Page:") || line.starts_with("%%Trailer") ||
         line.starts_with("%%EndProlog") || line.starts_with("%%EndSetup");
}

/// Counted data is copied unseen; any other data ends with its comment.
bool IsCounted(std::string_view line) {
  return line.starts_with("%%BeginBinary") ||
         (!Contains(line, "ASCII") && !Contains(line, "Hex") && !Contains(line, "Lines"));
}

}  // namespace

std::size_t LeadLength(std::string_view line) {
  std::size_t at = 0;
  while (at < line.size()) {
    if (IsBlank(line[at]) || line[at] == '\x04')
      ++at;
    else if (line.substr(at).starts_with(kExit))
      at += kExit.size();
    else
      break;
  }
  return at;
}

bool BeginsWithExit(std::string_view line) { return line.starts_with(kExit); }

bool DocumentShape::Concerns(std::string_view line) {
  if (!line.starts_with("%%")) return line.starts_with(kExit) || line.starts_with('\x04');
  return line.starts_with(kEnd) || EndsPart(line) || line.starts_with("%%Pages:") ||
         line.starts_with("%%BeginProlog") ||
         (line.starts_with("%%Begin") && KindOf(line.substr(7)) != 0) ||
         (line.starts_with("%%End") && KindOf(line.substr(5)) != 0);
}

std::size_t DocumentShape::PartLength(std::string_view line) {
  if (!line.starts_with(kEnd)) return line.size();
  const std::size_t outside = line.find_first_of("\x1b\x04");
  return outside == line.npos ? line.size() : outside;
}

JobLine DocumentShape::Take(std::string_view line) {
  if (state_ == State::kInside && LeadLength(line) > 0 && Concerns(line)) {
    // A Ctrl-D in the midst of data is a byte like any other, and spoolers embed whole jobs.
    const std::string_view rest = line.substr(LeadLength(line));
    const bool data = (!rest.empty() && !rest.starts_with("%!")) || HoldsDocument();
    if (line[0] == '\x04' && data) return JobLine::kDocument;
    state_ = State::kPending;
  }
  own_line_ = open_.empty();
  if (state_ != State::kInside) {
    const JobLine kind = TakeOutside(line);
    if (kind != JobLine::kDocument) return kind;
  }
  TakeInside(line);
  return JobLine::kDocument;
}

JobLine DocumentShape::TakeOutside(std::string_view line) {
  const std::string_view text = line.substr(LeadLength(line));
  // What is too long to be seen whole cannot be kept either.
  const bool whole = line.size() < kLongestTestedLine;
  if (whole && text.empty()) return JobLine::kBetween;
  if (text.starts_with("@PJL COMMENT ZRVbegin")) return JobLine::kEnvelope;
  if (whole && text.starts_with("@PJL")) return JobLine::kBetween;
  const bool begins = state_ == State::kAhead || BeginsDocument(text);
  state_ = State::kInside;
  if (!begins) return JobLine::kDocument;
  open_.clear();
  own_line_ = true;
  figure_ = Contains(text, "EPSF");
  has_pages_ = trailer_ = false;
  return JobLine::kFirst;
}

/// Whether a header after an end comment begins another document. Figures may follow each other
/// inside a page, with comments around them or without.
bool DocumentShape::BeginsDocument(std::string_view header) const {
  if (!header.starts_with("%!")) return false;
  if (!Contains(header, "EPSF")) return true;
  const bool in_page = has_pages_ && !trailer_;
  return !HoldsDocument() && (figure_ || !in_page);
}

bool DocumentShape::HoldsDocument() const {
  return open_.find(kDocument) != open_.npos || open_.find(kFile) != open_.npos;
}

void DocumentShape::TakeInside(std::string_view line) {
  if (line.starts_with(kEnd)) {
    state_ = State::kPending;
  } else if (line.starts_with("%%Begin")) {
    const char kind = KindOf(line.substr(7));
    if (kind != 0 && open_.size() < kDeepest && !(kind == kData && IsCounted(line))) open_ += kind;
  } else if (EndsPart(line)) {
    if (HoldsDocument()) return;
    open_.clear();
    own_line_ = true;
    has_pages_ = has_pages_ || line.starts_with("%%Page:");
    trailer_ = trailer_ || line.starts_with("%%Trailer");
  } else if (line.starts_with("%%End")) {
    const std::size_t opened = open_.rfind(KindOf(line.substr(5)));
    if (opened != open_.npos) open_.resize(opened);
  }
}

}  // namespace zarvo
