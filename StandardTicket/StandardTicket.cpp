// SPDX-License-Identifier: Apache-2.0
#include "StandardTicket/StandardTicket.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "StandardTicket/AttributeTable.h"
#include "StandardTicket/Mapping.h"

namespace zarvo {
namespace {

constexpr std::string_view kStandard[] = {"confirmation-sheet-print",
                                          "copies",
                                          "cover-back",
                                          "cover-front",
                                          "cover-sheet-info",
                                          "destination-uris",
                                          "finishings",
                                          "finishings-col",
                                          "force-front-side",
                                          "image-orientation",
                                          "imposition-template",
                                          "insert-sheet",
                                          "job-account-id",
                                          "job-account-type",
                                          "job-accounting-user-id",
                                          "job-billing",
                                          "job-delay-output-until",
                                          "job-delay-output-until-time",
                                          "job-message-to-operator",
                                          "job-name",
                                          "job-originating-user-name",
                                          "job-password",
                                          "job-password-encryption",
                                          "job-phone-number",
                                          "job-recipient-name",
                                          "job-release-action",
                                          "job-save-disposition",
                                          "job-sheet-message",
                                          "job-storage",
                                          "media",
                                          "media-col",
                                          "media-color",
                                          "media-input-tray-check",
                                          "media-overprint",
                                          "media-source",
                                          "media-type",
                                          "multiple-document-handling",
                                          "number-of-retries",
                                          "number-up",
                                          "orientation-requested",
                                          "output-bin",
                                          "overrides",
                                          "page-delivery",
                                          "page-ranges",
                                          "presentation-direction-number-up",
                                          "print-color-mode",
                                          "print-color-mode-icc-profiles",
                                          "print-content-optimize",
                                          "print-quality",
                                          "print-rendering-intent",
                                          "print-scaling",
                                          "printer-resolution",
                                          "proof-copies",
                                          "proof-print",
                                          "retry-interval",
                                          "retry-time-out",
                                          "separator-sheets",
                                          "sheet-collate",
                                          "sides",
                                          "x-image-position",
                                          "x-image-shift",
                                          "x-side1-image-shift",
                                          "x-side2-image-shift",
                                          "y-image-position",
                                          "y-image-shift",
                                          "y-side1-image-shift",
                                          "y-side2-image-shift"};

}  // namespace

bool IsStandardAttribute(const std::string& name) {
  return std::binary_search(std::begin(kStandard), std::end(kStandard), std::string_view(name));
}

StandardTicket MapStandardAttributes(ipp_t* attributes, std::int64_t local_now) {
  Mapping mapping;
  MapWords(attributes, &mapping);
  MapFinishing(attributes, &mapping);
  MapJobStock(attributes, &mapping);
  MapSpecialPages(attributes, &mapping);
  const bool fax = MapFax(attributes, &mapping);
  MapJobType(attributes, local_now, fax, &mapping);
  MapAccounting(attributes, &mapping);
  return mapping.Take();
}

}  // namespace zarvo
