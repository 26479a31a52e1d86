// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/PinPolicy.h"

#include <strings.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <optional>

#include "CUPSFilter/Header/FaxComments.h"
#include "CUPSFilter/Header/JobTypeComments.h"
#include "CUPSFilter/Options/ParseOptions.h"
#include "Platform/Phrase.h"
#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/Fax.h"
#include "Source/NearestName.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

constexpr const char* kJobTypeKey = key::kJobType;
constexpr const char* kTypeKey = key::job_type::kJobType;  // within the group above
constexpr const char* kPinKey = key::job_type::kSecurePrintPassword;
constexpr const char* kJobPassword = "job-password";
constexpr const char* kFeaturePassword = "ZRVJobPassword";

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

/// The value that an option of that name was given, or null. Of several the last, as everywhere.
const char* Find(std::span<const cups_option_t> options, std::string_view name) {
  const char* value = nullptr;
  for (const cups_option_t& option : options)
    if (EqualsIgnoringCase(option.name, name)) value = option.value;
  return value;
}

/// Whether a person chose something of an option that is off as "None".
bool IsGiven(const char* value) {
  return value != nullptr && *value != '\0' && strcasecmp(value, "None") != 0;
}

/// Whether the option's name is the path of an entry of the job-type group.
bool NamesJobTypeEntry(std::string_view name, std::string_view key) {
  const std::vector<std::string_view> parts = SplitName(name);
  return parts.size() > 1 && parts[0] == kJobTypeKey && parts[1].starts_with('d') &&
         AddressIn(parts[1]) == key;
}

bool NamesTopLevel(std::string_view name, std::string_view key) {
  return SplitName(name)[0] == key;
}

bool IsLike(std::string_view text, std::string_view wanted, std::size_t distance) {
  if (text.size() > wanted.size() + distance || text.size() + distance < wanted.size())
    return false;
  const auto lower = [](std::string_view mixed) {
    std::string result(mixed);
    for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return result;
  };
  return EditDistance(lower(text), lower(wanted)) <= distance;
}

/// The way that an option which nobody reads was meant to give a PIN; empty when it was not.
std::string_view MisspeltWay(std::string_view name) {
  for (const std::string_view way : {std::string_view(kPinOption), std::string_view(kJobPassword)})
    if (!EqualsIgnoringCase(name, way) && IsLike(name, way, 1)) return way;
  if (NamesJobTypeEntry(name, kPinKey)) return "";
  for (std::string_view part : SplitName(name)) {
    part.remove_prefix(std::min(part.find_last_of("._") + 1, part.size()));
    if (IsLike(part, kPinKey, 2)) return kPinKey;
  }
  return "";
}

Judgement Refusal(std::string text) { return {std::move(text), {}}; }

/// What the ways into the job say of its PIN, before the ticket is looked at.
struct PinWays {
  std::string fault;
  bool inTicket = false;          // the job's own ticket options give one
  std::vector<std::string> pins;  // all that are readable; each once
  void Add(std::string_view pin) {
    if (std::find(pins.begin(), pins.end(), pin) == pins.end()) pins.emplace_back(pin);
  }
};

