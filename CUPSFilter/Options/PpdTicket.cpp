// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/PpdTicket.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>
#include <utility>

#include "CUPSFilter/Options/ParseOptions.h"
#include "Platform/Failure.h"

namespace zarvo {
namespace {

using CustomValues = std::vector<std::optional<std::string>>;

bool IsBlank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

/// Reads the items of one attribute. It stops at the first failure.
class ItemReader {
 public:
  ItemReader(std::string_view text, const CustomValues& custom) : rest_(text), custom_(custom) {}

  /// Reads the next name and value. Returns false at the end or when there is an error.
  bool Next(std::string* name, std::string* value) {
    while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
    if (rest_.empty() && !any_) failure_ = "it is empty";
    if (rest_.empty()) return false;
    any_ = true;
    return ReadName(name) && ReadValue(value);
  }

  const Failure& failure() const { return failure_; }

 private:
  bool ReadName(std::string* name) {
    const std::size_t length = rest_.find_first_of("= \t\r\n'\\");
    if (length == 0 || length == rest_.npos || rest_[length] != '=')
      return Fail("an item is not of the form name=value");
    *name = rest_.substr(0, length);
    rest_.remove_prefix(length + 1);
    return true;
  }

  bool ReadValue(std::string* value) {
    value->clear();
    bool quoted = false;
    while (!rest_.empty() && (quoted || !IsBlank(rest_.front()))) {
      const char c = Take();
      if (c == '\'') {
        quoted = !quoted;
      } else if (c == '\\') {
        if (rest_.empty()) return Fail("it ends in a backslash");
        *value += Take();
      } else if (c == '%' && !rest_.empty() && (rest_.front() == '%' || rest_.front() == 's')) {
        if (Take() == '%') {
          *value += '%';
        } else if (!AppendCustom(value)) {
          return false;
        }
      } else {
        *value += c;
      }
    }
    return !quoted || Fail("a quote is not closed");
  }

  bool AppendCustom(std::string* value) {
    if (custom_.empty()) return Fail("it has %s, but the choice has no parameter");
    const std::optional<std::string>& text = custom_[std::min(used_++, custom_.size() - 1)];
    if (!text) return Fail("the job gives no value for the custom choice");
    *value += *text;
    return true;
  }

  char Take() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  bool Fail(const char* failure) {
    failure_ = failure;
    return false;
  }

  std::string_view rest_;
  const CustomValues& custom_;
  std::size_t used_ = 0;  // parameters that have been filled in
  bool any_ = false;
  Failure failure_;
};

/// Adds the options of one attribute, all or none.
Failure AddAttribute(const Ppd& ppd, const PpdAttribute& attribute, const OptionNames& names,
                     PpdChoices* choices) {
  const std::size_t dot = attribute.selector.find('.');
  if (dot == attribute.selector.npos) return "its name is not of the form Option.Choice";
  const std::string option(attribute.selector.substr(0, dot));
  const std::string choice(attribute.selector.substr(dot + 1));
  if (!ppd.HasChoice(option.c_str(), choice.c_str())) return "the PPD has no such choice";
  if (!ppd.IsMarked(option.c_str(), choice.c_str())) return "";

  const CustomValues custom = ppd.CustomValues(option.c_str());
  ItemReader reader(attribute.value, custom);
  std::vector<std::pair<std::string, std::string>> items;
  std::string name, value;
  while (reader.Next(&name, &value)) items.emplace_back(name, value);
  if (!reader.failure().empty()) return reader.failure();
  OptionList& options = names.contains(option) ? choices->named : choices->others;
  for (const auto& item : items) options.Add(item.first.c_str(), item.second.c_str());
  return "";
}

}  // namespace

PpdChoices PpdTicketOptions(const Ppd& ppd, const OptionNames& names,
                            std::vector<std::string>* faults) {
  PpdChoices choices;
  for (const PpdAttribute& attribute : ppd.Attributes("ZRVTicket")) {
    if (const Failure failure = AddAttribute(ppd, attribute, names, &choices); !failure.empty())
      faults->push_back("PPD attribute *ZRVTicket " + std::string(attribute.selector) +
                        " is not used: " + failure + "; correct the PPD or the job's option");
  }
  return choices;
}

OptionList ReadTicketAttribute(std::string_view text) {
  OptionList options;
  const CustomValues none;
  ItemReader reader(text, none);
  std::string name, value;
  while (reader.Next(&name, &value)) options.Add(name.c_str(), value.c_str());
  return reader.failure().empty() ? std::move(options) : OptionList();
}

std::vector<cups_option_t> TicketOrder(std::initializer_list<const OptionList*> lists) {
  std::vector<cups_option_t> ordered;
  for (const OptionList* list : lists) {
    const std::vector<cups_option_t> next = NaturalOrder(list->size(), list->data());
    ordered.insert(ordered.end(), next.begin(), next.end());
  }
  return ordered;
}

}  // namespace zarvo
