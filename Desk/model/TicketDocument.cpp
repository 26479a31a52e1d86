// SPDX-License-Identifier: Apache-2.0
#include "Desk/model/TicketDocument.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <nlohmann/json.hpp>

#include "Platform/AtomicFile.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::desk {
namespace {

constexpr std::size_t kMostSteps = 500;
constexpr std::size_t kLargestFile = 64 << 20;

std::string_view TakeName(std::string_view* path) {
  const std::size_t slash = std::min(path->find('/'), path->size());
  const std::string_view name = path->substr(0, slash);
  path->remove_prefix(std::min(slash + 1, path->size()));
  return name;
}

std::string TopName(std::string_view name) {
  const TicketKey* key = FindTopLevelKey(name);
  return key != nullptr ? key->name : std::string(name);
}

std::optional<std::size_t> Place(std::string_view text) {
  std::size_t place = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), place);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return place;
}

/// Puts or, without a value, removes.
bool Alter(Dictionary* group, std::string_view path, bool top, std::optional<Value>* value) {
  const std::string name = top ? TopName(TakeName(&path)) : std::string(TakeName(&path));
  if (path.empty()) {
    if (*value) {
      group->insert_or_assign(name, std::move(**value));
    } else {
      group->erase(name);
    }
    return true;
  }
  const auto found = group->find(name);
  if (found == group->end() && !*value) return true;
  const std::size_t slash = path.find('/');
  const std::optional<std::size_t> place = Place(path.substr(0, slash));
  if (!place) {
    Dictionary& inner = CFDictionaryGetDictionaryOrCreate(*group, name);
    const bool fine = Alter(&inner, path, false, value);
    if (inner.empty()) group->erase(name);
    return fine;
  }
  if (found == group->end() || found->second.AsArray() == nullptr)
    group->insert_or_assign(name, Value(Array()));
  Array& list = *group->find(name)->second.AsArray();
  bool fine = *place < list.size() || (*value && *place == list.size());
  if (fine && slash == std::string_view::npos) {
    if (*value && *place == list.size()) list.emplace_back();
    if (*value) {
      list[*place] = std::move(**value);
    } else {
      list.erase(list.begin() + static_cast<std::ptrdiff_t>(*place));
    }
  } else if (fine) {
    if (*place == list.size()) list.emplace_back(Dictionary());
    Dictionary* const inner = list[*place].AsDictionary();
    fine = inner != nullptr && Alter(inner, path.substr(slash + 1), false, value);
  }
  if (list.empty()) group->erase(name);
  return fine;
}

void BringSwitch(Dictionary* ticket) {
  std::int64_t emit = 1;
  CFDictionaryGetNumber(*ticket, key::kEmitJTML, &emit);
  if (DictionaryContains(*ticket, key::kJTMLOptions) || emit == 0) return;
  for (const TicketKey& key : TopLevelKeys()) {
    if (!key.xml_only || !DictionaryContains(*ticket, key.name)) continue;
    CFDictionaryGetDictionaryOrCreate(*ticket, key::kJTMLOptions)
        .insert_or_assign(key::sections::kAll, Value::Boolean(true));
    return;
  }
}

}  // namespace

void TicketDocument::Change(const std::string& what, const std::function<void(Dictionary*)>& change,
                            bool joins) {
  Dictionary next = now_;
  change(&next);
  BringSwitch(&next);
  if (next == now_) return;
  if (!joins || undo_.empty() || undo_.back().what != what) undo_.push_back({what, now_});
  if (undo_.size() > kMostSteps) undo_.erase(undo_.begin());
  redo_.clear();
  now_ = std::move(next);
  Told();
}

void TicketDocument::Set(std::string_view path, Value value, const std::string& what, bool joins) {
  Change(
      what, [&](Dictionary* ticket) { PutAt(ticket, path, std::move(value)); }, joins);
}

void TicketDocument::Clear(std::string_view path, const std::string& what) {
  Change(what, [&](Dictionary* ticket) { RemoveAt(ticket, path); });
}

const Value* TicketDocument::Find(std::string_view path) const {
  const Dictionary* group = &now_;
  const Value* value = nullptr;
  for (bool top = true; !path.empty(); top = false) {
    const std::string_view name = TakeName(&path);
    if (group != nullptr) {
      value = DictionaryFind(*group, top ? TopName(name) : std::string(name));
    } else if (const Array* list = value->AsArray(); list != nullptr && Place(name)) {
      value = *Place(name) < list->size() ? &(*list)[*Place(name)] : nullptr;
    } else {
      return nullptr;
    }
    if (value == nullptr) return nullptr;
    group = value->AsDictionary();
  }
  return value;
}

std::optional<std::int64_t> TicketDocument::NumberAt(std::string_view path) const {
  const Value* value = Find(path);
  std::int64_t number = 0;
  if (value == nullptr || value->AsNumber() == nullptr || !value->AsNumber()->Get(&number))
    return std::nullopt;
  return number;
}

std::string TicketDocument::TextAt(std::string_view path) const {
  const Value* value = Find(path);
  return value != nullptr && value->AsString() != nullptr ? *value->AsString() : "";
}

bool TicketDocument::BooleanAt(std::string_view path) const {
  const Value* value = Find(path);
  return value != nullptr && value->AsBoolean() != nullptr && *value->AsBoolean();
}

