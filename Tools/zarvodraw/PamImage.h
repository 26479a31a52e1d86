// SPDX-License-Identifier: Apache-2.0
// Images as a decoding process hands them on.
#pragma once

#include <cairo.h>

#include <cstdio>
#include <memory>

#include "Platform/Failure.h"

namespace zarvo {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

/// Reads what "zarvodraw image pam" writes. Leaves `image` alone when there is none or it is not
/// whole, which its writer tells. Fails when it is too large for memory or for a drawing (32767
/// pixels on a side).
Failure ReadPamImage(std::FILE* input, Surface* image);

}  // namespace zarvo
