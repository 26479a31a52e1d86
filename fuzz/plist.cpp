// SPDX-License-Identifier: Apache-2.0
// Property lists: what is read can be written, and reads back as the same value; watermarks and
// cover sheets are filled from it; house tickets come back as they were.
#include "HouseTicket/HouseTicket.h"
#include "Platform/PropertyList.h"
#include "Source/FaxCover.h"
#include "Source/WatermarkSupport.h"
#include "fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  Value value;
  if (!ParsePropertyList(AsText(data, size), &value).empty()) return 0;
  if (const Dictionary* dictionary = value.AsDictionary()) {
    WatermarkData watermark{};
    WatermarkFromDictionary(*dictionary, &watermark);
    const std::optional<Dictionary> again = WatermarkToDictionary(watermark);
    Require(again.has_value());
    HouseTicket house, same;
    if (HouseTicketFromDictionary(*dictionary, &house).empty()) {
      Require(HouseTicketFromDictionary(HouseTicketToDictionary(house), &same).empty());
      Require(house.ticket == same.ticket && house.titles == same.titles);
    }
    const FaxCover cover = FaxCoverFromDictionary(*dictionary);
    FaxCoverToDictionary(cover);
  }
  if (const std::optional<std::string> xml = SerializePropertyList(value)) {
    Require(ParsePropertyList(*xml, &value).empty());
  }
  return 0;
}
