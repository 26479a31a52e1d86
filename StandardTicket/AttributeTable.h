// SPDX-License-Identifier: Apache-2.0
// The constant tables of the mapper: attributes that are one choice among words, attributes that
// need no more than their value copied, and what happens to all others.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "StandardTicket/Mapping.h"

namespace zarvo {

/// What becomes of an attribute or member that no theme takes.
struct Disposition {
  enum Kind : std::uint8_t {
    kUnknown,
    kLeft,     ///< to the spooler and its converters, or it asks nothing of the printer
    kRefused,  ///< never honoured
  };
  Kind kind = kUnknown;
  const char* reason = nullptr;
};

/// Of a path such as "finishings-col/trimming".
Disposition DispositionOf(std::string_view path);

/// How the members' colours are rendered, into a dictionary of full colour. Returns whether
/// anything was set.
bool MapRendering(Members* members, const std::string& dictionary, Mapping* mapping);

/// Maps the attributes of a message that are words or plain texts, and tells of those that are
/// never honoured.
void MapWords(ipp_t* job, Mapping* mapping);

}  // namespace zarvo
