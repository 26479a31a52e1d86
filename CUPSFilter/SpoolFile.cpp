// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/SpoolFile.h"

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>

#include "CUPSFilter/JobOutput.h"
#include "Platform/Process.h"
#include "Platform/ScratchFolder.h"

namespace zarvo {
namespace {
constexpr std::size_t kBufferBytes = 1 << 16;
}  // namespace

FileRoom::FileRoom(int descriptor) : descriptor_(descriptor) {
  constexpr int kShare = 10;
  struct statvfs status {};
  if (fstatvfs(descriptor, &status) == 0) least_ = status.f_bavail / kShare;
}

bool FileRoom::Left() const {
  struct statvfs status {};
  return fstatvfs(descriptor_, &status) != 0 || status.f_bavail >= least_;
}

std::unique_ptr<SpoolFile> SpoolFile::Create() {
  const std::string folder = TemporaryFolder();
  std::string name;
  int descriptor = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC | O_EXCL, 0600);
  if (descriptor < 0 && (errno == EOPNOTSUPP || errno == EISDIR)) {
    name = folder + "/zarvo-spool-XXXXXX";  // not every file system has files without a name
    descriptor = mkostemp(name.data(), O_CLOEXEC);
  }
  if (descriptor < 0) return nullptr;
  std::string path = "/proc/self/fd/" + std::to_string(descriptor);
  if (!name.empty() && access(path.c_str(), R_OK) != 0) {
    path = name;  // no /proc: the name stays until the object goes
  } else if (!name.empty()) {
    unlink(name.c_str());
    name.clear();
  }
  return Wrap(UniqueFd(descriptor), std::move(path), std::move(name));
}

std::unique_ptr<SpoolFile> SpoolFile::CreateInMemory() {
  UniqueFd file = OpenMemoryFile("");
  if (!file) return nullptr;
  std::string path = "/proc/self/fd/" + std::to_string(file.get());
  return Wrap(std::move(file), std::move(path), "");
}

std::unique_ptr<SpoolFile> SpoolFile::Wrap(UniqueFd file, std::string path,
                                           std::string name_to_remove) {
  FILE* stream = fdopen(file.get(), "w+b");
  if (stream == nullptr) {
    if (!name_to_remove.empty()) unlink(name_to_remove.c_str());
    return nullptr;
  }
  file.release();
  std::setvbuf(stream, nullptr, _IOFBF, kBufferBytes);
  return std::unique_ptr<SpoolFile>(
      new SpoolFile(stream, std::move(path), std::move(name_to_remove)));
}

bool SpoolFile::CopyTo(JobOutput& output) {
  if (std::fflush(stream()) != 0) return false;
  std::rewind(stream());
  char block[kBufferBytes];
  std::size_t count = 0;
  while (output.error() == 0 && (count = std::fread(block, 1, sizeof block, stream())) > 0)
    output.Write({block, count});
  errno = EIO;  // of a failed read; the reason is forgotten by now
  return std::ferror(stream()) == 0;
}

SpoolFile::~SpoolFile() {
  if (!name_to_remove_.empty()) unlink(name_to_remove_.c_str());
}

}  // namespace zarvo
