// SPDX-License-Identifier: Apache-2.0
// A job's header and XML ticket as single sayings, whoever wrote them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/Value.h"

namespace zarvo::tool {

/// One thing that is said: a PJL attribute ("OID_ATT_JOB_TYPE") or an XML element with those it
/// stands in ("printer-resolution/units"), and its text.
struct Saying {
  std::string path;
  std::string text;

  bool operator==(const Saying&) const = default;
};
using Sayings = std::vector<Saying>;

struct WrittenJob {
  Sayings job;  ///< of the whole job: the header's, then the XML ticket's, in their order
  /// What is said of a cover, of each insert and of each page exception, by the element
  /// ("cover-front", "cover-back", "insert-sheet", "page-overrides"); paths begin below it.
  std::map<std::string, std::vector<Sayings>> special;
  std::string text;  ///< header and XML ticket as they stand

  bool operator==(const WrittenJob&) const = default;
};

/// Takes header lines and XML ticket (may be empty) apart. Fails when the XML is damaged.
Failure TakeApart(const std::vector<std::string>& pjl, const std::string& xml, WrittenJob* job);

/// What the filter writes for a ticket; of a stock without a size it says that of the job's pages,
/// when one is known.
enum class PageSize { kUnknown, kLetter };
WrittenJob WriteJob(const Dictionary& ticket, PageSize size = PageSize::kUnknown);

}  // namespace zarvo::tool
