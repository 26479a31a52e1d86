// SPDX-License-Identifier: Apache-2.0
// The ticket of a fuzzed job.
#pragma once

#include <cups/cups.h>

#include <string>
#include <vector>

#include "CUPSFilter/JobSettings.h"
#include "CUPSFilter/Options/ParseOptions.h"

namespace zarvo {

struct FuzzedTicket {
  Dictionary ticket;
  JobSettings settings;
};

/// The ticket and settings of an option text, decoded as the filter does it. No program is ever
/// started for it: neither a cover sheet nor an image.
inline FuzzedTicket DecodeTicket(const std::string& text) {
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &options);
  FuzzedTicket job;
  const std::vector<cups_option_t> ordered = NaturalOrder(count, options);
  job.ticket = ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
  if (const auto fax = job.ticket.find("com.zarvo.print.FaxOptions"); fax != job.ticket.end()) {
    if (Dictionary* fax_options = fax->second.AsDictionary()) fax_options->erase("CoverSheet");
  }
  JobNotices untold(false);
  job.settings = ReadJobSettings(job.ticket, count, options, &untold);
  cupsFreeOptions(count, options);
  if (job.settings.watermark) job.settings.watermark->watermarkData.filePath[0] = '\0';
  return job;
}

}  // namespace zarvo
