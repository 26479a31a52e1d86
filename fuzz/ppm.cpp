// SPDX-License-Identifier: Apache-2.0
// The reader of what the drawing helper sends: the rows that the header promises to the printer
// are all written, whatever arrives.
#include <algorithm>
#include <cstdio>

#include "CUPSFilter/Watermark/outputPICT.h"
#include "fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  if (size == 0) return 0;
  // What is missing is made up in white, for a large header at length: not worth the time here.
  int columns = 0, rows = 0;
  const std::string text(AsText(data, std::min<std::size_t>(size, 64)));
  if (std::sscanf(text.c_str(), "P6 %9d %9d", &columns, &rows) == 2 &&
      std::int64_t{columns} * rows > 1 << 16 && columns <= 21845 && rows <= 32767)
    return 0;
  FILE* const image = fmemopen(const_cast<std::uint8_t*>(data), size, "rb");
  char* bytes = nullptr;
  std::size_t length = 0;
  FILE* const output = open_memstream(&bytes, &length);
  const ImageResult result = WritePpmImage(image, output);
  insertWatermarkCall(100, static_cast<int>(size % 2), output);
  std::fclose(image);
  std::fclose(output);
  if (result == ImageResult::kWritten || result == ImageResult::kIncomplete)
    Require(length > static_cast<std::size_t>(6 * columns * rows));
  std::free(bytes);
  return 0;
}
