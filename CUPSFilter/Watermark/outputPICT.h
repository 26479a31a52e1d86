// SPDX-License-Identifier: Apache-2.0
// The PostScript of an image watermark: its pixels once per job, a call that draws them once per
// page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "Platform/Phrase.h"
#include "Source/WatermarkSupport.h"

namespace zarvo {

/// Opens the page-description dictionary of a job and adds what inserted pictures need; goes into
/// the prolog of every job with a watermark.
extern const std::string_view WatermarkProlog;

/// The notice of an image for which the log tells the reason.
inline constexpr const char* kImageLeftOut =
    PhraseText(
        "the watermark's image was left out or is not whole; the log tells why, the "
        "administrator can store it anew")
        .data();

/// Writes the record's image as an array of pixel rows that the printer reads into memory. The
/// image is decoded by the drawing helper and arrives row by row, so memory does not grow with it.
/// An image that cannot be decoded, or is wider than 21845 or taller than 32767 pixels, writes
/// nothing but a line to the log, and gives false. A record without text and image is told by who
/// loads it. Sets the size that insertWatermarkCall uses.
bool outputImageWatermark(const WatermarkData* wmData, FILE* ofp);

enum class ImageResult {
  kWritten,
  kNoImage,     ///< no header of a binary PPM; nothing was written
  kTooLarge,    ///< likewise
  kIncomplete,  ///< rows that failed to arrive were made up in white
};

/// The same for an image that is decoded already: a binary PPM of 8 bits per component, whoever
/// sends it.
ImageResult WritePpmImage(FILE* pixels, FILE* ofp);

/// Writes the call that draws the image on a page, in the middle of the imageable area, at inScale
/// percent of one point per pixel. With inBlended not 0 only every other dot is laid down, so that
/// the page shows through. Before any image was written the size is 0 by 0.
void insertWatermarkCall(int inScale, int inBlended, FILE* ofp);

/// Two upper-case hexadecimal digits, without a terminator.
void convertByteToHex(std::uint8_t byte, char* digits);

/// Writes a run of bytes as hexadecimal digits.
void doHexBlock(const std::uint8_t* bytes, std::size_t count, FILE* stream);

}  // namespace zarvo
