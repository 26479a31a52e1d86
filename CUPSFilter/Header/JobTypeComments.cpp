// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Header/JobTypeComments.h"

#include <cstdint>
#include <cstring>
#include <string>

#include "CUPSFilter/Header/FaxComments.h"
#include "CUPSFilter/Header/PjlText.h"
#include "Platform/Log.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr char kPasswordKey[] = "qmtvqmtvqm";  // with its zero byte: 11 key bytes

enum Month : std::int16_t {
  January = 1,
  Feburary,  // spelt as in the shared dialog code
  March,
  April,
  May,
  June,
  July,
  August,
  September,
  October,
  November,
  December
};

void WriteSaveDisposition(FILE* output, bool print) {
  std::fprintf(output, "@PJL COMMENT OID_ATT_SAVE_DISPOSITION OID_VAL_SAVE_DISPOSITION_%s;\n",
               print ? "PRINT_SAVE" : "SAVE_ONLY");
}

void WriteQuoted(FILE* output, const char* attribute, const Dictionary& dictionary,
                 const char* key) {
  if (const std::string* text = DictionaryGetString(dictionary, key))
    std::fprintf(output, "@PJL COMMENT %s \"%s\";\n", attribute, PjlText(*text).c_str());
}

/// The day after a date, by the dialog's simplified calendar.
void MoveToNextDay(DateTimeRec* date) {
  const bool thirty_days = date->month == April || date->month == June ||
                           date->month == September || date->month == November;
  const bool month_ends = date->day == 31 || (date->day == 30 && thirty_days) ||
                          (date->day == 28 && date->month == Feburary);
  if (!month_ends) {
    ++date->day;
    return;
  }
  date->day = 1;
  if (date->month == December) {
    date->month = January;
    ++date->year;
  } else {
    ++date->month;
  }
}

/// The writer of each job type; all but the fax writer take the job-type dictionary.
struct JobTypeRow {
  int code;
  void (*write)(FILE*, const Dictionary& job_type);
};

constexpr JobTypeRow kJobTypes[] = {
    {kJobTypeNormal, WriteJobTypeNormal},     {kJobTypeSave, WriteJobTypeSave},
    {kJobTypePrintAndSave, WriteJobTypeSave}, {kJobTypeSecure, WriteJobTypeSecure},
    {kJobTypeDelayed, WriteJobTypeDelayed},   {kJobTypeSampleSet, WriteJobTypeSampleSet},
};

void DispatchJobType(FILE* output, int code, const Dictionary& job_type, const Dictionary& ticket) {
  if (code == kJobTypeFax) {
    WriteJobTypeFax(output, ticket);
    return;
  }
  for (const JobTypeRow& row : kJobTypes) {
    if (row.code == code) {
      row.write(output, job_type);
      return;
    }
  }
  LogLine("DEBUG: Zarvo Job Type not found.");
  WriteJobTypeNormal(output, job_type);
}

}  // namespace

int WriteJobType(FILE* output, const Dictionary& ticket) {
  std::int32_t code = kJobTypeNormal;
  const Dictionary* job_type = DictionaryGetDictionary(ticket, key::kJobType);
  if (job_type == nullptr) return code;
  CFDictionaryGetNumber(*job_type, key::job_type::kJobType, &code);
  LogLine("DEBUG: WriteJobType( %d )", code);
  DispatchJobType(output, code, *job_type, ticket);
  return code;
}

void WriteJobTypeNormal(FILE* output, const Dictionary&) {
  std::fputs("@PJL COMMENT OID_ATT_JOB_TYPE OID_VAL_JOB_TYPE_PRINT;\n", output);
}

void WriteJobTypeSampleSet(FILE* output, const Dictionary&) {
  std::fputs("@PJL COMMENT OID_ATT_JOB_TYPE OID_VAL_JOB_TYPE_PROOF_PRINT;\n", output);
}

void WriteJobTypeSecure(FILE* output, const Dictionary& job_type) {
  const std::string* password = DictionaryGetString(job_type, key::job_type::kSecurePrintPassword);
  if (password == nullptr) return;
  std::string scrambled(Utf8Prefix(*password, kLongestPassword));
  std::fputs("@PJL COMMENT OID_ATT_JOB_TYPE OID_VAL_JOB_TYPE_SECURE_PRINT;\n", output);
  p_encrypt(scrambled.data());
  // Written as a zero-terminated text: a byte that was scrambled to zero ends it.
  std::fprintf(output, "@PJL COMMENT OID_ATT_JOB_PASSWORD \"%s\";\n", scrambled.c_str());
}

void p_encrypt(char* pin) {
  const std::size_t length = std::strlen(pin);
  for (std::size_t i = 0; i < length && i < sizeof kPasswordKey; ++i)
    pin[i] = static_cast<char>(pin[i] ^ kPasswordKey[i]);
}

void WriteJobTypeSave(FILE* output, const Dictionary& job_type) {
  if (!DictionaryContains(job_type, key::job_type::kJobType)) return;
  std::int32_t code = kJobTypeNormal;
  CFDictionaryGetNumber(job_type, key::job_type::kJobType, &code);

  if (DictionaryGetString(job_type, key::job_type::kSecurePrintPassword) != nullptr) {
    WriteJobTypeSecure(output, job_type);
  } else {
    WriteJobTypeNormal(output, job_type);
  }
  if (code == kJobTypeSave) {
    std::int32_t disposition = kSaveOnly;
    CFDictionaryGetNumber(job_type, key::job_type::kSaveDisposition, &disposition);
    WriteSaveDisposition(output, disposition == kSaveAndPrint);
  } else if (code == kJobTypePrintAndSave) {
    WriteSaveDisposition(output, true);
  }
  WriteQuoted(output, "OID_ATT_SAVE_NAME", job_type, key::job_type::kSavedJobName);
  WriteQuoted(output, "OID_ATT_SAVE_LOCATION", job_type, key::job_type::kSavedJobLocation);
}

void WriteJobTypeDelayed(FILE* output, const Dictionary& job_type) {
  char when[1024] = "";
  std::int64_t seconds = 0;
  if (CFDictionaryGetNumber(job_type, key::job_type::kDelayedPrintTime, &seconds)) {
    const LongDateRec date = LongSecondsToDate(seconds);
    std::snprintf(when, sizeof when, "%04d%02d%02d%02d%02d%02d", date.year, date.month, date.day,
                  date.hour, date.minute, 0);
  }
  // Without a time the value stays empty; the printer then holds the job until it is released.
  std::fprintf(output, "@PJL COMMENT OID_ATT_JOB_PRINT_AFTER \"%s\";\n", when);
}

void getDelayDateAndTime(long hour, long minute, long isPM, char* dateTimeString,
                         const Clock& clock) {
  DateTimeRec date = CurrentDateTime(clock);
  const long hour24 = isPM != 0 ? hour + 12 : (hour == 12 ? 0 : hour);
  if (hour24 * 100 + minute < date.hour * 100 + date.minute) MoveToNextDay(&date);
  std::snprintf(dateTimeString, 32, "%04d%02d%02d%02ld%02ld00", date.year, date.month, date.day,
                hour, minute);
}

}  // namespace zarvo
