// SPDX-License-Identifier: Apache-2.0
#include "Desk/model/RenderSettings.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>
#include <string_view>

#include "Source/CFAdditions.h"
#include "Source/Fax.h"
#include "Source/TicketKeys.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::desk {
namespace {

constexpr const char* kHiddenPin = "0000";
constexpr const char* kHiddenAccount = "hidden";
constexpr std::string_view kWatermarkOptions = "com.zarvo.print.watermark.";

void MaskGroup(Dictionary* group, std::span<const TicketKey> keys) {
  for (auto& [name, value] : *group) {
    const TicketKey* key = FindKey(keys, name);
    if (key == nullptr) continue;
    if (key->secret && value.AsString() != nullptr && !value.AsString()->empty())
      value = name == key::job_type::kSecurePrintPassword ? kHiddenPin : kHiddenAccount;
    if (Dictionary* inner = value.AsDictionary()) MaskGroup(inner, key->members);
  }
}

/// Whether no page but the first has a watermark.
bool IsMarkedAtFirst(const Dictionary& ticket) {
  std::int32_t first = 0;
  CFDictionaryGetNumber(ticket, key::kWatermarkFirstPageOnly, &first);
  const std::string* name = DictionaryGetString(ticket, key::kWatermark);
  const bool none = (name == nullptr || name->empty()) &&
                    DictionaryFind(ticket, key::kListedWatermark) == nullptr;
  return first != 0 || none;
}

/// Options of the spooler that are as secret as the ticket's.
constexpr const char* kSecretOptions[] = {"job-password",          "JobPIN",    "FaxNumber",
                                          "AccountUser",           "AccountID", "job-account-id",
                                          "job-accounting-user-id"};

}  // namespace

bool IsSecretOption(std::string_view name) {
  return std::find(std::begin(kSecretOptions), std::end(kSecretOptions), name) !=
         std::end(kSecretOptions);
}

Dictionary MaskedTicket(const Dictionary& ticket) {
  Dictionary masked = ticket;
  MaskGroup(&masked, TopLevelKeys());
  for (const char* option : kSecretOptions) masked.erase(option);
  const auto list = masked.find(key::kFaxRecipientList);
  if (list == masked.end() || list->second.AsArray() == nullptr) return masked;
  std::map<std::string, std::string> numbers;
  for (Value& recipient : *list->second.AsArray()) {
    Dictionary* const texts = recipient.AsDictionary();
    if (texts == nullptr) continue;
    for (const char* name : {kFaxRecipientFaxNumberProperty, kFaxRecipientPhoneNumberProperty,
                             kFaxRecipientMailboxProperty}) {
      const auto found = texts->find(name);
      if (found == texts->end() || found->second.AsString() == nullptr) continue;
      const std::string dialed = CopyDialingStringFromFaxNumber(*found->second.AsString());
      if (dialed.empty()) continue;  // a fault that is to be told
      found->second =
          numbers.try_emplace(dialed, std::to_string(1000 + numbers.size())).first->second;
    }
  }
  return masked;
}

Failure MakeRenderSettings(const Dictionary& ticket, const std::string& renderer,
                           RenderSettings* settings) {
  Dictionary masked = MaskedTicket(ticket);
  if (!DictionaryContains(masked, tool::kRendererOption))
    masked.insert_or_assign(tool::kRendererOption,
                            Value(renderer.empty() ? tool::kBestRenderer : renderer));
  std::vector<tool::FlatOption> flat;
  if (Failure failure = tool::FlattenTicket(masked, &flat); !failure.empty()) return failure;
  settings->options = tool::OptionText(flat);
  std::vector<tool::FlatOption> later = flat;
  settings->marked_at_first = IsMarkedAtFirst(masked);
  if (settings->marked_at_first)
    std::erase_if(later, [](const tool::FlatOption& option) {
      return option.name.starts_with(kWatermarkOptions);
    });
  settings->later_options = tool::OptionText(later);
  std::erase_if(flat,
                [](const tool::FlatOption& option) { return option.name.starts_with("com."); });
  settings->converter_options = tool::OptionText(flat);
  const std::string* copies = DictionaryGetString(masked, "copies");
  settings->copies = std::clamp(copies != nullptr ? std::atoi(copies->c_str()) : 1, 1, 9999);
  settings->page_by_page =
      !DictionaryGetBoolean(masked, key::kBookletLayout).value_or(false) &&
      DictionaryFind(masked, key::kFaxRecipientList) == nullptr &&
      std::none_of(flat.begin(), flat.end(), [](const tool::FlatOption& option) {
        for (const char* name : {"number-up", "page-ranges", "page-set", "outputorder", "Booklet",
                                 "booklet", "imposition", "mirror"}) {
          if (option.name.starts_with(name)) return true;
        }
        return false;
      });
  return "";
}

}  // namespace zarvo::desk
