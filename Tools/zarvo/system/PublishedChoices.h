// SPDX-License-Identifier: Apache-2.0
// Choices that a site adds to an option of a queue's PPD, so that every dialog offers them.
//
// The PPD gets, for each, a choice and the ticket options that it stands for. Lines that were added
// are told by a comment of their own on the line before them, and publishing starts by taking those
// out, so that it can be done again whenever the site's store has changed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Platform/Failure.h"

namespace zarvo::tool {

struct PublishedChoice {
  std::string title;   ///< what dialogs show, UTF-8
  std::string ticket;  ///< the ticket options, as in a ZRVTicket attribute
};

/// The PPD with these choices at the end of the option's own, in place of those published before.
/// A title that is one of the PPD's own choices is left as it is. Fails when the PPD has no such
/// option.
Failure PublishChoices(std::string_view ppd, const std::string& option,
                       const std::vector<PublishedChoice>& choices, std::string* changed);

/// Gives the queue the PPD. An exit status; what failed is told.
int InstallPpd(const std::string& queue, const std::string& ppd);

}  // namespace zarvo::tool
