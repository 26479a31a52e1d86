// SPDX-License-Identifier: Apache-2.0
// What stands on a fax cover sheet: gathered from the ticket by the filter, drawn by the helper.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Platform/Value.h"
#include "Source/WatermarkSupport.h"

namespace zarvo {

/// The collection of watermarks that cover sheets choose from.
inline constexpr char kFaxImageCollection[] = "com.zarvo.printing.faximage.plist";

/// What stands before the reason why a cover sheet was not drawn: of a job that goes out without
/// it,
inline constexpr char kCoverLeftOut[] = "The fax cover sheet was left out: ";
/// and of one that does not go out then.
inline constexpr char kCoverRefused[] =
    "the job was not printed: its fax cover sheet cannot be drawn: ";

/// A text and the bold heading above it; an empty text is not drawn, its heading neither.
struct FaxCoverBlock {
  std::string label;
  std::string text;
};

struct FaxCover {
  double width = 612;  // of the sheet, points
  double height = 792;
  FaxCoverBlock sender;
  FaxCoverBlock recipients;
  FaxCoverBlock notes;
  WatermarkData watermark{};  // all zeros when there is none
};

/// The cover sheet that the ticket asks for, or nothing when it asks for none. Reads the watermark
/// from kFaxImageCollection. Texts are cut to what no sheet can hold; their line ends become LF,
/// other control characters blanks.
std::optional<FaxCover> FaxCoverFromTicket(const Dictionary& ticket);

/// The sender's lines, each ended by LF: name, organization, e-mail address, and the two numbers,
/// each after its label and " : ". Empty parts are left out; a number without a label is not.
std::string CreateLANFaxSenderInformation(std::string_view name, std::string_view organization,
                                          std::string_view email, std::string_view phone_label,
                                          std::string_view phone_number, std::string_view fax_label,
                                          std::string_view fax_number);

/// The cover sheet as a dictionary that fits a property list, and back. What is missing or of
/// another kind there keeps its default.
Dictionary FaxCoverToDictionary(const FaxCover& cover);
FaxCover FaxCoverFromDictionary(const Dictionary& dictionary);

}  // namespace zarvo
