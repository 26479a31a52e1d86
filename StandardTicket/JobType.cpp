// SPDX-License-Identifier: Apache-2.0
// What becomes of the job (a PIN, kept, delayed, a sample first) and who pays for it.
#include <algorithm>
#include <iterator>

#include "Platform/Clock.h"
#include "Source/TicketNames.h"
#include "StandardTicket/Mapping.h"

namespace zarvo {
namespace {

constexpr std::int64_t kHour = 3600;

/// A named time of day, by the spooler's hours for it; a job that is there within them prints at
/// once.
struct Period {
  std::string_view name;
  std::int64_t from, to;  ///< hours; `to` may be on the next day
};
constexpr Period kPeriods[] = {{"day-time", 6, 18},
                               {"evening", 18, 30},
                               {"night", 18, 30},
                               {"second-shift", 16, 24},
                               {"third-shift", 0, 8}};

/// When the period that is named comes next, or nothing when it is now.
std::optional<std::int64_t> StartOf(const Period& period, std::int64_t now) {
  const std::int64_t second = now % kSecondsPerDay;
  const std::int64_t midnight = now - second;
  const std::int64_t from = period.from * kHour, to = period.to * kHour;
  if ((second >= from && second < to) || second + kSecondsPerDay < to) return std::nullopt;
  return midnight + from + (second >= to ? kSecondsPerDay : 0);
}

std::optional<std::int64_t> StartOfWeekend(std::int64_t now) {
  constexpr int kSunday = 1, kSaturday = 7;
  const int day = LongSecondsToDate(now).dayOfWeek;
  if (day == kSunday || day == kSaturday) return std::nullopt;
  return now - now % kSecondsPerDay + (kSaturday - day) * kSecondsPerDay;
}

std::string JobKey(const char* name) { return KeyIn(key::kJobType, name); }

/// The kinds of a job, the one that is done first; it can be of one only.
enum Kind : std::uint8_t { kFax, kSaved, kSecret, kSample, kDelayed, kHeld };

class JobTypeMapper {
 public:
  JobTypeMapper(ipp_t* job, std::int64_t now, Mapping* mapping)
      : job_(job), now_(now), mapping_(mapping) {}

  void Run(bool fax) {
    if (fax) Claim(kFax, "destination-uris");
    const bool saved = Saved();
    Password(fax, saved);
    Sample();
    Delayed();
    ReleaseAction();
  }

 private:
  /// Whether the job is of this kind; it is not when it is of another already, which is told.
  bool Claim(Kind kind, const std::string& source) {
    if (kind_ && *kind_ != kind) {
      mapping_->Drop(source, "a job cannot be this as well as what " + source_ + " makes it");
      return false;
    }
    kind_ = kind;
    source_ = source;
    mapping_->From(source);
    return true;
  }

  void Type(std::int32_t code) { mapping_->Number(JobKey(key::job_type::kJobType), code); }

  /// "job-storage" is the later name of "job-save-disposition".
  bool Saved() {
    for (const char* name : {"job-save-disposition", "job-storage"}) {
      const Attribute attribute = FindAttribute(job_, name);
      if (!attribute) continue;
      Members members(attribute.Collection(), name);
      if (!members) {
        mapping_->Drop(name, "it is not a collection");
        continue;
      }
      const bool storage = name == std::string_view("job-storage");
      const char* member = storage ? "job-storage-disposition" : "save-disposition";
      const std::string disposition = members.Take(member).Text().value_or("none");
      const bool both = disposition == (storage ? "print-and-store" : "print-save");
      const std::string shown = Shown(members.PathOf(member), disposition);
      if (disposition == "none") continue;
      if (!both && disposition != (storage ? "store-only" : "save-only")) {
        mapping_->Drop(shown, "it is no way to keep a job");
        continue;
      }
      if (storage) Access(&members);
      if (!Claim(kSaved, shown)) continue;
      Type(kJobTypeSave);
      mapping_->Number(JobKey(key::job_type::kSaveDisposition), both ? kSaveAndPrint : kSaveOnly);
      mapping_->NeedXml();
      if (Members info = members.Inner("save-info", mapping_)) SaveInfo(&info);
      // The printer lists saved jobs by name.
      mapping_->Neutral(JobKey(key::job_type::kSavedJobName),
                        FindAttribute(job_, "job-name").Text().value_or(""));
      members.TellRest(mapping_, name);
      return true;
    }
    return false;
  }

