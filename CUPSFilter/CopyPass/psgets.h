// SPDX-License-Identifier: Apache-2.0
// Reads PostScript lines, whatever ends them.
#pragma once

#include <cstdio>

namespace zarvo {

/// Reads one line into buf. On entry *bytes is the size of buf, on return the length of the line;
/// at most *bytes - 1 bytes are stored, and a NUL after them. A line ends with LF, CR or CR LF,
/// which is kept; what does not fit, of the line or of its end, is left for the next call. NUL
/// bytes are data. Returns buf, or null when the file ended (or failed, see ferror()) before any
/// byte. The stream must not be shared between threads.
char* psgets(char* buf, unsigned long* bytes, std::FILE* fp);

}  // namespace zarvo
