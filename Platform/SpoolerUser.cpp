// SPDX-License-Identifier: Apache-2.0
#include "Platform/SpoolerUser.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>

namespace zarvo {
namespace {

constexpr char kUsual[] = "lp";

struct Names {
  std::string user = kUsual;
  std::string group = kUsual;
};

Names ConfiguredNames() {
  Names names;
  const char* root = std::getenv("CUPS_SERVERROOT");
  const std::string path = std::string(root != nullptr ? root : "/etc/cups") + "/cups-files.conf";
  std::ifstream file(path);
  char value[256];
  for (std::string line; std::getline(file, line);) {
    if (std::sscanf(line.c_str(), " User %255s", value) == 1) names.user = value;
    if (std::sscanf(line.c_str(), " Group %255s", value) == 1) names.group = value;
  }
  return names;
}

/// What owner, group and mode allow the user, as access() counts it.
bool Allows(const struct stat& info, const SpoolerUser& user, int access) {
  const unsigned bits = info.st_uid == user.uid   ? info.st_mode >> 6
                        : info.st_gid == user.gid ? info.st_mode >> 3
                                                  : info.st_mode;
  return (bits & static_cast<unsigned>(access)) == static_cast<unsigned>(access);
}

}  // namespace

std::optional<SpoolerUser> FindSpoolerUser() {
  const Names names = ConfiguredNames();
  const passwd* user = ::getpwnam(names.user.c_str());
  if (user == nullptr || user->pw_uid == 0) return std::nullopt;
  SpoolerUser found{names.user, user->pw_uid, 0};
  const group* group = ::getgrnam(names.group.c_str());
  if (group == nullptr) return std::nullopt;
  found.gid = group->gr_gid;
  return found;
}

bool SpoolerMay(const SpoolerUser& user, const std::string& path, int access) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                         &std::free);
  struct stat info {};
  if (!real || ::stat(real.get(), &info) != 0 || !Allows(info, user, access)) return false;
  std::string folder = real.get();
  while (folder.size() > 1) {
    folder.resize(std::max<std::size_t>(folder.rfind('/'), 1));
    if (::stat(folder.c_str(), &info) != 0 || !Allows(info, user, X_OK)) return false;
  }
  return true;
}

bool BecomeSpoolerUser(const SpoolerUser& user) {
  return ::setgroups(1, &user.gid) == 0 && ::setresgid(user.gid, user.gid, user.gid) == 0 &&
         ::setresuid(user.uid, user.uid, user.uid) == 0;
}

}  // namespace zarvo
