// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/psgets.h"

namespace zarvo {

char* psgets(char* buf, unsigned long* bytes, std::FILE* fp) {
  const unsigned long room = *bytes > 0 ? *bytes - 1 : 0;
  unsigned long length = 0;
  int byte = 0;
  while (length < room && (byte = getc_unlocked(fp)) != EOF) {
    buf[length++] = static_cast<char>(byte);
    if (byte == '\n') break;
    if (byte != '\r') continue;
    const int next = getc_unlocked(fp);
    if (next == '\n' && length < room) {
      buf[length++] = '\n';
    } else if (next != EOF) {
      ungetc(next, fp);
    }
    break;
  }
  if (*bytes > 0) buf[length] = '\0';
  *bytes = length;
  return byte == EOF && length == 0 ? nullptr : buf;
}

}  // namespace zarvo
