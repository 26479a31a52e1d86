// SPDX-License-Identifier: Apache-2.0
// From a file to what the printer gets: what the spooler and the filter would make of it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Platform/Failure.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {

struct JobSource {
  std::string file;
  std::string title;
  std::string ppd;      ///< empty for none
  std::string options;  ///< as lp takes them
  int copies = 1;
};

/// Hears of the pages: how many have come out, and how many are announced or 0.
using PageListener = std::function<void(std::uint64_t, std::uint64_t)>;

/// Has the spooler's programs and the filter make a job of the file and takes its PostScript apart.
/// They work at the same time, so that the first pages come out early. `complaints` gets what the
/// filter has to say about what it left out.
Failure MakeJob(const JobSource& source, const ScratchFolder& scratch, const PageListener& page,
                PostScriptFiles* split, std::vector<Complaint>* complaints);

/// The first half of the same: what the spooler's programs make of the file, into `output`. It does
/// not depend on the settings of the ticket, so one conversion serves for many of them.
Failure ConvertJob(const JobSource& source, const ScratchFolder& scratch,
                   const std::string& output);

/// The second half: the filter's job of a file that has been converted, taken apart.
Failure FilterJob(const JobSource& source, const ScratchFolder& scratch, PostScriptFiles* split,
                  std::vector<Complaint>* complaints);

}  // namespace zarvo::tool
