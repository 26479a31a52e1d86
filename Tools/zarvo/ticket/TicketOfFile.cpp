// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/ticket/TicketOfFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <set>
#include <utility>

#include "CUPSFilter/Header/PjlText.h"
#include "HouseTicket/HouseTicket.h"
#include "Platform/UniqueFd.h"
#include "Source/CFAdditions.h"
#include "Source/Mappings.h"
#include "Source/TicketKeys.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/job/JobFile.h"
#include "Tools/zarvo/ticket/KnownSettings.h"
#include "Tools/zarvo/ticket/TicketText.h"
#include "Tools/zarvo/ticket/WrittenJob.h"

namespace zarvo::tool {
namespace {

/// Nothing goes to standard error meanwhile: the writers log as they do in the filter.
class StandardErrorAside {
 public:
  StandardErrorAside() : kept_(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3)) {
    const UniqueFd nothing(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    std::fflush(stderr);
    if (kept_ && nothing) ::dup2(nothing.get(), STDERR_FILENO);
  }
  StandardErrorAside(const StandardErrorAside&) = delete;
  StandardErrorAside& operator=(const StandardErrorAside&) = delete;
  ~StandardErrorAside() {
    if (kept_) ::dup2(kept_.get(), STDERR_FILENO);
  }

 private:
  UniqueFd kept_;
};

/// The first that fits tells the type; an empty text stands for any.
struct TypeRow {
  std::string_view path;
  std::string_view text;
  JobTypeCode type;
};
constexpr char kDisposition[] = "OID_ATT_SAVE_DISPOSITION";
constexpr char kType[] = "OID_ATT_JOB_TYPE";
constexpr TypeRow kTypes[] = {
    {kDisposition, "OID_VAL_SAVE_DISPOSITION_PRINT_SAVE", kJobTypePrintAndSave},
    {kDisposition, "OID_VAL_SAVE_DISPOSITION_SAVE_ONLY", kJobTypeSave},
    {kType, "OID_VAL_JOB_TYPE_FAX_SEND", kJobTypeFax},
    {kType, "OID_VAL_JOB_TYPE_SECURE_PRINT", kJobTypeSecure},
    {kType, "OID_VAL_JOB_TYPE_PROOF_PRINT", kJobTypeSampleSet},
    {"OID_ATT_JOB_PRINT_AFTER", "", kJobTypeDelayed},
    {"job-hold-until", "", kJobTypeHold},
    {kType, "OID_VAL_JOB_TYPE_PRINT", kJobTypeNormal},
};

/// Why a saying is not written again, where there is more to say than that.
struct ReasonRow {
  std::string_view path;
  const char* reason;
};
constexpr char kSomePin[] = "0";
constexpr char kWithEachJob[] = "give it with each job";
constexpr ReasonRow kReasons[] = {
    {"OID_ATT_JOB_PASSWORD", "the PIN is never taken; give one with each job"},
    {"OID_ATT_ACCOUNTING_INFORMATION_AVP", kWithEachJob},
    {"OID_ATT_CREDIT_CARD", kWithEachJob},
    {"job-accounting-user-id", kWithEachJob},
    {"job-account-id", kWithEachJob},
    {"job-save-disposition/save-info/value/save-name", "the document's; see JobType/UseJobName"},
    {"OID_ATT_JOB_FAX_AFTER", "the time of day is taken; the day is that of each job"},
};

const std::string* Find(const Sayings& sayings, std::string_view path) {
  const auto found = std::find_if(sayings.begin(), sayings.end(),
                                  [path](const Saying& one) { return one.path == path; });
  return found != sayings.end() ? &found->text : nullptr;
}

Dictionary& Group(Dictionary* ticket, const char* name) {
  return CFDictionaryGetDictionaryOrCreate(*ticket, name);
}

void SetNumber(Dictionary* settings, const char* name, std::int32_t number) {
  CFDictionarySetNumber(*settings, name, &number);
}

/// "YYYYMMDDhhmmss" under the key; nothing else is a date.
void SetDate(const std::string* text, const char* group, const char* name, Dictionary* ticket) {
  if (text == nullptr || text->size() != 14) return;
  const std::string date = text->substr(0, 4) + "-" + text->substr(4, 2) + "-" +
                           text->substr(6, 2) + "T" + text->substr(8, 2) + ":" +
                           text->substr(10, 2);
  Dictionary read;
  if (ReadTicket("{\"" + std::string(group) + "\": {\"" + name + "\": \"" + date + "\"}}", &read)
          .empty() &&
      read[group].AsDictionary()->at(name).AsNumber() != nullptr)
    MergeSettings(std::move(read), ticket);
}

class Reader {
 public:
  explicit Reader(const WrittenJob& job) : job_(job), whole_(Find(job.job, "sides") != nullptr) {}

