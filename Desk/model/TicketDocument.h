// SPDX-License-Identifier: Apache-2.0
// The job ticket that is being worked on, with undo and redo.
//
// Every change is one step of a history of whole tickets, which are small: whatever a panel does to
// a ticket can be undone without the panel knowing how. Settings are named by paths, keys joined by
// "/" with the top key's prefix left out or not ("JobType/SecurePrintPassword"), and a place in a
// list is its number ("SpecialPages.InsertList/0/StartPage").
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Failure.h"
#include "Platform/Value.h"
#include "Source/TicketKeys.h"

namespace zarvo::desk {

class TicketDocument {
 public:
  using Listener = std::function<void()>;

  const Dictionary& ticket() const { return now_; }

  /// Is told after every change, undo and redo.
  void Listen(Listener listener) { listeners_.push_back(std::move(listener)); }

  /// Changes the ticket in one step. A step with the same name as the last one and `joins` becomes
  /// part of it, so that typing a word is one step. A change that changes nothing is none. Settings
  /// that only the XML ticket carries bring its switch along.
  void Change(const std::string& what, const std::function<void(Dictionary*)>& change,
              bool joins = false);
  void Set(std::string_view path, Value value, const std::string& what, bool joins = false);
  void Clear(std::string_view path, const std::string& what);

  const Value* Find(std::string_view path) const;
  std::optional<std::int64_t> NumberAt(std::string_view path) const;
  std::string TextAt(std::string_view path) const;  ///< empty when there is none
  bool BooleanAt(std::string_view path) const;

  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  /// What the next one would take back or do again.
  std::string UndoName() const { return undo_.empty() ? "" : undo_.back().what; }
  std::string RedoName() const { return redo_.empty() ? "" : redo_.back().what; }
  void Undo();
  void Redo();

  /// Another ticket from here on, as one step.
  void Replace(Dictionary ticket, const std::string& what);
  /// Starts anew, without a history.
  void Reset(Dictionary ticket);
  bool IsChanged() const { return !(now_ == saved_); }

  /// Reads any form that zarvo takes. The document starts anew, or stays as it was on failure.
  Failure Open(const std::string& file);
  /// Writes JSON; a file with secrets is for its owner's eyes only.
  Failure Save(const std::string& file);
  /// The ticket as that JSON, secrets included.
  std::string Json() const;

 private:
  struct Step {
    std::string what;
    Dictionary before;
  };
  void Told();

  Dictionary now_;
  Dictionary saved_;
  std::vector<Step> undo_;
  std::vector<Step> redo_;
  std::vector<Listener> listeners_;
};

/// The row of the key table that a path leads to, or null.
const TicketKey* KeyAt(std::string_view path);

/// Puts a value at a path of a ticket; groups on the way are made, list places up to one behind the
/// end. False when the path leads nowhere.
bool PutAt(Dictionary* ticket, std::string_view path, Value value);
/// Takes it out, with groups that get empty by that.
void RemoveAt(Dictionary* ticket, std::string_view path);

/// Why a choice does nothing or harm, as the ticket's check would say it once it is made; empty
/// when it is fine.
std::string Objection(const Dictionary& ticket, const std::function<void(Dictionary*)>& choice);

/// A number, word, date, truth value or text as people type it for that key; nothing when it is
/// none.
std::optional<Value> ReadValue(const TicketKey& key, const std::string& text);
/// And as they read it.
std::string WriteValue(const TicketKey& key, const Value& value);

}  // namespace zarvo::desk
