// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Job.h"

#include "CUPSFilter/jtmlgen/Emit.h"

namespace zarvo {
namespace {

constexpr Keyword kSaveDispositions[] = {
    {kJtmlPlainJob, "none"}, {kJtmlSaveOnly, "save-only"}, {kJtmlPrintAndSave, "print-save"}};
constexpr Keyword kSaveFormats[] = {{0, "application/X-single-page-tiff"},
                                    {1, "application/X-multi-page-tiff"},
                                    {2, "application/pdf"},
                                    {3, "application/X-fast-reprint"},
                                    {4, "application/X-fast-reprint-and-dri"}};

/// A text of any length, in three pieces.
void SendText(const JtmlSink* sink, const char* name, const char* text) {
  if (text == nullptr) return;
  Send(sink, "\t\t" + OpenTag(name, Syntax::kText));
  Send(sink, text);
  Send(sink, EndLine(0, name));
}

}  // namespace

JtmlGenError WriteJtmlJobNotes(const JtmlSink* sink, const JobNoteData* notes) {
  SendText(sink, "job-message-to-operator", notes->strJobMsg);
  if (notes->strJobRecipient != nullptr) {
    Send(sink, Element(2, "job-recipient-name", Syntax::kName, notes->strJobRecipient));
  }
  SendText(sink, "job-sheet-message", notes->strJobSheetMsg);
  SendText(sink, "job-accounting-data", notes->strJobAdditionalInfo);
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlJobTypes(const JtmlSink* sink, const JobData* job) {
  const int type = job->nJobType;
  const bool collection = type != kJtmlHold && type != kJtmlNoElement;
  std::string text;
  if (collection) text = StartLine(2, "job-save-disposition", Syntax::kCollection);
  if (type == kJtmlHold) text = Element(3, "job-hold-until", Syntax::kKeyword, "indefinite");
  if (const char* disposition = FindKeyword(kSaveDispositions, type)) {
    text += Element(3, "save-disposition", Syntax::kKeyword, disposition);
  }
  if (!text.empty()) Send(sink, text);

  if (type == kJtmlSaveOnly || type == kJtmlPrintAndSave) {
    const char* format = FindKeyword(kSaveFormats, job->nMIMEMediaType);
    Send(sink,
         StartLine(3, "save-info", Syntax::kSetOf) + StartLine(4, "value", Syntax::kCollection) +
             Element(5, "save-location", Syntax::kUri, TextOrEmpty(job->strSavedLocation)) +
             Element(5, "save-name", Syntax::kName, TextOrEmpty(job->strSavedJobName)) +
             (format != nullptr ? Element(5, "save-document-format", Syntax::kMimeMediaType, format)
                                : "") +
             EndLine(4, "value") + EndLine(3, "save-info"));
  }
  if (collection) Send(sink, EndLine(2, "job-save-disposition"));
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlAccounting(const JtmlSink* sink, const char* inUserID,
                                 const char* inAccountID) {
  SendUncounted(sink, Element(2, "job-accounting-user-id", Syntax::kName, TextOrEmpty(inUserID)));
  // The two tags do not match; the printer reads the element this way.
  SendUncounted(sink, "\t\t" + OpenTag("job-account-id", Syntax::kName) + TextOrEmpty(inAccountID) +
                          EndLine(0, "job-accounting-id"));
  return JTML_SUCCESS;
}

JtmlGenError WriteJtmlPageRanges(const JtmlSink* sink, std::int32_t fromPage, std::int32_t toPage) {
  SendUncounted(sink, StartLine(2, "page-ranges", Syntax::kSetOf) +
                          StartLine(3, "value", Syntax::kRangeOfInteger));
  SendUncounted(sink, Element(4, "lower-bound", fromPage));
  SendUncounted(sink, Element(4, "upper-bound", toPage));
  SendUncounted(sink, EndLine(3, "value") + EndLine(2, "page-ranges"));
  return JTML_SUCCESS;
}

}  // namespace zarvo
