// SPDX-License-Identifier: Apache-2.0
// What the themes of the mapper have in common: the settings that are made, the reasons that are
// given, and the way through a collection.
#pragma once

#include <cups/ipp.h>

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "StandardTicket/Attribute.h"
#include "StandardTicket/StandardTicket.h"

namespace zarvo {

/// The flattened name of a dictionary's key: `dictionary` itself flattened, such as
/// "com.zarvo.print.JobLevelStock" or, in a list, "com.zarvo.print.SpecialPages.InsertList..a_0".
std::string KeyIn(std::string_view dictionary, std::string_view key);
/// The flattened name of a list's element.
std::string ElementOf(std::string_view list, std::size_t index);

/// Collects settings and reasons.
class Mapping {
 public:
  /// Names what the next settings come from. A value that is a secret stays out of it.
  void From(std::string source) { source_ = std::move(source); }

  void Number(std::string_view name, std::int64_t number);
  void Boolean(std::string_view name, bool value);
  /// A text that the ticket cannot hold (not UTF-8, or with a zero byte) is dropped and told.
  bool Text(std::string_view name, const std::string& text);
  /// A neutral number that outranks defaults and whatever else this job asked for does not change.
  void Neutral(std::string_view name, std::int64_t number);
  /// The same for a text; an empty one is none.
  void Neutral(std::string_view name, const std::string& text);
  /// What a lower default sets below `dictionary` is not to be done.
  void Without(std::string_view dictionary) { ticket_.without.emplace_back(dictionary); }
  /// A setting whose name begins below `dictionary`.
  void Copy(std::string_view dictionary, const StandardSetting& setting);
  /// The settings travel in the XML ticket only: switches it on.
  void NeedXml();

  void Drop(std::string attribute, std::string reason);
  /// The job must not be printed; the first reason stays.
  void Refuse(std::string attribute, std::string reason);

  bool Has(std::string_view name) const;
  const StandardTicket& ticket() const { return ticket_; }
  StandardTicket Take() { return std::move(ticket_); }

 private:
  void Add(std::string_view name, std::string value, bool quiet);

  std::string source_;
  StandardTicket ticket_;
};

/// "path=value", for values that are no secrets; long ones are cut.
std::string Shown(std::string_view path, std::string_view value);

/// The members of a collection, each to be taken once; what is left is told.
class Members {
 public:
  /// `collection` may be null; `path` is that of the attribute, empty for a whole message.
  Members(ipp_t* collection, std::string path) : collection_(collection), path_(std::move(path)) {}

  const std::string& path() const { return path_; }
  std::string PathOf(std::string_view member) const {
    return path_.empty() ? std::string(member) : path_ + "/" + std::string(member);
  }
  Attribute Take(const char* member);
  /// The collection under `member`, its first if there are several.
  Members Inner(const char* member, Mapping* mapping);
  explicit operator bool() const { return collection_ != nullptr; }

  /// Tells of each member that was not taken why it is not honoured: what the tables of refused and
  /// of left attributes say of its path below `base`, else that it is unknown.
  void TellRest(Mapping* mapping, std::string_view base) const;

 private:
  ipp_t* collection_;
  std::string path_;
  std::set<std::string, std::less<>> taken_;
};

// The themes. Each reads its own attributes of the message and passes over a message without them.
void MapFinishing(ipp_t* job, Mapping* mapping);
void MapJobStock(ipp_t* job, Mapping* mapping);
void MapSpecialPages(ipp_t* job, Mapping* mapping);
/// Whether the job is a fax.
bool MapFax(ipp_t* job, Mapping* mapping);
void MapJobType(ipp_t* job, std::int64_t local_now, bool fax, Mapping* mapping);
void MapAccounting(ipp_t* job, Mapping* mapping);

/// The medium of `members` (its "media" and "media-col") into the stock dictionary `stock`. Returns
/// whether anything but a size was set.
bool MapMedium(Members* members, const std::string& stock, Mapping* mapping);

}  // namespace zarvo
