// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/Spooler.h"

namespace zarvo::tool {

SpoolerConnection ConnectToSpooler() {
  constexpr int kMilliseconds = 10'000;
  http_t* spooler = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                 kMilliseconds, nullptr);
  return {spooler, &httpClose};
}

Destination FindDestination(const std::string& queue) {
  return Destination(cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.c_str(), nullptr));
}

}  // namespace zarvo::tool