  Dictionary Read() {
    if (whole_) Section(key::sections::kAll);
    Job();
    Cover("cover-front", key::kFrontCover);
    Cover("cover-back", key::kBackCover);
    const TicketKey* exceptions = FindTopLevelKey(key::kExceptionList);
    List("insert-sheet", *FindTopLevelKey(key::kInsertList), key::sections::kInserts);
    List("page-overrides", *exceptions, key::sections::kExceptions);
    CoverSizes();
    return std::move(ticket_);
  }

 private:
  void Section(const char* name) {
    Group(&ticket_, key::kJTMLOptions).insert_or_assign(name, Value::Boolean(true));
  }

  SettingScope Scope(const std::string& part, std::function<Dictionary(Dictionary)> place) const {
    return {[place, sections = ticket_](Dictionary settings) {
              Dictionary whole = place(std::move(settings));
              if (const Dictionary* asked = DictionaryGetDictionary(sections, key::kJTMLOptions))
                whole.insert_or_assign(key::kJTMLOptions, *asked);
              return whole;
            },
            [part](const WrittenJob& job) {
              if (part.empty()) return job.job;
              const auto found = job.special.find(part);
              return found != job.special.end() && !found->second.empty() ? found->second[0]
                                                                          : Sayings();
            }};
  }

  void Job() {
    Sayings sayings = job_.job;
    const KnownSettings known =
        LearnSettings(TopLevelKeys(), Scope("", [](Dictionary settings) { return settings; }),
                      {key::kFrontCover, key::kBackCover, key::kJTMLOptions, key::kSystemDuplexing,
                       key::job_type::kJobType, key::job_type::kSaveDisposition});
    MergeSettings(SettingsThatSay(known, &sayings), &ticket_);
    if (whole_) ticket_.try_emplace(key::kFinishingDuplex, Number(std::int32_t{kOneSided}));
    JobType();
  }

  void JobType() {
    const auto row = std::find_if(std::begin(kTypes), std::end(kTypes), [this](const TypeRow& one) {
      const std::string* text = Find(job_.job, one.path);
      return text != nullptr && (one.text.empty() || *text == one.text);
    });
    const bool untold = whole_ && Find(job_.job, "job-hold-until") == nullptr &&
                        Find(job_.job, "job-save-disposition/save-disposition") == nullptr;
    if (row == std::end(kTypes)) return;
    const JobTypeCode type = untold ? kJobTypeNoDisposition : row->type;
    Dictionary& job = Group(&ticket_, key::kJobType);
    SetNumber(&job, key::job_type::kJobType, type);
    // A header line has blanks where a text has ends of lines; the XML ticket has the text.
    for (const auto& [name, path] :
         {std::pair(key::job_type::kSavedJobName, "job-save-disposition/save-info/value/save-name"),
          std::pair(key::job_type::kSavedJobLocation,
                    "job-save-disposition/save-info/value/save-location")}) {
      const std::string* text = Find(job_.job, path);
      const std::string* taken = DictionaryGetString(job, name);
      if (text != nullptr && taken != nullptr && PjlText(*text) == *taken)
        job.insert_or_assign(name, *text);
    }
    SetDate(Find(job_.job, "OID_ATT_JOB_PRINT_AFTER"), key::kJobType,
            key::job_type::kDelayedPrintTime, &ticket_);
    if (type == kJobTypeFax) Fax();
  }

  void Fax() {
    Dictionary& fax = Group(&ticket_, key::kFaxOptions);
    fax.try_emplace(kFaxPrintConfirmationSheetProperty, Value::Boolean(false));
    SetDate(Find(job_.job, "OID_ATT_JOB_FAX_AFTER"), key::kFaxOptions, kFaxSendTimeProperty,
            &ticket_);
    Array recipients;
    bool open = false;  // a number that a mailbox may follow
    for (const Saying& saying : job_.job) {
      const bool mailbox = saying.path == "OID_ATT_FAX_MAILBOX";
      if (!mailbox && saying.path != "OID_ATT_FAX_DESTINATION_PHONE") continue;
      if (!mailbox || !open) recipients.emplace_back(Dictionary());
      recipients.back().AsDictionary()->emplace(
          mailbox ? kFaxRecipientMailboxProperty : kFaxRecipientFaxNumberProperty, saying.text);
      open = !mailbox;
    }
    if (!recipients.empty())
      ticket_.insert_or_assign(key::kFaxRecipientList, std::move(recipients));
  }

