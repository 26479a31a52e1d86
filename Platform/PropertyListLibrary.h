// SPDX-License-Identifier: Apache-2.0
// What differs between the releases of the property list library: older ones know only unsigned
// integers, and each kind of memory has a function of its own that frees it. CMake looks which
// functions the library has; nothing else asks for its version.
#pragma once

#include <plist/plist.h>

#include <cstdint>
#include <limits>
#include <memory>

namespace zarvo::plist {

using Tree = std::unique_ptr<void, decltype(&plist_free)>;

#ifdef ZARVO_PLIST_HAS_MEM_FREE
using XmlText = std::unique_ptr<char, decltype(&plist_mem_free)>;
inline XmlText OwnXml(char* xml) { return {xml, &plist_mem_free}; }
#else
using XmlText = std::unique_ptr<char, decltype(&plist_to_xml_free)>;
inline XmlText OwnXml(char* xml) { return {xml, &plist_to_xml_free}; }
#endif

#ifdef ZARVO_PLIST_HAS_SIGNED_INTEGERS
inline Tree NewInteger(std::int64_t whole) { return {plist_new_int(whole), &plist_free}; }

/// Whether the integer that `node` holds, whose 64 bits are `bits`, is below zero.
inline bool IsNegative(plist_t node, std::uint64_t) { return plist_int_val_is_negative(node) != 0; }
#else
/// The library writes the bits as signed.
inline Tree NewInteger(std::int64_t whole) {
  return {plist_new_uint(static_cast<std::uint64_t>(whole)), &plist_free};
}

/// The library keeps negative numbers as the same bits in a node of half the width; only a
/// comparison tells the two apart.
inline bool IsNegative(plist_t node, std::uint64_t bits) {
  if (bits <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) return false;
  const Tree negative(plist_new_uint(bits), &plist_free);
  return plist_compare_node_value(node, negative.get()) != 0;
}
#endif

}  // namespace zarvo::plist
