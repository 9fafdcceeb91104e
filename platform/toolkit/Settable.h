#pragma once

#include <functional>
#include <utility>

#include "platform/toolkit/Event.h"

// A value whose every assignment does something, an equal value too: opening a file, selecting a row. The setter
// decides whether the value is taken, and stores it; one that throws leaves the value as it was.
template <class T>
class Settable {
 public:
  using Setter = std::function<void(const T&)>;

  Settable(T initial, Setter setter) : value_(std::move(initial)), setter_(std::move(setter)) {}
  Settable(const Settable&) = delete;
  Settable& operator=(const Settable& other) { return *this = other.value_; }
  Settable& operator=(const T& value) {
    setter_(value);
    return *this;
  }

  const T& Get() const { return value_; }
  operator const T&() const { return value_; }

  // For the setter: takes the value and tells those who mirror it.
  void Store(T value) {
    value_ = std::move(value);
    Changed.Raise();
  }

  Event<> Changed;

 private:
  T value_;
  Setter setter_;
};
