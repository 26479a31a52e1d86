// SPDX-License-Identifier: Apache-2.0
// Whether the spooler keeps the secrets of a job from other people.
#pragma once

#include <string>

namespace zarvo::tool {

/// The options of our PPD and of the spooler that hold a secret, as JobPrivateValues takes them.
inline constexpr const char* kSecretOptions[] = {"JobPIN",    "job-password", "AccountUser",
                                                 "AccountID", "FaxNumber",    "FaxBilling"};

/// The lines that keep them secret, for each policy.
inline constexpr char kPrivacyLines[] = "JobPrivateAccess @OWNER @SYSTEM, JobPrivateValues all";

/// The first policy of a cupsd.conf, given as text, that lets others read a secret option, with
/// that option ("policy default: JobPIN"); empty when there is none. Without any policy the
/// spooler's own holds, which lets them.
std::string PrivacyFault(const std::string& configuration);

}  // namespace zarvo::tool
