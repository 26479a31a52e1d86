// SPDX-License-Identifier: Apache-2.0
#include "HouseTicket/HouseTicketStore.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "Platform/AtomicFile.h"
#include "Platform/Phrase.h"
#include "Platform/PropertyList.h"
#include "Source/CFAdditions.h"
#include "Source/NearestName.h"
#include "Source/Preferences.h"

namespace zarvo {
namespace {

constexpr mode_t kSharedFileMode = 0644;
constexpr mode_t kOwnFileMode = 0600;
constexpr mode_t kOwnFolderMode = 0700;
constexpr char kPinFault[] =
    "keeps a PIN, which only a store of your own with mode 0600 may; take it out";

/// An absolute path from the environment; anything else in the variable is ignored.
std::string FolderIn(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && value[0] == '/' ? value : "";
}

std::string OwnFolder() {
  if (const std::string data = FolderIn("XDG_DATA_HOME"); !data.empty()) return data + "/zarvo";
  const std::string home = FolderIn("HOME");
  return home.empty() ? "" : home + "/.local/share/zarvo";
}

/// Makes a folder and those above it, for the user alone; errno tells what failed.
bool MakeFolders(const std::string& path) {
  for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
    const std::string folder = path.substr(0, end);
    if (::mkdir(folder.c_str(), kOwnFolderMode) != 0 && errno != EEXIST) return false;
    if (end == path.npos) return true;
  }
}

std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

}  // namespace

HouseTicketStore HouseTicketStore::Shared() {
  return {CopyPreferenceFileURL(kHouseTicketFile).value_or(""), true};
}

HouseTicketStore HouseTicketStore::Own() {
  const std::string folder = OwnFolder();
  return {folder.empty() ? "" : folder + "/" + kHouseTicketFile, false};
}

Failure HouseTicketStore::Read() { return std::exchange(read_, true) ? "" : Load(); }

Failure HouseTicketStore::Load() {
  entries_.clear();
  keepsSecrets_ = !shared_;
  if (path_.empty()) return "";
  const UniqueFd file = OpenRegularFile(path_);
  if (!file && (errno == ENOENT || errno == ENOTDIR)) return "";
  struct stat about {};
  if (file && ::fstat(file.get(), &about) == 0)
    keepsSecrets_ = !shared_ && about.st_uid == ::geteuid() && (about.st_mode & 0077) == 0;
  const std::optional<std::string> bytes =
      file ? ReadWholeFile(file.get(), kMaxPropertyListBytes) : std::nullopt;
  if (!bytes)
    return path_ + " cannot be read: " + (errno == EINVAL ? "it is no file" : std::strerror(errno));
  Value value;
  Failure failure = ParsePropertyList(*bytes, &value);
  if (failure.empty() && value.AsDictionary() == nullptr) failure = "it is no dictionary";
  if (!failure.empty()) return path_ + " is damaged: " + failure;
  entries_ = std::move(*value.AsDictionary());
  return "";
}

std::vector<std::string> HouseTicketStore::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, entry] : entries_) names.push_back(name);
  return names;
}

Failure HouseTicketStore::Find(std::string_view name, HouseTicket* house) const {
  const Value* entry = DictionaryFind(entries_, name);
  const std::string start = "house ticket " + Quoted(name) + " ";
  if (entry == nullptr) return "there is no " + start.substr(0, start.size() - 1);
  const Dictionary* record = entry->AsDictionary();
  std::string fault =
      record == nullptr ? "it is no group" : HouseTicketFromDictionary(*record, house);
  if (fault.empty()) fault = HouseTicketNameFault(name);
  if (!fault.empty()) return start + "is damaged: " + fault + "; save it again";
  return HoldsPin(house->ticket) && !keepsSecrets_ ? start + kPinFault : "";
}

Failure HouseTicketStore::Put(const std::string& name, const HouseTicket& house) {
  if (std::string fault = HouseTicketNameFault(name); !fault.empty())
    return Quoted(name) + ": " + fault;
  const std::string start = "house ticket " + Quoted(name) + " ";
  if (HoldsPin(house.ticket) && !keepsSecrets_) return start + kPinFault;
  Dictionary entry = HouseTicketToDictionary(house);
  HouseTicket again;
  if (std::string fault = HouseTicketFromDictionary(entry, &again); !fault.empty())
    return start + "cannot be kept: " + fault;
  entries_.insert_or_assign(name, Value(std::move(entry)));
  return "";
}

void HouseTicketStore::Remove(std::string_view name) {
  if (const auto entry = entries_.find(name); entry != entries_.end()) entries_.erase(entry);
}

Failure HouseTicketStore::Change(const Alter& alter, std::chrono::milliseconds wait) {
  if (path_.empty())
    return shared_ ? "there is no shared data folder" : "HOME names no folder to keep it in";
  const std::string folder = path_.substr(0, path_.rfind('/'));
  if (!shared_ && !MakeFolders(folder)) return folder + ": " + std::strerror(errno);
  const FolderLock lock(folder, wait);
  const int error = errno;
  if (!lock)
    return folder + ": " +
           (error == EAGAIN ? Phrase("another program keeps it locked; try again soon")
                            : std::strerror(error));
  read_ = true;
  if (std::string fault = Load(); !fault.empty()) return fault;
  if (std::string fault = alter(this); !fault.empty()) return fault;
  return Write();
}

Failure HouseTicketStore::Write() const {
  const std::optional<std::string> xml = SerializePropertyList(Value(entries_));
  if (!xml) return "a text holds characters that no property list can";
  Value again;
  // What could not be read again must not take the place of what can.
  if (xml->size() > kMaxPropertyListBytes || !ParsePropertyList(*xml, &again).empty())
    return path_ + " would become too large";
  if (WriteFileAtomically(path_, *xml, shared_ ? kSharedFileMode : kOwnFileMode)) return "";
  return path_ + ": " + std::strerror(errno);
}

FindHouseTicket FindIn(const std::vector<const HouseTicketStore*>& stores) {
  return [stores](const std::string& name, HouseTicket* house) {
    for (const HouseTicketStore* store : stores)
      if (store->Contains(name)) return store->Find(name, house);
    return UnknownHouseTicket(name, stores);
  };
}

std::string UnknownHouseTicket(std::string_view name,
                               const std::vector<const HouseTicketStore*>& stores) {
  constexpr std::size_t kLongestList = 500;  // the spooler shows people one line
  std::vector<std::string> names;
  for (const HouseTicketStore* store : stores)
    for (std::string& one : store->Names()) names.push_back(std::move(one));
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  std::string text = "there is no house ticket " + Quoted(name);
  if (names.empty()) return text + ", and no other; \"zarvo ticket save\" makes one";
  const std::string nearest = NearestName(name, names);
  text += nearest.empty() ? "; " : "; did you mean " + nearest + "? ";
  std::string list;
  std::size_t listed = 0;
  for (const std::string& one : names) {
    if (list.size() + one.size() > kLongestList) break;
    list += (list.empty() ? "" : ", ") + one;
    ++listed;
  }
  if (listed < names.size()) list += " and " + std::to_string(names.size() - listed) + " more";
  return text + "there are: " + list;
}

}  // namespace zarvo