  void Cover(const std::string& part, const char* name) {
    const auto cover = job_.special.find(part);
    if (cover == job_.special.end() || cover->second.empty()) return;
    if (!whole_) Section(key::sections::kCovers);
    const TicketKey* row = FindTopLevelKey(name);
    const KnownSettings known =
        LearnSettings(row->members, Scope(part, [name](Dictionary settings) {
                        return Dictionary{{name, Value(std::move(settings))}};
                      }));
    Sayings sayings = cover->second[0];
    Dictionary settings = SettingsThatSay(known, &sayings);
    settings.try_emplace(key::special_page::kSidesImaged, Number(std::int32_t{kCoverBlank}));
    ticket_.insert_or_assign(name, std::move(settings));
  }

  void List(const std::string& part, const TicketKey& row, const char* section) {
    const auto list = job_.special.find(part);
    if (list == job_.special.end() || list->second.empty()) return;
    if (!whole_) Section(section);
    const KnownSettings known =
        LearnSettings(row.members, Scope(part, [&row](Dictionary settings) {
                        return Dictionary{{row.name, Array{Value(std::move(settings))}}};
                      }));
    Array members;
    for (Sayings sayings : list->second) members.emplace_back(SettingsThatSay(known, &sayings));
    ticket_.insert_or_assign(row.name, std::move(members));
  }

  /// Without covers in the XML ticket the header tells their size.
  void CoverSizes() {
    const bool both = Find(job_.job, "OID_ATT_FIRSTLAST_PAGE_MEDIA_SIZE") != nullptr;
    if (!both && Find(job_.job, "OID_ATT_FIRST_PAGE_MEDIA_SIZE") == nullptr) return;
    for (const StockSize* size = CompleteStockSizeMap; size->name != nullptr; ++size) {
      Dictionary trial = ticket_;
      Dictionary& cover = Group(&trial, key::kFrontCover);
      SetNumber(&cover, key::special_page::kSidesImaged, kCoverBlank);
      SetNumber(&Group(&cover, key::special_page::kStock), key::stock::kSize,
                static_cast<std::int32_t>(size->code));
      if (both)
        SetNumber(&Group(&trial, key::kBackCover), key::special_page::kSidesImaged, kCoverBlank);
      const char* line =
          both ? "OID_ATT_FIRSTLAST_PAGE_MEDIA_SIZE" : "OID_ATT_FIRST_PAGE_MEDIA_SIZE";
      const WrittenJob written = WriteJob(trial);
      const std::string* told = Find(written.job, line);
      if (told == nullptr || *told != *Find(job_.job, line)) continue;
      ticket_ = std::move(trial);
      return;
    }
  }

  const WrittenJob& job_;
  const bool whole_;
  Dictionary ticket_;
};

/// What a job with that ticket has, its pages having some size.
WrittenJob Again(const Dictionary& ticket) { return WriteJob(ticket, PageSize::kLetter); }

/// Some elements are those of two settings, which come in two places.
Dictionary InTheRightPlace(const WrittenJob& job, Dictionary ticket) {
  const std::pair<const char*, const char*> kTwins[] = {
      {key::kAntialiasing, key::full_color::kAntiAliasing},
      {key::kFinishingOutputColor, key::full_color::kOutputColor}};
  const int variants = Again(ticket).text == job.text ? 1 : 1 << std::size(kTwins);
  for (int variant = 1; variant < variants; ++variant) {
    Dictionary trial = ticket;
    for (std::size_t i = 0; i < std::size(kTwins); ++i) {
      const auto entry = trial.find(kTwins[i].first);
      if ((variant >> i & 1) == 0 || entry == trial.end()) continue;
      Value value = std::move(entry->second);
      trial.erase(entry);
      Dictionary& color = Group(&trial, key::kFullColorOptions);
      if (const auto other = color.find(kTwins[i].second); other != color.end())
        trial.insert_or_assign(kTwins[i].first, std::move(other->second));
      color.insert_or_assign(kTwins[i].second, std::move(value));
    }
    if (Again(trial).text == job.text) return trial;
  }
  return ticket;
}

std::string Reason(const std::string& path) {
  for (const ReasonRow& row : kReasons)
    if (row.path == path) return row.reason;
  return "cannot be known, or no ticket says it";
}

/// Says which of the job's sayings the ticket does not say again.
class Comparer {
 public:
  explicit Comparer(std::vector<std::string>* left) : left_(left) {}

