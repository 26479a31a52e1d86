// SPDX-License-Identifier: Apache-2.0
// What the fuzz targets share. A target is one function that is given any bytes at all; it must
// return, and abort where a promise is broken.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace zarvo {

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Cuts the input at its first NUL: option text before it, a job behind it.
inline std::string TakeOptions(std::string_view* input) {
  const std::size_t end = input->find('\0');
  std::string options(input->substr(0, end));
  input->remove_prefix(end == std::string_view::npos ? input->size() : end + 1);
  return options;
}

/// Ends the run when a promise does not hold.
inline void Require(bool promise) {
  if (!promise) std::abort();
}

}  // namespace zarvo
