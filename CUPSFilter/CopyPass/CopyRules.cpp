// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/CopyRules.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <utility>

#include "CUPSFilter/CopyPass/StringHash.h"
#include "CUPSFilter/Header/Envelope.h"
#include "CUPSFilter/Header/PjlText.h"
#include "CUPSFilter/Options/common.h"
#include "CUPSFilter/Watermark/WatermarkText.h"
#include "CUPSFilter/Watermark/outputPICT.h"
#include "Platform/Log.h"
#include "Platform/Phrase.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr std::string_view beginZarvoProofPrint = "%%BeginFeature: *ZRVJobType ProofPrint";
constexpr std::string_view beginZarvoSavedPrint = "%%BeginFeature: *ZRVJobType SavedPrint";
constexpr std::string_view beginZarvoSecurePrint = "%%BeginFeature: *ZRVJobType SecurePrint";
constexpr std::array kFeatureLines = {beginZarvoProofPrint, beginZarvoSavedPrint,
                                      beginZarvoSecurePrint};
constexpr std::size_t kShortestFeatureLine = std::min(
    {beginZarvoProofPrint.size(), beginZarvoSavedPrint.size(), beginZarvoSecurePrint.size()});

/// The spooler takes showpage from figures and gives a page it finds its own. Of a figure without
/// page comments it finds none, and says so at the end.
constexpr std::string_view kProlog = "%%BeginProlog";
constexpr std::string_view kHidesShowpage = "userdict/ESPshowpage/showpage load put";
constexpr std::string_view kNoPages = "%%Pages: 0";

/// What a figure begins with that has a preview for DOS in front of its program or behind, and how
/// the spooler embeds what it does not understand.
constexpr std::string_view kDosFigure = "\xC5\xD0\xD3\xC6";
constexpr std::string_view kNotUnderstood = "%%BeginDocument: nondsc";

bool BeginsCountedData(std::string_view line) {
  return line.starts_with("%%BeginBinary:") ||
         (line.starts_with("%%BeginData:") && !Contains(line, "ASCII") && !Contains(line, "Hex"));
}

/// The byte count of a counted-data line; one that is missing or negative counts as 0.
std::int64_t CountedBytes(std::string_view line) {
  const std::string number(line.substr(line.find(':') + 1));
  return std::max<std::int64_t>(0, std::strtoll(number.c_str(), nullptr, 10));
}

/// Whether a line would be printed, or begin a figure: neither blank nor PJL nor a document's
/// header.
bool IsStray(std::string_view line) {
  line.remove_prefix(LeadLength(line));
  while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
  if (Contains(line, "%!PS-Adobe")) return Contains(line, "EPS");
  return !line.empty() && !line.starts_with("@PJL");
}

/// Whether a line is exactly a feature line and a one-byte terminator.
bool NamesJobType(std::string_view line) {
  const std::string_view text = line.substr(0, line.size() - 1);
  const unsigned char hash = GetHashForString(text.data(), static_cast<int>(text.size()));
  return std::any_of(kFeatureLines.begin(), kFeatureLines.end(), [&](std::string_view feature) {
    return text.size() == feature.size() &&
           hash == GetHashForString(feature.data(), static_cast<int>(feature.size())) &&
           text == feature;
  });
}

}  // namespace

CopyRules::CopyRules(const JobSettings& settings, const Dictionary& ticket, JobOutput& output,
                     JobNotices* notices)
    : settings_(settings),
      ticket_(ticket),
      output_(output),
      notices_(notices),
      frame_(ticket, output, settings.booklet),
      copies_(settings.copies, output) {
  if (settings.pageHooks) page_hooks_.emplace(settings, output, notices);
  fax_cover_.own_paper = settings.pageHooks;
  fax_cover_.required = settings.failClosed && settings.keepsSecret;
  // Without memory for the table the job goes out, only without name and password.
  if (settings.zarvoJobPassword) job_type_match_ = InitializeHashTables() != 0;
}

CopyRules::~CopyRules() { DiscardHashTables(); }

