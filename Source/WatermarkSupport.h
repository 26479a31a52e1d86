// SPDX-License-Identifier: Apache-2.0
// Watermarks and the file they are kept in, shared by the filter, which reads, and the print
// dialog, which also writes.
//
// The file (a "collection") is a dictionary: "WatermarkListEntries" holds the names in the order
// shown to the user; each watermark is a dictionary under its name (the text of a text watermark,
// the file name of an image watermark); each font that a text watermark needs is data under the
// font's name. Names are compared in Normalisation Form C.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "Platform/Value.h"

namespace zarvo {

/// The collection that print jobs choose their watermarks from.
constexpr char kWatermarkCollection[] = "com.zarvo.printing.watermarks.plist";

/// One watermark. All texts are zero-terminated UTF-8.
struct _WatermarkData {
  char textString[512];  ///< the text; empty for an image watermark
  char filename[512];    ///< name of the image file
  char filePath[8192];   ///< full path of the image file
  char fontName[512];    ///< PostScript name of the font, and the key of its stored program
  /// Offset of the overlay text, in inches, or in millimetres when `units` is not 0.
  float xOffset, yOffset;
  float fontColorRed, fontColorGreen, fontColorBlue, fontColorAlpha;  ///< 0 to 1
  /// What the dialog's colour well shows, 0 to 1; not printed.
  float wellColorRed, wellColorGreen, wellColorBlue, wellColorAlpha;
  std::int32_t angle;              ///< of the text, degrees counter-clockwise
  std::int32_t density;            ///< opacity on a fax cover, 0 to 100
  std::int32_t scale;              ///< of the image, percent
  std::int32_t units;              ///< of the offsets: 0 inches, else millimetres
  std::int32_t fontSize;           ///< points
  std::int32_t isTextWatermark;    ///< decides the entry's name when saving; not stored
  double paperHeight, paperWidth;  ///< in the dialog; not stored
  double xPos, yPos;               ///< of the text on the page, points
};
/// The name of the record everywhere else.
using WatermarkData = _WatermarkData;

/// The dialog's list control: is given all names to show.
using WatermarkBrowser = std::function<void(const Array& names)>;

/// Reads the list of names. Returns 1 when there is one, else 0 and leaves *outWatermarkNames
/// alone. The entries are as stored and need not be strings. The collection and the output may be
/// null (then 0), and so may the browser.
int loadWatermarkList(const char* inCollection, const WatermarkBrowser* inBrowser,
                      Array* outWatermarkNames);

/// Stores the list of names; starts the file when it is missing. Does nothing when either is null.
/// Like every writer here it returns whether the file was written.
bool saveWatermarkList(const char* inCollection, const Array* inWatermarkNames);

/// Reads one watermark. Returns 1 when it is found: each stored key that has the right type goes
/// into its field (numbers are converted; a text that does not fit its field becomes empty), the
/// other fields stay as they were. Otherwise zeroes the record and returns 0; a null name is not
/// found.
int loadWatermarkData(const char* inCollection, const std::string* inWatermarkName,
                      WatermarkData* outWMData);

/// Stores one watermark under its text when isTextWatermark is not 0, else under its file name,
/// replacing an entry of that name; starts the file when it is missing. Does not touch the list of
/// names. A watermark that is named like the list is not stored.
bool saveWatermarkData(const char* inCollection, const WatermarkData& wmData);

/// Stores one watermark as saveWatermarkData does and puts its name at the end of the list, unless
/// it is there, all in one change: no other program sees, or loses, one without the other. A list
/// that is started begins with `first`. An entry that holds a font is not replaced.
bool addWatermark(const char* collection, const WatermarkData& watermark, const char* first);
/// Stores a font as storeFontData does, in a file that is started as addWatermark does. An entry
/// that is no font is not replaced.
bool addWatermarkFont(const char* collection, const std::string& name, const Data& font,
                      const char* first);
/// Takes a name off the list, and removes the watermark that is stored under it, in one change.
/// `removed` gets what was stored, or zeros.
bool dropWatermark(const char* collection, const std::string& name, WatermarkData* removed);

/// The stored form of a watermark and back. The dictionary is missing when a text is not UTF-8;
/// reading treats the record as loadWatermarkData does.
std::optional<Dictionary> WatermarkToDictionary(const WatermarkData& wmData);
void WatermarkFromDictionary(const Dictionary& entry, WatermarkData* outWMData);

/// Removes one watermark; its name stays in the list. Does nothing when there is no file.
bool removeWatermarkData(const char* inCollection, const std::string& inWatermarkName);

/// Stores a font program under the font's name. Does nothing when there is no file.
bool storeFontData(const char* inCollection, const std::string& inKey, const Data& inData);

/// Appends the font program stored under the font's name, if there is one.
void loadFontData(const char* inCollection, const std::string& inKey, Data* outData);

}  // namespace zarvo