PinWays FindPins(const JobRequest& request, const QueuePolicy& policy) {
  PinWays ways;
  const auto fail = [&ways](std::string text) {
    if (ways.fault.empty()) ways.fault = std::move(text);
  };
  const char* encryption = Find(request.own, "job-password-encryption");
  if (IsGiven(encryption))
    fail(
        "job-password-encryption: the printer cannot read an encrypted PIN; send it with the "
        "encryption none, or as JobPIN=Custom.DIGITS");

  const char* typed = Find(request.own, kPinOption);
  const char* chosen = nullptr;
  for (const cups_option_t& option : request.chosen)
    if (NamesJobTypeEntry(option.name, kPinKey)) chosen = option.value;
  const bool has_chosen = chosen != nullptr && *chosen != '\0';
  // An empty text is what the scheduler makes of values of a kind that has none.
  if (typed != nullptr && (IsGiven(typed) || *typed == '\0') && !has_chosen) {
    fail(std::string(kPinOption) + ": the PIN cannot be read; " + std::string(kPinRule) +
         ", given as JobPIN=Custom.DIGITS");
  } else if (has_chosen) {
    if (std::string fault = TypedPinFault(chosen); !fault.empty())
      fail(std::string(kPinOption) + ": " + fault);
    ways.Add(chosen);
  }
  const char* password = Find(request.own, kJobPassword);
  if (password != nullptr && *password != '\0') {
    if (std::string fault = TypedPinFault(password); !fault.empty()) fail("job-password: " + fault);
    ways.Add(password);
  }
  for (const cups_option_t& option : request.own) {
    ways.inTicket = ways.inTicket || NamesJobTypeEntry(option.name, kPinKey);
    const std::string_view meant = MisspeltWay(option.name);
    if (!meant.empty() && IsGiven(option.value))
      fail(Phrase("an option that nobody knows looks like a misspelt PIN; did you mean %1?",
                  {meant}));
  }
  if (IsGiven(Find(request.own, kFeaturePassword)) && !policy.featurePassword)
    fail(
        "ZRVJobPassword: this queue's driver has no job type to go with it; give the PIN as "
        "JobPIN=Custom.DIGITS");
  return ways;
}

/// Why the ticket's job-type group cannot be trusted to be what was meant; empty when it can.
std::string UnreadableJobType(const JobRequest& request, const Dictionary& ticket) {
  const Value* group = DictionaryFind(ticket, kJobTypeKey);
  if (group != nullptr && group->AsDictionary() == nullptr)
    return Phrase("%1 is no group of settings; send the job type as ..d_JobType..n=NUMBER",
                  {kJobTypeKey});
  for (const std::string_view name : request.leftOut) {
    if (NamesJobTypeEntry(name, kPinKey))
      return "SecurePrintPassword: the PIN cannot be read as text; send it in UTF-8, digits are "
             "best";
    if (NamesTopLevel(name, kJobTypeKey))
      return std::string(kJobTypeKey) +
             ": a part of it cannot be read; send the job type as ..d_JobType..n=NUMBER";
  }
  if (group == nullptr) return "";
  const Value* type = DictionaryFind(*group->AsDictionary(), kTypeKey);
  if (type != nullptr && type->AsNumber() == nullptr)
    return Phrase("%1: the job type is no number; send it as ..d_JobType..n=NUMBER", {kJobTypeKey});
  const Value* pin = DictionaryFind(*group->AsDictionary(), kPinKey);
  if (pin != nullptr && pin->AsString() == nullptr)
    return Phrase(
        "SecurePrintPassword: the PIN is no text; send it as ..d_SecurePrintPassword=TEXT");
  return "";
}

bool KeepsPin(std::int32_t type) {
  return type == kJobTypeSecure || type == kJobTypeSave || type == kJobTypePrintAndSave;
}

/// What people call a job of that type.
std::string TypeName(std::int32_t type) {
  switch (type) {
    case kJobTypeNormal:
      return Phrase("an ordinary job");
    case kJobTypeFax:
      return Phrase("a fax");
    case kJobTypeDelayed:
      return Phrase("a delayed job");
    case kJobTypeSampleSet:
      return Phrase("a sample set");
    default:
      return Phrase("a job of this type");
  }
}

/// The job type of a ticket whose group is readable; nothing when there is none.
std::optional<std::int32_t> TypeIn(const Dictionary& ticket) {
  const Dictionary* group = DictionaryGetDictionary(ticket, kJobTypeKey);
  std::int32_t type = 0;
  if (group == nullptr || !DictionaryContains(*group, kTypeKey)) return std::nullopt;
  return CFDictionaryGetNumber(*group, kTypeKey, &type) ? type : -1;
}

/// The value of the option that was meant by that name, as long as its name is like it. Null when
/// there is none, or it is off.
const char* FindAlike(std::span<const cups_option_t> options, std::string_view name) {
  constexpr std::size_t kMostLetters = 2;
  const char* value = nullptr;
  for (const cups_option_t& option : options)
    if (IsGiven(option.value) && IsLike(option.name, name, kMostLetters)) value = option.value;
  return value;
}