bool CopyRules::Prepare() {
  // A fax cannot be taken back, and may lie before the wrong person where no cover names the right.
  return !fax_cover_.required || PrepareFaxCover(ticket_, &fax_cover_);
}

Landmark CopyRules::Classify(std::string_view line) const {
  if (!page_hooks_) return ClassifyLine(line);
  const bool wanted = shape_.WatchesEveryLine() || DocumentShape::Concerns(line) ||
                      page_hooks_->WatchesEveryLine() || page_hooks_->TellsOrientation(line);
  return wanted ? Landmark::kStructure : ClassifyLine(line);
}

Landmark CopyRules::ClassifyLine(std::string_view line) const {
  const auto starts = [line](std::string_view text) { return line.starts_with(text); };
  if (!page_hooks_) {
    if (WatchesForStray()) {
      const bool inside = added_pjl_ && !ended_;
      if (inside ? BeginsWithExit(line) : IsStray(line)) return Landmark::kStray;
    }
    if (Contains(line, "%!PS-Adobe")) return Landmark::kDocumentHeader;
    if (starts("@PJL COMMENT ZRVbegin")) return Landmark::kPjlHeader;
  }
  if (!begin_setup_found_ && starts("%%BeginSetup")) return Landmark::kBeginSetup;
  if (WatchesForResolution() && Contains(line, "/HWResolution")) return Landmark::kFaxResolution;
  if (!page_hooks_) {
    if (added_pjl_ && !found_eps_ && starts("%%EOF")) return Landmark::kJobEnd;
    if (found_eps_ && starts("%%EOF")) return Landmark::kEmbeddedEnd;
    if (settings_.watermark && starts("%%EndProlog")) return Landmark::kEndProlog;
    if (starts("ep\n") || starts("endp\n")) return Landmark::kPageEnd;
    if (starts("%%BeginPageSetup")) return Landmark::kPageStart;
  }
  if (BeginsCountedData(line)) return Landmark::kCountedData;
  if (job_type_match_ && line.size() >= kShortestFeatureLine) return Landmark::kFeatureLine;
  if (settings_.watermark && !page_hooks_ && starts("%%EndSetup")) return Landmark::kEndSetup;
  return Landmark::kNone;
}

std::int64_t CopyRules::Apply(Landmark landmark, std::string_view line) {
  switch (landmark) {
    case Landmark::kStructure:
      return CopyStructure(line);
    case Landmark::kDocumentHeader:
      CopyDocumentHeader(line);
      return 0;
    case Landmark::kPjlHeader:
      CopyPjlHeader(line);
      return 0;
    case Landmark::kBeginSetup:
      begin_setup_found_ = true;
      break;
    case Landmark::kFaxResolution:
      ReplaceFaxResolution(line);
      return 0;
    case Landmark::kStray:
      TakeStray(line);
      return 0;
    case Landmark::kJobEnd:
      ended_ = true;
      output_.Write(line);
      WriteEnvelopeEnd(output_.stream());
      return 0;
    case Landmark::kEmbeddedEnd:
      found_eps_ = false;
      break;
    case Landmark::kEndProlog:
      CopyEndProlog(line);
      return 0;
    case Landmark::kPageEnd:
      CopyPageEnd(line);
      return 0;
    case Landmark::kPageStart:
      CopyPageStart(line);
      return 0;
    case Landmark::kCountedData:
      output_.Write(line);
      return CountedBytes(line);
    case Landmark::kFeatureLine:
      CopyFeatureLine(line);
      return 0;
    case Landmark::kEndSetup:
      CopyEndSetup(line);
      return 0;
    case Landmark::kNone:
      break;
  }
  output_.Write(line);
  return 0;
}

bool CopyRules::LooksAhead(std::string_view line) const {
  if (!page_hooks_) return false;
  return page_hooks_->LooksAhead(line) || line.starts_with(kProlog) ||
         line.starts_with(kNotUnderstood);
}

