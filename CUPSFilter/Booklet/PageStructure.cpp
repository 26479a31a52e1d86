// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Booklet/PageStructure.h"

#include <cstdlib>
#include <string_view>

#include "CUPSFilter/Booklet/CommentReader.h"
#include "CUPSFilter/CopyPass/DocumentShape.h"
#include "Platform/Text.h"

namespace zarvo {
namespace {

/// What says that one of the known converters wrote a document, and where. Poppler has told its
/// name in either place.
constexpr std::string_view kCreator = "%%Creator:";
constexpr std::string_view kKnownCreators[] = {"(ps2write)", " cairo ", " poppler pdftops version"};
constexpr std::string_view kKnownHeader = "%Produced by poppler pdftops version";

/// The traces of those who wrap pages: an n-up program's, and the spooler's own.
constexpr std::string_view kWrappers[] = {"PStoPS", "ESPsave", "ESPshowpage", "CUPSsetpagedevice"};

/// The comments around code for a printer's features.
struct FeatureComments {
  std::string_view begin, end;
};
constexpr FeatureComments kFeatures[] = {
    {"%%BeginFeature:", "%%EndFeature"},
    {"%%BeginNonPPDFeature:", "%%EndNonPPDFeature"},
    {"%RBIBeginNonPPDFeature:", "%RBIEndNonPPDFeature"},
};
constexpr std::size_t kMostFeatures = 64 * 1024;

class StructureScan {
 public:
  explicit StructureScan(CommentReader* reader) : reader_(reader) {}

  PageStructure Run(off_t end) {
    // With what is known at the first page, most other documents need no further look.
    while (reader_->Tell() < end && (pages_ == 0 || (known_ && !wrapped_ && !broken_))) {
      if (!in_setup_ && !in_prolog_head_ && !feature_) reader_->SkipToComment();
      if (reader_->Tell() >= end || !reader_->ReadLine(line_)) break;
      const bool begins_line = reader_->LineIsWhole();
      Take({line_, reader_->LineLength()}, begins_line);
    }
    PageStructure found;
    found.reliable = known_ && !wrapped_ && !broken_ && documents_ == 1 && prolog_ && pages_ > 0 &&
                     setups_begun_ == pages_ && setups_ended_ == pages_ &&
                     (announced_ < 0 || announced_ == pages_);
    found.features = std::move(features_);
    return found;
  }

 private:
  void Take(std::string_view line, bool begins_line) {
    for (const std::string_view wrapper : kWrappers) wrapped_ = wrapped_ || Contains(line, wrapper);
    if (!begins_line) return;
    const bool concerns = shape_.WatchesEveryLine() || DocumentShape::Concerns(line);
    if (concerns && shape_.Take(line) == JobLine::kFirst) ++documents_;
    if (!line.starts_with('%') && !feature_) return;
    // Figures are embedded by those who write pages of their own; converters draw them.
    if (line.starts_with("%%BeginDocument") || line.starts_with("%%BeginFile")) wrapped_ = true;
    if (concerns && !shape_.OwnLine()) return;
    TakeFeature(line);
    TakeComment(line);
  }

  void TakeFeature(std::string_view line) {
    if (pages_ > 0 || features_.size() > kMostFeatures) return;
    for (const FeatureComments& comments : kFeatures) {
      if (feature_ == nullptr && line.starts_with(comments.begin)) {
        feature_ = &comments;
        features_ += "[{\n";
      }
    }
    if (feature_ == nullptr) return;
    features_ += line;
    if (!line.starts_with(feature_->end)) return;
    features_ += "} stopped cleartomark\n";
    feature_ = nullptr;
  }

  void TakeComment(std::string_view line) {
    const auto is = [line](std::string_view text) { return line.starts_with(text); };
    if (pages_ == 0 && !prolog_) {
      known_ = known_ || is(kKnownHeader);
      for (const std::string_view creator : kKnownCreators)
        known_ = known_ || (is(kCreator) && Contains(line, creator));
    }
    if (is("%%Pages:")) {
      const std::string number(line.substr(8));
      char* after = nullptr;
      const long value = std::strtol(number.c_str(), &after, 10);
      if (after != number.c_str()) announced_ = value;
    }
    if (is("%%BeginProlog")) {
      broken_ = broken_ || prolog_ || pages_ > 0;
      prolog_ = true;
    }
    // There the spooler hides showpage, without a comment, before what others have defined.
    in_prolog_head_ = is("%%BeginProlog") || (in_prolog_head_ && !is("%%"));
    if (is("%%BeginSetup")) in_setup_ = true;
    if (is("%%EndSetup")) in_setup_ = false;
    if (is("%%Page:")) {
      broken_ = broken_ || in_setup_ || setups_ended_ != pages_ || setups_begun_ != pages_;
      ++pages_;
    }
    if (is("%%BeginPageSetup")) {
      broken_ = broken_ || in_setup_ || ++setups_begun_ != pages_;
      in_setup_ = true;
    }
    if (is("%%EndPageSetup")) {
      // The spooler writes a set-up of its own ahead of a page's, and leaves that one's end behind.
      setups_ended_ = setups_begun_;
      in_setup_ = false;
    }
  }

  CommentReader* reader_;
  char line_[CommentReader::kLineSize];
  DocumentShape shape_;
  int documents_ = 0;
  bool known_ = false;
  bool wrapped_ = false;
  bool broken_ = false;
  bool prolog_ = false;
  // Where every line is read: in the document's or a page's set-up, and
  bool in_setup_ = false;
  bool in_prolog_head_ = false;  // from the prolog's beginning to its next comment
  long announced_ = -1;
  long pages_ = 0;
  long setups_begun_ = 0;
  long setups_ended_ = 0;
  const FeatureComments* feature_ = nullptr;  // that has begun
  std::string features_;
};

}  // namespace

PageStructure ReadPageStructure(const char* path, off_t begin, off_t end) {
  CommentReader reader(path, begin);
  return reader.IsOpen() ? StructureScan(&reader).Run(end) : PageStructure();
}

}  // namespace zarvo
