// SPDX-License-Identifier: Apache-2.0
// A job's attributes, as an IPP message ("m" and its bytes) or as option text ("t" and the text),
// to ticket options. However they are chosen, the options are such that the ticket takes them all.
#include <cups/cups.h>

#include <algorithm>
#include <cstring>

#include "CUPSFilter/Options/ParseOptions.h"
#include "Platform/Text.h"
#include "StandardTicket/StandardTicket.h"
#include "fuzz/target.h"

namespace zarvo {
namespace {

/// 2026-11-23 12:00:00 in seconds since 1904.
constexpr std::int64_t kNow = 3878280000;

ssize_t ReadBytes(void* context, ipp_uchar_t* buffer, std::size_t size) {
  std::string_view& left = *static_cast<std::string_view*>(context);
  const std::size_t count = std::min(size, left.size());
  std::memcpy(buffer, left.data(), count);
  left.remove_prefix(count);
  return static_cast<ssize_t>(count);
}

/// What could be read of a message that breaks off is looked at as well.
ipp_t* ReadMessage(std::string_view bytes) {
  ipp_t* message = ippNew();
  ippReadIO(&bytes, &ReadBytes, 1, nullptr, message);
  return message;
}

ipp_t* ReadOptions(const std::string& text) {
  ipp_t* message = ippNew();
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(text.c_str(), 0, &options);
  for (int i = 0; i < count; ++i) {
    if (IsStandardAttribute(options[i].name))
      cupsEncodeOption(message, IPP_TAG_JOB, options[i].name, options[i].value);
  }
  cupsFreeOptions(count, options);
  return message;
}

void CheckTicket(const StandardTicket& ticket) {
  constexpr std::size_t kMostOfAPage = 40;
  Require(ticket.settings.size() < 5 * kMostSpecialPages * kMostOfAPage);
  std::vector<cups_option_t> options;
  for (const StandardSetting& setting : ticket.settings) {
    Require(setting.name == "sides" || setting.name.starts_with("com.zarvo."));
    Require(setting.value.find('\0') == std::string::npos && MakeString(setting.value));
    options.push_back(
        {const_cast<char*>(setting.name.c_str()), const_cast<char*>(setting.value.c_str())});
  }
  const std::vector<cups_option_t> ordered =
      NaturalOrder(static_cast<int>(options.size()), options.data());
  std::vector<std::string_view> left_out;
  ParseCUPSOptionsToDictionary(ordered.data(), static_cast<int>(ordered.size()), &left_out);
  Require(left_out.empty());
  for (const NotHonoured& lost : ticket.not_honoured)
    Require(!lost.attribute.empty() && !lost.reason.empty());
}

}  // namespace
}  // namespace zarvo

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  const std::string_view input = AsText(data, size);
  if (input.empty()) return 0;
  const std::string_view rest = input.substr(1);
  ipp_t* message = input[0] == 't' ? ReadOptions(std::string(rest)) : ReadMessage(rest);
  CheckTicket(MapStandardAttributes(message, kNow));
  ippDelete(message);
  return 0;
}
