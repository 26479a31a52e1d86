// SPDX-License-Identifier: Apache-2.0
// What a PostScript document says about itself without being run: its structure comments, and what
// the filter has put into it.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zarvo::tool {

constexpr std::size_t kMaxPageSizes = 100;
constexpr std::size_t kMaxMarks = 10;

/// A watermark that the filter has put into a document.
struct MarkFacts {
  enum class Place : std::uint8_t { kUnknown, kBehind, kSeeThrough, kOver };
  Place place;
  bool image = false;
  std::string text;  ///< of a text, as PostScript spells it

  bool operator==(const MarkFacts&) const = default;
};

struct PostScriptFacts {
  std::uint64_t bytes = 0;
  std::uint64_t pages = 0;           ///< page comments outside embedded documents
  std::uint64_t announced = 0;       ///< the pages that "%%Pages:" tells ahead; 0 when it does not
  int documents = 0;                 ///< document headers, embedded ones aside
  bool ended = false;                ///< the last document has its "%%EOF"
  bool booklet = false;              ///< imposed; `pages` then counts sheet sides
  bool booklet_reversed = false;     ///< the sheets of the booklet are turned by 180 degrees
  bool two_sided = false;            ///< as the document itself sets the printer
  int copies = 0;                    ///< that it asks the printer for; 0 when it does not
  std::string title;                 ///< "%%Title:" of the first document
  std::string owner;                 ///< "%%For:" of the first document
  std::vector<MarkFacts> marks;      ///< in order of appearance, each once, at most kMaxMarks
  bool marks_on_first_page = false;  ///< only there, as far as the page hooks tell
  bool negative = false;
  bool mirrored = false;
  /// Where in the PostScript the page hooks are about to be installed, in bytes; 0 without hooks.
  std::uint64_t hooks_at = 0;
  std::map<std::pair<int, int>, std::uint64_t> page_sizes;  ///< points; how often each is set

  /// Whether a mark lies behind what the pages draw, so that they may hide it.
  bool HasMarkBehind() const;
};

/// Each watermark of a document with its place, in words.
std::vector<std::string> MarkWords(const PostScriptFacts& facts);

/// Reads the lines of one document in their order and fills its facts.
class DocumentReader {
 public:
  explicit DocumentReader(PostScriptFacts* facts) : facts_(facts) {}

  /// A line with its end; a byte of zero stands after it. `offset` is where it begins in the
  /// document.
  void Line(std::string_view line, std::uint64_t offset);

 private:
  void Comment(std::string_view line);
  void Hooks(std::string_view line, std::uint64_t offset);
  void MarkInPage(std::string_view line);
  void PageSize(std::string_view line);
  void Setting(std::string_view line);
  void SetCopies(std::uint64_t copies);
  void Add(MarkFacts mark);

  PostScriptFacts* facts_;
  int depth_ = 0;           // of embedded documents
  bool in_header_ = false;  // of the first document
  enum class HookPart : std::uint8_t { kNone, kBack, kFront } hook_part_ = HookPart::kNone;
  bool hooks_ = false;
  bool image_ = false;  // the hooks have been given an image
  // The kinds of the last lines: c colour, p position, a angle, f font; what a text mark consists
  // of, in an order that tells where it lies.
  std::array<char, 4> kinds_{};
};

}  // namespace zarvo::tool