/// Whether the job asks to be a secure one by the PPD's option, be it misspelt or in braces.
bool WantsSecure(const JobRequest& request) {
  constexpr std::size_t kMostLetters = 2;
  const char* type = FindAlike(request.own, "JobType");
  return type != nullptr &&
         (IsLike(type, "Secure", kMostLetters) || strcasestr(type, "secure") != nullptr);
}

/// The job has no PIN.
Judgement JudgeWithoutPin(const JobRequest& request, const QueuePolicy& policy,
                          Dictionary* ticket) {
  const std::int32_t type = TypeIn(*ticket).value_or(kJobTypeNormal);
  const Dictionary* read = DictionaryGetDictionary(*ticket, kJobTypeKey);
  const bool secure = type == kJobTypeSecure ||
                      (KeepsPin(type) && read != nullptr && DictionaryContains(*read, kPinKey));
  if (!secure && WantsSecure(request))
    return Refusal(
        "the job was to be a secure one and would not be; give JobType=Secure and no other job "
        "type");
  if (!secure) return {};
  if (!policy.allowEmptyPin)
    return Refusal(
        Phrase("a secure job needs a PIN; give one as JobPIN=Custom.DIGITS (%1)", {kPinDigits}));
  // Without the key nothing would say that the job is secure.
  CFDictionaryGetDictionaryOrCreate(*ticket, kJobTypeKey).insert_or_assign(kPinKey, Value(""));
  return {};
}

std::string FaxFault(const JobRequest& request, const Dictionary& ticket) {
  for (const std::string_view name : request.leftOut) {
    if (NamesTopLevel(name, key::kFaxRecipientList))
      return "a recipient of the fax cannot be read; number the list from 0 without gaps, in UTF-8";
    if (NamesTopLevel(name, key::kFaxOptions))
      return "a setting of the fax cannot be read; correct " + std::string(name);
  }
  if (DictionaryGetDictionary(ticket, key::kFaxOptions) == nullptr)
    return Phrase("the fax has no %1; send its settings along", {key::kFaxOptions});
  const Array* recipients = DictionaryGetArray(ticket, key::kFaxRecipientList);
  if (recipients == nullptr || recipients->empty())
    return Phrase("the fax has no recipient that can be read; give FaxNumber=Custom.NUMBER");
  for (std::size_t i = 0; i < recipients->size(); ++i) {
    const std::string who = std::to_string(i + 1);
    const Dictionary* recipient = (*recipients)[i].AsDictionary();
    if (recipient == nullptr)
      return Phrase("recipient %1 of the fax cannot be read; send it as a group of settings",
                    {who});
    const Value* number = DictionaryFind(*recipient, kFaxRecipientFaxNumberProperty);
    const std::string* mailbox = DictionaryGetString(*recipient, kFaxRecipientMailboxProperty);
    if (number == nullptr && (mailbox == nullptr || mailbox->empty()))
      return Phrase("recipient %1 of the fax has no number; give one", {who});
    if (number == nullptr) continue;
    const std::string dialing = number->AsString() != nullptr
                                    ? CopyDialingStringFromFaxNumber(*number->AsString())
                                    : std::string();
    if (dialing.find_first_of("0123456789") == std::string::npos)
      return Phrase(
          "recipient %1 of the fax has a number with nothing that can be dialed; correct it",
          {who});
  }
  return "";
}

/// The notice of a text that the printer takes only `most` bytes of.
void TellCut(const Dictionary& options, std::string_view key, std::size_t most,
             Judgement* verdict) {
  const std::string* text = DictionaryGetString(options, key);
  if (text != nullptr && text->size() > most)
    verdict->notices.push_back(Phrase("fax: %1 is cut, the printer takes %2 bytes; shorten it",
                                      {key, std::to_string(most)}));
}

}  // namespace

bool CarriesPin(std::string_view option) {
  for (const std::string_view way : {kPinOption, kJobPassword, kFeaturePassword})
    if (EqualsIgnoringCase(option, way)) return true;
  return NamesJobTypeEntry(option, kPinKey) || !MisspeltWay(option).empty();
}

