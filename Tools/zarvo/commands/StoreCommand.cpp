// SPDX-License-Identifier: Apache-2.0
// zarvo store pack: the shared stores as one Debian package, the same bytes for the same stores.
#include <sys/stat.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <regex>

#include "HouseTicket/HouseTicketStore.h"
#include "Platform/AddressBook.h"
#include "Platform/AtomicFile.h"
#include "Platform/PropertyList.h"
#include "Platform/Text.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

namespace fs = std::filesystem;

struct StoreOptions {
  std::string name, version, maintainer;
  std::string output = ".";
};

/// What a control file takes; anything else could add lines to it, or leave the folder.
struct Rule {
  const char* what;
  std::string StoreOptions::*value;
  const char* pattern;
  const char* example;
};
constexpr Rule kRules[] = {
    {"--name", &StoreOptions::name, "[a-z0-9][a-z0-9+.-]+", "house-store"},
    {"--version", &StoreOptions::version, "[0-9][A-Za-z0-9.+~-]*", "7"},
    {"--maintainer", &StoreOptions::maintainer,
     "[^\\x01-\\x1f<>]+ <[^\\x01-\\x20<>@]+@[^\\x01-\\x20<>@]+>", "Ada Byron <ada@example.org>"},
};

constexpr std::size_t kLongestStore = 64 << 20;
constexpr fs::perms kForAll =
    fs::perms::owner_write | fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
constexpr fs::perms kFolder =
    kForAll | fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;

/// Locks, and what killed writers have left.
bool IsOurTemporary(const std::string& name) {
  return name.starts_with('.') && name.find(".zarvo-") != name.npos;
}

/// Of a name that cannot be told either.
constexpr char kBadName[] = "a name in it has characters that nobody types";

/// Why the file must not travel; empty when it may.
Failure FaultOf(const fs::directory_entry& entry) {
  const std::string name = entry.path().filename();
  if (!MakeString(name) ||
      std::any_of(name.begin(), name.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }))
    return kBadName;
  if (entry.is_symlink() || (!entry.is_regular_file() && !entry.is_directory()))
    return "is neither file nor folder";
  if ((entry.status().permissions() & fs::perms::others_read) == fs::perms::none)
    return "is not for everybody to read; what a package holds is";
  return "";
}

/// Copies the folder below `target`; `newest` becomes the time of the newest file.
Failure CopyStores(const std::string& folder, const std::string& target, std::time_t* newest) {
  fs::create_directories(target);
  for (fs::recursive_directory_iterator at(folder), end; at != end; ++at) {
    if (IsOurTemporary(at->path().filename())) continue;
    if (Failure fault = FaultOf(*at); !fault.empty())
      return (fault == kBadName ? at->path().parent_path() : at->path()).string() + ": " + fault;
    const fs::path copy = target / at->path().lexically_relative(folder);
    struct stat info {};
    if (::lstat(at->path().c_str(), &info) != 0)
      return at->path().string() + ": " + std::strerror(errno);
    if (at->is_directory()) {
      fs::create_directory(copy);
    } else {
      fs::copy_file(at->path(), copy);
      fs::permissions(copy, kForAll);
      *newest = std::max(*newest, info.st_mtime);
    }
  }
  return "";
}

/// Why these stores must not be given to everybody, or would be of no use elsewhere.
Failure ContentFault(const std::string& folder) {
  HouseTicketStore house = HouseTicketStore::Shared();
  if (Failure failure = house.Read(); !failure.empty()) return failure;
  for (const std::string& name : house.Names()) {
    HouseTicket ticket;
    if (Failure failure = house.Find(name, &ticket); !failure.empty()) return failure;
    if (HoldsPin(ticket.ticket)) return "house ticket " + name + " holds a PIN; take it out first";
  }
  for (const fs::directory_entry& store : fs::directory_iterator(folder)) {
    const std::optional<std::string> bytes = store.path().extension() == ".plist"
                                                 ? ReadWholeFile(store.path(), kLongestStore)
                                                 : std::nullopt;
    Value value;
    if (!bytes) continue;
    if (Failure failure = ParsePropertyList(*bytes, &value); !failure.empty())
      return store.path().string() + ": " + failure;
    if (value.AsDictionary() == nullptr) continue;
    for (const auto& [name, entry] : *value.AsDictionary()) {
      const Dictionary* record = entry.AsDictionary();
      if (record == nullptr || !record->contains("filePath")) continue;
      const std::string* path = record->at("filePath").AsString();
      if (path != nullptr && !path->empty() && fs::path(*path).parent_path() != folder)
        return "watermark " + name + " has its image elsewhere; store it anew";
    }
  }
  return "";
}

