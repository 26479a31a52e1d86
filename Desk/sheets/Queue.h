// SPDX-License-Identifier: Apache-2.0
// What the desktop program wants to know of the spooler's queues. A spooler that does not answer
// keeps nobody waiting but the process that asks.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace zarvo::desk {

/// {"queues": [{"name", "info", "state": 3 idle, 4 printing, 5 stopped, "accepting", "reason",
/// "default"}]}, or {"failure"}.
nlohmann::json DescribeQueues();

/// Puts a copy of the queue's PPD file under that name: {"ppd", "renderer", "ours",
/// "saved": the options that the user keeps for the queue with lpoptions}, or {"failure"}.
nlohmann::json FetchQueue(const std::string& queue, const std::string& file);

/// {"defaults": what the PPD's default choices stand for, with those saved options over them, as
/// the JSON of a ticket}.
nlohmann::json DescribeDefaults(const std::string& ppd, const nlohmann::json& saved);

}  // namespace zarvo::desk
