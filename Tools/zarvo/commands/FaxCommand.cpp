// SPDX-License-Identifier: Apache-2.0
// zarvo fax: sends a fax, and shows the cover sheet as its receiver will see it.
#include <sys/wait.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>

#include "Platform/AddressBook.h"
#include "Platform/PropertyList.h"
#include "Source/CFAdditions.h"
#include "Source/DrawHelper.h"
#include "Source/Fax.h"
#include "Source/FaxCover.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/job/JobOptions.h"
#include "Tools/zarvo/job/PrintJob.h"
#include "Tools/zarvo/job/Recipients.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::tool {
namespace {

struct FaxOptions {
  std::string settings;
  std::vector<std::string> to;
  std::string cover, from, notes;
  std::string resolution, prefix, at;
  bool confirm = false;
  PrintJob job;
  std::vector<std::string> options;
  std::string output = "cover.pdf";
};

/// What is typed as a number rather than a name.
bool LooksDialed(const std::string& who) {
  constexpr std::string_view kTyped = "0123456789+-()/., *#=:!$<>";
  return who.find_first_of("0123456789") != who.npos && who.find_first_not_of(kTyped) == who.npos;
}

/// Adds the recipient unless the list dials that number already. False, having told why, when there
/// is nothing to dial.
bool AddRecipient(const FaxRecipient& recipient, const std::string& shown,
                  std::set<std::string>* dialed, Array* list) {
  const std::string number = recipient.faxNumber() != nullptr
                                 ? CopyDialingStringFromFaxNumber(*recipient.faxNumber())
                                 : "";
  if (number.empty()) {
    Fail(shown, "has no fax number",
         "Give one: zarvo recipient edit " + (shown.empty() ? "UID" : "'" + shown + "'") +
             " --fax NUMBER");
    return false;
  }
  if (dialed->insert(number).second) list->emplace_back(recipient.toTicket());
  return true;
}

/// Puts everybody that is named on the command line behind the ticket's own recipients.
bool AddRecipients(const std::vector<std::string>& to, Dictionary* ticket) {
  Array list;
  std::set<std::string> dialed;
  if (const Array* own = DictionaryGetArray(*ticket, key::kFaxRecipientList)) list = *own;
  const std::vector<AddressBookRecord> records = AddressBookRecords();
  for (const std::string& who : to) {
    if (LooksDialed(who) && !IsRecipient(records, who)) {
      if (!AddRecipient(FaxRecipient(nullptr, nullptr, &who), who, &dialed, &list)) return false;
      continue;
    }
    const AddressBookRecord* found = FindRecipient(records, who);
    if (found == nullptr) return false;
    const std::vector<std::string> members = GroupMembers(found->card);
    for (const AddressBookRecord& record : records) {
      const bool meant = IsGroupCard(found->card) ? std::find(members.begin(), members.end(),
                                                              record.uid()) != members.end()
                                                  : &record == found;
      if (meant &&
          !AddRecipient(FaxRecipientFromCard(record.card), RecipientName(record), &dialed, &list))
        return false;
    }
  }
  ticket->insert_or_assign(key::kFaxRecipientList, std::move(list));
  return true;
}

/// "hh:mm" is that time today; one that has passed is tomorrow's, which the filter sees to.
std::string WholeDate(const std::string& at) {
  if (at.size() != 5 || at[2] != ':') return at;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  char day[16];
  localtime_r(&now, &local);
  std::strftime(day, sizeof day, "%Y-%m-%dT", &local);
  return day + at;
}

/// The command line's fax settings in the readable form, which has words for numbers and dates.
std::string ReadableOptions(const FaxOptions& options) {
  nlohmann::json fax = nlohmann::json::object();
  const auto set = [&fax](const char* key, const std::string& text) {
    if (!text.empty()) fax[key] = text;
  };
  if (!options.cover.empty()) {
    fax[kFaxPrintCoverSheetProperty] = true;
    fax[kFaxCoverSizeProperty] = options.cover;
    fax[kFaxCoverShowRecipientsProperty] = "names";
    fax[kFaxCoverLocalizedToLabel] = "To";
  }
  if (!options.from.empty()) {
    fax[kFaxCoverShowSenderProperty] = true;
    fax[kFaxCoverLocalizedFromLabel] = "From";
  }
  if (!options.notes.empty()) fax[kFaxCoverLocalizedNotesLabel] = "Notes";
  set(kFaxSenderNameProperty, options.from);
  set(kFaxCoverSheetNotesProperty, options.notes);
  set(kFaxResolutionProperty, options.resolution);
  set(kFaxDialingPrefixProperty, options.prefix);
  set(kFaxSendTimeProperty, WholeDate(options.at));
  if (options.confirm) fax[kFaxPrintConfirmationSheetProperty] = true;
  return nlohmann::json{{key::kFaxOptions, fax}}.dump(-1, ' ', false,
                                                      nlohmann::json::error_handler_t::replace);
}

/// The ticket of the settings, of the command line and of the recipients; nothing, having told why,
/// when they cannot be read. What the command line says comes before the settings, but for the
/// headings of the cover, which the settings may have in another language.
std::optional<Dictionary> FaxTicket(const FaxOptions& options) {
  Dictionary ticket;
  if (!options.settings.empty()) {
    std::string text;
    if (!ReadInput(options.settings, &text)) return std::nullopt;
    if (const Failure failure = ReadTicket(text, &ticket); !failure.empty()) {
      Fail(options.settings, failure);
      return std::nullopt;
    }
  }
  Dictionary given;
  const Failure failure = ReadTicket(ReadableOptions(options), &given);
  const Dictionary* given_fax = DictionaryGetDictionary(given, key::kFaxOptions);
  if (given_fax == nullptr) {
    Fail("fax", failure);
    return std::nullopt;
  }
  if (!options.at.empty() && DictionaryGetString(*given_fax, kFaxSendTimeProperty) != nullptr) {
    Fail(options.at, "is no time", "Give one such as 22:30 or 2026-12-31T22:30");
    return std::nullopt;
  }
  Dictionary& fax = CFDictionaryGetDictionaryOrCreate(ticket, key::kFaxOptions);
  for (const auto& [name, value] : *given_fax) {
    if (name.starts_with("Localized")) {
      fax.emplace(name, value);
    } else {
      fax.insert_or_assign(name, value);
    }
  }
  fax.emplace(kFaxPrintCoverSheetProperty, Value::Boolean(false));
  if (!AddRecipients(options.to, &ticket)) return std::nullopt;
  return ticket;
}

int PreviewFax(FaxOptions options) {
  if (options.settings.empty() && options.to.empty() && options.cover.empty())
    options.settings = "-";
  std::optional<Dictionary> ticket = FaxTicket(options);
  if (!ticket) return kExitFailure;
  // Who asks to see the cover wants one, whether or not the job does.
  Dictionary& fax = CFDictionaryGetDictionaryOrCreate(*ticket, key::kFaxOptions);
  fax.insert_or_assign(std::string(kFaxPrintCoverSheetProperty), Value::Boolean(true));
  const std::optional<FaxCover> cover = FaxCoverFromTicket(*ticket);
  if (!cover) return Fail(options.settings, "asks for no cover sheet");
  std::optional<FaxCoverDrawing> helper;
  if (const Failure failure = FaxCoverDrawing::Start(*cover, false, &helper); !failure.empty())
    return Fail("cover sheet", failure);
  std::string pdf;
  char block[65536];
  std::FILE* const drawn = helper->output();
  if (drawn == nullptr) return Fail("cover sheet", std::strerror(ENOMEM));
  while (const std::size_t got = std::fread(block, 1, sizeof block, drawn)) pdf.append(block, got);
  const int status = helper->Wait();
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
    return Fail("cover sheet", "cannot be drawn", "The lines before this one tell why");
  return WriteOutput(options.output, pdf);
}

int Send(const FaxOptions& options) {
  std::optional<Dictionary> ticket = FaxTicket(options);
  if (!ticket) return kExitFailure;
  if (DictionaryGetArray(*ticket, key::kFaxRecipientList)->empty())
    return Fail("fax", "has no recipient", "Give --to with a number, a name or a group");
  const std::int32_t type = kJobTypeFax;
  Dictionary& job = CFDictionaryGetDictionaryOrCreate(*ticket, key::kJobType);
  CFDictionarySetNumber(job, key::job_type::kJobType, &type);
  std::vector<std::string> told;
  const std::optional<std::string> text = OptionTextOf(
      options.options, *ticket, options.settings.empty() ? "fax" : options.settings, &told);
  return text ? PrintChecked(options.job, *text, told) : kExitFailure;
}

/// What both have in common, the fax itself.
void AddFaxOptions(CLI::App* app, const std::shared_ptr<FaxOptions>& options) {
  app->add_option("--to", options->to,
                  "number, or a recipient's or a group's name or UID; may be repeated")
      ->allow_extra_args(false);
  CLI::Option* cover = app->add_option("--cover", options->cover, "cover sheet: a4 or letter")
                           ->check(CLI::IsMember({"a4", "letter"}, CLI::ignore_case));
  app->add_option("--from", options->from, "the sender on the cover")->needs(cover);
  app->add_option("--notes", options->notes, "notes on the cover")->needs(cover);
}

}  // namespace

