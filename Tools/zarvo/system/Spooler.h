// SPDX-License-Identifier: Apache-2.0
// The way to the spooler.
#pragma once

#include <cups/cups.h>

#include <memory>

namespace zarvo::tool {

using SpoolerConnection = std::unique_ptr<http_t, decltype(&httpClose)>;

inline constexpr char kNoAnswer[] =
    "the spooler does not answer; start it, for example with \"systemctl start cups\"";

/// To the spooler that the environment names; null when it does not answer within ten seconds.
SpoolerConnection ConnectToSpooler();

}  // namespace zarvo::tool
