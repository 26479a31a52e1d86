// SPDX-License-Identifier: Apache-2.0
// The way to the spooler.
#pragma once

#include <cups/cups.h>

#include <memory>
#include <string>

#include "Platform/Phrase.h"
namespace zarvo::tool {

using SpoolerConnection = std::unique_ptr<http_t, decltype(&httpClose)>;

inline constexpr const char* kNoAnswer =
    PhraseText("the spooler does not answer; start it, for example with \"systemctl start cups\"")
        .data();

/// To the spooler that the environment names; null when it does not answer within ten seconds.
SpoolerConnection ConnectToSpooler();

struct FreeDestination {
  void operator()(cups_dest_t* destination) const { cupsFreeDests(1, destination); }
};
using Destination = std::unique_ptr<cups_dest_t, FreeDestination>;

/// The queue with all its options: what it does by itself, and over that what the user (or whoever
/// looks after the machine) keeps for it with lpoptions. Null when there is no such queue.
Destination FindDestination(const std::string& queue);

}  // namespace zarvo::tool
