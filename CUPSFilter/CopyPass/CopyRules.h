// SPDX-License-Identifier: Apache-2.0
// The landmarks of a PostScript job and what is written at each. This is the one place that knows
// the exact line rules; how the lines are found is CopyPass's business.
//
// There are two sets of rules. Jobs of the printers' own dialog are known to the line: every header
// and every end comment has its meaning wherever it stands, and drivers rely on each of those
// bytes. Jobs of any other program come through a PPD that asks for page hooks; there DocumentShape
// tells where documents begin and end, JobFrame writes what goes around them and PageHooks what
// goes into them. What follows from single lines (counted data, the job's name, a fax's resolution)
// is the same in both.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "CUPSFilter/CopyPass/Copies.h"
#include "CUPSFilter/CopyPass/DocumentShape.h"
#include "CUPSFilter/CopyPass/JobFrame.h"
#include "CUPSFilter/FaxCover/FaxCoverOutput.h"
#include "CUPSFilter/JobNotices.h"
#include "CUPSFilter/JobOutput.h"
#include "CUPSFilter/JobSettings.h"
#include "CUPSFilter/SpoolFile.h"
#include "CUPSFilter/Watermark/PageHooks.h"
#include "Platform/Value.h"
#include "Source/TicketNames.h"

namespace zarvo {

/// A line is tested by at most this many of its first bytes; what follows is copied unseen.
constexpr std::size_t kLongestTestedLine = 8191;

/// What a line means. A line that is no landmark is copied as it is.
enum class Landmark {
  kNone,
  kDocumentHeader,  // contains "%!PS-Adobe"
  kPjlHeader,       // the input carries the envelope already
  kBeginSetup,
  kFaxResolution,
  kJobEnd,       // "%%EOF" of a job whose envelope the filter wrote
  kEmbeddedEnd,  // "%%EOF" of an embedded EPS document
  kEndProlog,
  kPageEnd,  // "ep" or "endp"
  kPageStart,
  kCountedData,
  kFeatureLine,  // may name the job type; the hash and an exact comparison decide
  kEndSetup,
  kStray,      // a secret would be printed outside of the envelope that keeps it
  kStructure,  // of a job with page hooks: what may begin, end or divide a document
};

/// The state of one pass over one job. `settings`, `ticket` and `output` must outlive it.
class CopyRules {
 public:
  /// `notices` is told what the job does not get; null for nobody.
  CopyRules(const JobSettings& settings, const Dictionary& ticket, JobOutput& output,
            JobNotices* notices = nullptr);
  ~CopyRules();
  CopyRules(const CopyRules&) = delete;
  CopyRules& operator=(const CopyRules&) = delete;

  /// What has to be ready before the first byte goes out. False, and one log line, when the job
  /// must not go out without it.
  bool Prepare();

  /// The first rule that applies to a line. `line` holds its first bytes, terminator included, up
  /// to kLongestTestedLine. Without state of its own in the answer: asking changes nothing.
  Landmark Classify(std::string_view line) const;

  /// Writes the line and what belongs to it. Returns how many bytes of counted data follow the
  /// line; they are to be copied unseen.
  std::int64_t Apply(Landmark landmark, std::string_view line);

  /// True while any line, not only one that begins with a landmark's first byte, may have to be
  /// replaced.
  bool WatchesEveryLine() const;

  /// Whether only what NextStructure finds can be a landmark, not all that NextCandidate finds.
  bool FollowsStructure() const { return page_hooks_.has_value(); }

  /// Where the documents are in the output, which is a file: of a booklet with page hooks.
  const std::vector<DocumentRange>& documents() const { return frame_.ranges(); }

  /// Why the rest of the job must not reach the printer; empty while it may.
  const std::string& refusal() const { return refusal_; }

  /// Whether what follows the line has to be shown before it is applied,
  bool LooksAhead(std::string_view line) const;
  /// and its first bytes, which may be cut short by the end of the job.
  void ShowAhead(std::string_view line, std::string_view head);

  /// Writes what goes after the last line. To be called when the input has ended.
  void Finish();

 private:
  Landmark ClassifyLine(std::string_view line) const;
  bool WatchesForResolution() const;
  bool WatchesForStray() const;
  void TakeStray(std::string_view line);
  void Refuse();
  void TakeExit();
  void TellEarlyEnd();
  void TellDosFigure();
  void TellLostFigure(std::string_view line);
  std::int64_t CopyStructure(std::string_view line);
  std::int64_t CopyPart(std::string_view line);
  void WriteCover();
  void CopyDocumentHeader(std::string_view line);
  void CopyPjlHeader(std::string_view line);
  void ReplaceFaxResolution(std::string_view line);
  void CopyEndProlog(std::string_view line);
  void CopyPageStart(std::string_view line);
  void CopyPageEnd(std::string_view line);
  void CopyFeatureLine(std::string_view line);
  void CopyEndSetup(std::string_view line);
  void WriteImage(const WatermarkData& watermark);
  void WritePageTransform();
  bool OnThisPage(int first_page) const;

  const JobSettings& settings_;
  const Dictionary& ticket_;
  JobOutput& output_;
  JobNotices* notices_;
  std::string refusal_;

  // Of jobs with page hooks.
  std::optional<PageHooks> page_hooks_;
  DocumentShape shape_;
  JobFrame frame_;
  Copies copies_;

  bool found_eps_ = false;
  bool found_pjl_ = false;
  bool added_pjl_ = false;
  bool ended_ = false;  // the envelope's end has been written, and no other one begun
  bool early_end_told_ = false;
  bool hides_showpage_ = false;  // the spooler does, of this document
  bool begin_setup_found_ = false;
  bool fax_resolution_overridden_ = false;
  bool job_type_match_ = false;
  int job_type_ = kJobTypeNormal;
  int page_count_ = 0;  // pages ended so far

  // What is made once and written as often as the job asks for it.
  FaxCoverDocument fax_cover_;
  std::optional<Data> font_;
  bool image_written_ = false;
  std::unique_ptr<SpoolFile> image_;
};

}  // namespace zarvo
