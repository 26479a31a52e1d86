// SPDX-License-Identifier: Apache-2.0
// The user that the spooler runs its filters as. What root starts goes to that user before it looks
// at anything that comes from a job.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

namespace zarvo {

struct SpoolerUser {
  std::string name;
  uid_t uid;
  gid_t gid;
};

/// The User and Group of the spooler's cups-files.conf (in CUPS_SERVERROOT, else /etc/cups), "lp"
/// where it names none. Nothing when this machine has no such user or group.
std::optional<SpoolerUser> FindSpoolerUser();

/// Whether a file that is there could be used by that user: read, and with `access` (R_OK, W_OK and
/// X_OK together) more than that, on the whole way from the root folder. Judged by owner, group and
/// mode, not by access control lists.
bool SpoolerMay(const SpoolerUser& user, const std::string& path, int access);

/// Makes this process that user's for good, with that group and no other; only for root. False,
/// with errno set, when that fails; the process must then not go on.
bool BecomeSpoolerUser(const SpoolerUser& user);

}  // namespace zarvo
