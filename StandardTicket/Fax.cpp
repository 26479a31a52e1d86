// SPDX-License-Identifier: Apache-2.0
// Fax: destinations, what is dialled, the cover sheet and the confirmation.
#include <algorithm>
#include <string_view>

#include "Source/TicketNames.h"
#include "StandardTicket/Mapping.h"

namespace zarvo {
namespace {

/// What the printer dials; and what people write between the digits, which it skips.
constexpr std::string_view kDialled = "0123456789*#=:!,/S$<>ABCD";
constexpr std::string_view kSkipped = " -.()+";

int HexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  const char lower = static_cast<char>(digit | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
    const int low = high >= 0 ? HexDigit(text[i + 2]) : -1;
    if (text[i] == '%' && low >= 0) {
      plain += static_cast<char>(high * 16 + low);
      i += 2;
    } else {
      plain += text[i];
    }
  }
  return plain;
}

/// The number of "tel:+49-911-1;phone-context=..." or "fax:..."; nothing for another URI.
/// `*parameters` is whether it has a parameter that would be dialled, such as ";ext=1".
std::optional<std::string> NumberOf(const std::string& uri, bool* parameters) {
  const std::size_t colon = uri.find(':');
  if (colon == uri.npos) return std::nullopt;
  std::string scheme = uri.substr(0, colon);
  std::transform(scheme.begin(), scheme.end(), scheme.begin(),
                 [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c | 0x20 : c); });
  if (scheme != "tel" && scheme != "fax") return std::nullopt;
  std::string_view rest = std::string_view(uri).substr(colon + 1);
  const std::size_t end = std::min(rest.find_first_of(";?"), rest.size());
  // Where a number without a country is valid, which the printer's line is.
  *parameters = end < rest.size() && !rest.substr(end).starts_with(";phone-context=");
  rest = rest.substr(0, end);
  std::string number = Unescaped(rest);
  if (number.find_first_of(kDialled) == number.npos) return std::nullopt;
  return number;
}

/// A string around a number. A character that is not dialled is told without showing it.
std::string DialString(Members* members, const char* member, Mapping* mapping) {
  const Attribute attribute = members->Take(member);
  std::string text = attribute.Text().value_or("");
  for (const char c : text) {
    if (kDialled.find(c) != kDialled.npos || kSkipped.find(c) != kSkipped.npos) continue;
    mapping->Drop(members->PathOf(member), "the printers dial digits and *#=:!,/S$<>ABCD");
    return {};
  }
  return text;
}

/// Returns how many destinations will be dialled.
std::size_t MapDestinations(ipp_t* job, Mapping* mapping) {
  const std::string path = "destination-uris";
  const Attribute attribute = FindAttribute(job, path.c_str());
  constexpr int kMost = 1000;
  std::size_t made = 0;
  for (int i = 0; i < std::min(attribute.count(), kMost); ++i) {
    Members members(attribute.Collection(i), path);
    const std::string uri = members.Take("destination-uri").Text().value_or("");
    const std::string before = DialString(&members, "pre-dial-string", mapping);
    const std::string after = DialString(&members, "post-dial-string", mapping);
    bool parameters = false;
    const std::optional<std::string> number = NumberOf(uri, &parameters);
    if (!number) {
      mapping->Drop(members.PathOf("destination-uri"), "it is no tel: or fax: number");
      continue;
    }
    if (parameters)
      mapping->Drop(members.PathOf("destination-uri"),
                    "what follows the number is not dialed; use post-dial-string");
    mapping->From(path);
    const std::string recipient = ElementOf(key::kFaxRecipientList, made);
    if (mapping->Text(KeyIn(recipient, kFaxRecipientFaxNumberProperty), before + *number + after))
      ++made;
    members.TellRest(mapping, path);
  }
  if (attribute.count() > kMost)
    mapping->Drop(path, "only its first " + std::to_string(kMost) + " values count");
  return made;
}

void CoverText(Mapping* mapping, const std::string& path, const char* key, const std::string& text,
               const char* label_key, const char* label) {
  mapping->From(path);
  if (!mapping->Text(KeyIn(key::kFaxOptions, key), text)) return;
  if (label_key != nullptr) mapping->Text(KeyIn(key::kFaxOptions, label_key), label);
}

