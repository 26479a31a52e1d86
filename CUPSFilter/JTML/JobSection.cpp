// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "CUPSFilter/JTML/Sections.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"
#include "Platform/Log.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"

namespace zarvo {
namespace {

constexpr char kDocumentName[] = "com.apple.print.JobInfo.PMJobName";

bool IsTrue(const Dictionary& dictionary, std::string_view key) {
  return DictionaryGetBoolean(dictionary, key).value_or(false);
}

/// The disposition of a saved job that prints as well.
constexpr std::int32_t kPrintAndSave = 2;

int FillJobType(const Dictionary& job_type) {
  constexpr CodePair kJobTypes[] = {{2, 1}, {3, 2}, {4, 3}, {9, 4}};
  const std::int32_t type = NumberOr(job_type, "JobType", 1);
  if (type == 3 && NumberOr(job_type, "SaveDisposition", 3) == kPrintAndSave) return 3;
  return MapCode(kJobTypes, type, 0);
}

int FillMimeMediaType(const Dictionary& job_type) {
  const std::int32_t type = NumberOr(job_type, "MediaType", 1);
  return type >= 1 && type <= 5 ? type - 1 : -1;
}

const char* FillSavedJobName(EscapedTexts* texts, const Dictionary& job_type,
                             const Dictionary& ticket) {
  return IsTrue(job_type, "UseJobName") ? texts->Take(ticket, kDocumentName)
                                        : texts->Take(job_type, "SavedJobName");
}

const char* FillSavedJobLocation(EscapedTexts* texts, const Dictionary& job_type) {
  const char* location = texts->Take(job_type, "SavedJobLocation");
  return location != nullptr ? location : "file:///job-repository/";
}

/// Fills the record from the job-type dictionary, which may be null, and the whole ticket. The
/// record's texts live in `texts`.
void FillJobTypeData(_JOBDATA* job, EscapedTexts* texts, const Dictionary* job_type,
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
  const char* job = texts.Take(ticket, IsTrue(ticket, "com.zarvo.print.JobNotesUseJobName")
                                           ? kDocumentName
                                           : "com.zarvo.print.JobNotesJobName");
  const char* user = texts.Take(ticket, "com.zarvo.print.JobNotesSenderName");
  if (job != nullptr && user != nullptr) WriteJtmlOpAttrib(&writeData, 0, job, user);
}

void WriteJTMLJobNotes(const Dictionary& ticket) {
  EscapedTexts texts;
  _JOBNOTEDATA notes;
  notes.strJobMsg = texts.Take(ticket, "com.zarvo.print.JobNotesMessage");
  notes.strJobRecipient = texts.Take(ticket, "com.zarvo.print.JobNotesRecipient");
  notes.strJobSheetMsg = texts.Take(ticket, "com.zarvo.print.JobNotesSheetMessage");
  notes.strJobAdditionalInfo = texts.Take(ticket, "com.zarvo.print.JobNotesAdditionalInfo");
  WriteJtmlJobNotes(&writeData, &notes);
}

void WriteJTMLJobType(const Dictionary& ticket) {
  EscapedTexts texts;
  _JOBDATA job;
  FillJobTypeData(&job, &texts, DictionaryGetDictionary(ticket, "com.zarvo.print.JobType"), ticket);
  WriteJtmlJobTypes(&writeData, &job);
}

void WriteJTMLAccounting(const Dictionary& ticket) {
  constexpr std::int32_t kUserAndAccount = 3;
  LogLine("DEBUG: Ticket is valid");
  const std::optional<std::int32_t> on = NumberIfPresent(ticket, "com.zarvo.Act.jtml.On");
  if (!on) {
    LogLine("DEBUG: No accounting ticket present");
    return;
  }
  LogLine("DEBUG: Found accounting key: %d", *on);
  if (*on != kUserAndAccount) return;
  LogLine("DEBUG: Accounting is enabled");
  const std::string user = AccountingText(ticket, "com.zarvo.Act.jtml.UID");
  const std::string account = AccountingText(ticket, "com.zarvo.Act.jtml.AID");
  LogLine("DEBUG: user id %s, acct id %s", user.c_str(), account.c_str());
  WriteJtmlAccounting(&writeData, XMLCreateStringByEscapingEntities(user).c_str(),
                      XMLCreateStringByEscapingEntities(account).c_str());
}

void WriteJTMLPagesToPrint(const Dictionary& ticket) {
  if (NumberOr(ticket, "com.zarvo.print.PagesToPrintSelected", 0) != 1) return;
  const std::int32_t from = NumberOr(ticket, "com.zarvo.print.PagesToPrintFrom", 0);
  const std::int32_t to = NumberOr(ticket, "com.zarvo.print.PagesToPrintTo", 0);
  if (from > 0 && to > 0) {
    WriteJtmlPageRanges(&writeData, std::min(from, to), std::max(from, to));
  }
}

}  // namespace zarvo
