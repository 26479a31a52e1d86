// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Watermark/outputPICT.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "CUPSFilter/Options/common.h"
#include "Platform/Log.h"
#include "Source/DrawHelper.h"

namespace zarvo {

extern const std::string_view WatermarkBlend;

namespace {

constexpr std::size_t kBytesPerPixel = 3;
/// A row becomes one PostScript string, which holds 65535 bytes at most.
constexpr int kMaxColumns = 65535 / kBytesPerPixel;
constexpr int kMaxRows = 32767;  // the size is kept in 16 bits, as the page description does

// Above this the page is counted in 300ths of an inch, not in points.
constexpr float kLargestAreaInPoints = 1300;
constexpr float kFineScale = 300.0F / 72;
/// Of whole inches; the rest is not counted.
constexpr int In300ths(int points) { return points / 72 * 300; }

/// The two digits of every byte.
constexpr auto kHexPairs = [] {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::array<std::array<char, 2>, 256> pairs{};
  for (std::size_t byte = 0; byte < pairs.size(); ++byte)
    pairs[byte] = {kDigits[byte >> 4], kDigits[byte & 0x0F]};
  return pairs;
}();

struct Rectangle {
  std::int16_t top, left, bottom, right;
};

/// What the calls of the pages need to know of the data block that was written last.
struct WrittenImage {
  Rectangle blendedRect;
  float imageableAreaWidth;
  float imageableAreaHeight;
} image;

void doCR(FILE* stream) { std::putc('\r', stream); }

/// Writes the rows of a decoded image. The header promises a number of rows to the printer, so
/// rows that fail to arrive are made up in white; false when that was needed.
bool sendImageData(FILE* pixels, const Rectangle& rectangle, FILE* ofp) {
  const int rows = rectangle.bottom - rectangle.top;
  const int columns = rectangle.right - rectangle.left;
  std::fprintf(ofp,
               "%d array /picstr exch def\n"
               "/line 0 def /readdata { 0 1 %d 1 sub { /strix exch def\n"
               "picstr strix currentfile %d string readhexstring pop put } for } bind def\n"
               "readdata\n",
               rows, rows, columns * static_cast<int>(kBytesPerPixel));
  std::vector<std::uint8_t> row(kBytesPerPixel * static_cast<std::size_t>(columns));
  bool complete = true;
  for (int i = 0; i < rows && std::ferror(ofp) == 0; ++i) {
    complete = complete && std::fread(row.data(), row.size(), 1, pixels) == 1;
    if (!complete) std::fill(row.begin(), row.end(), 0xFF);
    doHexBlock(row.data(), row.size(), ofp);
    doCR(ofp);
  }
  return complete;
}

}  // namespace

void convertByteToHex(std::uint8_t byte, char* digits) {
  std::memcpy(digits, kHexPairs[byte].data(), 2);
}

void doHexBlock(const std::uint8_t* bytes, std::size_t count, FILE* stream) {
  char digits[200];
  while (count > 0) {
    const std::size_t piece = std::min(count, sizeof digits / 2);
    for (std::size_t i = 0; i < piece; ++i) convertByteToHex(bytes[i], digits + 2 * i);
    std::fwrite(digits, 1, 2 * piece, stream);
    bytes += piece;
    count -= piece;
  }
}

ImageResult WritePpmImage(FILE* pixels, FILE* ofp) {
  int columns = 0, rows = 0;
  if (std::fscanf(pixels, "P6 %9d %9d 255", &columns, &rows) != 2 || std::getc(pixels) != '\n' ||
      columns <= 0 || rows <= 0)
    return ImageResult::kNoImage;
  if (columns > kMaxColumns || rows > kMaxRows) return ImageResult::kTooLarge;
  image.imageableAreaWidth = PageRight - PageLeft;
  image.imageableAreaHeight = PageTop - PageBottom;
  image.blendedRect = {0, 0, static_cast<std::int16_t>(rows), static_cast<std::int16_t>(columns)};
  return sendImageData(pixels, image.blendedRect, ofp) ? ImageResult::kWritten
                                                       : ImageResult::kIncomplete;
}

bool outputImageWatermark(const WatermarkData* wmData, FILE* ofp) {
  const char* path = wmData->filePath;
  if (path[0] == '\0') {
    LogLine(
        "INFO: the watermark has neither text nor an image; choose it anew in the print dialog");
    return true;
  }
  std::optional<Process> helper = StartImageDecoder(path, "ppm");
  if (!helper) return false;
  FILE* pixels = helper->output();
  switch (pixels != nullptr ? WritePpmImage(pixels, ofp) : ImageResult::kNoImage) {
    case ImageResult::kWritten:
      return true;
    case ImageResult::kNoImage:
    case ImageResult::kIncomplete:
      LogDecoderFailure(path, *helper);
      break;
    case ImageResult::kTooLarge:
      LogImageFailure(path, "it has more than " + std::to_string(kMaxColumns) + " by " +
                                std::to_string(kMaxRows) + " pixels");
      break;
  }
  return false;
}

void insertWatermarkCall(int inScale, int inBlended, FILE* ofp) {
  float width = image.blendedRect.right;
  float height = image.blendedRect.bottom;
  if (image.imageableAreaWidth > kLargestAreaInPoints ||
      image.imageableAreaHeight > kLargestAreaInPoints) {
    width = static_cast<float>(In300ths(image.blendedRect.right));
    height = static_cast<float>(In300ths(image.blendedRect.bottom));
    std::fprintf(ofp, "%.2f %.2f scale\n", kFineScale, kFineScale);
  }
  const float scale = static_cast<float>(inScale) / 100;
  width *= scale;
  height *= scale;
  const float tx = image.imageableAreaWidth / 2 - width / 2;
  const float ty = inBlended != 0 ? image.imageableAreaHeight / 2 - height / 2
                                  : image.imageableAreaHeight / 2 + height / 2;
  const int rows = image.blendedRect.bottom - image.blendedRect.top;
  const int columns = image.blendedRect.right - image.blendedRect.left;
  std::fprintf(ofp,
               "/line 0 def /picdata { line %d lt { picstr line get line 1 add /line exch def } "
               "{ () } ifelse } bind def\n",
               rows);
  if (inBlended != 0) {
    std::fprintf(ofp,
                 "gsave initgraphics %.2f %.2f translate %d %d scale\n"
                 "/imageHeight %d def /imageWidth %d def \n",
                 tx, ty, columns, rows, rows, columns);
    std::fwrite(WatermarkBlend.data(), 1, WatermarkBlend.size(), ofp);
  } else {
    // (A negative number after the literal minus sign would be no PostScript number.)
    std::fprintf(ofp,
                 "gsave initgraphics\n"
                 "/DeviceRGB setcolorspace /imageDict 20 dict def\n"
                 "%.2f %.2f translate\n"
                 "%.2f %.2f scale\n"
                 "imageDict begin\n"
                 "/ImageType 1 def /Width %d def /Height %d def\n"
                 "/ImageMatrix [1 0 0 1 0 0] def /MultipleDataSources false def\n"
                 "/DataSource { picdata } cvx def\n"
                 "/BitsPerComponent 8 def /Decode [0 1 0 1 0 1] def /Interpolate false def end\n"
                 "imageDict image grestore \n",
                 tx, ty, scale, -scale, columns, rows);
  }
  std::fflush(ofp);
}

}  // namespace zarvo