void MapCoverSheet(ipp_t* job, Mapping* mapping) {
  const std::string path = "cover-sheet-info";
  const Attribute attribute = FindAttribute(job, path.c_str());
  mapping->From(path);
  Members members(attribute.Collection(), path);
  mapping->Boolean(KeyIn(key::kFaxOptions, kFaxPrintCoverSheetProperty), bool(members));
  if (attribute && !members) mapping->Drop(path, "it is not a collection");
  if (!members) return;
  const std::string sender = members.Take("from-name").Text().value_or("");
  const std::string company = members.Take("organization-name").Text().value_or("");
  const std::string recipient = members.Take("to-name").Text().value_or("");
  const std::string subject = members.Take("subject").Text().value_or("");
  std::string notes = members.Take("message").Text().value_or("");
  if (!subject.empty()) notes = subject + (notes.empty() ? "" : "\n\n") + notes;
  if (!sender.empty() || !company.empty())
    mapping->Boolean(KeyIn(key::kFaxOptions, kFaxCoverShowSenderProperty), true);
  if (!sender.empty())
    CoverText(mapping, members.PathOf("from-name"), kFaxSenderNameProperty, sender,
              kFaxCoverLocalizedFromLabel, "From");
  if (!company.empty())
    CoverText(mapping, members.PathOf("organization-name"), kFaxSenderOrganizationProperty, company,
              kFaxCoverLocalizedFromLabel, "From");
  if (!recipient.empty()) {
    CoverText(mapping, members.PathOf("to-name"), kFaxCoverCustomRecipientTextProperty, recipient,
              kFaxCoverLocalizedToLabel, "To");
    mapping->Number(KeyIn(key::kFaxOptions, kFaxCoverShowRecipientsProperty), kCustomRecipients);
  }
  if (!notes.empty())
    CoverText(mapping, members.PathOf(subject.empty() ? "message" : "subject"),
              kFaxCoverSheetNotesProperty, notes, kFaxCoverLocalizedNotesLabel, "Notes");
  members.TellRest(mapping, path);
}

/// How finely the pages are sent.
void MapQuality(ipp_t* job, Mapping* mapping) {
  const Attribute attribute = FindAttribute(job, "print-quality");
  if (!attribute) return;
  constexpr std::int32_t kDraft = 3, kHigh = 5;
  const std::int32_t quality = attribute.Integer().value_or(0);
  if (quality < kDraft || quality > kHigh)
    return mapping->Drop(Shown("print-quality", attribute.Text().value_or("")),
                         "the printers have nothing like it");
  mapping->From(Shown("print-quality", std::to_string(quality)));
  mapping->Number(KeyIn(key::kFaxOptions, kFaxResolutionProperty), quality - kDraft + kFaxStandard);
}

}  // namespace

bool MapFax(ipp_t* job, Mapping* mapping) {
  const Attribute confirmation = FindAttribute(job, "confirmation-sheet-print");
  if (!FindAttribute(job, "destination-uris")) {
    for (const char* name : {"confirmation-sheet-print", "cover-sheet-info"}) {
      const Attribute attribute = FindAttribute(job, name);
      if (attribute && attribute.Boolean() != false)
        mapping->Drop(name, "only a fax has one; give destination-uris");
    }
    return false;
  }
  if (MapDestinations(job, mapping) == 0) {
    // On paper it would lie in the tray for everybody.
    mapping->Refuse("destination-uris", "the job is a fax, and none of its numbers can be dialed");
    return true;
  }
  mapping->From("destination-uris");
  mapping->Number(KeyIn(key::kJobType, key::job_type::kJobType), kJobTypeFax);
  MapQuality(job, mapping);
  MapCoverSheet(job, mapping);
  if (!confirmation) return true;
  if (const std::optional<bool> wanted = confirmation.Boolean()) {
    mapping->From("confirmation-sheet-print");
    mapping->Boolean(KeyIn(key::kFaxOptions, kFaxPrintConfirmationSheetProperty), *wanted);
  } else {
    mapping->Drop("confirmation-sheet-print", "it has to be true or false");
  }
  return true;
}

}  // namespace zarvo
