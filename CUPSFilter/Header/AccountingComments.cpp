// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Header/AccountingComments.h"

#include <cstdint>
#include <string>

#include "CUPSFilter/Header/PjlText.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

void WriteAccountingValue(FILE* output, const char* tag, const Dictionary& ticket,
                          const char* key) {
  if (const std::string* value = DictionaryGetString(ticket, key))
    std::fprintf(output, "@PJL COMMENT OID_ATT_ACCOUNTING_INFORMATION_AVP \"%s,%s\"\n", tag,
                 PjlText(*value).c_str());
}

}  // namespace

void WriteAccounting(FILE* output, const Dictionary& ticket) {
  std::int32_t mode = 0;
  CFDictionaryGetNumber(ticket, key::kAccounting, &mode);
  if (mode != kUserAndOptionalAccount && mode != kUserAndAccount) return;
  WriteAccountingValue(output, "ZRV_USERID", ticket, key::kAccountUser);
  if (mode == kUserAndAccount) {
    WriteAccountingValue(output, "ZRV_ACCTID", ticket, key::kAccount);
    return;
  }
  std::int32_t account_type = kNoAccount;
  CFDictionaryGetNumber(ticket, key::kAccountType, &account_type);
  if (account_type == kGeneralAccount)
    WriteAccountingValue(output, "ZRV_GENERALACCT", ticket, key::kAccount);
  if (account_type == kGroupAccount)
    WriteAccountingValue(output, "ZRV_GROUPACCT", ticket, key::kAccount);
}

}  // namespace zarvo
