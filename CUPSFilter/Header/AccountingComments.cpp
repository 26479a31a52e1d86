// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Header/AccountingComments.h"

#include <cstdint>
#include <string>

#include "CUPSFilter/Header/PjlText.h"
#include "Source/CFAdditions.h"
#include "Source/Mappings.h"

namespace zarvo {
namespace {

// Accounting modes, the values of "com.zarvo.Act.On"; 1 is off.
constexpr std::int32_t kUserAndOptionalAccount = 2;
constexpr std::int32_t kUserAndAccount = 3;
// Account types of the first mode, the values of "com.zarvo.Act.AT"; 1 is none.
constexpr std::int32_t kGeneralAccount = 2;
constexpr std::int32_t kGroupAccount = 3;

constexpr std::int32_t kTransparency = 2;  // stock type, the value of a stock's "Type"
// Values of "com.zarvo.print.SeparatorOption"; anything else is none.
constexpr std::int32_t kBlankSeparators = 2;
constexpr std::int32_t kImagedSeparators = 3;

void WriteAccountingValue(FILE* output, const char* tag, const Dictionary& ticket,
                          const char* key) {
  if (const std::string* value = DictionaryGetString(ticket, key))
    std::fprintf(output, "@PJL COMMENT OID_ATT_ACCOUNTING_INFORMATION_AVP \"%s,%s\"\n", tag,
                 PjlText(*value).c_str());
}

}  // namespace

void WriteAccounting(FILE* output, const Dictionary& ticket) {
  std::int32_t mode = 0;
  CFDictionaryGetNumber(ticket, "com.zarvo.Act.On", &mode);
  if (mode != kUserAndOptionalAccount && mode != kUserAndAccount) return;
  WriteAccountingValue(output, "ZRV_USERID", ticket, "com.zarvo.Act.UID");
  if (mode == kUserAndAccount) {
    WriteAccountingValue(output, "ZRV_ACCTID", ticket, "com.zarvo.Act.AID");
    return;
  }
  std::int32_t account_type = 1;
  CFDictionaryGetNumber(ticket, "com.zarvo.Act.AT", &account_type);
  if (account_type == kGeneralAccount)
    WriteAccountingValue(output, "ZRV_GENERALACCT", ticket, "com.zarvo.Act.AID");
  if (account_type == kGroupAccount)
    WriteAccountingValue(output, "ZRV_GROUPACCT", ticket, "com.zarvo.Act.AID");
}

void WriteCovers(FILE* output, const Dictionary& ticket) {
  const Dictionary* jtml = DictionaryGetDictionary(ticket, "com.zarvo.print.JTMLOptions");
  if (jtml != nullptr &&
      (DictionaryContains(*jtml, "JTMLOptionAll") || DictionaryContains(*jtml, "JTMLOptionCovers")))
    return;
  const Dictionary* cover =
      DictionaryGetDictionary(ticket, "com.zarvo.print.SpecialPages.FrontCover");
  if (cover == nullptr) return;
  std::int32_t sides_imaged = 1;
  CFDictionaryGetNumber(*cover, "SidesImaged", &sides_imaged);
  if (sides_imaged != 1) return;
  std::int32_t size = kNotSet;
  if (const Dictionary* stock = DictionaryGetDictionary(*cover, "Stock"))
    CFDictionaryGetNumber(*stock, "Size", &size);
  if (size == kNotSet) return;

  std::int32_t width = 0;
  std::int32_t height = 0;
  GetStockDimensionsForSize(size, &width, &height);
  const bool front_and_back = DictionaryContains(ticket, "com.zarvo.print.SpecialPages.BackCover");
  std::fprintf(output, "@PJL COMMENT OID_ATT_%s_PAGE_MEDIA_SIZE \"%ld %ld\";\n",
               front_and_back ? "FIRSTLAST" : "FIRST", width / 100L, height / 100L);
}

int WriteSeparators(FILE* output, const Dictionary& ticket) {
  std::int32_t option = 1;
  std::int32_t color = 1;
  std::int32_t type = 0;
  const Dictionary* stock = DictionaryGetDictionary(ticket, "com.zarvo.print.JobLevelStock");
  if (!DictionaryContains(ticket, "com.zarvo.print.SeparatorOption") || stock == nullptr) return 0;
  CFDictionaryGetNumber(*stock, "Type", &type);
  if (type != kTransparency) return 0;

  CFDictionaryGetNumber(ticket, "com.zarvo.print.SeparatorOption", &option);
  CFDictionaryGetNumber(ticket, "com.zarvo.print.SeparatorColor", &color);
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