void CopyRules::ShowAhead(std::string_view line, std::string_view head) {
  if (line.starts_with(kProlog)) {
    hides_showpage_ = hides_showpage_ || head.starts_with(kHidesShowpage);
  } else if (line.starts_with(kNotUnderstood)) {
    if (head.starts_with(kDosFigure)) TellDosFigure();
  } else {
    page_hooks_->ShowAhead(head);
  }
}

void CopyRules::TellLostFigure(std::string_view line) {
  if (!hides_showpage_ || !shape_.OwnLine() || !shape_.EndsWithoutPage()) return;
  if (!line.starts_with(kNoPages) || notices_ == nullptr) return;
  notices_->Add(
      Phrase("the figure has no page comments, so the spooler has found no page in it and nothing "
             "comes out; \"ps2pdf -dEPSCrop\" makes a PDF of it that can be printed"));
}

void CopyRules::TellDosFigure() {
  if (notices_ == nullptr) return;
  notices_->Add(
      Phrase("the figure has a preview for DOS around it, which printers do not understand, so "
             "nothing may come out; \"ps2pdf -dEPSCrop\" makes a PDF of it that can be printed"));
}

/// Copies a line with all its parts. Only the last one can be followed by counted data.
std::int64_t CopyRules::CopyStructure(std::string_view line) {
  std::int64_t counted = 0;
  while (!line.empty()) {
    const std::size_t length = DocumentShape::PartLength(line);
    counted = CopyPart(line.substr(0, length));
    line.remove_prefix(length);
  }
  return counted;
}

std::int64_t CopyRules::CopyPart(std::string_view line) {
  switch (shape_.Take(line)) {
    case JobLine::kBetween:
      frame_.Keep(line);
      return 0;
    case JobLine::kEnvelope:
      job_type_ = frame_.CopyEnvelope(line);
      return 0;
    case JobLine::kFirst:
      line = frame_.BeginDocument(line);
      if (frame_.documents() == 1) WriteCover();
      frame_.NoteBegin();
      page_hooks_->BeginDocument();
      copies_.BeginDocument();
      hides_showpage_ = false;
      if (line.starts_with(kDosFigure)) TellDosFigure();
      break;
    case JobLine::kDocument:
      if (frame_.GoOn()) TakeExit();
      break;
  }
  TellLostFigure(line);
  if (shape_.OwnLine()) copies_.BeforeLine(line);
  page_hooks_->BeforeLine(line, shape_.OwnLine());
  const std::int64_t counted = Apply(ClassifyLine(line), line);
  page_hooks_->AfterLine(line, shape_.OwnLine());
  return counted;
}

void CopyRules::Finish() {
  if (!page_hooks_) return;
  frame_.End();
  copies_.Finish();
  if (copies_.ChoseNone() && notices_ != nullptr)
    notices_->Add(
        Phrase("page-ranges, page-set: the document has none of these pages, nothing comes out"));
  page_hooks_->Finish();
}

bool CopyRules::WatchesForResolution() const {
  return begin_setup_found_ && job_type_ == kJobTypeFax && !fax_resolution_overridden_;
}

/// Jobs with page hooks have their envelope around whatever they hold.
bool CopyRules::WatchesForStray() const {
  if (page_hooks_ || !settings_.failClosed || early_end_told_) return false;
  return ended_ || (settings_.keepsSecret && !found_pjl_);
}

void CopyRules::TakeStray(std::string_view line) {
  if (!ended_ && added_pjl_) ended_ = true;  // what follows is outside, and may be nothing
  if (settings_.keepsSecret && IsStray(line)) {
    Refuse();
    return;
  }
  if (!settings_.keepsSecret) TellEarlyEnd();
  output_.Write(line);
}

void CopyRules::Refuse() {
  refusal_ = ended_
                 ? Phrase(
                       "the job was cut short: the document goes on behind its end or an exit from "
                       "its language, where its PIN or fax number does not hold any more; print "
                       "it by another program")
                 : kRefusal + Phrase(
                                  "the document does not begin with %!PS-Adobe, so its PIN or fax "
                                  "number would not hold; print it by another program");
  output_.Fail(ECANCELED);
}

