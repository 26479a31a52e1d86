// SPDX-License-Identifier: Apache-2.0
#include "Source/FaxCover.h"

#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/Fax.h"
#include "Source/TicketNames.h"

namespace zarvo {
namespace {

/// About twice what a sheet full of the narrowest letters holds. Laying text out takes time.
constexpr std::size_t kMaxTextBytes = 32 * 1024;

struct BlockKeys {
  const char* label;
  const char* text;
  FaxCoverBlock FaxCover::*block;
};
constexpr BlockKeys kBlocks[] = {
    {"SenderLabel", "SenderText", &FaxCover::sender},
    {"RecipientLabel", "RecipientText", &FaxCover::recipients},
    {"NotesLabel", "NotesText", &FaxCover::notes},
};
constexpr char kWidthKey[] = "MediaWidth";
constexpr char kHeightKey[] = "MediaHeight";
constexpr char kWatermarkKey[] = "Watermark";

std::string_view TextOf(const Dictionary& dictionary, std::string_view key) {
  const std::string* text = DictionaryGetString(dictionary, key);
  return text != nullptr ? std::string_view(*text) : std::string_view();
}

bool IsTrue(const Dictionary& dictionary, std::string_view key) {
  return DictionaryGetBoolean(dictionary, key).value_or(false);
}

std::string CoverText(std::string_view text) {
  std::string clean;
  text = Utf8Prefix(text, kMaxTextBytes);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r') {
      if (text.substr(i + 1, 1) != "\n") clean += '\n';
    } else {
      const bool control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
      clean += control && c != '\n' && c != '\t' ? ' ' : c;
    }
  }
  return clean;
}

std::string SenderText(const Dictionary& options) {
  const auto text = [&options](std::string_view key) { return TextOf(options, key); };
  return CreateLANFaxSenderInformation(
      text(kFaxSenderNameProperty), text(kFaxSenderOrganizationProperty),
      text(kFaxSenderEmailAddressProperty), text(kFaxCoverLocalizedPhoneLabel),
      text(kFaxSenderPhoneNumberProperty), text(kFaxCoverLocalizedFaxLabel),
      text(kFaxSenderFaxNumberProperty));
}

std::string RecipientNames(const Array& ticket) {
  const FaxRecipientList recipients(ticket);
  std::string names;
  for (std::size_t i = 0; i < recipients.count() && names.size() < kMaxTextBytes; ++i) {
    const std::string name = DisplayNameFromRecipient(*recipients.recipientAtIndex(i));
    if (name.empty()) continue;
    if (!names.empty()) names += ", ";
    names += name;
  }
  return names;
}

FaxCoverBlock Block(const Dictionary& options, std::string_view label_key, std::string_view text) {
  return {CoverText(TextOf(options, label_key)), CoverText(text)};
}

}  // namespace

std::optional<FaxCover> FaxCoverFromTicket(const Dictionary& ticket) {
  const Dictionary* options = DictionaryGetDictionary(ticket, key::kFaxOptions);
  const Array* recipients = DictionaryGetArray(ticket, key::kFaxRecipientList);
  if (options == nullptr || recipients == nullptr || !IsTrue(*options, kFaxPrintCoverSheetProperty))
    return std::nullopt;

  FaxCover cover;
  if (IsTrue(*options, kFaxCoverShowSenderProperty))
    cover.sender = Block(*options, kFaxCoverLocalizedFromLabel, SenderText(*options));

  std::int32_t mode = kNoRecipients;
  CFDictionaryGetNumber(*options, kFaxCoverShowRecipientsProperty, &mode);
  if (mode == kRecipientNames) {
    cover.recipients = Block(*options, kFaxCoverLocalizedToLabel, RecipientNames(*recipients));
  } else if (mode == kCustomRecipients) {
    cover.recipients = Block(*options, kFaxCoverLocalizedToLabel,
                             TextOf(*options, kFaxCoverCustomRecipientTextProperty));
  }
  cover.notes =
      Block(*options, kFaxCoverLocalizedNotesLabel, TextOf(*options, kFaxCoverSheetNotesProperty));

  if (IsTrue(*options, kFaxCoverShowWatermarkProperty)) {
    if (const std::string* name = DictionaryGetString(*options, kFaxCoverWatermarkNameProperty))
      loadWatermarkData(kFaxImageCollection, name, &cover.watermark);
  }
  std::int32_t size = kFaxCoverLetter;
  CFDictionaryGetNumber(*options, kFaxCoverSizeProperty, &size);
  if (size != kFaxCoverLetter) {
    cover.width = 595;
    cover.height = 842;
  }
  return cover;
}

std::string CreateLANFaxSenderInformation(std::string_view name, std::string_view organization,
                                          std::string_view email, std::string_view phone_label,
                                          std::string_view phone_number, std::string_view fax_label,
                                          std::string_view fax_number) {
  std::string text;
  for (const std::string_view part : {name, organization, email})
    if (!part.empty()) text.append(part).append("\n");
  const auto add_number = [&text](std::string_view label, std::string_view number) {
    if (!number.empty()) text.append(label).append(" : ").append(number).append("\n");
  };
  add_number(phone_label, phone_number);
  add_number(fax_label, fax_number);
  return text;
}

Dictionary FaxCoverToDictionary(const FaxCover& cover) {
  Dictionary dictionary;
  CFDictionarySetNumber(dictionary, kWidthKey, &cover.width);
  CFDictionarySetNumber(dictionary, kHeightKey, &cover.height);
  for (const BlockKeys& keys : kBlocks) {
    dictionary.emplace(keys.label, (cover.*keys.block).label);
    dictionary.emplace(keys.text, (cover.*keys.block).text);
  }
  if (std::optional<Dictionary> entry = WatermarkToDictionary(cover.watermark))
    dictionary.emplace(kWatermarkKey, *std::move(entry));
  return dictionary;
}

FaxCover FaxCoverFromDictionary(const Dictionary& dictionary) {
  FaxCover cover;
  CFDictionaryGetNumber(dictionary, kWidthKey, &cover.width);
  CFDictionaryGetNumber(dictionary, kHeightKey, &cover.height);
  for (const BlockKeys& keys : kBlocks)
    cover.*keys.block = {std::string(TextOf(dictionary, keys.label)),
                         std::string(TextOf(dictionary, keys.text))};
  if (const Dictionary* entry = DictionaryGetDictionary(dictionary, kWatermarkKey))
    WatermarkFromDictionary(*entry, &cover.watermark);
  return cover;
}

}  // namespace zarvo
