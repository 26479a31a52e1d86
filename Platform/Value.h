// SPDX-License-Identifier: Apache-2.0
// The value type that job tickets and property lists are made of.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace zarvo {

class Value;
/// Raw bytes, such as an embedded font program.
using Data = std::vector<std::uint8_t>;
using Array = std::vector<Value>;
/// Keys are UTF-8 text; lookups take string views.
using Dictionary = std::map<std::string, Value, std::less<>>;

/// What a number can be made of and read as; a boolean is not a number.
template <class T>
concept NumericType = std::is_arithmetic_v<T> && !std::is_same_v<T, bool>;

/// A number that remembers the width it was stored with: a signed integer of 8 to 64 bits or a
/// real of 32 or 64 bits. The width matters only to writers of property lists; readers ask for the
/// type they need.
class Number {
 public:
  enum class Type : std::uint8_t { kSInt8, kSInt16, kSInt32, kSInt64, kFloat32, kFloat64 };

  template <NumericType T>
  explicit Number(T value) : type_(TypeOf<T>()) {
    if constexpr (std::is_floating_point_v<T>) {
      real_ = static_cast<double>(value);
    } else {
      integer_ = static_cast<std::int64_t>(value);
    }
  }

  Type type() const { return type_; }
  bool IsReal() const { return type_ >= Type::kFloat32; }

  /// Converts to T. Returns false, and leaves *out alone, when the value does not fit T. A real is
  /// truncated toward zero on its way to an integer; an integer always converts to a real.
  template <NumericType T>
  bool Get(T* out) const {
    if constexpr (std::is_floating_point_v<T>) {
      *out = static_cast<T>(IsReal() ? real_ : static_cast<double>(integer_));
      return true;
    } else {
      std::int64_t whole = 0;
      if (!Whole(&whole) || !std::in_range<T>(whole)) return false;
      *out = static_cast<T>(whole);
      return true;
    }
  }

  bool operator==(const Number& other) const;

 private:
  template <class T>
  static constexpr Type TypeOf() {
    if constexpr (std::is_floating_point_v<T>) {
      return sizeof(T) == 4 ? Type::kFloat32 : Type::kFloat64;
    } else {
      // An unsigned number needs the next wider signed type to keep its range.
      constexpr auto width = sizeof(T) * (std::is_signed_v<T> ? 1 : 2);
      static_assert(width <= 8, "unsigned 64-bit numbers have no signed type that holds them");
      return width == 1   ? Type::kSInt8
             : width == 2 ? Type::kSInt16
             : width == 4 ? Type::kSInt32
                          : Type::kSInt64;
    }
  }
  bool Whole(std::int64_t* out) const;

  Type type_;
  std::int64_t integer_ = 0;
  double real_ = 0;
};

/// One node of a ticket. It owns what it holds; copying copies the whole tree below it. Trees of
/// any depth are released without recursion, because the depth is chosen by whoever submits a job.
/// Strings are UTF-8 in Normalisation Form C; use MakeString (Platform/Text.h) for foreign text.
class Value {
 public:
  Value() = default;  // an empty string
  // NOLINTBEGIN(google-explicit-constructor): a value is meant to be made from its content.
  Value(std::string text) : node_(std::move(text)) {}
  Value(const char* text) : node_(std::string(text)) {}
  Value(Number number) : node_(number) {}
  Value(Data data) : node_(std::move(data)) {}
  Value(Array array) : node_(std::move(array)) {}
  Value(Dictionary dictionary) : node_(std::move(dictionary)) {}
  // NOLINTEND(google-explicit-constructor)
  /// Booleans are named so that no pointer or number becomes one by accident.
  static Value Boolean(bool value);

  Value(const Value&) = default;
  Value(Value&&) noexcept = default;
  Value& operator=(const Value& other);
  Value& operator=(Value&& other) noexcept;
  ~Value();

  // Each accessor gives the content, or null when the value is of another kind.
  const std::string* AsString() const { return std::get_if<std::string>(&node_); }
  const Number* AsNumber() const { return std::get_if<Number>(&node_); }
  const bool* AsBoolean() const { return std::get_if<bool>(&node_); }
  const Data* AsData() const { return std::get_if<Data>(&node_); }
  const Array* AsArray() const { return std::get_if<Array>(&node_); }
  const Dictionary* AsDictionary() const { return std::get_if<Dictionary>(&node_); }
  Array* AsArray() { return std::get_if<Array>(&node_); }
  Dictionary* AsDictionary() { return std::get_if<Dictionary>(&node_); }

  bool operator==(const Value& other) const { return node_ == other.node_; }

 private:
  bool HoldsElements() const;
  void Flatten();

  std::variant<std::string, Number, bool, Data, Array, Dictionary> node_;
};

}  // namespace zarvo
