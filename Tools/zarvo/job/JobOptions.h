// SPDX-License-Identifier: Apache-2.0
// What preview and print have in common: the options of a job, from the command line and from
// settings in the readable form.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/Value.h"

namespace CLI {
class App;
}

namespace zarvo::tool {

struct JobOptions {
  std::vector<std::string> options;  ///< each one the text of an "-o"
  std::string settings;              ///< file of the readable form; empty for none
  std::string house;                 ///< name of a house ticket that all this goes over; or empty
};

/// Declares the option "--ticket".
void AddHouseOption(CLI::App& app, JobOptions* job);

/// The options as one text, or nothing, having told why. Doubtful settings are told on standard
/// error and do not hinder; `told` (may be null) gets the texts. What settings lack is for those to
/// tell who know all options and the PPD: the filter, and OptionFaults.
/// The options count on a queue with that PPD file (empty: none) over the house ticket, which is
/// resolved here, from the user's own store and the shared one; a secure job's PIN is asked for at
/// the terminal when nothing gives one.
std::optional<std::string> OptionTextOf(const JobOptions& job, const std::string& ppd_file,
                                        std::vector<std::string>* told = nullptr);

/// The same of settings that have been read; `place` says whose they are.
std::optional<std::string> OptionTextOf(const std::vector<std::string>& options,
                                        const Dictionary& ticket, const std::string& place,
                                        std::vector<std::string>* told);

/// Puts other digits in place of every PIN in the text of options, which becomes the argument of
/// programs, for everybody to read, that do no more than draw the job. Fails where the job would
/// not be printed because of its PIN; what it then holds of it is nobody's business either.
Failure HidePins(std::string* options);

}  // namespace zarvo::tool
