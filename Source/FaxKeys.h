// SPDX-License-Identifier: Apache-2.0
// The names under which the print dialog puts a fax job into the ticket.
#pragma once

#include <string_view>

namespace zarvo {

// Top level of the ticket: a dictionary of options and an array of recipient dictionaries.
inline constexpr std::string_view kFaxOptionsTicketKey = "com.zarvo.print.FaxOptions";
inline constexpr std::string_view kFaxRecipientListTicketKey = "com.zarvo.print.FaxRecipientList";

// A recipient; every value is a string.
inline constexpr std::string_view kFaxRecipientFirstNameProperty = "FirstName";
inline constexpr std::string_view kFaxRecipientLastNameProperty = "LastName";
inline constexpr std::string_view kFaxRecipientFaxNumberProperty = "FaxNumber";
inline constexpr std::string_view kFaxRecipientFaxNumberLabelProperty = "FaxNumberLabel";
inline constexpr std::string_view kFaxRecipientOrganizationProperty = "Organization";
inline constexpr std::string_view kFaxRecipientPhoneNumberProperty = "PhoneNumber";
inline constexpr std::string_view kFaxRecipientEmailAddressProperty = "EmailAddress";
inline constexpr std::string_view kFaxRecipientMailboxProperty = "Mailbox";
inline constexpr std::string_view kFaxRecipientUIDProperty = "UID";

// Settings of the dialog; the filter does not read them.
inline constexpr std::string_view kFaxPromptDuplicateProperty = "PromptDuplicate";
inline constexpr std::string_view kFaxPromptRemoveProperty = "PromptRemove";

/// The custom person property that holds a recipient's mailbox on the printer.
inline constexpr std::string_view kZMailboxABProperty = "com.zarvo.mailbox";

// Options: how the printer sends.
inline constexpr std::string_view kFaxResolutionProperty = "Resolution";  // number, 1 to 3
inline constexpr std::string_view kFaxSendSpeedProperty = "SendSpeed";    // number, 1 or 2
inline constexpr std::string_view kFaxPrintConfirmationSheetProperty = "ConfirmationSheet";
inline constexpr std::string_view kFaxCreditCardProperty = "CreditCard";  // string
inline constexpr std::string_view kFaxSendTimeProperty = "SendTime";      // 1904-based seconds
inline constexpr std::string_view kFaxDialingPrefixProperty = "DialingPrefix";        // string
inline constexpr std::string_view kFaxNewJobResolutionProperty = "NewJobResolution";  // number

// Options: the cover sheet. Switches are booleans, texts are strings in the user's language.
inline constexpr std::string_view kFaxPrintCoverSheetProperty = "CoverSheet";
inline constexpr std::string_view kFaxCoverShowSenderProperty = "ShowSender";
inline constexpr std::string_view kFaxSenderNameProperty = "SenderName";
inline constexpr std::string_view kFaxSenderOrganizationProperty = "SenderOrganization";
inline constexpr std::string_view kFaxSenderEmailAddressProperty = "SenderEmailAddress";
inline constexpr std::string_view kFaxSenderPhoneNumberProperty = "SenderPhoneNumber";
inline constexpr std::string_view kFaxSenderFaxNumberProperty = "SenderFaxNumber";
inline constexpr std::string_view kFaxCoverLocalizedPhoneLabel = "LocalizedPhoneLabel";
inline constexpr std::string_view kFaxCoverLocalizedFaxLabel = "LocalizedFaxLabel";
inline constexpr std::string_view kFaxCoverLocalizedFromLabel = "LocalizedFromLabel";
inline constexpr std::string_view kFaxCoverShowRecipientsProperty = "ShowRecipients";  // number
inline constexpr std::string_view kFaxCoverLocalizedToLabel = "LocalizedToLabel";
inline constexpr std::string_view kFaxCoverCustomRecipientTextProperty = "CustomRecipientText";
inline constexpr std::string_view kFaxCoverSheetNotesProperty = "CoverSheetNotes";
inline constexpr std::string_view kFaxCoverLocalizedNotesLabel = "LocalizedNotesLabel";
inline constexpr std::string_view kFaxCoverShowWatermarkProperty = "ShowWatermark";
inline constexpr std::string_view kFaxCoverWatermarkNameProperty = "WatermarkName";
inline constexpr std::string_view kFaxCoverSizeProperty = "Size";  // number, 1 is Letter

}  // namespace zarvo
