// SPDX-License-Identifier: Apache-2.0
#include "Source/CFAdditions.h"

#include "Platform/Text.h"

namespace zarvo {

const Value* DictionaryFind(const Dictionary& dictionary, std::string_view key) {
  const auto entry = dictionary.find(key);
  return entry != dictionary.end() ? &entry->second : nullptr;
}

bool DictionaryContains(const Dictionary& dictionary, std::string_view key) {
  return DictionaryFind(dictionary, key) != nullptr;
}

const std::string* DictionaryGetString(const Dictionary& dictionary, std::string_view key) {
  const Value* value = DictionaryFind(dictionary, key);
  return value != nullptr ? value->AsString() : nullptr;
}

const Data* DictionaryGetData(const Dictionary& dictionary, std::string_view key) {
  const Value* value = DictionaryFind(dictionary, key);
  return value != nullptr ? value->AsData() : nullptr;
}

const Array* DictionaryGetArray(const Dictionary& dictionary, std::string_view key) {
  const Value* value = DictionaryFind(dictionary, key);
  return value != nullptr ? value->AsArray() : nullptr;
}

const Dictionary* DictionaryGetDictionary(const Dictionary& dictionary, std::string_view key) {
  const Value* value = DictionaryFind(dictionary, key);
  return value != nullptr ? value->AsDictionary() : nullptr;
}

std::optional<bool> DictionaryGetBoolean(const Dictionary& dictionary, std::string_view key) {
  const Value* value = DictionaryFind(dictionary, key);
  const bool* boolean = value != nullptr ? value->AsBoolean() : nullptr;
  return boolean != nullptr ? std::optional<bool>(*boolean) : std::nullopt;
}

bool CFDictionarySetCString(Dictionary& dictionary, std::string_view key, const char* text) {
  std::optional<std::string> string = MakeString(text);
  if (!string) return false;
  dictionary.insert_or_assign(std::string(key), Value(*std::move(string)));
  return true;
}

Dictionary& CFDictionaryGetDictionaryOrCreate(Dictionary& dictionary, std::string_view key) {
  auto entry = dictionary.find(key);
  if (entry == dictionary.end()) entry = dictionary.emplace(key, Dictionary()).first;
  if (entry->second.AsDictionary() == nullptr) entry->second = Value(Dictionary());
  return *entry->second.AsDictionary();
}

}  // namespace zarvo
