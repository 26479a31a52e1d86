// SPDX-License-Identifier: Apache-2.0
#include "Source/WatermarkSupport.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

#include "Platform/Text.h"
#include "Source/CFAdditions.h"
#include "Source/Preferences.h"

namespace zarvo {
namespace {

constexpr char kListKey[] = "WatermarkListEntries";

struct TextField {
  const char* key;
  std::size_t size;
  char* (*field)(WatermarkData&);
};
template <class T>
struct NumberField {
  const char* key;
  T WatermarkData::*field;
};

constexpr TextField kTextFields[] = {
    {"textString", sizeof(WatermarkData::textString),
     [](WatermarkData& data) -> char* { return data.textString; }},
    {"filename", sizeof(WatermarkData::filename),
     [](WatermarkData& data) -> char* { return data.filename; }},
    {"filePath", sizeof(WatermarkData::filePath),
     [](WatermarkData& data) -> char* { return data.filePath; }},
    {"fontName", sizeof(WatermarkData::fontName),
     [](WatermarkData& data) -> char* { return data.fontName; }},
};
constexpr NumberField<float> kFloatFields[] = {
    {"xOffset", &WatermarkData::xOffset},
    {"yOffset", &WatermarkData::yOffset},
    {"wellColorRed", &WatermarkData::wellColorRed},
    {"wellColorGreen", &WatermarkData::wellColorGreen},
    {"wellColorBlue", &WatermarkData::wellColorBlue},
    {"wellColorAlpha", &WatermarkData::wellColorAlpha},
    {"fontColorRed", &WatermarkData::fontColorRed},
    {"fontColorGreen", &WatermarkData::fontColorGreen},
    {"fontColorBlue", &WatermarkData::fontColorBlue},
    {"fontColorAlpha", &WatermarkData::fontColorAlpha},
};
constexpr NumberField<double> kDoubleFields[] = {
    {"xPos", &WatermarkData::xPos},
    {"yPos", &WatermarkData::yPos},
};
constexpr NumberField<std::int32_t> kIntFields[] = {
    {"angle", &WatermarkData::angle},       {"density", &WatermarkData::density},
    {"scale", &WatermarkData::scale},       {"units", &WatermarkData::units},
    {"fontSize", &WatermarkData::fontSize},
};

/// Numbers that are infinite in their field, or no numbers at all, would break the page they are
/// written into.
template <class T>
void LoadNumber(const Dictionary& entry, const NumberField<T>& row, WatermarkData* data) {
  T value{};
  if (CFDictionaryGetNumber(entry, row.key, &value) && std::isfinite(value))
    data->*row.field = value;
}

void LoadText(const Dictionary& entry, const TextField& row, WatermarkData* data) {
  const std::string* text = DictionaryGetString(entry, row.key);
  if (text == nullptr) return;
  char* field = row.field(*data);
  const bool fits = text->size() < row.size;
  std::memset(field, 0, row.size);
  if (fits) std::memcpy(field, text->data(), text->size());
}

template <class Rows>
void StoreNumbers(const Rows& rows, const WatermarkData& data, Dictionary* entry) {
  for (const auto& row : rows) CFDictionarySetNumber(*entry, row.key, &(data.*row.field));
}

/// The text of a field, in the form that names are stored in. Nothing when it is not UTF-8.
std::optional<std::string> FieldText(const char* field, std::size_t size) {
  return MakeString(std::string_view(field, ::strnlen(field, size)));
}

std::optional<Dictionary> LoadCollection(const char* collection) {
  std::optional<Value> file = collection != nullptr ? CopyXMLData(collection) : std::nullopt;
  if (!file || file->AsDictionary() == nullptr) return std::nullopt;
  return std::move(*file->AsDictionary());
}

bool ChangeCollection(const char* collection, MissingFile missing,
                      const std::function<bool(Dictionary&)>& change) {
  return collection != nullptr && ChangeSharedFile(collection, missing, change);
}

/// What a watermark is stored under.
std::string NameIn(const Dictionary& entry, const WatermarkData& watermark) {
  return *DictionaryGetString(entry, watermark.isTextWatermark != 0 ? "textString" : "filename");
}

/// The list of names within the file, made when it is missing or no list.
Array& ListIn(Dictionary& file) {
  Value& list = file[kListKey];
  if (list.AsArray() == nullptr) list = Value(Array());
  return *list.AsArray();
}

/// Sets or, without a value, removes an entry other than the list of names.
bool ChangeEntry(const char* collection, const std::optional<std::string>& name,
                 MissingFile missing, std::optional<Value> value) {
  if (!name || *name == kListKey) return false;
  return ChangeCollection(collection, missing, [&](Dictionary& file) {
    if (value) {
      file.insert_or_assign(*name, *std::move(value));
      return true;
    }
    return file.erase(*name) != 0;
  });
}

}  // namespace

int loadWatermarkList(const char* inCollection, const WatermarkBrowser* inBrowser,
                      Array* outWatermarkNames) {
  if (outWatermarkNames == nullptr) return 0;
  std::optional<Dictionary> file = LoadCollection(inCollection);
  if (!file) return 0;
  const auto entry = file->find(kListKey);
  Array* names = entry != file->end() ? entry->second.AsArray() : nullptr;
  if (names == nullptr) return 0;
  *outWatermarkNames = std::move(*names);
  if (inBrowser != nullptr) (*inBrowser)(*outWatermarkNames);
  return 1;
}

bool saveWatermarkList(const char* inCollection, const Array* inWatermarkNames) {
  if (inWatermarkNames == nullptr) return false;
  return ChangeCollection(inCollection, MissingFile::kStartEmpty, [&](Dictionary& file) {
    file.insert_or_assign(kListKey, Value(*inWatermarkNames));
    return true;
  });
}

int loadWatermarkData(const char* inCollection, const std::string* inWatermarkName,
                      WatermarkData* outWMData) {
  const std::optional<std::string> name =
      inWatermarkName != nullptr ? MakeString(*inWatermarkName) : std::nullopt;
  const std::optional<Dictionary> file = name ? LoadCollection(inCollection) : std::nullopt;
  const Dictionary* entry = file ? DictionaryGetDictionary(*file, *name) : nullptr;
  if (entry == nullptr) {
    *outWMData = WatermarkData{};
    return 0;
  }
  WatermarkFromDictionary(*entry, outWMData);
  return 1;
}

void WatermarkFromDictionary(const Dictionary& entry, WatermarkData* outWMData) {
  for (const TextField& row : kTextFields) LoadText(entry, row, outWMData);
  for (const auto& row : kFloatFields) LoadNumber(entry, row, outWMData);
  for (const auto& row : kDoubleFields) LoadNumber(entry, row, outWMData);
  for (const auto& row : kIntFields) LoadNumber(entry, row, outWMData);
}

std::optional<Dictionary> WatermarkToDictionary(const WatermarkData& wmData) {
  Dictionary entry;
  WatermarkData copy = wmData;
  for (const TextField& row : kTextFields) {
    std::optional<std::string> text = FieldText(row.field(copy), row.size);
    if (!text) return std::nullopt;
    entry.emplace(row.key, Value(*std::move(text)));
  }
  StoreNumbers(kFloatFields, wmData, &entry);
  StoreNumbers(kDoubleFields, wmData, &entry);
  StoreNumbers(kIntFields, wmData, &entry);
  return entry;
}

bool saveWatermarkData(const char* inCollection, const WatermarkData& wmData) {
  std::optional<Dictionary> entry = WatermarkToDictionary(wmData);
  if (!entry) return false;
  const std::string name = NameIn(*entry, wmData);
  return ChangeEntry(inCollection, name, MissingFile::kStartEmpty, Value(*std::move(entry)));
}

bool addWatermark(const char* collection, const WatermarkData& watermark, const char* first) {
  std::optional<Dictionary> entry = WatermarkToDictionary(watermark);
  if (!entry) return false;
  const std::string name = NameIn(*entry, watermark);
  if (name == kListKey) return false;
  return ChangeCollection(collection, MissingFile::kStartEmpty, [&](Dictionary& file) {
    if (DictionaryGetData(file, name) != nullptr) return false;
    file.insert_or_assign(name, Value(*std::move(entry)));
    Array& list = ListIn(file);
    if (list.empty()) list.emplace_back(first);
    if (std::find(list.begin(), list.end(), Value(name)) == list.end()) list.emplace_back(name);
    return true;
  });
}

bool addWatermarkFont(const char* collection, const std::string& name, const Data& font,
                      const char* first) {
  const std::optional<std::string> key = MakeString(name);
  if (!key || *key == kListKey) return false;
  return ChangeCollection(collection, MissingFile::kStartEmpty, [&](Dictionary& file) {
    Array& list = ListIn(file);
    if (list.empty()) list.emplace_back(first);
    if (file.contains(*key) && DictionaryGetData(file, *key) == nullptr) return false;
    file.insert_or_assign(*key, Value(font));
    return true;
  });
}

bool dropWatermark(const char* collection, const std::string& name, WatermarkData* removed) {
  const std::optional<std::string> stored = MakeString(name);
  *removed = WatermarkData{};
  if (!stored || *stored == kListKey) return false;
  return ChangeCollection(collection, MissingFile::kDoNothing, [&](Dictionary& file) {
    if (const Dictionary* entry = DictionaryGetDictionary(file, *stored)) {
      WatermarkFromDictionary(*entry, removed);
      file.erase(*stored);
    }
    std::erase(ListIn(file), Value(*stored));
    return true;
  });
}

bool removeWatermarkData(const char* inCollection, const std::string& inWatermarkName) {
  return ChangeEntry(inCollection, MakeString(inWatermarkName), MissingFile::kDoNothing,
                     std::nullopt);
}

bool storeFontData(const char* inCollection, const std::string& inKey, const Data& inData) {
  return ChangeEntry(inCollection, MakeString(inKey), MissingFile::kDoNothing, Value(inData));
}

void loadFontData(const char* inCollection, const std::string& inKey, Data* outData) {
  const std::optional<std::string> key = MakeString(inKey);
  const std::optional<Dictionary> file = key ? LoadCollection(inCollection) : std::nullopt;
  const Data* font = file ? DictionaryGetData(*file, *key) : nullptr;
  if (font != nullptr) outData->insert(outData->end(), font->begin(), font->end());
}

}  // namespace zarvo
