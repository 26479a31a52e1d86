// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/ParseOptions.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/Text.h"

namespace zarvo {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view TakeDigits(std::string_view* text) {
  std::size_t length = 0;
  while (length < text->size() && IsDigit((*text)[length])) ++length;
  std::string_view digits = text->substr(0, length);
  text->remove_prefix(length);
  while (digits.size() > 1 && digits.front() == '0') digits.remove_prefix(1);
  return digits;
}

bool NaturallyLess(std::string_view left, std::string_view right) {
  // The names of a ticket begin alike for most of their length; a run of digits must not be cut.
  const std::size_t shorter = std::min(left.size(), right.size());
  std::size_t same = 0;
  while (same < shorter && left[same] == right[same]) ++same;
  while (same > 0 && IsDigit(left[same - 1])) --same;
  left.remove_prefix(same);
  right.remove_prefix(same);
  while (!left.empty() && !right.empty()) {
    if (IsDigit(left.front()) && IsDigit(right.front())) {
      const std::string_view a = TakeDigits(&left);
      const std::string_view b = TakeDigits(&right);
      if (a.size() != b.size()) return a.size() < b.size();
      if (a != b) return a < b;
      continue;
    }
    if (left.front() != right.front()) return left.front() < right.front();
    left.remove_prefix(1);
    right.remove_prefix(1);
  }
  return left.size() < right.size();
}

/// The letter of the type that component `index` names; a blank, which means string, past the end.
char TypeAt(const std::vector<std::string_view>& components, std::size_t index) {
  if (index >= components.size()) return ' ';
  return components[index].empty() ? '\0' : components[index].front();
}

std::int32_t ParseSaturated(std::string_view text) {
  const long value = std::strtol(std::string(text).c_str(), nullptr, 10);
  return static_cast<std::int32_t>(std::clamp<long>(value, std::numeric_limits<std::int32_t>::min(),
                                                    std::numeric_limits<std::int32_t>::max()));
}

/// A whole number with nothing around it, as a number formatter reads it.
std::optional<Value> StrictNumber(std::string_view text) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  std::int64_t value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return Value(Number(value));
}

Data DecodeHex(std::string_view text) {
  Data bytes(text.size() / 2);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<std::uint8_t>(hex2int(text[2 * i]) * 16 + hex2int(text[2 * i + 1]));
  }
  return bytes;
}

bool IsContainer(char type) { return type == 'a' || type == 'd'; }

/// The leaf or the empty container of `type`. Numbers in dictionaries came from a number formatter
/// and are read strictly; elsewhere a number is whatever digits the text begins with.
std::optional<Value> MakeValue(char type, std::string_view text, bool in_dictionary) {
  switch (type) {
    case 'a':
      return Value(Array());
    case 'd':
      return Value(Dictionary());
    case 'D':
      return Value(DecodeHex(text));
    case 'b':
      return Value::Boolean(text != "false");
    case 'n':
      if (in_dictionary) return StrictNumber(text);
      return Value(Number(ParseSaturated(text)));
    default:
      if (std::optional<std::string> string = MakeString(text)) return Value(*std::move(string));
      return std::nullopt;
  }
}

bool IsOfKind(const Value& value, char type) {
  return type == 'a' ? value.AsArray() != nullptr : value.AsDictionary() != nullptr;
}

/// Puts a value of `type` at `key`; a container that is there already stays. Returns the value at
/// `key`, or null when nothing could be put there.
Value* PutIntoDictionary(Dictionary* dictionary, std::string_view key, char type,
                         std::string_view text, bool strict_numbers) {
  const auto entry = dictionary->find(key);
  if (IsContainer(type) && entry != dictionary->end())
    return IsOfKind(entry->second, type) ? &entry->second : nullptr;
  std::optional<Value> value = MakeValue(type, text, strict_numbers);
  if (!value) return nullptr;
  if (entry != dictionary->end()) {
    entry->second = *std::move(value);
    return &entry->second;
  }
  if (!MakeString(key)) return nullptr;
  return &dictionary->emplace(key, *std::move(value)).first->second;
}

/// The same for an array: the position right after the last element appends.
Value* PutIntoArray(Array* array, std::string_view address, char type, std::string_view text) {
  const std::int32_t position = ParseSaturated(address);
  if (position < 0 || static_cast<std::size_t>(position) > array->size()) return nullptr;
  const auto index = static_cast<std::size_t>(position);
  const bool exists = index < array->size();
  if (IsContainer(type) && exists)
    return IsOfKind((*array)[index], type) ? &(*array)[index] : nullptr;
  std::optional<Value> value = MakeValue(type, text, false);
  if (!value) return nullptr;
  if (!exists) {
    array->push_back(*std::move(value));
  } else {
    (*array)[index] = *std::move(value);
  }
  return &(*array)[index];
}

/// False when it has no place in the ticket.
bool StoreOption(std::string_view name, std::string_view text, Dictionary* ticket) {
  const std::vector<std::string_view> components = SplitName(name);
  char type = TypeAt(components, 1);
  Value* place = PutIntoDictionary(ticket, components[0], type, text, false);
  // The walk is a loop, because the depth is up to whoever wrote the option.
  for (std::size_t i = 1; place != nullptr && IsContainer(type); ++i) {
    const std::string_view address = AddressIn(components[i]);
    type = TypeAt(components, i + 1);
    if (Array* array = place->AsArray()) {
      place = PutIntoArray(array, address, type, text);
    } else {
      place = PutIntoDictionary(place->AsDictionary(), address, type, text, true);
    }
  }
  return place != nullptr;
}

}  // namespace

std::vector<std::string_view> SplitName(std::string_view name) {
  std::vector<std::string_view> components;
  for (;;) {
    const std::size_t at = name.find("..");
    components.push_back(name.substr(0, at));
    if (at == std::string_view::npos) return components;
    name.remove_prefix(at + 2);
  }
}

std::string_view AddressIn(std::string_view component) {
  for (int skipped = 0; skipped < 2 && !component.empty(); ++skipped) {
    std::size_t length = 1;
    while (length < component.size() &&
           (static_cast<unsigned char>(component[length]) & 0xC0) == 0x80)
      ++length;
    component.remove_prefix(length);
  }
  return component;
}

int hex2int(char digit) {
  if (IsDigit(digit)) return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  return -1;
}

std::vector<cups_option_t> NaturalOrder(int num_options, const cups_option_t* options) {
  if (num_options < 1 || options == nullptr) return {};
  std::vector<cups_option_t> ordered(options, options + num_options);
  std::stable_sort(ordered.begin(), ordered.end(),
                   [](const cups_option_t& left, const cups_option_t& right) {
                     return NaturallyLess(left.name, right.name);
                   });
  return ordered;
}

void recreateCFDictionary(int num_options, const cups_option_t* options, Dictionary* dict,
                          std::vector<std::string_view>* left_out) {
  if (num_options < 1 || options == nullptr) return;
  for (int i = 0; i < num_options; ++i) {
    if (!StoreOption(options[i].name, options[i].value, dict) && left_out != nullptr)
      left_out->push_back(options[i].name);
  }
}

Dictionary ParseCUPSOptionsToDictionary(const cups_option_t* opts, int num_options,
                                        std::vector<std::string_view>* left_out) {
  Dictionary ticket;
  recreateCFDictionary(num_options, opts, &ticket, left_out);
  return ticket;
}

}  // namespace zarvo
