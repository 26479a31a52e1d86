// SPDX-License-Identifier: Apache-2.0
// What the ticket and the options ask of the filter itself, as far as the driver and the copy pass
// need to know it.
#pragma once

#include <cups/cups.h>

#include <cstdint>
#include <optional>
#include <string>

#include "CUPSFilter/CopyPass/Copies.h"
#include "CUPSFilter/JobNotices.h"
#include "Platform/Value.h"
#include "Source/TicketNames.h"
#include "Source/WatermarkSupport.h"

namespace zarvo {

/// The job's watermark. It is a text watermark when `data.textString` is not empty.
struct WatermarkChoice {
  std::int32_t watermark_option = kWatermarkOverlay;
  bool watermarkFirstPageOnly = false;
  /// How far all pages lie turned on their sheets, in quarter turns counterclockwise; without it
  /// that is found out. Only jobs with page hooks have it.
  std::optional<int> turn;
  WatermarkData watermarkData{};

  bool IsText() const { return watermarkData.textString[0] != '\0'; }
};

struct JobSettings {
  std::int32_t emitJTML = 1;  ///< the XML ticket is written only when this is exactly 1
  bool booklet = false;
  int mediaWidth = 0;   ///< whole points
  int mediaLength = 0;  ///< whole points
  bool invertImage = false;
  bool flipHorizontal = false;
  std::string sides = "one-sided";
  std::optional<std::string> zarvoJobName;
  std::optional<std::string> zarvoJobPassword;
  std::optional<WatermarkChoice> watermark;
  // From the PPD, not from the ticket:
  bool pageHooks = false;    ///< see PageHooks.h
  bool failClosed = false;   ///< see QueuePolicy.h
  bool keepsSecret = false;  ///< the ticket has a PIN or makes a fax of the job
  CopyPlan copies;           ///< nothing is done about copies without its PPD attribute
};

/// Reads the settings. A key that is missing or of a wrong type leaves its start value; the page
/// variables must be set already. Loads the chosen watermark from its store; one that is not there
/// is noted, also that of a fax cover.
JobSettings ReadJobSettings(const Dictionary& ticket, int num_options, cups_option_t* options,
                            JobNotices* notices);

}  // namespace zarvo
