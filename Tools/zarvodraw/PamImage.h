// SPDX-License-Identifier: Apache-2.0
// Images as a decoding process hands them on.
#pragma once

#include <cairo.h>

#include <cstdio>
#include <memory>
#include <string>

namespace zarvo {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

/// Reads what "zarvodraw image pam" writes. Null when there is none or it is not whole, which its
/// writer tells, and when it is too large for memory or for a drawing (32767 pixels on a side),
/// which `problem` tells.
Surface ReadPamImage(std::FILE* input, std::string* problem);

}  // namespace zarvo
