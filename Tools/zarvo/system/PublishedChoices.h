// SPDX-License-Identifier: Apache-2.0
// Choices that a site adds to an option of a queue's PPD, so that every dialog offers them.
//
// The PPD gets, for each, a choice and the ticket options that it stands for. Lines that were added
// are told by a comment of their own on the line before them, and publishing starts by taking those
// out, so that it can be done again whenever the site's store has changed.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Failure.h"

namespace zarvo::tool {

struct PublishedChoice {
  std::string title;   ///< what dialogs show, UTF-8
  std::string ticket;  ///< the ticket options, as in a ZRVTicket attribute
  std::map<std::string, std::string> titles = {};  ///< by language, where they are others
  /// The choice's keyword, if nothing else has it; empty: one is made from the title, and a title
  /// that is one of the PPD's own choices is left as it is.
  std::string keyword = "";
  /// Keywords of attributes that have the choice as theirs, such as "APPrinterPreset".
  std::vector<std::string> attributes = {};
};

/// The PPD with these choices at the end of the option's own, in place of those published before;
/// without choices, only that those are gone. Fails when the PPD has no such option. A reserved
/// keyword is only given to the choice that wants just that.
Failure PublishChoices(std::string_view ppd, const std::string& option,
                       const std::vector<PublishedChoice>& choices, std::string* changed,
                       const std::vector<std::string>& reserved = {});

/// The lines that published choices of the option have put into the PPD.
std::vector<std::string> PublishedLines(std::string_view ppd, const std::string& option);

/// A value of a ZRVTicket attribute, in quotes; a double quote would end the attribute.
std::string TicketValue(const std::string& value);

/// Gives the queue the PPD, when no job is under way there: it waits, and says so. An exit status;
/// what failed is told.
int InstallPpd(const std::string& queue, const std::string& ppd);

}  // namespace zarvo::tool
