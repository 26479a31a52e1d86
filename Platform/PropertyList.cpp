// SPDX-License-Identifier: Apache-2.0
#include "Platform/PropertyList.h"

#include <cstdlib>
#include <limits>
#include <memory>
#include <utility>

#include "Platform/PropertyListGuard.h"
#include "Platform/PropertyListLibrary.h"
#include "Platform/Text.h"

namespace zarvo {
namespace {

/// From 1904-01-01, which the ticket counts from, to 2001-01-01, which property lists count from.
constexpr std::int64_t kSeconds1904To2001 = 3'061'152'000;

constexpr std::string_view kBinarySignature = "bplist";

using plist::Tree;
using CText = std::unique_ptr<char, decltype(&std::free)>;

std::optional<Value> ReadNode(plist_t node);

Number ReadInteger(plist_t node) {
  std::uint64_t bits = 0;
  plist_get_uint_val(node, &bits);
  const bool is_negative = plist::IsNegative(node, bits);
  if (is_negative || bits <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
    return Number(static_cast<std::int64_t>(bits));
  return Number(static_cast<double>(bits));
}

std::optional<Value> ReadText(plist_t node) {
  std::uint64_t length = 0;
  const char* text = plist_get_string_ptr(node, &length);
  std::optional<std::string> normal =
      MakeString(text != nullptr ? std::string_view(text, length) : std::string_view());
  if (!normal) return std::nullopt;
  return Value(*std::move(normal));
}

std::optional<Value> ReadArray(plist_t node) {
  Array array;
  array.reserve(plist_array_get_size(node));
  plist_array_iter raw = nullptr;
  plist_array_new_iter(node, &raw);
  const std::unique_ptr<void, decltype(&std::free)> iterator(raw, &std::free);
  plist_t item = nullptr;
  for (plist_array_next_item(node, raw, &item); item != nullptr;
       plist_array_next_item(node, raw, &item)) {
    std::optional<Value> value = ReadNode(item);
    if (!value) return std::nullopt;
    array.push_back(*std::move(value));
  }
  return Value(std::move(array));
}

std::optional<Value> ReadDictionary(plist_t node) {
  Dictionary dictionary;
  plist_dict_iter raw = nullptr;
  plist_dict_new_iter(node, &raw);
  const std::unique_ptr<void, decltype(&std::free)> iterator(raw, &std::free);
  for (;;) {
    char* raw_key = nullptr;
    plist_t item = nullptr;
    plist_dict_next_item(node, raw, &raw_key, &item);
    const CText key(raw_key, &std::free);
    if (item == nullptr) return Value(std::move(dictionary));
    std::optional<std::string> name = MakeString(key ? key.get() : "");
    std::optional<Value> value = ReadNode(item);
    if (!name || !value) return std::nullopt;
    dictionary.insert_or_assign(*std::move(name), *std::move(value));
  }
}

/// The value of a library node; its depth is bounded by the guard, which has seen the list before.
std::optional<Value> ReadNode(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
      std::uint8_t truth = 0;
      plist_get_bool_val(node, &truth);
      return Value::Boolean(truth != 0);
    }
    case PLIST_UINT:
      return Value(ReadInteger(node));
    case PLIST_REAL: {
      double real = 0;
      plist_get_real_val(node, &real);
      return Value(Number(real));
    }
    case PLIST_DATE: {
      std::int32_t seconds = 0, microseconds = 0;
      plist_get_date_val(node, &seconds, &microseconds);
      return Value(Number(std::int64_t{seconds} + kSeconds1904To2001));
    }
    case PLIST_STRING:
      return ReadText(node);
    case PLIST_DATA: {
      std::uint64_t length = 0;
      const auto* data = reinterpret_cast<const std::uint8_t*>(plist_get_data_ptr(node, &length));
      return Value(data != nullptr ? Data(data, data + length) : Data());
    }
    case PLIST_ARRAY:
      return ReadArray(node);
    case PLIST_DICT:
      return ReadDictionary(node);
    default:
      return std::nullopt;
  }
}

bool FitsXml(std::string_view text) {
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 32 && c != '\t' && c != '\n' && c != '\r') return false;
  }
  return MakeString(text).has_value();
}

Tree MakeNumber(const Number& number) {
  if (number.IsReal()) {
    double real = 0;
    number.Get(&real);
    return Tree(plist_new_real(real), &plist_free);
  }
  std::int64_t whole = 0;
  number.Get(&whole);
  return plist::NewInteger(whole);
}

/// The library's tree for a value; null when the value cannot be written.
Tree MakeTree(const Value& value, int levels) {
  const auto own = [](plist_t node) { return Tree(node, &plist_free); };
  if (const bool* truth = value.AsBoolean()) return own(plist_new_bool(*truth));
  if (const Number* number = value.AsNumber()) return MakeNumber(*number);
  if (const std::string* text = value.AsString())
    return own(FitsXml(*text) ? plist_new_string(text->c_str()) : nullptr);
  if (const Data* data = value.AsData())
    return own(plist_new_data(reinterpret_cast<const char*>(data->data()), data->size()));
  if (levels == 0) return own(nullptr);
  if (const Array* array = value.AsArray()) {
    Tree tree = own(plist_new_array());
    for (const Value& element : *array) {
      Tree child = MakeTree(element, levels - 1);
      if (!child) return child;
      plist_array_append_item(tree.get(), child.release());
    }
    return tree;
  }
  Tree tree = own(plist_new_dict());
  for (const auto& [key, element] : *value.AsDictionary()) {
    Tree child = FitsXml(key) ? MakeTree(element, levels - 1) : own(nullptr);
    if (!child) return child;
    plist_dict_set_item(tree.get(), key.c_str(), child.release());
  }
  return tree;
}

}  // namespace

Failure ParsePropertyList(std::string_view bytes, Value* value) {
  if (bytes.size() > kMaxPropertyListBytes) return "the property list is too large";
  const bool is_binary = bytes.starts_with(kBinarySignature);
  if (Failure refused = is_binary ? RefuseBinaryList(bytes) : RefuseXmlList(bytes);
      !refused.empty())
    return refused;
  plist_t root = nullptr;
  const auto parse = is_binary ? &plist_from_bin : &plist_from_xml;
  parse(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
  const Tree tree(root, &plist_free);
  if (!tree) return "the property list is damaged";
  std::optional<Value> read = ReadNode(tree.get());
  if (!read) return "the property list holds text that is not UTF-8, or references";
  *value = *std::move(read);
  return "";
}

std::optional<std::string> SerializePropertyList(const Value& value) {
  const Tree tree = MakeTree(value, kMaxPropertyListDepth);
  if (!tree) return std::nullopt;
  char* xml = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(tree.get(), &xml, &length);
  const plist::XmlText owner = plist::OwnXml(xml);
  if (!owner) return std::nullopt;
  return std::string(owner.get(), length);
}

}  // namespace zarvo
