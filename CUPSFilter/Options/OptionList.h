// SPDX-License-Identifier: Apache-2.0
// The options of a job as the spooler's library keeps them.
#pragma once

#include <cups/cups.h>

#include <cstddef>
#include <span>
#include <string>

namespace zarvo {

/// A list of options that owns its texts.
class OptionList {
 public:
  OptionList() = default;
  OptionList(OptionList&& other) noexcept;
  OptionList& operator=(OptionList&& other) noexcept;
  ~OptionList();

  /// Parses option text as the spooler hands it to filters.
  static OptionList Parse(const char* text);

  /// A name that is there already gets the new value.
  void Add(const char* name, const char* value);
  /// The options of `other` whose names are not there already.
  void AddMissing(const OptionList& other);
  /// Takes out the option of that name when its value is empty.
  void RemoveEmpty(const char* name);
  /// Takes out all options that lead below the ticket's dictionary of that flattened name.
  void RemoveBelow(const std::string& dictionary);

  std::span<const cups_option_t> span() const {
    return {options_, static_cast<std::size_t>(size_)};
  }
  int size() const { return size_; }
  cups_option_t* data() const { return options_; }

 private:
  int size_ = 0;
  cups_option_t* options_ = nullptr;
};

}  // namespace zarvo
