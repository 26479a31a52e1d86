// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/Sections.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/JtmlWriters.h"
#include "Platform/Log.h"
#include "Source/CFAdditions.h"

namespace zarvo {
namespace {

constexpr char kJobType[] = "com.zarvo.print.JobType";

/// The offsets. Unlike the shifts of a job they are inches when the ticket doesn't say, and their
/// unit is a tenth as large.
void FillBGFormsOffset(_BGFORMSDATA* forms, const Dictionary& options) {
  forms->nXSide1ImgShift = NumberOr(options, "X1", 0);
  forms->nYSide1ImgShift = NumberOr(options, "Y1", 0);
  if (HasFullPrecision(options)) return;
  const double factor = NumberOr(options, "Inches", 1) == 1 ? 254 : 100;
  forms->nXSide1ImgShift = Scaled(forms->nXSide1ImgShift, factor);
  forms->nYSide1ImgShift = Scaled(forms->nYSide1ImgShift, factor);
}

/// Fills the record from the forms dictionary and the whole ticket. The record's texts live in
/// `texts`.
void FillBGFormsData(_BGFORMSDATA* forms, EscapedTexts* texts, const Dictionary& options,
                     const Dictionary& ticket) {
  forms->strNewFormName = NumberOr(options, "UseDocumentName", 0) == 1
                              ? texts->Take(ticket, "com.apple.print.JobInfo.PMJobName")
                              : texts->Take(options, "NewFormString");
  forms->strExistingFormName = texts->Take(options, "MergeWithString");
  forms->nCyclePages = NumberOr(options, "CyclePages", 0);
  FillBGFormsOffset(forms, options);
}

}  // namespace

void WriteJTMLBackgroundForms(const Dictionary& ticket) {
  LogLine("DEBUG: ******* WriteJTMLBackgroundForms");
  LogLine("DEBUG: ******* WriteJTMLBackgroundForms: valid ticket");
  const Dictionary* options =
      DictionaryGetDictionary(ticket, "com.zarvo.print.BackgroundFormsOptions");
  if (options == nullptr) return;
  LogLine("DEBUG: ******* WriteJTMLBackgroundForms: valid bg options ticket");
  if (DictionaryContains(ticket, kJobType)) {
    const Dictionary* job_type = DictionaryGetDictionary(ticket, kJobType);
    LogLine("DEBUG: ******** jobType = %d",
            job_type != nullptr ? NumberOr(*job_type, "JobType", 0) : 0);
  }

  EscapedTexts texts;
  _BGFORMSDATA forms;
  FillBGFormsData(&forms, &texts, *options, ticket);
  WriteJtmlBackgroundForms(&writeData, &forms);
}

}  // namespace zarvo
