// SPDX-License-Identifier: Apache-2.0
#include "Platform/Value.h"

#include <cmath>
#include <new>

namespace zarvo {

bool Number::Whole(std::int64_t* out) const {
  if (!IsReal()) {
    *out = integer_;
    return true;
  }
  const double whole = std::trunc(real_);
  // 2^63 itself is a double but no int64; not-a-number fails both comparisons.
  if (!(whole >= -9223372036854775808.0 && whole < 9223372036854775808.0)) return false;
  *out = static_cast<std::int64_t>(whole);
  return true;
}

bool Number::operator==(const Number& other) const {
  if (!IsReal() && !other.IsReal()) return integer_ == other.integer_;
  const double left = IsReal() ? real_ : static_cast<double>(integer_);
  const double right = other.IsReal() ? other.real_ : static_cast<double>(other.integer_);
  return left == right;
}

Value Value::Boolean(bool value) {
  Value result;
  result.node_ = value;
  return result;
}

Value& Value::operator=(const Value& other) {
  if (this != &other) *this = Value(other);
  return *this;
}

Value& Value::operator=(Value&& other) noexcept {
  if (this != &other) {
    // The old content leaves through the destructor, which does not recurse.
    const Value old(std::move(*this));
    node_ = std::move(other.node_);
  }
  return *this;
}

Value::~Value() {
  if (!HoldsElements()) return;
  try {
    Flatten();
  } catch (const std::bad_alloc&) {
    // What is left is released by recursion, which is right for all but trees of great depth.
  }
}

bool Value::HoldsElements() const {
  if (const Array* array = AsArray()) return !array->empty();
  if (const Dictionary* dictionary = AsDictionary()) return !dictionary->empty();
  return false;
}

void Value::Flatten() {
  std::vector<Value> pending;
  const auto take_children = [&pending](Value& parent) {
    const auto take = [&pending](Value& child) {
      if (child.HoldsElements()) pending.push_back(std::move(child));
    };
    if (Array* array = parent.AsArray()) {
      for (Value& child : *array) take(child);
    } else if (Dictionary* dictionary = parent.AsDictionary()) {
      for (auto& [key, child] : *dictionary) take(child);
    }
  };
  take_children(*this);
  while (!pending.empty()) {
    Value next = std::move(pending.back());
    pending.pop_back();
    take_children(next);
    // `next` dies here with nothing below its own elements.
  }
}

}  // namespace zarvo