std::string TypedPinFault(std::string_view pin) {
  const bool digits =
      std::all_of(pin.begin(), pin.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (digits && pin.size() >= kShortestPin && pin.size() <= kLongestPin) return "";
  return Phrase("%1 and nothing else; choose another one", {kPinRule});
}

ScrambledPin WhatScramblingMakes(std::string_view pin) {
  std::string scrambled(Utf8Prefix(pin, kLongestPassword));
  p_encrypt(scrambled.data());
  // What is behind a zero byte is never written.
  const std::string_view written = scrambled.c_str();
  if (written.find_first_of("\x1b\n\r\f\"") != written.npos) return ScrambledPin::kUnsafe;
  return written.size() < pin.size() ? ScrambledPin::kCut : ScrambledPin::kWhole;
}

Judgement JudgePin(const JobRequest& request, const QueuePolicy& policy, Dictionary* ticket) {
  PinWays ways = FindPins(request, policy);
  if (!ways.fault.empty()) return Refusal(std::move(ways.fault));
  if (std::string fault = UnreadableJobType(request, *ticket); !fault.empty())
    return Refusal(std::move(fault));

  const Dictionary* group = DictionaryGetDictionary(*ticket, kJobTypeKey);
  const std::string* pin = group != nullptr ? DictionaryGetString(*group, kPinKey) : nullptr;
  if (pin != nullptr && !pin->empty()) ways.Add(*pin);
  if (ways.pins.empty()) return JudgeWithoutPin(request, policy, ticket);
  if (ways.pins.size() > 1)
    return Refusal("the job gives two different PINs; give one, by one way");
  if (ways.inTicket && (pin == nullptr || pin->empty()))
    return Refusal(
        "the ticket's SecurePrintPassword is empty, but a PIN is given beside it; leave it out");

  const std::optional<std::int32_t> type = TypeIn(*ticket);
  if (type && !KeepsPin(*type))
    return Refusal(Phrase("%1 cannot keep a PIN; choose JobType=Secure, or leave the PIN out",
                          {TypeName(*type)}));
  Judgement verdict;
  switch (WhatScramblingMakes(ways.pins.front())) {
    case ScrambledPin::kUnsafe:
      return Refusal(Phrase(
          "the scrambled form of this PIN would end the printer's line; %1 safely", {kPinRule}));
    case ScrambledPin::kCut:
      verdict.notices.push_back(
          Phrase("the PIN is cut on its way to the printer; %1 safely", {kPinRule}));
      break;
    case ScrambledPin::kWhole:
      break;
  }
  Dictionary& job_type = CFDictionaryGetDictionaryOrCreate(*ticket, kJobTypeKey);
  job_type.insert_or_assign(kPinKey, Value(ways.pins.front()));
  constexpr std::int32_t kSecure = kJobTypeSecure;
  if (!type) CFDictionarySetNumber(job_type, kTypeKey, &kSecure);
  return verdict;
}

Judgement JudgeFax(const JobRequest& request, const Dictionary& ticket) {
  const bool is_fax = TypeIn(ticket) == kJobTypeFax;
  if (FindAlike(request.own, kFaxNumberOption) != nullptr && !is_fax)
    return Refusal(
        "FaxNumber: the job would come out on paper; give FaxNumber=Custom.NUMBER and no other job "
        "type");
  if (!is_fax) return {};
  if (std::string fault = FaxFault(request, ticket); !fault.empty())
    return Refusal(std::move(fault));
  Judgement verdict;
  const Dictionary& options = *DictionaryGetDictionary(ticket, key::kFaxOptions);
  TellCut(options, kFaxCreditCardProperty, kMaxCreditCardBytes, &verdict);
  TellCut(options, kFaxDialingPrefixProperty, kMaxDialingPrefixBytes, &verdict);
  return verdict;
}

bool AsksForSecrecy(const JobRequest& request, const Dictionary& ticket) {
  const PinWays ways = FindPins(request, {});
  if (!ways.fault.empty() || !ways.pins.empty() || ways.inTicket ||
      !UnreadableJobType(request, ticket).empty())
    return true;
  if (WantsSecure(request) || FindAlike(request.own, kFaxNumberOption) != nullptr) return true;
  const std::int32_t type = TypeIn(ticket).value_or(kJobTypeNormal);
  return type == kJobTypeSecure || type == kJobTypeFax ||
         DictionaryContains(ticket, key::kFaxRecipientList);
}

}  // namespace zarvo
