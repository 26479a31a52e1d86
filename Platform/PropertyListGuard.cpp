// SPDX-License-Identifier: Apache-2.0
#include "Platform/PropertyListGuard.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "Platform/PropertyList.h"

namespace zarvo {
namespace {

constexpr char kDamaged[] = "the property list is damaged";
constexpr char kTooDeep[] = "the property list nests too deep";
constexpr char kTooLarge[] = "the property list is too large";

/// Follows the tags of an XML property list. Where this and the library could see different tags
/// (quotes inside tags, document type subsets, odd comments) the list is refused: no writer of
/// property lists produces such things.
class XmlScan {
 public:
  explicit XmlScan(std::string_view text) : rest_(text) {}

  Failure Run() {
    for (;;) {
      const std::size_t start = rest_.find('<');
      if (start == std::string_view::npos) return "";
      rest_.remove_prefix(start);
      if (Failure reason = Markup(); !reason.empty()) return reason;
    }
  }

 private:
  Failure Markup() {
    if (rest_.starts_with("<!-->") || rest_.starts_with("<!--->")) return kDamaged;
    if (rest_.starts_with("<!--")) return Skip(4, "-->");
    if (rest_.starts_with("<![CDATA[")) return Skip(9, "]]>");
    if (rest_.starts_with("<?")) return Skip(2, "?>");
    const std::size_t end = rest_.find('>');
    if (end == std::string_view::npos) return kDamaged;
    const std::string_view tag = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    if (tag.starts_with("!")) return tag.find('[') == std::string_view::npos ? "" : kDamaged;
    if (tag.starts_with("/")) return --depth_ < 0 ? kDamaged : "";
    const bool is_root = tag == "plist" || tag.starts_with("plist ");
    if (is_root && roots_++ > 0) return kDamaged;
    if (!is_root && tag.find_first_of("\"'<") != std::string_view::npos) return kDamaged;
    if (++elements_ > kMaxPropertyListElements) return kTooLarge;
    if (tag.ends_with("/")) return "";
    // The root element and the text element at the bottom come on top of the containers.
    return ++depth_ > kMaxPropertyListDepth + 2 ? kTooDeep : "";
  }

  Failure Skip(std::size_t opening, std::string_view closing) {
    const std::size_t end = rest_.find(closing, opening);
    if (end == std::string_view::npos) return kDamaged;
    rest_.remove_prefix(end + closing.size());
    return "";
  }

  std::string_view rest_;
  int depth_ = 0;
  int roots_ = 0;
  std::size_t elements_ = 0;
};

/// Walks the object table of a binary property list: eight bytes of signature, the objects, a table
/// of their offsets, and a trailer of 32 bytes.
class BinaryScan {
 public:
  explicit BinaryScan(std::string_view bytes) : bytes_(bytes) {}

  Failure Run() {
    constexpr std::size_t header = 8, trailer = 32;
    if (bytes_.size() < header + trailer + 1) return kDamaged;
    const std::size_t tail = bytes_.size() - trailer;
    const std::size_t offset_size = Byte(tail + 6);
    reference_size_ = Byte(tail + 7);
    const std::uint64_t count = BigEndian(tail + 8, 8);
    const std::uint64_t root = BigEndian(tail + 16, 8);
    const std::uint64_t table = BigEndian(tail + 24, 8);
    if (count > kMaxPropertyListElements) return kTooLarge;
    if (offset_size < 1 || offset_size > 8 || reference_size_ < 1 || reference_size_ > 8 ||
        root >= count || table < header || table > tail || (tail - table) / offset_size < count)
      return kDamaged;
    objects_.resize(count);
    for (std::uint64_t i = 0; i < count; ++i) {
      const std::uint64_t offset = BigEndian(table + i * offset_size, offset_size);
      if (offset < header || offset >= table) return kDamaged;
      objects_[i].offset = offset;
    }
    end_ = table;
    return Walk(root);
  }

