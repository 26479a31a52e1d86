// SPDX-License-Identifier: Apache-2.0
// What of a ticket a picture needs, as options of a job.
#pragma once

#include <string>

#include "Platform/Failure.h"
#include "Platform/Value.h"

namespace zarvo::desk {

/// The ticket with everything in it that is secret and on no picture replaced by something that
/// takes its place: PINs, accounts, fax numbers. Equal numbers stay equal.
Dictionary MaskedTicket(const Dictionary& ticket);

/// Whether an option of the spooler is as secret as the ticket's PINs and accounts.
bool IsSecretOption(std::string_view name);

struct RenderSettings {
  std::string options;            ///< all of them
  std::string converter_options;  ///< those that work before the filter
  int copies = 1;
  /// Those that pages after the first show: without a mark that the first one alone has.
  std::string later_options;
  bool marked_at_first = true;  ///< no page but the first has a mark
  /// Whether the pages can be drawn one by one, each by itself: no booklet, no several pages on
  /// one.
  bool page_by_page = true;

  bool operator==(const RenderSettings&) const = default;
};

/// Fails when the ticket cannot be a job's. `renderer` is the queue's own converter of PDF files,
/// or empty for the best one.
Failure MakeRenderSettings(const Dictionary& ticket, const std::string& renderer,
                           RenderSettings* settings);

}  // namespace zarvo::desk