void TicketDocument::Undo() {
  if (undo_.empty()) return;
  redo_.push_back({undo_.back().what, std::move(now_)});
  now_ = std::move(undo_.back().before);
  undo_.pop_back();
  Told();
}

void TicketDocument::Redo() {
  if (redo_.empty()) return;
  undo_.push_back({redo_.back().what, std::move(now_)});
  now_ = std::move(redo_.back().before);
  redo_.pop_back();
  Told();
}

void TicketDocument::Replace(Dictionary ticket, const std::string& what) {
  Change(what, [&](Dictionary* now) { *now = std::move(ticket); });
}

void TicketDocument::Reset(Dictionary ticket) {
  now_ = saved_ = std::move(ticket);
  undo_.clear();
  redo_.clear();
  Told();
}

Failure TicketDocument::Open(const std::string& file) {
  const std::optional<std::string> text = ReadWholeFile(file, kLargestFile);
  if (!text) return errno == EINVAL ? "is not a regular file" : std::strerror(errno);
  Dictionary ticket;
  if (Failure failure = tool::ReadTicket(*text, &ticket); !failure.empty()) return failure;
  Reset(std::move(ticket));
  return "";
}

Failure TicketDocument::Save(const std::string& file) {
  const bool secret = !(tool::WithoutSecrets(now_) == now_);
  if (!WriteFileAtomically(file, Json(), secret ? 0600 : 0666)) return std::strerror(errno);
  // One that was there before keeps its mode otherwise.
  if (secret && chmod(file.c_str(), 0600) != 0) return std::strerror(errno);
  saved_ = now_;
  Told();
  return "";
}

std::string TicketDocument::Json() const { return tool::TicketToJson(now_) + "\n"; }

void TicketDocument::Told() {
  for (const Listener& listener : listeners_) listener();
}

const TicketKey* KeyAt(std::string_view path) {
  const TicketKey* key = FindTopLevelKey(TakeName(&path));
  while (key != nullptr && !path.empty()) {
    const std::string_view name = TakeName(&path);
    if (key->type == KeyType::kList && Place(name)) continue;
    key = FindKey(key->members, name);
  }
  return key;
}

bool PutAt(Dictionary* ticket, std::string_view path, Value value) {
  std::optional<Value> given = std::move(value);
  return Alter(ticket, path, true, &given);
}

void RemoveAt(Dictionary* ticket, std::string_view path) {
  std::optional<Value> none;
  Alter(ticket, path, true, &none);
}

std::string Objection(const Dictionary& ticket, const std::function<void(Dictionary*)>& choice) {
  Dictionary chosen = ticket;
  choice(&chosen);
  BringSwitch(&chosen);
  const auto before = tool::CheckTicket(ticket);
  for (const TicketFinding& finding : tool::CheckTicket(chosen)) {
    const bool known = std::any_of(before.begin(), before.end(), [&](const TicketFinding& each) {
      return each.place == finding.place && each.text == finding.text;
    });
    if (!known) return finding.text;
  }
  return "";
}

std::optional<Value> ReadValue(const TicketKey& key, const std::string& text) {
  if (key.type == KeyType::kText) return Value(text);
  if (key.type == KeyType::kBoolean || key.type == KeyType::kAny) {
    if (text == "true" || text == "false") return Value::Boolean(text == "true");
    if (key.type == KeyType::kBoolean) return std::nullopt;
  }
  // As a group of its own, in the form that people write: it knows words and dates.
  for (const CodeWord& word : key.words) {
    if (text == word.word) return Value(Number(static_cast<std::int32_t>(word.code)));
  }
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc() && end == text.data() + text.size() && key.type != KeyType::kDate)
    return Value(Number(number));
  if (key.type == KeyType::kAny) return Value(text);
  if (key.type != KeyType::kDate) return std::nullopt;
  const nlohmann::json job = {{key::kJobType, {{key::job_type::kDelayedPrintTime, text}}}};
  Dictionary read;
  tool::ReadTicket(job.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace), &read);
  const Dictionary* group = DictionaryGetDictionary(read, key::kJobType);
  const Value* date =
      group != nullptr ? DictionaryFind(*group, key::job_type::kDelayedPrintTime) : nullptr;
  if (date == nullptr || date->AsNumber() == nullptr) return std::nullopt;
  return *date;
}

std::string WriteValue(const TicketKey& key, const Value& value) {
  if (const std::string* text = value.AsString()) return *text;
  if (const bool* truth = value.AsBoolean()) return *truth ? "true" : "false";
  std::int64_t number = 0;
  if (value.AsNumber() == nullptr || !value.AsNumber()->Get(&number)) return "";
  if (key.type == KeyType::kDate) {
    const Dictionary job = {{key::kJobType, Dictionary{{key::job_type::kDelayedPrintTime, value}}}};
    const auto ticket = nlohmann::json::parse(tool::TicketToJson(job), nullptr, false);
    for (const auto& group : ticket)
      for (const auto& date : group)
        if (date.is_string()) return date.get<std::string>();
  }
  const char* word = WordOf(key, number);
  return word != nullptr ? word : std::to_string(number);
}

}  // namespace zarvo::desk
