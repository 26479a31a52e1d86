// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/JobSection.h"

#include <algorithm>

#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/Frame.h"
#include "CUPSFilter/jtmlgen/Job.h"
#include "Platform/Log.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

bool IsTrue(const Dictionary& dictionary, std::string_view key) {
  return DictionaryGetBoolean(dictionary, key).value_or(false);
}

int FillJobType(const Dictionary& job_type) {
  constexpr CodePair kJobTypes[] = {{kJobTypeHold, kJtmlHold},
                                    {kJobTypeSave, kJtmlSaveOnly},
                                    {kJobTypePrintAndSave, kJtmlPrintAndSave},
                                    {kJobTypeNoDisposition, kJtmlNoElement}};
  const std::int32_t type = NumberOr(job_type, key::job_type::kJobType, kJobTypeNormal);
  if (type == kJobTypeSave &&
      NumberOr(job_type, key::job_type::kSaveDisposition, kSaveOnly) == kSaveAndPrint)
    return kJtmlPrintAndSave;
  return MapCode(kJobTypes, type, kJtmlPlainJob);
}

int FillMimeMediaType(const Dictionary& job_type) {
  const std::int32_t type = NumberOr(job_type, key::job_type::kMediaType, 1);
  return type >= 1 && type <= 5 ? type - 1 : -1;
}

const char* FillSavedJobName(EscapedTexts* texts, const Dictionary& job_type,
                             const Dictionary& ticket) {
  return IsTrue(job_type, key::job_type::kUseJobName)
             ? texts->Take(ticket, key::kDocumentName)
             : texts->Take(job_type, key::job_type::kSavedJobName);
}

const char* FillSavedJobLocation(EscapedTexts* texts, const Dictionary& job_type) {
  const char* location = texts->Take(job_type, key::job_type::kSavedJobLocation);
  return location != nullptr ? location : "file:///job-repository/";
}

/// Fills the record from the job-type dictionary, which may be null, and the whole ticket. The
/// record's texts live in `texts`.
void FillJobTypeData(JobData* job, EscapedTexts* texts, const Dictionary* job_type,
                     const Dictionary& ticket) {
  const Dictionary none;
  const Dictionary& options = job_type != nullptr ? *job_type : none;
  job->nJobType = FillJobType(options);
  job->nMIMEMediaType = FillMimeMediaType(options);
  job->strSavedJobName = FillSavedJobName(texts, options, ticket);
  job->strSavedLocation = FillSavedJobLocation(texts, options);
}

/// An accounting identity as the printer takes it: at most 79 bytes.
std::string AccountingText(const Dictionary& ticket, std::string_view key) {
  const std::string* text = DictionaryGetString(ticket, key);
  return text != nullptr ? std::string(Utf8Prefix(*text, 79)) : std::string();
}

}  // namespace

void WriteJTMLJobNameAndUser(const Dictionary& ticket) {
  EscapedTexts texts;
  const char* job =
      texts.Take(ticket, IsTrue(ticket, key::kJobNotesUseJobName) ? key::kDocumentName
                                                                  : key::kJobNotesJobName);
  const char* user = texts.Take(ticket, key::kJobNotesSenderName);
  if (job != nullptr && user != nullptr) WriteJtmlOpAttrib(&writeData, 0, job, user);
}

void WriteJTMLJobNotes(const Dictionary& ticket) {
  EscapedTexts texts;
  JobNoteData notes;
  notes.strJobMsg = texts.Take(ticket, key::kJobNotesMessage);
  notes.strJobRecipient = texts.Take(ticket, key::kJobNotesRecipient);
  notes.strJobSheetMsg = texts.Take(ticket, key::kJobNotesSheetMessage);
  notes.strJobAdditionalInfo = texts.Take(ticket, key::kJobNotesAdditionalInfo);
  WriteJtmlJobNotes(&writeData, &notes);
}

void WriteJTMLJobType(const Dictionary& ticket) {
  EscapedTexts texts;
  JobData job;
  FillJobTypeData(&job, &texts, DictionaryGetDictionary(ticket, key::kJobType), ticket);
  WriteJtmlJobTypes(&writeData, &job);
}

void WriteJTMLAccounting(const Dictionary& ticket) {
  LogLine("DEBUG: Ticket is valid");
  const std::optional<std::int32_t> on = NumberIfPresent(ticket, key::kXmlAccounting);
  if (!on) {
    LogLine("DEBUG: No accounting ticket present");
    return;
  }
  LogLine("DEBUG: Found accounting key: %d", *on);
  if (*on != kUserAndAccount) return;
  LogLine("DEBUG: Accounting is enabled");
  const std::string user = AccountingText(ticket, key::kXmlAccountUser);
  const std::string account = AccountingText(ticket, key::kXmlAccount);
  // Prescribed as it is, and the only line that tells an account; administrators are told of it.
  LogLine("DEBUG: user id %s, acct id %s", user.c_str(), account.c_str());
  WriteJtmlAccounting(&writeData, XMLCreateStringByEscapingEntities(user).c_str(),
                      XMLCreateStringByEscapingEntities(account).c_str());
}

void WriteJTMLPagesToPrint(const Dictionary& ticket) {
  if (NumberOr(ticket, key::kPagesToPrintSelected, 0) != 1) return;
  const std::int32_t from = NumberOr(ticket, key::kPagesToPrintFrom, 0);
  const std::int32_t to = NumberOr(ticket, key::kPagesToPrintTo, 0);
  if (from > 0 && to > 0) {
    WriteJtmlPageRanges(&writeData, std::min(from, to), std::max(from, to));
  }
}

}  // namespace zarvo