void SetUpFax(CLI::App& app, Action* action) {
  app.require_subcommand(1);
  const auto options = std::make_shared<FaxOptions>();
  CLI::App* send = app.add_subcommand("send", "Sends a file to fax numbers, people or groups");
  send->add_option("file", options->job.file, "file to send; - for standard input")->required();
  AddPrintOptions(*send, &options->job);
  AddFaxOptions(send, options);
  send->add_option("--resolution", options->resolution, "standard, fine or superfine")
      ->check(CLI::IsMember({"standard", "fine", "superfine"}));
  send->add_option("--prefix", options->prefix, "dialed before every number");
  send->add_option("--at", options->at, "when it is sent: 22:30, or 2026-12-31T22:30");
  send->add_flag("--confirm", options->confirm, "print a confirmation");
  send->add_option("-s,--settings", options->settings,
                   "settings in the readable form; - for standard input");
  send->add_option("-o", options->options, "an option, as for lp; may be repeated")
      ->allow_extra_args(false);
  send->callback([=] { *action = [=] { return Send(*options); }; });

  CLI::App* preview = app.add_subcommand("preview", "Draws the cover sheet as a PDF file");
  preview->add_option("settings", options->settings,
                      "ticket with fax options and recipients; - for standard input");
  AddFaxOptions(preview, options);
  preview->add_option("--output", options->output, "file to write; - for standard output")
      ->capture_default_str();
  preview->callback([=] { *action = [=] { return PreviewFax(*options); }; });
}

}  // namespace zarvo::tool
