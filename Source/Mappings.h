// SPDX-License-Identifier: Apache-2.0
// Constant tables shared by the filter and the print dialog.
#pragma once

#include <cstdint>

namespace zarvo {

/// Marks an integer for which a ticket or a table holds no value (the smallest 32-bit integer).
constexpr std::int32_t kNotSet = INT32_MIN;

/// One stock size. The codes are those of the ticket's "Size" keys.
struct StockSize {
  const char* name;        // display-name key; the dialog translates it
  std::int32_t code;       // 0 ends the table
  const char* reserved;    // always null
  std::int32_t width;      // hundredths of a millimetre
  std::int32_t height;     // hundredths of a millimetre
  std::int32_t widthPts;   // PostScript points
  std::int32_t heightPts;  // PostScript points
};

/// Every stock size the printers know, in lookup order: the first row that matches wins. Row 0
/// stands for "not set"; the row with code 0 ends the table. Two rows look wrong and are not to be
/// mended, because tickets and printers rely on them: the label of code 70 and the second
/// "Postcard (4 x 6\")".
extern const StockSize CompleteStockSizeMap[];

/// Gives the width and height of a stock size in hundredths of a millimetre. Returns false, with 0
/// in both, for a code that is in no row. The not-set code finds row 0 and gives `kNotSet` twice.
bool GetStockDimensionsForSize(std::int32_t size, std::int32_t* width, std::int32_t* height);

/// The printer's word for a stock colour code; "Unspecified" for codes it has no word for.
const char* ColorToString(long color);

/// The printer's word for a stock type code; "System-default" for codes it has no word for.
const char* TypeToString(long type);

}  // namespace zarvo