int Pack(const StoreOptions& options) {
  for (const Rule& rule : kRules)
    if (!std::regex_match(options.*rule.value, std::regex(rule.pattern)))
      return Fail(rule.what, "no package can have \"" + options.*rule.value + "\"",
                  std::string("Give one like ") + rule.example);
  const std::string builder = FindProgram("dpkg-deb");
  if (builder.empty())
    return Fail("dpkg-deb", "is not installed", "It comes with the package dpkg");
  const fs::path folder = fs::path(SharedAddressBooksFolder()).parent_path();
  // No store changes meanwhile.
  const FolderLock lock(folder);
  if (!lock) return Fail(folder, std::strerror(errno), "Run it as root, where there are stores");
  const std::unique_ptr<ScratchFolder> scratch = MakeScratchFolder();
  if (!scratch) return kExitFailure;
  const std::string tree = scratch->File("tree");
  std::time_t newest = 0;
  try {
    Failure fault = ContentFault(folder);
    if (fault.empty()) fault = CopyStores(folder, tree + folder.string(), &newest);
    if (!fault.empty()) return Fail("stores", fault);
    fs::create_directory(tree + "/DEBIAN");
    std::ofstream(tree + "/DEBIAN/control")
        << "Package: " << options.name << "\nVersion: " << options.version
        << "\nArchitecture: all\nMaintainer: " << options.maintainer
        << "\nSection: misc\nPriority: optional\nEnhances: zarvo-filter\n"
        << "Description: watermarks, fonts, house tickets and recipients for printing\n"
        << " Made by \"zarvo store pack\" of " << folder.string() << ".\n";
    fs::permissions(tree + "/DEBIAN/control", kForAll);
    fs::permissions(tree, kFolder);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(tree))
      if (entry.is_directory()) fs::permissions(entry, kFolder);
  } catch (const fs::filesystem_error& error) {
    return Fail(error.path1(), error.code().message());
  }
  std::vector<std::string> environment = ChildEnvironment(*scratch);
  // What is newer gets this time: nothing of today is in the package.
  if (std::getenv("SOURCE_DATE_EPOCH") == nullptr)
    environment.push_back("SOURCE_DATE_EPOCH=" + std::to_string(newest));
  const std::string package = options.name + "_" + options.version + "_all.deb";
  std::string log;
  ChildRun run;
  // The compressor's threads would show in its output.
  run.arguments = {builder, "--root-owner-group",  "-Zxz", "--threads-max=1", "--build",
                   tree,    scratch->File(package)};
  run.environment = environment;
  if (!RunChild(run, &log)) return Fail("dpkg-deb", log);
  const std::string target = (fs::path(options.output) / package).string();
  const int status = Deliver(scratch->File(package), target);
  if (status == kExitOk) std::printf("%s\n", target.c_str());
  return status;
}

}  // namespace

void SetUpStore(CLI::App& app, Action* action) {
  const auto options = std::make_shared<StoreOptions>();
  app.require_subcommand(1);
  CLI::App* pack =
      app.add_subcommand("pack", "Makes a Debian package of the shared stores; says where it is");
  pack->add_option("--name", options->name, "the package's name")->required();
  pack->add_option("--version", options->version, "its version, higher each time")->required();
  pack->add_option("--maintainer", options->maintainer, "who makes it: NAME <ADDRESS>")->required();
  pack->add_option("--output", options->output, "the folder that it is put in")
      ->capture_default_str();
  pack->callback([=] { *action = [=] { return Pack(*options); }; });
}

}  // namespace zarvo::tool
