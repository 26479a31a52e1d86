// SPDX-License-Identifier: Apache-2.0
#include "StandardTicket/Attribute.h"

#include <charconv>
#include <cstring>
#include <ctime>
#include <string_view>

namespace zarvo {
namespace {

/// From 1904-01-01 to 1970-01-01, in seconds.
constexpr std::int64_t kFrom1904 = 2082844800;

std::optional<std::int32_t> WholeNumber(std::string_view text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

/// A message may have any number for the unit, which is read as a number: an enumeration would not
/// take it.
std::string ResolutionText(ipp_attribute_t* attribute, int index) {
  int y = 0;
  ipp_res_t raw = IPP_RES_PER_INCH;
  const int x = ippGetResolution(attribute, index, &y, &raw);
  std::int32_t units = 0;
  static_assert(sizeof units == sizeof raw);
  std::memcpy(&units, &raw, sizeof units);
  const char* unit = units == IPP_RES_PER_INCH ? "dpi" : units == IPP_RES_PER_CM ? "dpcm" : "?";
  const std::string both = x == y ? "" : "x" + std::to_string(y);
  return std::to_string(x) + both + unit;
}

std::int64_t Local1904(std::time_t time) {
  std::tm local{};
  localtime_r(&time, &local);
  return timegm(&local) + kFrom1904;
}

}  // namespace

Attribute::operator bool() const { return count() > 0; }

int Attribute::count() const {
  if (attribute_ == nullptr) return 0;
  const ipp_tag_t tag = ippGetValueTag(attribute_);
  return tag < IPP_TAG_INTEGER ? 0 : ippGetCount(attribute_);
}

std::optional<std::string> Attribute::Text(int index) const {
  if (index >= count()) return std::nullopt;
  switch (ippGetValueTag(attribute_)) {
    case IPP_TAG_BEGIN_COLLECTION:
    case IPP_TAG_DATE:
      return std::nullopt;
    case IPP_TAG_INTEGER:
    case IPP_TAG_ENUM:
      return std::to_string(ippGetInteger(attribute_, index));
    case IPP_TAG_BOOLEAN:
      return ippGetBoolean(attribute_, index) != 0 ? "true" : "false";
    case IPP_TAG_RANGE: {
      int high = 0;
      const int low = ippGetRange(attribute_, index, &high);
      return std::to_string(low) + "-" + std::to_string(high);
    }
    case IPP_TAG_RESOLUTION:
      return ResolutionText(attribute_, index);
    case IPP_TAG_STRING: {
      int length = 0;
      const void* bytes = ippGetOctetString(attribute_, index, &length);
      if (bytes == nullptr || length <= 0) return "";
      return std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(length));
    }
    default: {
      const char* text = ippGetString(attribute_, index, nullptr);
      return text != nullptr ? text : "";
    }
  }
}

std::optional<std::int32_t> Attribute::Integer(int index) const {
  const std::optional<std::string> text = Text(index);
  return text ? WholeNumber(*text) : std::nullopt;
}

std::optional<bool> Attribute::Boolean(int index) const {
  const std::optional<std::string> text = Text(index);
  if (text == "true") return true;
  if (text == "false") return false;
  return std::nullopt;
}

std::optional<PageRange> Attribute::Range(int index) const {
  const std::optional<std::string> text = Text(index);
  if (!text) return std::nullopt;
  const std::size_t dash = text->find('-', 1);
  const auto low = WholeNumber(std::string_view(*text).substr(0, dash));
  const auto high =
      dash == text->npos ? low : WholeNumber(std::string_view(*text).substr(dash + 1));
  if (!low || !high || *low > *high) return std::nullopt;
  return PageRange{*low, *high};
}

std::optional<std::int64_t> Attribute::LocalSeconds(int index) const {
  if (index < count() && ippGetValueTag(attribute_) == IPP_TAG_DATE) {
    const ipp_uchar_t* date = ippGetDate(attribute_, index);
    return date != nullptr ? std::optional(Local1904(ippDateToTime(date))) : std::nullopt;
  }
  const std::optional<std::string> text = Text(index);
  if (!text) return std::nullopt;
  std::tm parts{};
  const char* rest = strptime(text->c_str(), "%Y-%m-%dT%H:%M", &parts);
  if (rest == nullptr) return std::nullopt;
  if (const char* seconds = strptime(rest, ":%S", &parts)) rest = seconds;
  const std::string_view zone = rest;
  if (zone.empty()) return timegm(&parts) + kFrom1904;
  if (zone == "Z") return Local1904(timegm(&parts));
  return std::nullopt;
}

ipp_t* Attribute::Collection(int index) const {
  if (index >= count() || ippGetValueTag(attribute_) != IPP_TAG_BEGIN_COLLECTION) return nullptr;
  return ippGetCollection(attribute_, index);
}

bool Attribute::IsName(int index) const {
  if (index >= count()) return false;
  switch (ippGetValueTag(attribute_)) {
    case IPP_TAG_NAME:
    case IPP_TAG_NAMELANG:
    case IPP_TAG_TEXT:
    case IPP_TAG_TEXTLANG:
      return true;
    default:
      return false;
  }
}

Attribute FindAttribute(ipp_t* message, const char* name) {
  return Attribute(message != nullptr ? ippFindAttribute(message, name, IPP_TAG_ZERO) : nullptr);
}

}  // namespace zarvo
