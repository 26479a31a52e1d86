// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Watermark/WatermarkText.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "CUPSFilter/Header/PjlText.h"
#include "CUPSFilter/Options/common.h"

namespace zarvo {
namespace {

std::string ShownText(const WatermarkData& watermark) {
  return PostScriptText(watermark.textString);
}

void WriteColor(FILE* output, const WatermarkData& watermark) {
  std::fprintf(output, "%.2f %.2f %.2f setrgbcolor\n", watermark.fontColorRed,
               watermark.fontColorGreen, watermark.fontColorBlue);
}

void WritePosition(FILE* output, const WatermarkData& watermark) {
  std::fprintf(output, "%.2f %.2f moveto\n", watermark.xPos, watermark.yPos);
}

void WriteFont(FILE* output, const WatermarkData& watermark) {
  std::fprintf(output, "%s %d selectfont\n", PostScriptName(watermark.fontName).c_str(),
               watermark.fontSize);
}

void WriteAngle(FILE* output, const WatermarkData& watermark) {
  std::fprintf(output, "%d rotate\n", watermark.angle);
}

void WriteShow(FILE* output, const WatermarkData& watermark) {
  std::fprintf(output, "(%s) show\ngrestore\n", ShownText(watermark).c_str());
}

/// An overlay offset, in inches or (units not 0) millimetres, in whole points.
int OffsetPoints(float offset, int units) {
  const double inches = units != 0 ? offset / 25.4 : offset;
  constexpr double kLargest = 1000000;
  const double points = 72 * inches;
  return std::isfinite(points) ? static_cast<int>(std::clamp(points, -kLargest, kLargest)) : 0;
}

}  // namespace

void WriteBackgroundText(FILE* output, const WatermarkData& watermark) {
  std::fputs("gsave\n", output);
  WriteColor(output, watermark);
  WritePosition(output, watermark);
  WriteAngle(output, watermark);
  WriteFont(output, watermark);
  WriteShow(output, watermark);
}

void WriteForegroundText(FILE* output, const WatermarkData& watermark, bool endp) {
  std::fputs(
      endp ? "pm restore /pm save store gsave\n" : "pgsave restore /pgsave save store gsave\n",
      output);
  WriteForegroundDrawing(output, watermark);
}

void WriteForegroundDrawing(FILE* output, const WatermarkData& watermark) {
  WriteColor(output, watermark);
  WriteFont(output, watermark);
  WritePosition(output, watermark);
  WriteAngle(output, watermark);
  WriteShow(output, watermark);
}

void WriteOverlayForm(FILE* output, const WatermarkData& watermark) {
  const int half_width = WholePoints(PageWidth) / 2;
  const int half_length = WholePoints(PageLength) / 2;
  std::fputs(
      "/TransparentOverlayPattern << /PatternType 1 /PaintType 2 /TilingType 3 /BBox [0 0 8 8] "
      "/XStep 5 /YStep 4 /PaintProc { pop 8 2 true [1 0 0 1 0 0] {<AA 55 AA 55 55 AA 55 AA>} "
      "imagemask} >> def\n",
      output);
  std::fprintf(
      output,
      "/OverlayForm << /FormType 1 /BBox [%d %d %d %d] /TextAngle %d def /Typeface %s def "
      "/FontSize %d def /TextData (%s) def /CosAngle { TextAngle cos } bind def /SinAngle { "
      "TextAngle sin } bind def /NegSinAngle { SinAngle -1 mul } bind def /Matrix [CosAngle "
      "SinAngle NegSinAngle CosAngle %d %d] /XOrigin { TextData length FontSize 2 div mul 2 div -1 "
      "mul } bind def /YOrigin { FontSize 2 div -1 mul } bind def\n",
      -half_width, -half_length, half_width, half_length, watermark.angle,
      PostScriptName(watermark.fontName).c_str(), watermark.fontSize, ShownText(watermark).c_str(),
      OffsetPoints(watermark.xOffset, watermark.units) + half_width,
      half_length + OffsetPoints(watermark.yOffset, watermark.units));
  std::fprintf(
      output,
      "/PaintProc { XOrigin YOrigin moveto TransparentOverlayPattern [0.4 0 0 0.4 0 0] makepattern "
      "/CustomPattern exch def [/Pattern /DeviceRGB] setcolorspace %.2f %.2f %.2f CustomPattern "
      "setcolor Typeface findfont FontSize scalefont setfont TextData show TextAngle rotate } bind "
      ">> def\n",
      watermark.fontColorRed, watermark.fontColorGreen, watermark.fontColorBlue);
}

void WriteOverlayDefinitions(FILE* output, const WatermarkData& watermark, bool booklet) {
  WriteOverlayForm(output, watermark);
  std::fputs(booklet ? "/zrvshowpage /showpage load def /showpage { [ OverlayForm execform "
                       "cleartomark zrvshowpage } def\n"
                     : "/showpage { OverlayForm execform showpage } bind def\n",
             output);
}

void WriteWatermarkFont(FILE* output, const Data& font) {
  if (font.empty()) return;
  std::fputs("\n", output);
  std::fwrite(font.data(), 1, font.size(), output);
  std::fputs("\n", output);
}

}  // namespace zarvo
