// SPDX-License-Identifier: Apache-2.0
// Where the settings of a house ticket come from, beside what somebody writes.
#pragma once

#include <string>
#include <vector>

#include "HouseTicket/HouseTicket.h"

namespace zarvo::tool {

/// The command line of the subcommands of "ticket" that keep tickets.
struct HouseTicketOptions {
  std::string name, other;
  std::string file = "-";
  std::string from, fromJob, queue, basedOn;
  std::vector<std::string> titles, mayOverride;
  bool shared = false, own = false, json = false, secrets = false, settings = false, force = false;
};

/// Tells of something that is no reason to stop.
void Note(const std::string& place, const std::string& text);

// Each gives false, having told why, when the settings cannot be had.

/// The settings of a job that the spooler knows.
bool ReadSpoolerJob(const HouseTicketOptions& options, HouseTicket* house);
/// The settings by which the filter wrote a file.
bool ReadWrittenJob(const HouseTicketOptions& options, HouseTicket* house);
/// Choices of a queue's PPD become the settings that they stand for.
bool Translate(const HouseTicketOptions& options, HouseTicket* house);

}  // namespace zarvo::tool
