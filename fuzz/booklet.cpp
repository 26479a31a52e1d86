// SPDX-License-Identifier: Apache-2.0
// The scan of a spooled booklet job and its respooling: the first eight bytes set the layout, the
// rest is the job.
#include <string>

#include "CUPSFilter/Booklet/q7bbook32.h"
#include "Platform/Process.h"
#include "fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  constexpr std::size_t kLayoutBytes = 8;
  if (size < kLayoutBytes) return 0;
  const UniqueFd spool = OpenMemoryFile(AsText(data + kLayoutBytes, size - kLayoutBytes));
  const std::string path = "/proc/self/fd/" + std::to_string(spool.get());
  FILE* const nowhere = std::fopen("/dev/null", "wb");
  BookletVars bv;
  bv.hPrinter = nowhere;
  bv.pwstrPSFileIn = path.c_str();
  bv.bDoBooklet = data[0] & 1;
  bv.bDoAutoPaperSaver = data[0] >> 1 & 1;
  bv.bDoReversePgOrder = data[0] >> 2 & 1;
  bv.bTryToUsePg1SizeFromPS = data[0] >> 3 & 1;
  bv.bRightToLeft = data[0] >> 4 & 1;
  bv.bRotBooklet180 = data[0] >> 5 & 1;
  bv.bChk4BadMSBinderPS = data[0] >> 6 & 1;
  bv.dmDuplex = 1 + data[1] % 3;
  bv.iOutlineStyle = data[2] % 3;
  bv.iMode = 1 + data[3] % 2;
  bv.iPageletsPerPage = 2;
  bv.iGutterPoints = data[4] << (data[5] % 23);
  bv.iCreep10thPoints = data[6] << (data[7] % 23);
  bv.iDestXPoints = 612;
  bv.iDestYPoints = 792;
  bv.iDestXMargPoints = bv.iDestYMargPoints = 12;
  const int pages = xPostProcessAndRespoolJob(&bv);
  // A page comment takes eight bytes of the job at the least.
  Require(pages <= static_cast<int>(size / 8));
  std::fclose(nowhere);
  return 0;
}
