// SPDX-License-Identifier: Apache-2.0
// The files of house tickets.
//
// A store is a property list, a dictionary of records by their names. The shared one is in the
// shared data folder (see Preferences.h), where jobs of the spooler's user can read it. A user's
// own is in the folder "zarvo" below XDG_DATA_HOME or ~/.local/share, for the user's eyes only. A
// PIN is kept only in a store of the user's own that nobody else may read; found anywhere else it
// makes its ticket unusable.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "HouseTicket/HouseTicket.h"
#include "Platform/AtomicFile.h"
#include "Platform/Failure.h"

namespace zarvo {

/// The file's name in either folder.
constexpr char kHouseTicketFile[] = "com.zarvo.printing.housetickets.plist";

class HouseTicketStore {
 public:
  /// The stores; that of a user is the one of whoever runs this process.
  static HouseTicketStore Shared();
  static HouseTicketStore Own();

  /// Empty when the place is unknown: no shared data folder, or no home folder.
  const std::string& path() const { return path_; }
  bool shared() const { return shared_; }

  /// Reads the file, once; one that is not there is an empty store.
  Failure Read();

  // What has been read.
  std::vector<std::string> Names() const;
  bool Contains(std::string_view name) const { return entries_.contains(name); }
  /// Fails when there is no such record or it cannot be used.
  Failure Find(std::string_view name, HouseTicket* house) const;

  /// Puts in and takes out records.
  using Alter = std::function<Failure(HouseTicketStore*)>;
  /// Reads the file anew, lets `alter` change what it holds with the two functions below, and
  /// writes it in one piece; other writers are kept out meanwhile. When that fails the file is
  /// as it was, and a damaged one is never written over. `wait` is for those other writers.
  Failure Change(const Alter& alter, std::chrono::milliseconds wait = FolderLock::kUsualWait);
  /// Fails when the record cannot be kept here.
  Failure Put(const std::string& name, const HouseTicket& house);
  void Remove(std::string_view name);

 private:
  HouseTicketStore(std::string path, bool shared) : path_(std::move(path)), shared_(shared) {}
  Failure Load();
  Failure Write() const;

  std::string path_;
  bool shared_;
  bool read_ = false;
  bool keepsSecrets_ = false;  ///< nobody but the user may read the file
  Dictionary entries_;
};

/// Finds records in the stores, which have been read, in their order: the first that has the name.
FindHouseTicket FindIn(const std::vector<const HouseTicketStore*>& stores);

/// "there is no house ticket "NAME"", with the most like it, and as many of the names as fit into a
/// line.
std::string UnknownHouseTicket(std::string_view name,
                               const std::vector<const HouseTicketStore*>& stores);

}  // namespace zarvo
