// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/OptionList.h"

#include <utility>

namespace zarvo {

OptionList::OptionList(OptionList&& other) noexcept
    : size_(std::exchange(other.size_, 0)), options_(std::exchange(other.options_, nullptr)) {}

OptionList& OptionList::operator=(OptionList&& other) noexcept {
  std::swap(size_, other.size_);
  std::swap(options_, other.options_);
  return *this;
}

OptionList::~OptionList() { cupsFreeOptions(size_, options_); }

OptionList OptionList::Parse(const char* text) {
  OptionList list;
  list.size_ = cupsParseOptions(text, 0, &list.options_);
  return list;
}

void OptionList::Add(const char* name, const char* value) {
  size_ = cupsAddOption(name, value, size_, &options_);
}

void OptionList::AddMissing(const OptionList& other) {
  for (int i = 0; i < other.size_; ++i) {
    const cups_option_t& option = other.options_[i];
    if (cupsGetOption(option.name, size_, options_) == nullptr) Add(option.name, option.value);
  }
}

void OptionList::RemoveEmpty(const char* name) {
  const char* value = cupsGetOption(name, size_, options_);
  if (value != nullptr && *value == '\0') size_ = cupsRemoveOption(name, size_, &options_);
}

void OptionList::RemoveBelow(const std::string& dictionary) {
  for (int i = size_ - 1; i >= 0; --i) {
    const std::string name = options_[i].name;
    if (name.starts_with(dictionary + ".."))
      size_ = cupsRemoveOption(name.c_str(), size_, &options_);
  }
}

}  // namespace zarvo
