// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/jtmlgen/Jtmlgen.h"

namespace zarvo {

std::FILE* jtml_ofp = nullptr;

std::int32_t DevWriteJtml(void* /*lpdv*/, const char* lpcsData, std::int32_t /*iNum*/) {
  return std::fputs(lpcsData, jtml_ofp);
}

}  // namespace zarvo