  void Compare(const std::string& place, const Sayings& job, Sayings again) {
    for (const Saying& saying : job) {
      const auto found = std::find(again.begin(), again.end(), saying);
      if (found != again.end()) {
        again.erase(found);
      } else if (told_.insert(place + saying.path).second) {
        left_->push_back(place + PathWords(saying.path) + ": " + Reason(saying.path));
      }
    }
    // What has another value has been told; what comes on top has not.
    for (const Saying& saying : again)
      if (told_.insert(place + saying.path).second)
        left_->push_back(place + PathWords(saying.path) + ": is written though it was not there");
  }

 private:
  /// A line of the job's own may hold anything; its first words tell which it is.
  static std::string PathWords(const std::string& path) {
    return path.substr(0, path.find_first_of("=\""));
  }

  std::vector<std::string>* left_;
  std::set<std::string> told_;
};

void CompareAll(const WrittenJob& job, const WrittenJob& again, std::vector<std::string>* left) {
  Comparer comparer(left);
  comparer.Compare("", job.job, again.job);
  for (const auto& [part, list] : job.special) {
    const auto other = again.special.find(part);
    for (std::size_t i = 0; i < list.size(); ++i) {
      const std::string number = list.size() > 1 ? " " + std::to_string(i + 1) : "";
      const bool there = other != again.special.end() && i < other->second.size();
      comparer.Compare(part + number + ": ", list[i], there ? other->second[i] : Sayings());
    }
    if (list.empty()) left->push_back(part + ": an empty list is left out");
  }
  if (left->empty() && job.text != again.text)
    left->push_back("the header or the XML ticket: the same is written in another form");
}

/// What stands in the document, not in the header.
void ReadDocument(const PostScriptFacts& facts, Dictionary* ticket,
                  std::vector<std::string>* left) {
  if (facts.negative)
    SetNumber(&Group(ticket, key::kInvertImageOptions), key::invert::kNegativeImage, 1);
  if (facts.mirrored)
    SetNumber(&Group(ticket, key::kInvertImageOptions), key::invert::kMirrorImage, 1);
  if (facts.booklet) {
    ticket->insert_or_assign(key::kBookletLayout, Value::Boolean(true));
    if (facts.booklet_reversed)
      ticket->insert_or_assign(key::kRotateBooklet180Degrees, Value::Boolean(true));
    left->push_back(
        "the booklet's reading order, outlines, gutter and creep: a file does not tell them; see "
        "AdvancedBookletLayoutOrderStr, BookletDrawOutlines, Gutter and Creep");
  }
  for (const std::string& mark : MarkWords(facts))
    left->push_back("watermark " + mark +
                    ": a file does not tell its name; see watermark.Watermark");
  if (facts.copies > 1)
    left->push_back("copies: work before the filter; " + std::string(kWithEachJob));
}

}  // namespace

Failure TicketOfFile(std::FILE* file, Dictionary* ticket, std::vector<std::string>* left) {
  const JobFile read = ReadJobFile(file, {});
  if (read.envelopes == 0 && read.ticket.empty()) return "is no job that the filter wrote";
  if (read.ticket_cut || read.pjl_cut) return "is damaged: its XML ticket or header does not end";
  WrittenJob job;
  if (Failure failure = TakeApart(read.pjl, read.ticket, &job); !failure.empty()) return failure;
  {
    const StandardErrorAside aside;
    Dictionary taken = InTheRightPlace(job, Reader(job).Read());
    Dictionary whole = taken;
    // Without a PIN nothing of a secure job is written.
    if (Find(job.job, "OID_ATT_JOB_PASSWORD") != nullptr)
      Group(&whole, key::kJobType)
          .insert_or_assign(key::job_type::kSecurePrintPassword, Value(kSomePin));
    CompareAll(job, Again(whole), left);
    *ticket = std::move(taken);
  }
  ReadDocument(read.postscript, ticket, left);
  const Dictionary* type = DictionaryGetDictionary(*ticket, key::kJobType);
  std::int32_t code = 0;
  if (type != nullptr && CFDictionaryGetNumber(*type, key::job_type::kJobType, &code) &&
      code == kJobTypeFax)
    left->push_back("the fax's cover sheet, if it has one: see FaxOptions");
  return "";
}

}  // namespace zarvo::tool
