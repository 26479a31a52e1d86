// SPDX-License-Identifier: Apache-2.0
// Everything the filter wants of a PPD file, and the only place that knows which library reads it.
#pragma once

#include <cups/cups.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct ppd_file_s;

namespace zarvo {

/// A page size and its imageable area in points.
struct PpdPageSize {
  float width, length, left, bottom, right, top;
};

/// `*KEYWORD Selector: "value"`. The texts belong to the PPD.
struct PpdAttribute {
  std::string_view selector, value;
};

/// Width and length, in points, of the paper that a size's name means, in any of the spellings that
/// the spooler takes ("A4", "iso_a4_210x297mm", "Custom.300x400"). Nothing for other texts.
std::optional<std::pair<float, float>> PaperOfName(const std::string& name);

/// An open PPD file, or none: an empty object answers every question with no.
class Ppd {
 public:
  /// Opens `file` (null: none). A file that cannot be opened gives an empty object; one that is
  /// there but cannot be understood is told in one log line first.
  static Ppd Open(const char* file);

  explicit operator bool() const { return file_ != nullptr; }

  /// Marks the PPD's defaults and then the job's options.
  void Mark(int num_options, cups_option_t* options);
  /// Marks one choice more, such as "A4" or "Custom.4711".
  void MarkChoice(const char* option, const char* choice);
  /// The marked page size.
  std::optional<PpdPageSize> MarkedPageSize() const;
  bool IsMarked(const char* option, const char* choice) const;
  bool HasOption(const char* option) const;
  bool HasChoice(const char* option, const char* choice) const;
  /// Whether people may give a value of their own, and whether a page size may be of any measure.
  bool TakesCustom(const char* option) const;
  /// The keywords of all options, and the choices of one; a custom choice is among them.
  std::vector<std::string> OptionNames() const;
  std::vector<std::string> Choices(const char* option) const;
  /// What the job gave for the parameters of an option whose custom choice is marked, as text, in
  /// the order of the parameters: numbers in decimal (lengths in points), a text as it came,
  /// nothing for a text that was not given.
  std::vector<std::optional<std::string>> CustomValues(const char* option) const;
  /// Whether there is an attribute `*KEYWORD: True`, which switches something of ours on.
  bool IsTrue(const char* keyword) const;
  /// Whether a PPD that is there and was not understood says so all the same, in a line of its own,
  /// or may do so, because its lines cannot be read.
  enum class Hidden { kNo, kYes, kUnknown };
  Hidden HidesTrue(const std::string& keyword) const;
  /// Why the PPD was not understood; empty when it was, or there is none.
  const std::string& fault() const { return fault_; }
  /// All attributes of that keyword, in the order of the file.
  std::vector<PpdAttribute> Attributes(const char* keyword) const;
  int ColorDevice() const;
  int LanguageLevel() const;

 private:
  struct Closer {
    void operator()(ppd_file_s* file) const;
  };
  std::unique_ptr<ppd_file_s, Closer> file_;
  std::string name_;
  std::string fault_;
};

}  // namespace zarvo
