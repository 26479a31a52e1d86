// SPDX-License-Identifier: Apache-2.0
// Where one pass over a job stands in the structure of its documents.
//
// A job is what a program or a spooler sends at once: nothing or PJL lines, one PostScript document
// or several, and nothing or PJL lines again. Documents hold others: figures, fonts and procedure
// sets come with a header and an end comment of their own. So neither the text "%!PS-Adobe" nor
// "%%EOF" says by itself that a document begins or ends. What decides:
//
//   kAhead    until the first line that is neither blank nor Ctrl-D nor PJL: that one begins the
//             first document, whatever it holds.
//   kInside   in a document. An end comment, a Ctrl-D on a line of its own or a universal exit may
//             end it.
//   kPending  after that. Only a header as the next line that is not blank, Ctrl-D or PJL proves
//             that a document has ended and another one begins; any other line goes on with the one
//             before. At the end of the job there is nothing left to prove.
//
// Nothing is looked ahead for: lines of kAhead and kPending are "between", and whoever copies the
// job keeps the few there are until the next line says what they were. %%Begin and %%End comments
// are matched like brackets by kind, where an end without a beginning counts for nothing, an end
// closes what was left open inside, and procedure sets that nobody closed end with the prolog.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zarvo {

/// What a line is to the job around the documents.
enum class JobLine {
  kDocument,  ///< of the document that has begun
  kFirst,     ///< the first line of a document
  kBetween,   ///< blank, Ctrl-D or PJL, with or without a universal exit, between documents
  kEnvelope,  ///< the PJL comment by which a job says that it has this printer's envelope
};

/// The length of the blanks, Ctrl-Ds and universal exits that a line begins with.
std::size_t LeadLength(std::string_view line);

/// Whether the line begins with what makes the printer leave the document's language.
bool BeginsWithExit(std::string_view line);

class DocumentShape {
 public:
  /// Whether the next line is to be taken whatever it holds.
  bool WatchesEveryLine() const { return state_ != State::kInside; }

  /// Whether a line inside a document is to be taken.
  static bool Concerns(std::string_view line);

  /// The length of the first part of a line that Take() can be given: the bytes that follow an end
  /// comment without a line end are a part of their own.
  static std::size_t PartLength(std::string_view line);

  /// Says what a line (or part) is, and remembers what it changes.
  JobLine Take(std::string_view line);

  /// Whether the line taken last belongs to the document itself, not to something embedded. The
  /// comment that ends an embedded part still belongs to that.
  bool OwnLine() const { return own_line_; }

  /// Whether the document has come to its trailer without having begun a page.
  bool EndsWithoutPage() const { return trailer_ && !has_pages_; }

 private:
  enum class State { kAhead, kInside, kPending };

  JobLine TakeOutside(std::string_view line);
  void TakeInside(std::string_view line);
  bool BeginsDocument(std::string_view header) const;
  bool HoldsDocument() const;

  State state_ = State::kAhead;
  std::string open_;  // the kinds that have begun and not ended, the innermost last
  bool own_line_ = false;
  bool figure_ = false;     // the document is an EPS file
  bool has_pages_ = false;  // it has begun its pages,
  bool trailer_ = false;    // and ended them
};

}  // namespace zarvo
