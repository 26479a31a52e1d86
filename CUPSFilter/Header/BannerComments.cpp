// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Header/BannerComments.h"

#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {

void WriteBannerPage(FILE* output, const Dictionary& ticket) {
  if (const auto banner = DictionaryGetBoolean(ticket, key::kBannerPage))
    std::fprintf(output, "@PJL COMMENT OID_ATT_START_SHEET OID_VAL_JOB_SHEET_%s\n",
                 *banner ? "FULL" : "NONE");
}

void WriteRequestOffset(FILE* output, const Dictionary& ticket) {
  if (const auto offset = DictionaryGetBoolean(ticket, key::kRequestOffset))
    std::fprintf(output, "@PJL SET JOBOFFSET=%s\n", *offset ? "ON" : "OFF");
}

}  // namespace zarvo
