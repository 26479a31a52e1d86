// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Header/FaxComments.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "CUPSFilter/Header/PjlText.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/Fax.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

int ResolutionCode(const Dictionary& options) {
  std::int32_t resolution = -1;
  CFDictionaryGetNumber(options, kFaxResolutionProperty, &resolution);
  return resolution == kFaxStandard ? 0 : resolution == kFaxSuperfine ? 2 : 1;
}

const char* SpeedName(const Dictionary& options) {
  std::int32_t speed = -1;
  CFDictionaryGetNumber(options, kFaxSendSpeedProperty, &speed);
  return speed == kFaxForced4800 ? "FORCED_4800" : speed == kFax14400 ? "14400" : "AUTO";
}

/// The first moment not before `now` that is a whole number of days after `wanted`, or `wanted`
/// itself when it is still ahead. Computed from remainders, because the distance between two
/// arbitrary counts overflows.
std::int64_t NextSendTime(std::int64_t wanted, std::int64_t now) {
  if (wanted >= now) return wanted;
  const std::int64_t ahead = (wanted % kSecondsPerDay - now % kSecondsPerDay) % kSecondsPerDay;
  return now + (ahead < 0 ? ahead + kSecondsPerDay : ahead);
}

std::string LimitedText(const std::string& text, std::size_t max_bytes) {
  return PjlText(Utf8Prefix(text, max_bytes));
}

void WriteDestination(FILE* output, const Dictionary& recipient, const std::string& prefix) {
  if (const std::string* number = DictionaryGetString(recipient, kFaxRecipientFaxNumberProperty)) {
    const std::string dialing = CopyDialingStringFromFaxNumber(*number);
    std::fprintf(output, "@PJL COMMENT OID_ATT_FAX_DESTINATION_PHONE \"%s%s\";\n", prefix.c_str(),
                 dialing.c_str());
  }
  if (const std::string* mailbox = DictionaryGetString(recipient, kFaxRecipientMailboxProperty)) {
    std::fprintf(output, "@PJL COMMENT OID_ATT_FAX_MAILBOX %s;\n", PjlText(*mailbox).c_str());
  }
}

}  // namespace

void WriteJobTypeFax(FILE* output, const Dictionary& ticket, const Clock& clock) {
  const Dictionary* options = DictionaryGetDictionary(ticket, key::kFaxOptions);
  const Array* recipients = DictionaryGetArray(ticket, key::kFaxRecipientList);
  if (output == nullptr || options == nullptr || recipients == nullptr) return;

  std::fprintf(output, "@PJL COMMENT OID_ATT_JOB_TYPE OID_VAL_JOB_TYPE_FAX_SEND;\n");
  // The printer's own cover sheet would come on top of the one drawn into the job.
  std::fprintf(output, "@PJL COMMENT OID_ATT_FAX_COVER_SHEET FALSE;\n");
  std::fprintf(output, "@PJL COMMENT OID_ATT_FAX_RESOLUTION %d;\n", ResolutionCode(*options));
  std::fprintf(output, "@PJL COMMENT OID_ATT_FAX_TYPE OID_VAL_FAX_TYPE_G3_%s;\n",
               SpeedName(*options));
  const bool confirm =
      DictionaryGetBoolean(*options, kFaxPrintConfirmationSheetProperty).value_or(false);
  std::fprintf(output, "@PJL COMMENT OID_ATT_FAX_CONFIRMATION_SHEET %s;\n",
               confirm ? "TRUE" : "FALSE");
  if (const std::string* card = DictionaryGetString(*options, kFaxCreditCardProperty)) {
    std::fprintf(output, "@PJL COMMENT OID_ATT_CREDIT_CARD \"%s\";\n",
                 LimitedText(*card, kMaxCreditCardBytes).c_str());
  }
  std::int64_t send_time = 0;
  if (CFDictionaryGetNumber(*options, kFaxSendTimeProperty, &send_time)) {
    const LongDateRec date = LongSecondsToDate(NextSendTime(send_time, clock.LocalSeconds()));
    std::fprintf(output, "@PJL COMMENT OID_ATT_JOB_FAX_AFTER \"%04d%02d%02d%02d%02d00\";\n",
                 date.year, date.month, date.day, date.hour, date.minute);
  }
  const std::string* prefix = DictionaryGetString(*options, kFaxDialingPrefixProperty);
  const std::string dialed =
      prefix != nullptr ? LimitedText(*prefix, kMaxDialingPrefixBytes) : std::string();
  for (const Value& entry : *recipients) {
    if (const Dictionary* recipient = entry.AsDictionary())
      WriteDestination(output, *recipient, dialed);
  }
}

}  // namespace zarvo
