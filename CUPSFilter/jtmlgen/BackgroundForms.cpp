// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/BackgroundForms.h"

#include "CUPSFilter/jtmlgen/Emit.h"
#include "Platform/Text.h"

namespace zarvo {
namespace {

/// An escaped name cut to what the form repository takes.
std::string_view FormName(std::string_view name) {
  constexpr std::size_t kLongestName = 255;
  if (name.size() <= kLongestName) return name;
  const std::string_view cut = Utf8Prefix(name, kLongestName);
  const std::size_t entity = cut.rfind('&');
  const bool whole =
      entity == std::string_view::npos || cut.find(';', entity) != std::string_view::npos;
  return whole ? cut : cut.substr(0, entity);
}

}  // namespace

JtmlGenError WriteJtmlBackgroundForms(const JtmlSink* sink, const FormsData* forms) {
  const auto send = [sink](const std::string& line) { SendUncounted(sink, line); };
  if (forms->strNewFormName != nullptr) {
    send(StartLine(2, "form-save", Syntax::kCollection));
    send(Element(3, "form-save-disposition", Syntax::kKeyword, "save-only"));
    send(StartLine(3, "form-save-info", Syntax::kSetOf));
    send(StartLine(4, "value", Syntax::kCollection));
    send(Element(5, "form-save-location", Syntax::kUri, "file:///form-repository/"));
    send(Element(5, "form-save-name", Syntax::kName, FormName(forms->strNewFormName)));
    send(Element(5, "form-save-format", Syntax::kMimeMediaType, "application/X-single-page-tiff"));
    send(EndLine(4, "value"));
    send(EndLine(3, "form-save-info"));
    send(EndLine(2, "form-save"));
  }
  if (forms->strExistingFormName != nullptr) {
    send(StartLine(2, "forms-col", Syntax::kSetOf));
    send(StartLine(3, "value", Syntax::kCollection));
    send(Element(4, "form-name", Syntax::kName, FormName(forms->strExistingFormName)));
    send(Element(4, "form-cycle-start", forms->nCyclePages));
    send(Element(4, "forms-x-image-shift", forms->nXSide1ImgShift));
    send(Element(4, "forms-y-image-shift", forms->nYSide1ImgShift));
    send(EndLine(3, "value"));
    send(EndLine(2, "forms-col"));
  }
  return JTML_SUCCESS;
}

}  // namespace zarvo