void CopyRules::TakeExit() {
  if (settings_.failClosed && settings_.keepsSecret) {
    ended_ = true;
    Refuse();
  } else {
    TellEarlyEnd();
  }
}

void CopyRules::TellEarlyEnd() {
  if (std::exchange(early_end_told_, true) || notices_ == nullptr) return;
  notices_->Add(
      Phrase("the document ends the printer's job before its own end; what follows may be missing "
             "on paper; print it by another program"));
}

bool CopyRules::WatchesEveryLine() const {
  return WatchesForResolution() || WatchesForStray() ||
         (page_hooks_ && (shape_.WatchesEveryLine() || page_hooks_->WatchesEveryLine()));
}

void CopyRules::WriteCover() {
  if (!WriteFaxCover(output_, ticket_, &fax_cover_)) output_.Fail(errno);
}

void CopyRules::CopyDocumentHeader(std::string_view line) {
  if (Contains(line, "EPS")) {
    found_eps_ = true;
  } else {
    if (!found_pjl_) {
      added_pjl_ = true;
      ended_ = false;
      output_.WriteLong([this](FILE* stream) { WriteEnvelopeStart(stream, ticket_); });
    }
    WriteCover();
  }
  output_.Write(line);
}

void CopyRules::CopyPjlHeader(std::string_view line) {
  LogLine("DEBUG: found PJL header");
  found_pjl_ = true;
  output_.Write(line);
  // Banner, offset, end comment and language switch come with the input's own header.
  job_type_ = WriteOwnComments(output_.stream(), ticket_);
}

void CopyRules::ReplaceFaxResolution(std::string_view line) {
  const Dictionary* fax = DictionaryGetDictionary(ticket_, key::kFaxOptions);
  if (fax == nullptr) return;  // the line is left out, and so are all later ones like it

  std::int32_t resolution = 0;
  if (!CFDictionaryGetNumber(*fax, kFaxNewJobResolutionProperty, &resolution)) {
    std::int32_t fax_resolution = 0;
    CFDictionaryGetNumber(*fax, kFaxResolutionProperty, &fax_resolution);
    if (fax_resolution == kFaxStandard || fax_resolution == kFaxFine) resolution = kNewJob200Dpi;
    if (fax_resolution == kFaxSuperfine) resolution = kNewJob600Dpi;
  }
  if (resolution == kNewJob600Dpi || resolution == kNewJob200Dpi) {
    const int dpi = resolution == kNewJob600Dpi ? 600 : 200;
    std::fprintf(
        output_.stream(),
        "(<<) cvx exec /DeviceRenderingInfo (<<) cvx exec /Type 4 /ValuesPerColorComponent "
        "2(>>) cvx exec /HWResolution [%d %d] (>>) cvx exec setpagedevice\n",
        dpi, dpi);
  } else {
    output_.Write(line);
  }
  fax_resolution_overridden_ = true;
}

void CopyRules::CopyEndProlog(std::string_view line) {
  const WatermarkChoice& watermark = *settings_.watermark;
  output_.Write(WatermarkProlog);
  output_.Write(line);
  if (watermark.watermark_option == kWatermarkOverlay && watermark.IsText())
    WriteOverlayDefinitions(output_.stream(), watermark.watermarkData, settings_.booklet);
}

void CopyRules::WritePageTransform() {
  // The axis that mirrors left and right on the sheet depends on how the page lies on it.
  const bool sideways = PageOrientation() % 2 == 1;
  const bool mirror_x = settings_.flipHorizontal && !sideways;
  const bool mirror_y = settings_.flipHorizontal && sideways;
  std::fprintf(output_.stream(), "%d.0 %d.0 translate %d %d scale\n",
               mirror_x ? settings_.mediaWidth : 0, mirror_y ? settings_.mediaLength : 0,
               mirror_x ? -1 : 1, mirror_y ? -1 : 1);
}

bool CopyRules::OnThisPage(int first_page) const {
  return !settings_.watermark->watermarkFirstPageOnly || page_count_ == first_page;
}

