// SPDX-License-Identifier: Apache-2.0
// Ticket settings from the choices of a PPD: the input up to a NUL is the option text, the rest
// stands in the PPD after its ordinary content.

#include <string>
#include <vector>

#include "CUPSFilter/Options/ParseOptions.h"
#include "CUPSFilter/Options/PpdTicket.h"
#include "Platform/Process.h"
#include "fuzz/target.h"

namespace zarvo {
namespace {

constexpr char kPpd[] =
    "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
    "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"ZARVO.PPD\"\n"
    "*Manufacturer: \"Zarvo\"\n*Product: \"(Zarvo)\"\n*ModelName: \"Zarvo\"\n"
    "*ShortNickName: \"Zarvo\"\n*NickName: \"Zarvo\"\n*PSVersion: \"(3010) 1\"\n"
    "*OpenUI *PageSize/Page Size: PickOne\n*DefaultPageSize: Letter\n"
    "*PageSize Letter/Letter: \"\"\n*PageSize A4/A4: \"\"\n*CloseUI: *PageSize\n"
    "*DefaultImageableArea: Letter\n*ImageableArea Letter: \"18 36 594 756\"\n"
    "*DefaultPaperDimension: Letter\n*PaperDimension Letter: \"612 792\"\n"
    "*OpenUI *ZRVStaple/Staple: PickOne\n*DefaultZRVStaple: None\n"
    "*ZRVStaple None/Off: \"\"\n*ZRVStaple One/One: \"\"\n*CloseUI: *ZRVStaple\n"
    "*OpenUI *ZRVName/Name: PickOne\n*DefaultZRVName: None\n*ZRVName None/None: \"\"\n"
    "*CloseUI: *ZRVName\n*CustomZRVName True: \"pop\"\n"
    "*ParamCustomZRVName Text/Text: 1 string 0 64\n";

}  // namespace
}  // namespace zarvo

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  std::string_view input = AsText(data, size);
  const std::string text = TakeOptions(&input);
  const UniqueFd file = OpenMemoryFile(std::string(kPpd).append(input));
  OptionList options = OptionList::Parse(text.c_str());
  Ppd ppd = Ppd::Open(("/proc/self/fd/" + std::to_string(file.get())).c_str());
  ppd.Mark(options.size(), options.data());
  ppd.MarkedPageSize();
  std::vector<std::string> faults;
  const PpdChoices chosen = PpdTicketOptions(ppd, {}, &faults);
  const std::vector<cups_option_t> ordered = TicketOrder({&chosen.others, &options});
  ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()));
  options.AddMissing(chosen.others);
  return 0;
}
