// SPDX-License-Identifier: Apache-2.0
// How strictly a queue takes its jobs: the administrator's word, in the PPD.
#pragma once

#include "CUPSFilter/Options/Ppd.h"

namespace zarvo {

struct QueuePolicy {
  /// *ZRVFailClosed: True. A secret that cannot be kept, a fax that cannot be sent and one whose
  /// cover cannot be drawn come out nowhere, a document without a byte is no printed one, and
  /// whatever else a job asks for in vain is told.
  bool failClosed = false;
  /// *ZRVAllowEmptyPIN: True. A secure job without a PIN is sent with an empty one; the printers
  /// keep it until somebody releases it without typing anything.
  bool allowEmptyPin = false;
  /// *ZRVStandardTicket: True. IPP's standard job attributes become ticket options.
  bool standardTicket = false;
  /// The PPD was not understood; its lines say, or may say, *ZRVFailClosed: True.
  Ppd::Hidden hidden = Ppd::Hidden::kNo;
  /// The PPD has the job-type feature whose lines take the option ZRVJobPassword.
  bool featurePassword = false;
};

inline QueuePolicy ReadQueuePolicy(const Ppd& ppd) {
  return {ppd.IsTrue("ZRVFailClosed"), ppd.IsTrue("ZRVAllowEmptyPIN"),
          ppd.IsTrue("ZRVStandardTicket"), ppd.HidesTrue("ZRVFailClosed"),
          ppd.HasOption("ZRVJobType")};
}

}  // namespace zarvo
