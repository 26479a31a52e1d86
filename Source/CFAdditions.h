// SPDX-License-Identifier: Apache-2.0
// Reading and writing of dictionaries, shared by the filter and the print dialog.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Platform/Value.h"

namespace zarvo {

/// The value under `key`, or null.
const Value* DictionaryFind(const Dictionary& dictionary, std::string_view key);
bool DictionaryContains(const Dictionary& dictionary, std::string_view key);

// Each gives the content under `key`, or nothing when the key is absent or its value is of another
// kind. The pointers stay valid as long as the entry does.
const std::string* DictionaryGetString(const Dictionary& dictionary, std::string_view key);
const Data* DictionaryGetData(const Dictionary& dictionary, std::string_view key);
const Array* DictionaryGetArray(const Dictionary& dictionary, std::string_view key);
const Dictionary* DictionaryGetDictionary(const Dictionary& dictionary, std::string_view key);
std::optional<bool> DictionaryGetBoolean(const Dictionary& dictionary, std::string_view key);

/// Reads a number; the pointer's type says which width is asked for. Returns true only when the
/// key is present, its value is a number (a boolean is none) and the number fits T; otherwise
/// *out keeps its preset default.
template <class T>
bool CFDictionaryGetNumber(const Dictionary& dictionary, std::string_view key, T* out) {
  const Value* value = DictionaryFind(dictionary, key);
  const Number* number = value != nullptr ? value->AsNumber() : nullptr;
  return number != nullptr && number->Get(out);
}

/// Stores a number of T's width under `key`, replacing an old value.
template <class T>
void CFDictionarySetNumber(Dictionary& dictionary, std::string_view key, const T* value) {
  dictionary.insert_or_assign(std::string(key), Value(Number(*value)));
}

/// Stores a zero-terminated UTF-8 text under `key`, replacing an old value. Returns false and
/// stores nothing when the text is not valid UTF-8.
bool CFDictionarySetCString(Dictionary& dictionary, std::string_view key, const char* text);

/// The dictionary under `key`; an empty one is stored there first when the key is absent. A value
/// of another kind counts as absent and is replaced.
Dictionary& CFDictionaryGetDictionaryOrCreate(Dictionary& dictionary, std::string_view key);

}  // namespace zarvo
