// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Header/CoverComments.h"

#include <cstdint>

#include "Source/CFAdditions.h"
#include "Source/Mappings.h"
#include "Source/TicketNames.h"

namespace zarvo {

void WriteCovers(FILE* output, const Dictionary& ticket) {
  const Dictionary* jtml = DictionaryGetDictionary(ticket, key::kJTMLOptions);
  if (jtml != nullptr && (DictionaryContains(*jtml, key::sections::kAll) ||
                          DictionaryContains(*jtml, key::sections::kCovers)))
    return;
  const Dictionary* cover = DictionaryGetDictionary(ticket, key::kFrontCover);
  if (cover == nullptr) return;
  std::int32_t sides_imaged = kCoverBlank;
  CFDictionaryGetNumber(*cover, key::special_page::kSidesImaged, &sides_imaged);
  if (sides_imaged != kCoverBlank) return;
  std::int32_t size = kNotSet;
  if (const Dictionary* stock = DictionaryGetDictionary(*cover, key::special_page::kStock))
    CFDictionaryGetNumber(*stock, key::stock::kSize, &size);
  if (size == kNotSet) return;

  std::int32_t width = 0;
  std::int32_t height = 0;
  GetStockDimensionsForSize(size, &width, &height);
  const bool front_and_back = DictionaryContains(ticket, key::kBackCover);
  std::fprintf(output, "@PJL COMMENT OID_ATT_%s_PAGE_MEDIA_SIZE \"%ld %ld\";\n",
               front_and_back ? "FIRSTLAST" : "FIRST", width / 100L, height / 100L);
}

int WriteSeparators(FILE* output, const Dictionary& ticket) {
  std::int32_t option = kNoSeparators;
  std::int32_t color = kWhite;
  std::int32_t type = 0;
  const Dictionary* stock = DictionaryGetDictionary(ticket, key::kJobLevelStock);
  if (!DictionaryContains(ticket, key::kSeparatorOption) || stock == nullptr) return 0;
  CFDictionaryGetNumber(*stock, key::stock::kType, &type);
  if (type != kTransparencyStock) return 0;

  CFDictionaryGetNumber(ticket, key::kSeparatorOption, &option);
  CFDictionaryGetNumber(ticket, key::kSeparatorColor, &color);
  if (option != kBlankSeparators && option != kImagedSeparators) {
    std::fputs("@PJL COMMENT OID_ATT_INTERLEAVE OID_VAL_INTERLEAVE_NONE;\n", output);
    return 0;
  }
  std::fprintf(output, "@PJL COMMENT OID_ATT_INTERLEAVE OID_VAL_INTERLEAVE_%s;\n",
               option == kBlankSeparators ? "BLANK" : "IMAGED");
  std::fprintf(output, "@PJL COMMENT OID_ATT_INTERLEAVE_COLOR \"%s\";\n", ColorToString(color));
  return 0;
}

}  // namespace zarvo
