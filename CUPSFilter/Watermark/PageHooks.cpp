// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Watermark/PageHooks.h"

#include <cstdio>

#include "CUPSFilter/Header/PjlText.h"
#include "CUPSFilter/Options/common.h"
#include "CUPSFilter/Watermark/WatermarkText.h"
#include "CUPSFilter/Watermark/outputPICT.h"
#include "Platform/Phrase.h"

namespace zarvo {

extern const std::string_view PageHookProcedures;

namespace {

constexpr std::string_view kOrientation = "%%Orientation:";

/// How pages lie when neither they nor their document tell: as the job was asked to be turned.
int AskedTurn() {
  const int orientation = PageOrientation();
  return orientation == 1 ? kLandscape : orientation;
}

constexpr const char* kTurnUnknown =
    PhraseText(
        "watermark: a page is a picture, which does not tell how it is read, so its mark "
        "stands upright on the paper; when that is wrong, which a preview shows, say "
        "WMTurn=90 or WMTurn=270")
        .data();

void WriteFlag(FILE* output, const char* name, bool value) {
  std::fprintf(output, "/%s %s def\n", name, value ? "true" : "false");
}

void WriteImageCall(FILE* output, const WatermarkChoice& watermark) {
  // An image that could not be read has left nothing to draw.
  std::fputs("ZRVhooks /picstr known {\n", output);
  insertWatermarkCall(watermark.watermarkData.scale,
                      watermark.watermark_option == kWatermarkOverlay ? 1 : 0, output);
  std::fputs("} if\n", output);
}

void WriteDrawing(FILE* output, const WatermarkChoice& watermark) {
  const WatermarkData& data = watermark.watermarkData;
  if (!watermark.IsText()) {
    WriteImageCall(output, watermark);
  } else if (watermark.watermark_option == kWatermarkBackground) {
    WriteBackgroundText(output, data);
  } else if (watermark.watermark_option == kWatermarkForeground) {
    std::fputs("gsave\n", output);
    WriteForegroundDrawing(output, data);
  } else {
    std::fputs("OverlayForm execform\n", output);
  }
}

}  // namespace

bool PageHooksWanted(const Ppd& ppd) { return ppd.IsTrue("ZRVPageHooks"); }

PageHooks::PageHooks(const JobSettings& settings, JobOutput& output, JobNotices* notices)
    : settings_(settings),
      output_(output),
      notices_(notices),
      needed_(settings.watermark || settings.invertImage || settings.flipHorizontal),
      turned_(settings.watermark ? settings.watermark->turn : std::nullopt) {
  document_turn_ = page_turn_ = turned_ ? *turned_ : AskedTurn();
}

void PageHooks::BeginDocument() {
  inserted_ = !needed_ || settings_.booklet;
  told_ = false;
  document_turn_ = page_turn_ = turned_ ? *turned_ : AskedTurn();
}

bool PageHooks::LooksAhead(std::string_view line) const {
  return settings_.watermark && !turned_ && !settings_.booklet && line.starts_with("%%Page:");
}

void PageHooks::ShowAhead(std::string_view head) {
  const PageLook look = LookAtPage(head);
  // A page that tells nothing, such as a picture, lies as the one before.
  page_turn_ = look.turn.value_or(told_ ? page_turn_ : document_turn_);
  told_ = true;
  if (!turn_known_) {
    turn_known_ = look.turn || page_turn_ != 0;
    guess_failed_ = guessed_ && page_turn_ != 0;
    guessed_ = guessed_ || look.drawing || look.pictures > PageWidth * PageLength / 4;
  }
}

void PageHooks::Finish() {
  if (guessed_ && (!turn_known_ || guess_failed_) && notices_ != nullptr)
    notices_->Add(kTurnUnknown);
}

bool PageHooks::TellsOrientation(std::string_view line) const {
  return settings_.watermark && line.starts_with(kOrientation);
}

void PageHooks::TakeOrientation(std::string_view line) {
  if (turned_ || told_ || !line.starts_with(kOrientation)) return;
  document_turn_ = TurnOfComment(line.substr(kOrientation.size())).value_or(document_turn_);
  page_turn_ = document_turn_;
}

void PageHooks::BeforeLine(std::string_view line, bool own) {
  if (own) TakeOrientation(line);
  if (inserted_) {
    if (own && needed_ && !settings_.booklet && line.starts_with("%%EndSetup"))
      output_.Write("ZRVhooks /again get exec\n");
    return;
  }
  // Header comments stay together, for whoever reads them next.
  const bool header = line.find_first_not_of("\r\n") == line.npos ||
                      (line.starts_with('%') && !line.starts_with("%%Begin"));
  if (!header) Insert();
}

void PageHooks::AfterLine(std::string_view line, bool own) {
  if (!inserted_ && line.starts_with("%%EndComments")) Insert();
  // Some programs say that a page begins among the comments of the head, ahead of the procedures.
  if (own && inserted_ && !settings_.booklet && line.starts_with("%%Page:")) WriteTurn();
}

/// Documents bring parts of fonts under the names of whole ones, so this goes ahead of them.
void PageHooks::WriteFont() {
  if (!settings_.watermark || !settings_.watermark->IsText()) return;
  const WatermarkData& data = settings_.watermark->watermarkData;
  Data font;
  loadFontData(kWatermarkCollection, data.fontName, &font);
  WriteWatermarkFont(output_.stream(), font);
  std::fprintf(output_.stream(), "userdict /ZRVfont %s findfont put\n",
               PostScriptName(data.fontName).c_str());
}

void PageHooks::WriteForBooklet() {
  if (needed_) Insert();
}

void PageHooks::WritePageStart(int page, std::string_view head) {
  if (!needed_) return;
  if (settings_.watermark && !turned_) ShowAhead(head);
  WriteTurn();
  std::fprintf(output_.stream(), "%d ZRVhooks /bookletpage get exec\n", page);
}

/// Where all pages lie alike it is told once.
void PageHooks::WriteTurn() {
  if (settings_.watermark && !turned_)
    std::fprintf(output_.stream(), "%d ZRVhooks /lying get exec\n", page_turn_);
}

void PageHooks::Insert() {
  inserted_ = true;
  FILE* output = output_.stream();
  const std::optional<WatermarkChoice>& watermark = settings_.watermark;
  if (!settings_.booklet) WriteFont();
  output_.Write(PageHookProcedures);

  // Mirrored is what a sheet's left and right are, and that depends on how the page lies on it.
  const bool sideways = PageOrientation() % 2 == 1;
  WriteFlag(output, "flipx", settings_.flipHorizontal && !sideways);
  WriteFlag(output, "flipy", settings_.flipHorizontal && sideways);
  WriteFlag(output, "negative", settings_.invertImage);
  WriteFlag(output, "firstonly", watermark && watermark->watermarkFirstPageOnly);
  // A text's place is chosen for the paper as it comes out of its pack.
  const bool swapped = sideways && watermark && watermark->IsText();
  std::fprintf(output, "/width %d def\n/height %d def\nstate 2 %d put\n",
               WholePoints(swapped ? PageLength : PageWidth),
               WholePoints(swapped ? PageWidth : PageLength), told_ ? page_turn_ : document_turn_);
  if (watermark) {
    if (!watermark->IsText()) {
      if (!outputImageWatermark(&watermark->watermarkData, output) && notices_ != nullptr)
        notices_->Add(kImageLeftOut);
    } else if (watermark->watermark_option == kWatermarkOverlay) {
      WriteOverlayForm(output, watermark->watermarkData);
    }
  }
  const bool below = watermark && watermark->watermark_option == kWatermarkBackground;
  std::fputs("/back {\n", output);
  if (below) WriteDrawing(output, *watermark);
  std::fputs("} def\n/front {\n", output);
  if (watermark && !below) WriteDrawing(output, *watermark);
  std::fputs("} def\nZRVinstall\nend end setglobal\n", output);
}

}  // namespace zarvo