void CopyRules::CopyPageStart(std::string_view line) {
  output_.Write(line);
  if (settings_.invertImage)
    output_.Write("[{1 exch sub}/exec load dup currenttransfer exch]cvx bind settransfer\n");
  WritePageTransform();
  if (!settings_.watermark || settings_.watermark->watermark_option != kWatermarkBackground) return;

  const WatermarkChoice& watermark = *settings_.watermark;
  if (!OnThisPage(0)) {
    LogLine("DEBUG: Adding Watermark in background");
  } else if (watermark.IsText()) {
    LogLines({"DEBUG: Adding Watermark in background", "DEBUG: Adding text Watermark"});
    WriteBackgroundText(output_.stream(), watermark.watermarkData);
  } else {
    LogLines({"DEBUG: Adding Watermark in background", "DEBUG: Adding image Watermark"});
    insertWatermarkCall(watermark.watermarkData.scale, 0, output_.stream());
  }
}

void CopyRules::CopyPageEnd(std::string_view line) {
  ++page_count_;
  if (settings_.watermark) {
    const WatermarkChoice& watermark = *settings_.watermark;
    if (watermark.watermark_option == kWatermarkForeground) {
      if (!OnThisPage(1)) {
        LogLine("DEBUG: Adding Watermark in foreground");
      } else if (watermark.IsText()) {
        LogLines({"DEBUG: Adding Watermark in foreground", "DEBUG: Adding text watermark"});
        WriteForegroundText(output_.stream(), watermark.watermarkData, line.starts_with("endp"));
      } else {
        LogLines({"DEBUG: Adding Watermark in foreground", "DEBUG: Adding image watermark"});
        insertWatermarkCall(watermark.watermarkData.scale, 0, output_.stream());
      }
    } else if (watermark.watermark_option == kWatermarkOverlay && !watermark.IsText() &&
               OnThisPage(0)) {
      // The count has been raised already, so "first page only" draws on no page at all; drivers
      // rely on it.
      insertWatermarkCall(watermark.watermarkData.scale, 1, output_.stream());
    }
  }
  output_.Write(line);
}

void CopyRules::CopyFeatureLine(std::string_view line) {
  output_.Write(line);
  if (!NamesJobType(line)) return;
  job_type_match_ = false;
  // No line feed at the end: the next line of the job begins with its own white space or operator.
  const auto put = [this](const char* name, const std::optional<std::string>& value) {
    if (value)
      std::fprintf(output_.stream(), "\n   userdict /%s (%s) put", name,
                   PostScriptText(*value).c_str());
  };
  put("zarvo$pdejobname", settings_.zarvoJobName);
  put("zarvo$pdejobpassword", settings_.zarvoJobPassword);
}

void CopyRules::CopyEndSetup(std::string_view line) {
  const WatermarkChoice& watermark = *settings_.watermark;
  if (watermark.IsText()) {
    if (!font_) {
      font_.emplace();
      loadFontData(kWatermarkCollection, watermark.watermarkData.fontName, &*font_);
    }
    output_.WriteLong([this](FILE* stream) { WriteWatermarkFont(stream, *font_); });
  } else {
    WriteImage(watermark.watermarkData);
  }
  output_.Write(line);
}

void CopyRules::WriteImage(const WatermarkData& watermark) {
  if (!std::exchange(image_written_, true)) {
    if (!outputImageWatermark(&watermark, output_.stream()) && notices_ != nullptr)
      notices_->Add(kImageLeftOut);
    output_.error();  // while the reason of a failed write is known
    return;
  }
  // Only odd jobs have another set-up section. They may have a million; the image is decoded once
  // more and kept.
  if (image_ == nullptr) {
    image_ = SpoolFile::Create();
    if (image_ == nullptr) {
      output_.Fail(errno);
      return;
    }
    outputImageWatermark(&watermark, image_->stream());
  }
  if (!image_->CopyTo(output_)) output_.Fail(errno);
}

}  // namespace zarvo