  void Access(Members* members) {
    const std::string access = members->Take("job-storage-access").Text().value_or("public");
    if (access != "public")
      mapping_->Drop(Shown(members->PathOf("job-storage-access"), access),
                     "whoever is at the printer can print a saved job; use job-password");
  }

  void SaveInfo(Members* info) {
    mapping_->From(info->path());
    if (const auto name = info->Take("save-name").Text())
      mapping_->Text(JobKey(key::job_type::kSavedJobName), *name);
    if (const auto location = info->Take("save-location").Text())
      mapping_->Text(JobKey(key::job_type::kSavedJobLocation), *location);
    if (const auto format = info->Take("save-document-format").Text()) {
      constexpr std::string_view kFormats[] = {
          "application/X-single-page-tiff", "application/X-multi-page-tiff", "application/pdf",
          "application/X-fast-reprint", "application/X-fast-reprint-and-dri"};
      // A TIFF file holds as many pages as there are.
      const std::string_view wanted = *format == "image/tiff" ? kFormats[1] : *format;
      const auto row = std::find(std::begin(kFormats), std::end(kFormats), wanted);
      if (row != std::end(kFormats)) {
        mapping_->Number(JobKey(key::job_type::kMediaType), row - std::begin(kFormats) + 1);
      } else {
        mapping_->Drop(Shown(info->PathOf("save-document-format"), *format),
                       "the printers save jobs as PDF or TIFF");
      }
    }
    info->TellRest(mapping_, "job-save-disposition/save-info");
  }

  /// A PIN that the printer cannot be given must not become a job without one.
  void Password(bool fax, bool saved) {
    const Attribute password = FindAttribute(job_, "job-password");
    const Attribute encryption = FindAttribute(job_, "job-password-encryption");
    const std::string method = encryption.Text().value_or("none");
    if (encryption && method != "none") {
      mapping_->Refuse(
          Shown("job-password-encryption", method),
          "the printer cannot read an encrypted PIN; send it with the encryption none");
      return;
    }
    const std::optional<std::string> pin = password.Text();
    if (password && !pin) return mapping_->Refuse("job-password", "it is no text");
    if (!pin || pin->empty()) return;
    if (fax) return mapping_->Drop("job-password", "a fax has no PIN");
    if (!saved) {
      if (!Claim(kSecret, "job-password")) return;
      // Saved jobs, which the job may ask for by its own options, keep a PIN as well.
      mapping_->Neutral(JobKey(key::job_type::kJobType), kJobTypeSecure);
    }
    mapping_->From("job-password");
    if (!mapping_->Text(JobKey(key::job_type::kSecurePrintPassword), *pin))
      mapping_->Refuse("job-password", "it is not a text in UTF-8");
  }

  void Sample() {
    const Attribute proof = FindAttribute(job_, "proof-print");
    const Attribute older = FindAttribute(job_, "proof-copies");
    if (!proof && !older) return;
    Members members(proof.Collection(), "proof-print");
    if (proof && !members) mapping_->Drop("proof-print", "it is not a collection");
    const Attribute count = members ? members.Take("proof-print-copies") : older;
    const std::string path = members ? members.PathOf("proof-print-copies") : "proof-copies";
    if (!members && !older) return;
    const std::optional<std::int32_t> copies = count ? count.Integer() : std::optional(1);
    members.TellRest(mapping_, "proof-print");
    if (copies == 0) return;
    if (copies != 1) mapping_->Drop(path, "there is one sample set");
    if (Claim(kSample, members ? "proof-print" : "proof-copies")) Type(kJobTypeSampleSet);
  }

  /// A fax has a time of its own.
  void DelayUntil(const std::string& source, std::int64_t time) {
    if (kind_ == kFax) {
      mapping_->From(source);
      return mapping_->Number(KeyIn(key::kFaxOptions, kFaxSendTimeProperty), time);
    }
    if (!Claim(kDelayed, source)) return;
    Type(kJobTypeDelayed);
    mapping_->Number(JobKey(key::job_type::kDelayedPrintTime), time);
  }

