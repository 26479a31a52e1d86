// SPDX-License-Identifier: Apache-2.0
// Which setting of a ticket has the filter say what.
//
// Nothing of it is written down a second time: every value of every key that the table of ticket
// keys knows is written by the filter's own writers, and what is new in their text is what that
// value says.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Value.h"
#include "Source/TicketKeys.h"
#include "Tools/zarvo/ticket/WrittenJob.h"

namespace zarvo::tool {

/// Where settings are: how they get into a ticket, and which sayings are about them.
struct SettingScope {
  std::function<Dictionary(Dictionary settings)> ticket;
  std::function<Sayings(const WrittenJob& job)> sayings;
};

/// What certain settings say, and nothing else does.
struct KnownValue {
  Dictionary settings;
  Sayings sayings;
};

/// A key whose value stands in the saying as it is: a text, or a number.
struct KnownKey {
  std::vector<std::string> path;
  bool number = false;
  Dictionary needs;    ///< settings without which it is not read
  std::string saying;  ///< the saying's path
};

struct KnownSettings {
  std::vector<KnownValue> values;
  std::vector<KnownKey> keys;
};

/// Learns about the keys of a group, and of the groups in it but for those in `without`.
KnownSettings LearnSettings(std::span<const TicketKey> keys, const SettingScope& scope,
                            const std::vector<std::string_view>& without = {});

/// Finds settings by which all that can be explained of the sayings is said; explained ones are
/// taken out.
Dictionary SettingsThatSay(const KnownSettings& known, Sayings* sayings);

}  // namespace zarvo::tool
