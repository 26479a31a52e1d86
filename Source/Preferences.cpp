// SPDX-License-Identifier: Apache-2.0
#include "Source/Preferences.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "Platform/AtomicFile.h"
#include "Platform/Log.h"
#include "Platform/PropertyList.h"

namespace zarvo {
namespace {

constexpr mode_t kSharedFileMode = 0644;
constexpr mode_t kUserFileMode = 0600;

bool IsFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

bool IsFolder(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

/// A new folder gets the mode whatever the umask: jobs of the spooler's user must get at the shared
/// one.
bool FindOrMakeFolder(const std::string& path, mode_t mode) {
  if (IsFolder(path)) return true;
  if (::mkdir(path.c_str(), mode) == 0) return ::chmod(path.c_str(), mode) == 0;
  return errno == EEXIST && IsFolder(path);  // another process was faster
}

/// An absolute path from the environment; anything else in the variable is ignored.
std::optional<std::string> FolderFromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  if (value == nullptr || value[0] != '/') return std::nullopt;
  return value;
}

std::optional<std::string> SharedFolder() {
  const std::string root =
      FolderFromEnvironment("ZARVO_APPLICATION_SUPPORT").value_or(ZARVO_DATA_ROOT);
  std::string folder = root + "/Zarvo";
  if (!FindOrMakeFolder(folder, 0755)) return std::nullopt;
  return folder;
}

std::optional<std::string> UserFile(std::string_view file_name) {
  std::optional<std::string> folder = FolderFromEnvironment("XDG_CONFIG_HOME");
  if (!folder) {
    folder = FolderFromEnvironment("HOME");
    if (!folder) return std::nullopt;
    *folder += "/.config";
  }
  if (!IsFileName(file_name) || !FindOrMakeFolder(*folder, 0700)) return std::nullopt;
  return *folder + '/' + std::string(file_name);
}

}  // namespace

std::optional<std::string> CopyPreferenceFileURL(std::string_view file_name) {
  if (!IsFileName(file_name)) return std::nullopt;
  std::optional<std::string> folder = SharedFolder();
  if (!folder) return std::nullopt;
  return *std::move(folder) + '/' + std::string(file_name);
}

std::optional<Value> CopyXMLData(std::string_view file_name) {
  const std::optional<std::string> path = CopyPreferenceFileURL(file_name);
  if (!path) return std::nullopt;
  const std::optional<std::string> bytes = ReadWholeFile(*path, kMaxPropertyListBytes);
  if (!bytes) {
    if (errno != ENOENT)
      LogLine("INFO: Unable to read %s - %s; check its permissions and size", path->c_str(),
              std::strerror(errno));
    return std::nullopt;
  }
  Value value;
  const Failure failure = ParsePropertyList(*bytes, &value);
  if (failure.empty()) return value;
  LogLine(
      "CopyXMLData()::CFPropertyListCreateFromXMLData() error: %s (%s); save it again from "
      "the print dialog",
      failure.c_str(), std::string(file_name).c_str());
  return std::nullopt;
}

bool ChangeSharedFile(std::string_view file_name, MissingFile missing,
                      const std::function<bool(Dictionary&)>& change) {
  const std::optional<std::string> path = CopyPreferenceFileURL(file_name);
  if (!path) return false;
  const FolderLock lock(*SharedFolder());
  if (!lock) return false;
  Dictionary dictionary;
  const std::optional<std::string> bytes = ReadWholeFile(*path, kMaxPropertyListBytes);
  if (!bytes && errno != ENOENT) return false;
  Value old;
  const bool is_usable =
      bytes && ParsePropertyList(*bytes, &old).empty() && old.AsDictionary() != nullptr;
  if (is_usable) {
    dictionary = std::move(*old.AsDictionary());
  } else if (missing == MissingFile::kDoNothing) {
    return false;
  }
  errno = 0;
  if (!change(dictionary)) return false;
  const std::optional<std::string> xml = SerializePropertyList(Value(std::move(dictionary)));
  if (!xml) return false;
  if (bytes && !is_usable) std::rename(path->c_str(), (*path + ".damaged").c_str());
  return WriteFileAtomically(*path, *xml, kSharedFileMode);
}

std::optional<Dictionary> CopyUserPreferences(std::string_view file_name) {
  const std::optional<std::string> path = UserFile(file_name);
  if (!path) return std::nullopt;
  const std::optional<std::string> bytes = ReadWholeFile(*path, kMaxPropertyListBytes);
  Value value;
  if (!bytes || !ParsePropertyList(*bytes, &value).empty() || value.AsDictionary() == nullptr)
    return Dictionary();
  return std::move(*value.AsDictionary());
}

bool WriteUserPreferences(std::string_view file_name, const Value& preferences) {
  const std::optional<std::string> path = UserFile(file_name);
  if (!path) return false;
  const std::optional<std::string> xml = SerializePropertyList(preferences);
  errno = EINVAL;
  const bool written = xml && WriteFileAtomically(*path, *xml, kUserFileMode);
  if (!written) LogLine("WriteUserPreferences() failed (%d)", errno);
  return written;
}

}  // namespace zarvo
