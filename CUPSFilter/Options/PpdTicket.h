// SPDX-License-Identifier: Apache-2.0
// Ticket options for people whose print dialog knows nothing but the PPD's own options.
#pragma once

#include <cups/cups.h>

#include <memory>
#include <vector>

#include "CUPSFilter/Options/Ppd.h"

namespace zarvo {

/// A list of options that owns its texts.
class OptionList {
 public:
  OptionList() = default;
  OptionList(OptionList&& other) noexcept;
  OptionList& operator=(OptionList&&) = delete;
  ~OptionList();

  /// Parses option text as the spooler hands it to filters.
  static OptionList Parse(const char* text);

  /// A name that is there already gets the new value.
  void Add(const char* name, const char* value);
  /// The options of `other` whose names are not there already.
  void AddMissing(const OptionList& other);

  int size() const { return size_; }
  cups_option_t* data() const { return options_; }

 private:
  int size_ = 0;
  cups_option_t* options_ = nullptr;
};

/// The flattened ticket options that the marked choices stand for. A PPD tells them in attributes
///
///   *ZRVTicket Option.Choice: "name=value name=value ..."
///
/// A value is bare, in single quotes, or both; a backslash takes the next character as it is.
/// Outside of names, "%s" is what the job gave for the custom choice: its only parameter, or the
/// parameters in turn when it has several; "%%" is a percent sign. Attributes are read in the order
/// of the file, and of two values for one name the later is kept. An attribute that cannot be
/// understood is told in one log line, which leaves out its value, and skipped.
OptionList PpdTicketOptions(const Ppd& ppd);

/// The options in the order in which the ticket is decoded: those of the PPD's choices come first,
/// so that the job's own, even when they spell an address differently, overwrite them. The texts
/// still belong to the two lists.
std::vector<cups_option_t> TicketOrder(const OptionList& chosen, const OptionList& own);

}  // namespace zarvo
