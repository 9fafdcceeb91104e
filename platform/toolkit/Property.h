#pragma once

#include <utility>

#include "platform/toolkit/Event.h"

// A value that tells when it has changed. Setting it from code raises no click or other operator's event; `Changed` is
// for those who mirror it.
template <class T>
class Property {
 public:
  Property() = default;
  explicit Property(T initial) : value_(std::move(initial)) {}
  Property(const Property&) = delete;

  Property& operator=(const Property& other) { return *this = other.value_; }
  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    Changed.Raise();
    return *this;
  }

  const T& Get() const { return value_; }
  operator const T&() const { return value_; }

  Event<> Changed;

 private:
  T value_{};
};
