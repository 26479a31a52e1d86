// SPDX-License-Identifier: Apache-2.0
#include "Platform/AddressBook.h"

#include <sys/random.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <system_error>

#include "Platform/AtomicFile.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;

/// Cards with a photograph run to a few megabytes; what is larger is no card.
constexpr std::size_t kMaxCardBytes = 16 * 1024 * 1024;
constexpr std::string_view kCardSuffix = ".vcf";

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

/// A random UUID (RFC 4122, version 4), or an empty text when the kernel gives no random bytes.
std::string RandomUid() {
  std::array<unsigned char, 16> bytes{};
  if (::getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) return "";
  bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0F) | 0x40);
  bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80);
  std::string uid;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) uid += '-';
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", bytes[i]);
    uid += digits;
  }
  return uid;
}

bool MakeFolder(const fs::path& folder) {
  std::error_code error;
  if (fs::create_directories(folder, error)) fs::permissions(folder, fs::perms::owner_all, error);
  return fs::is_directory(folder, error);
}

/// Other programs choose their own UIDs: one with a slash must not lead out of the folder.
bool CanNameFile(std::string_view uid) {
  constexpr std::size_t max_name = 240;
  return !uid.empty() && uid.size() <= max_name && uid.front() != '.' &&
         uid.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

std::optional<AddressBookRecord> ReadRecord(const fs::path& path, const std::string& shared_book) {
  const std::optional<std::string> text = ReadWholeFile(path.string(), kMaxCardBytes);
  if (!text) return std::nullopt;
  std::optional<VCard> card = ParseVCard(*text);
  if (!card) return std::nullopt;
  return AddressBookRecord{path.filename().string(), std::move(*card), shared_book};
}

/// A folder of cards; the name is empty for the user's own.
struct Book {
  fs::path folder;
  std::string name;
};

/// The user's own, then the shared ones by their names.
std::vector<Book> Books() {
  std::vector<Book> books{{AddressBookFolder(), ""}};
  std::error_code error;
  for (fs::directory_iterator entry(SharedAddressBooksFolder(), error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code no_folder;
    const std::string name = entry->path().filename().string();
    if (name.front() != '.' && entry->is_directory(no_folder))
      books.push_back({entry->path(), name});
  }
  std::sort(books.begin() + 1, books.end(),
            [](const Book& left, const Book& right) { return left.name < right.name; });
  return books;
}

std::vector<AddressBookRecord> Records(const Book& book) {
  std::vector<AddressBookRecord> records;
  std::error_code error;
  for (fs::directory_iterator entry(book.folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->path().extension() != kCardSuffix) continue;
    if (auto record = ReadRecord(entry->path(), book.name)) records.push_back(*std::move(record));
  }
  std::sort(records.begin(), records.end(),
            [](const auto& left, const auto& right) { return left.file < right.file; });
  return records;
}

std::optional<AddressBookRecord> FindIn(const Book& book, std::string_view uid) {
  if (CanNameFile(uid)) {
    auto record = ReadRecord(book.folder / (std::string(uid) += kCardSuffix), book.name);
    if (record && record->uid() == uid) return record;
  }
  for (AddressBookRecord& record : Records(book))
    if (record.uid() == uid) return std::move(record);
  return std::nullopt;
}

constexpr const char* kGroupProperty = "X-ADDRESSBOOKSERVER-KIND";
constexpr const char* kMemberProperty = "X-ADDRESSBOOKSERVER-MEMBER";
constexpr std::string_view kMemberPrefix = "urn:uuid:";

std::string MemberUid(const VCardProperty& property) {
  const std::string text = VCardText(property.value);
  return text.starts_with(kMemberPrefix) ? text.substr(kMemberPrefix.size()) : text;
}

}  // namespace

std::string AddressBookRecord::uid() const { return VCardFindText(card, "UID").value_or(""); }

std::string AddressBookFolder() {
  if (std::string folder = Environment("ZARVO_ADDRESS_BOOK"); !folder.empty()) return folder;
  // Relative places are invalid there and have to be ignored.
  if (const std::string data = Environment("XDG_DATA_HOME"); data.substr(0, 1) == "/")
    return data + "/zarvo/contacts";
  if (const std::string home = Environment("HOME"); !home.empty())
    return home + "/.local/share/zarvo/contacts";
  return "";
}

std::string SharedAddressBooksFolder() {
  const std::string root = Environment("ZARVO_APPLICATION_SUPPORT");
  return (root.substr(0, 1) == "/" ? root : ZARVO_DATA_ROOT) + "/Zarvo/contacts";
}

std::optional<AddressBookRecord> AddressBookAdd(VCard card) {
  const std::string folder = AddressBookFolder();
  const std::string uid = RandomUid();
  if (folder.empty() || uid.empty() || !MakeFolder(folder)) return std::nullopt;
  card.properties.push_back({"UID", uid});
  AddressBookRecord record{uid + std::string(kCardSuffix), std::move(card)};
  if (!AddressBookSave(record)) return std::nullopt;
  return record;
}

bool AddressBookSave(const AddressBookRecord& record) {
  if (!record.shared_book.empty()) return false;
  const fs::path path = fs::path(AddressBookFolder()) / record.file;
  return WriteFileAtomically(path.string(), FormatVCard(record.card), 0600);
}

std::optional<AddressBookRecord> AddressBookFind(std::string_view uid) {
  if (uid.empty()) return std::nullopt;
  for (const Book& book : Books())
    if (auto record = FindIn(book, uid)) return record;
  return std::nullopt;
}

std::vector<AddressBookRecord> AddressBookRecords() {
  std::vector<AddressBookRecord> records;
  std::set<std::string> uids;
  for (const Book& book : Books()) {
    for (AddressBookRecord& record : Records(book)) {
      const std::string uid = record.uid();
      if (book.name.empty() || uid.empty() || !uids.contains(uid))
        records.push_back(std::move(record));
      uids.insert(uid);
    }
  }
  return records;
}

bool AddressBookRemove(const AddressBookRecord& record) {
  if (!record.shared_book.empty()) return false;
  std::error_code error;
  return fs::remove(fs::path(AddressBookFolder()) / record.file, error);
}

VCard MakePersonCard(std::string_view full_name, std::string_view given_name) {
  return {{{"VERSION", "3.0"},
           {"FN", VCardValue(full_name)},
           {"N", ";" + VCardValue(given_name) + ";;;"}}};
}

VCard MakeGroupCard(std::string_view name) {
  return {{{"VERSION", "3.0"},
           {"FN", VCardValue(name)},
           {"N", VCardValue(name) + ";;;;"},
           {kGroupProperty, "group"}}};
}

bool IsGroupCard(const VCard& card) { return VCardFindText(card, kGroupProperty) == "group"; }

void AddGroupMember(VCard* group, std::string_view uid) {
  group->properties.push_back({kMemberProperty, std::string(kMemberPrefix) + VCardValue(uid)});
}

bool RemoveGroupMember(VCard* group, std::string_view uid) {
  return std::erase_if(group->properties, [uid](const VCardProperty& property) {
           return property.Is(kMemberProperty) && MemberUid(property) == uid;
         }) > 0;
}

std::vector<std::string> GroupMembers(const VCard& group) {
  std::vector<std::string> members;
  for (const VCardProperty& property : group.properties) {
    if (property.Is(kMemberProperty)) members.push_back(MemberUid(property));
  }
  return members;
}

}  // namespace zarvo
