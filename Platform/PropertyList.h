// SPDX-License-Identifier: Apache-2.0
// Property lists: the file format of watermarks and preferences.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/Failure.h"
#include "Platform/Value.h"

namespace zarvo {

/// Property lists may nest this deep; real ones need three levels.
constexpr int kMaxPropertyListDepth = 100;
/// Most elements (values and dictionary keys) of a property list that is read.
constexpr std::size_t kMaxPropertyListElements = 1'000'000;
/// Longest property list that is read, and most bytes that a binary one may unfold to.
constexpr std::size_t kMaxPropertyListBytes = 64 << 20;

/// Parses an XML or a binary property list. Texts and keys come out in Normalisation Form C. An
/// integer above the signed 64-bit range becomes a 64-bit real; a date becomes the whole number of
/// seconds since 1904-01-01 00:00:00 UTC. Fails when the list is damaged, passes a limit above, or
/// holds text that is not UTF-8 or a keyed-archiver reference.
Failure ParsePropertyList(std::string_view bytes, Value* value);

/// The value as an XML property list. Whole numbers are written as integers and reals with all
/// their digits, so that parsing gives an equal value back. Gives nothing when the value nests
/// deeper than kMaxPropertyListDepth or holds text that XML cannot (control characters other than
/// tab and line ends, bytes that are not UTF-8).
std::optional<std::string> SerializePropertyList(const Value& value);

}  // namespace zarvo