 private:
  struct Object {
    std::uint64_t offset = 0;
    // What the object unfolds to, valid once visited.
    std::uint64_t elements = 0, size = 0;
    int height = 0;
    bool is_key = false;  // whether it may be a dictionary's key
    enum : std::uint8_t { kNew, kOpen, kDone } state = kNew;
  };
  struct Frame {
    std::uint64_t object;
    std::uint64_t next, end;  // places of the references that are still to be followed
    std::uint64_t keys_end;   // the references before it are a dictionary's keys
  };

  Failure Walk(std::uint64_t root) {
    std::vector<Frame> path;
    if (Failure reason = Enter(root, &path); !reason.empty()) return reason;
    while (!path.empty()) {
      Frame& frame = path.back();
      Object& object = objects_[frame.object];
      if (frame.next == frame.end) {
        object.state = Object::kDone;
        path.pop_back();
        continue;
      }
      const std::uint64_t child = BigEndian(frame.next, reference_size_);
      if (child >= objects_.size()) return kDamaged;
      const Object& below = objects_[child];
      if (below.state == Object::kOpen) return kDamaged;  // it would hold itself
      if (below.state == Object::kNew) {
        if (path.size() > kMaxPropertyListDepth) return kTooDeep;
        if (Failure reason = Enter(child, &path); !reason.empty()) return reason;
        continue;  // comes back to the same reference with the child done
      }
      if (frame.next < frame.keys_end && !below.is_key) return kDamaged;
      frame.next += reference_size_;
      object.elements += below.elements;
      object.size += below.size;
      object.height = std::max(object.height, below.height + 1);
      if (object.height > kMaxPropertyListDepth) return kTooDeep;
      if (object.elements > kMaxPropertyListElements || object.size > kMaxPropertyListBytes)
        return kTooLarge;
    }
    return "";
  }

  /// Marks an object as open and puts it, with the place of its references, on the path.
  Failure Enter(std::uint64_t index, std::vector<Frame>* path) {
    Object& object = objects_[index];
    const unsigned marker = Byte(object.offset);
    std::uint64_t place = object.offset + 1;
    std::uint64_t length = marker & 0x0F;
    const unsigned kind = marker >> 4;
    if (length == 0x0F && kind >= 4) {  // the count follows as an integer object
      if (place >= end_ || Byte(place) >> 4 != 1) return kDamaged;
      const std::size_t width = std::size_t{1} << (Byte(place) & 0x0F);
      if (width > 8 || place + 1 + width > end_) return kDamaged;
      length = BigEndian(place + 1, width);
      place += 1 + width;
    }
    const bool holds_references = kind >= 0xA && kind <= 0xD;  // arrays, sets, dictionaries
    const std::uint64_t references = !holds_references ? 0 : kind == 0xD ? 2 * length : length;
    if (length > bytes_.size() ||
        (holds_references && (end_ - place) / reference_size_ < references))
      return kDamaged;
    object.elements = 1;
    object.size = holds_references ? 0 : length;
    object.is_key = IsKey(kind, place, length);
    object.state = Object::kOpen;
    const std::uint64_t keys = kind == 0xD ? length : 0;
    path->push_back(
        {index, place, place + references * reference_size_, place + keys * reference_size_});
    return "";
  }

  /// Whether a text may be a key: at another kind of key, or one with a NUL inside, the library
  /// ends the whole program.
  bool IsKey(unsigned kind, std::uint64_t place, std::uint64_t length) const {
    const std::size_t width = kind == 5 ? 1 : kind == 6 ? 2 : 0;
    if (width == 0 || (end_ - place) / width < length) return false;
    for (; length > 0; --length, place += width) {
      if (BigEndian(place, width) == 0) return false;
    }
    return true;
  }

  unsigned Byte(std::uint64_t place) const { return static_cast<std::uint8_t>(bytes_[place]); }
  std::uint64_t BigEndian(std::uint64_t place, std::size_t width) const {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < width; ++i) value = value << 8 | Byte(place + i);
    return value;
  }

  std::string_view bytes_;
  std::size_t reference_size_ = 1;
  std::uint64_t end_ = 0;
  std::vector<Object> objects_;
};

}  // namespace

Failure RefuseXmlList(std::string_view bytes) { return XmlScan(bytes).Run(); }

Failure RefuseBinaryList(std::string_view bytes) { return BinaryScan(bytes).Run(); }

}  // namespace zarvo
