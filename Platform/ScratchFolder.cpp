// SPDX-License-Identifier: Apache-2.0
#include "Platform/ScratchFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <ftw.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "Platform/Process.h"

namespace zarvo {
namespace {

constexpr std::string_view kPrefix = "zarvo-scratch-";
constexpr const char* kVariables[] = {"TMPDIR", "TEMP", "TMP"};

/// Removes the folder with all it holds. A child that has just been killed may still be making a
/// file, hence the tries.
void RemoveFolder(const std::string& path) {
  constexpr int kMostOpen = 16;
  constexpr int kTries = 100;
  const auto remove = [](const char* name, const struct stat*, int, struct FTW*) {
    std::remove(name);
    return 0;
  };
  for (int i = 0; i < kTries; ++i) {
    ::nftw(path.c_str(), remove, kMostOpen, FTW_DEPTH | FTW_PHYS);
    if (::access(path.c_str(), F_OK) != 0) return;
    ::usleep(10'000);
  }
}

/// The folder, open and locked; none when it is in use, somebody else's, or gone. `fd` keeps the
/// lock until the last process that has inherited it has closed it.
UniqueFd LockFolder(const std::string& path) {
  UniqueFd fd(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  struct stat info {};
  if (!fd || ::fstat(fd.get(), &info) != 0 || info.st_uid != ::geteuid() ||
      ::flock(fd.get(), LOCK_EX | LOCK_NB) != 0 || ::access(path.c_str(), F_OK) != 0)
    return UniqueFd();
  return fd;
}

/// Removes what programs have left that were killed together with their keepers.
void RemoveLeftFolders(const std::string& parent) {
  DIR* entries = ::opendir(parent.c_str());
  if (entries == nullptr) return;
  while (const dirent* entry = ::readdir(entries)) {
    const std::string_view name = entry->d_name;
    if (!name.starts_with(kPrefix)) continue;
    const std::string path = parent + '/' + std::string(name);
    if (const UniqueFd lock = LockFolder(path)) RemoveFolder(path);
  }
  ::closedir(entries);
}

/// The keeper's life. It holds nothing but the lock and its end of the lifeline: neither the job's
/// streams, which others wait for, nor a place in a group that may be killed as a whole.
[[noreturn]] void Keep(const std::string& path, int lock, int lifeline) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGPIPE}) ::signal(signal, SIG_IGN);
  ::setsid();
  [[maybe_unused]] const int moved = ::chdir("/");
  for (int fd = 0; fd < std::max(lock, lifeline); ++fd)
    if (fd != lock && fd != lifeline) ::close(fd);
  ::close_range(static_cast<unsigned>(std::max(lock, lifeline)) + 1, ~0U, 0);
  char byte;
  while (::read(lifeline, &byte, 1) < 0 && errno == EINTR) {
  }
  KillRunningChildren();
  RemoveFolder(path);
  ::_exit(0);
}

}  // namespace

std::string TemporaryFolder() {
  const char* folder = std::getenv("TMPDIR");
  return folder != nullptr && *folder != '\0' ? folder : "/tmp";
}

std::uint64_t RoomLeft(const std::string& folder, std::uint64_t unknown) {
  struct statvfs status {};
  return ::statvfs(folder.c_str(), &status) == 0 ? std::uint64_t{status.f_bavail} * status.f_frsize
                                                 : unknown;
}

std::string TemporaryFolderWithRoom(std::uint64_t bytes) {
  constexpr char kMemory[] = "/dev/shm";  // POSIX's shared memory, open to all like /tmp
  std::string usual = TemporaryFolder();
  const std::uint64_t left = RoomLeft(usual, bytes);
  return left < bytes && RoomLeft(kMemory, 0) > left ? kMemory : usual;
}

std::unique_ptr<ScratchFolder> ScratchFolder::Create(const std::string& parent) {
  RemoveLeftFolders(parent);
  // Somebody who clears up may take a folder away before it is locked.
  constexpr int kTries = 10;
  for (int i = 0; i < kTries; ++i) {
    std::string path = parent + '/' + std::string(kPrefix) + "XXXXXX";
    if (::mkdtemp(path.data()) == nullptr) return nullptr;
    UniqueFd lock = LockFolder(path);
    const int error = errno;
    if (!lock) {
      ::rmdir(path.c_str());
      errno = error;
      if (error == EMFILE || error == ENFILE || error == ENOMEM) return nullptr;
      continue;
    }
    std::unique_ptr<ScratchFolder> folder(new ScratchFolder(std::move(path), std::move(lock)));
    if (folder->StartKeeper()) return folder;
    return nullptr;
  }
  return nullptr;
}

bool ScratchFolder::StartKeeper() {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return false;
  const UniqueFd watched(ends[0]);
  lifeline_.reset(ends[1]);
  keeper_ = ::fork();
  if (keeper_ == 0) Keep(path_, lock_.get(), watched.get());
  return keeper_ > 0;
}

ScratchFolder::~ScratchFolder() {
  const int error = errno;
  lifeline_.reset();
  if (keeper_ > 0) {
    while (::waitpid(keeper_, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  RemoveFolder(path_);  // there is none any more, unless the keeper came to harm
  errno = error;
}

std::vector<std::string> ScratchFolder::Environment() const {
  std::vector<std::string> environment;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string_view text = *entry;
    const std::string_view name = text.substr(0, text.find('='));
    if (std::find(std::begin(kVariables), std::end(kVariables), name) == std::end(kVariables))
      environment.emplace_back(text);
  }
  for (const char* name : kVariables) environment.push_back(std::string(name) + '=' + path_);
  return environment;
}

}  // namespace zarvo
