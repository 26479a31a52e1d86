// SPDX-License-Identifier: Apache-2.0
// vCards: a card that can be read keeps every property when it is written and read again.
#include "Platform/VCard.h"
#include "fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  const std::string_view text = AsText(data, size);
  if (const std::optional<VCard> card = ParseVCard(text)) {
    const std::optional<VCard> again = ParseVCard(FormatVCard(*card));
    Require(again && again->properties.size() == card->properties.size());
    for (std::size_t i = 0; i < card->properties.size(); ++i) {
      Require(card->properties[i].head == again->properties[i].head);
      Require(card->properties[i].value == again->properties[i].value);
    }
    VCardFindText(*card, "UID");
  }
  const std::string value = VCardValue(text);
  Require(value.find_first_of("\r\n") == value.npos);
  VCardText(text);
  return 0;
}