  void Hold(const std::string& source) {
    if (!Claim(kHeld, source)) return;
    Type(kJobTypeHold);
    mapping_->NeedXml();
  }

  void Delayed() {
    if (const Attribute time = FindAttribute(job_, "job-delay-output-until-time")) {
      const std::optional<std::int64_t> until = time.LocalSeconds();
      if (!until) {
        mapping_->Drop("job-delay-output-until-time", "it is no date and time");
      } else if (*until > now_) {
        return DelayUntil("job-delay-output-until-time", *until);
      }
    }
    const Attribute attribute = FindAttribute(job_, "job-delay-output-until");
    if (!attribute) return;
    const std::string name = attribute.Text().value_or("");
    const std::string shown = Shown("job-delay-output-until", name);
    if (name == "no-delay-output") return;
    if (name == "indefinite") return Hold(shown);
    const auto period = std::find_if(std::begin(kPeriods), std::end(kPeriods),
                                     [&](const Period& row) { return row.name == name; });
    if (period == std::end(kPeriods) && name != "weekend")
      return mapping_->Drop(shown, "it is no registered time");
    const std::optional<std::int64_t> start =
        name == "weekend" ? StartOfWeekend(now_) : StartOf(*period, now_);
    if (start) DelayUntil(shown, *start);
  }

  /// What releases a job that the printer keeps.
  void ReleaseAction() {
    const Attribute attribute = FindAttribute(job_, "job-release-action");
    if (!attribute) return;
    const std::string action = attribute.Text().value_or("");
    const std::string shown = Shown("job-release-action", action);
    if (action == "none") return;
    if (action == "button-press") {
      if (kind_ != kSaved && kind_ != kSecret) Hold(shown);
    } else if (action == "job-password") {
      if (kind_ == kFax) return mapping_->Drop(shown, "a fax has no PIN");
      if (!mapping_->Has(JobKey(key::job_type::kSecurePrintPassword)))
        mapping_->Refuse(shown, "the job has no PIN; give job-password");
    } else if (action == "owner-authorized") {
      mapping_->Drop(shown, "the printers know no owner; the job is held, or use job-password");
      if (!kind_) Hold(shown);
    } else {
      mapping_->Drop(shown, "it is no registered action");
    }
  }

  ipp_t* job_;
  std::int64_t now_;
  Mapping* mapping_;
  std::optional<Kind> kind_;
  std::string source_;
};

}  // namespace

void MapJobType(ipp_t* job, std::int64_t local_now, bool fax, Mapping* mapping) {
  JobTypeMapper(job, local_now, mapping).Run(fax);
}

void MapAccounting(ipp_t* job, Mapping* mapping) {
  const std::string account = FindAttribute(job, "job-account-id").Text().value_or("");
  std::string user = FindAttribute(job, "job-accounting-user-id").Text().value_or("");
  const Attribute kind = FindAttribute(job, "job-account-type");
  const std::string type = kind.Text().value_or("");
  const bool known = type == "general" || type == "group" || type == "none";
  if (kind && !known) mapping->Drop(Shown("job-account-type", type), "it is no kind of account");
  if (account.empty() && user.empty()) {
    if (known && type != "none")
      mapping->Drop(Shown("job-account-type", type), "there is no account; give job-account-id");
    return;
  }
  // Whoever sends the job pays for it unless it says otherwise.
  if (user.empty()) user = FindAttribute(job, "job-originating-user-name").Text().value_or("");
  mapping->From(account.empty() ? "job-accounting-user-id" : "job-account-id");
  const bool optional_account = known || account.empty();
  mapping->Number(key::kAccounting, optional_account ? kUserAndOptionalAccount : kUserAndAccount);
  if (optional_account)
    mapping->Number(key::kAccountType, type == "general" ? kGeneralAccount
                                       : type == "group" ? kGroupAccount
                                                         : kNoAccount);
  mapping->Number(key::kXmlAccounting, kUserAndAccount);
  mapping->NeedXml();
  mapping->From("job-accounting-user-id");
  if (mapping->Text(key::kAccountUser, user)) mapping->Text(key::kXmlAccountUser, user);
  if (account.empty()) return;
  mapping->From("job-account-id");
  if (mapping->Text(key::kAccount, account)) mapping->Text(key::kXmlAccount, account);
}

}  // namespace zarvo
