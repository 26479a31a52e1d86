// SPDX-License-Identifier: Apache-2.0
// A job's options, and behind a NUL a store of house tickets: what a job that names one of them
// gets is what was stored, or an error; and what can be found can be kept again.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

#include "HouseTicket/HouseTicketStore.h"
#include "fuzz/target.h"
#include "fuzz/ticket.h"

namespace {

using namespace zarvo;

/// The shared data folder of this process, which goes with it.
class Folder {
 public:
  Folder() {
    char pattern[] = "/tmp/zarvo-fuzz-XXXXXX";
    path_ = ::mkdtemp(pattern);
    std::filesystem::create_directory(path_ / "Zarvo");
    ::setenv("ZARVO_APPLICATION_SUPPORT", path_.c_str(), 1);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  void Fill(std::string_view store) const {
    std::FILE* file = std::fopen((path_ / "Zarvo" / kHouseTicketFile).c_str(), "wb");
    Require(file != nullptr && std::fwrite(store.data(), 1, store.size(), file) == store.size());
    std::fclose(file);
  }

 private:
  std::filesystem::path path_;
};

/// Whether every setting of the one is in the other.
bool Holds(const Dictionary& all, const Dictionary& some) {
  return std::all_of(some.begin(), some.end(), [&all](const auto& entry) {
    const auto other = all.find(entry.first);
    if (other == all.end()) return false;
    const Dictionary* group = entry.second.AsDictionary();
    const Dictionary* whole = other->second.AsDictionary();
    return group != nullptr && whole != nullptr ? Holds(*whole, *group)
                                                : entry.second == other->second;
  });
}

void Apply(const ResolvedHouseTicket& house, const Dictionary& own) {
  JobSays says;
  says.own = own;
  std::vector<std::string> kept;
  const Dictionary ticket = ApplyHouseTicket(house, says, &kept);
  if (house.mayOverride && house.mayOverride->empty()) Require(Holds(ticket, house.ticket));
  if (!house.mayOverride) Require(Holds(ticket, own) && kept.empty());
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Folder folder;
  std::string_view input = AsText(data, size);
  const Dictionary own = DecodeTicket(TakeOptions(&input)).ticket;
  folder.Fill(input);
  HouseTicketStore store = HouseTicketStore::Shared();
  if (!store.Read().empty()) return 0;
  std::map<std::string, HouseTicket> found;
  for (const std::string& name : store.Names()) {
    HouseTicket house;
    if (store.Find(name, &house).empty()) found.emplace(name, house);
    ResolvedHouseTicket resolved;
    if (!ResolveHouseTicket(name, FindIn({&store}), &resolved).empty()) continue;
    const std::set<std::string> links(resolved.chain.begin(), resolved.chain.end());
    Require(found.contains(name) && resolved.chain.front() == name);
    Require(links.size() == resolved.chain.size() && !HoldsPin(resolved.ticket));
    Apply(resolved, own);
  }
  if (found.empty()) return 0;
  // Texts of binary lists may hold what XML cannot; then the file stays as it is.
  const Failure failure = HouseTicketStore::Shared().Change([&](HouseTicketStore* open) -> Failure {
    for (const auto& [name, house] : found) Require(open->Put(name, house).empty());
    return "";
  });
  if (!failure.empty()) Require(failure.find("characters") != failure.npos);
  HouseTicketStore again = HouseTicketStore::Shared();
  Require(again.Read().empty() && again.Names() == store.Names());
  for (const auto& [name, house] : found) {
    HouseTicket same;
    Require(again.Find(name, &same).empty() && same.ticket == house.ticket);
    Require(same.basedOn == house.basedOn && same.titles == house.titles);
  }
  return 0;
}
