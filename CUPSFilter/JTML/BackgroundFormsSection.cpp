// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JTML/BackgroundFormsSection.h"

#include "CUPSFilter/JTML/JTML.h"
#include "CUPSFilter/JTML/TicketReading.h"
#include "CUPSFilter/jtmlgen/BackgroundForms.h"
#include "Platform/Log.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

/// The offsets. Unlike the shifts of a job they are inches when the ticket doesn't say, and their
/// unit is a tenth as large.
void FillBGFormsOffset(FormsData* forms, const Dictionary& options) {
  forms->nXSide1ImgShift = NumberOr(options, key::shift::kX1, 0);
  forms->nYSide1ImgShift = NumberOr(options, key::shift::kY1, 0);
  if (HasFullPrecision(options)) return;
  const double factor = NumberOr(options, key::shift::kInches, 1) == 1 ? 254 : 100;
  forms->nXSide1ImgShift = Scaled(forms->nXSide1ImgShift, factor);
  forms->nYSide1ImgShift = Scaled(forms->nYSide1ImgShift, factor);
}

/// Fills the record from the forms dictionary and the whole ticket. The record's texts live in
/// `texts`.
void FillBGFormsData(FormsData* forms, EscapedTexts* texts, const Dictionary& options,
                     const Dictionary& ticket) {
  forms->strNewFormName = NumberOr(options, key::forms::kUseDocumentName, 0) == 1
                              ? texts->Take(ticket, key::kDocumentName)
                              : texts->Take(options, key::forms::kNewFormString);
  forms->strExistingFormName = texts->Take(options, key::forms::kMergeWithString);
  forms->nCyclePages = NumberOr(options, key::forms::kCyclePages, 0);
  FillBGFormsOffset(forms, options);
}

}  // namespace

void WriteJTMLBackgroundForms(const Dictionary& ticket) {
  LogLine("DEBUG: ******* WriteJTMLBackgroundForms");
  LogLine("DEBUG: ******* WriteJTMLBackgroundForms: valid ticket");
  const Dictionary* options = DictionaryGetDictionary(ticket, key::kBackgroundFormsOptions);
  if (options == nullptr) return;
  LogLine("DEBUG: ******* WriteJTMLBackgroundForms: valid bg options ticket");
  if (DictionaryContains(ticket, key::kJobType)) {
    const Dictionary* job_type = DictionaryGetDictionary(ticket, key::kJobType);
    LogLine("DEBUG: ******** jobType = %d",
            job_type != nullptr ? NumberOr(*job_type, key::job_type::kJobType, 0) : 0);
  }

  EscapedTexts texts;
  FormsData forms;
  FillBGFormsData(&forms, &texts, *options, ticket);
  WriteJtmlBackgroundForms(&writeData, &forms);
}

}  // namespace zarvo
