#pragma once

#include <utility>

#include "platform/toolkit/Failure.h"

// Both take a `Failure` alone; what nobody foresaw goes on to whoever dispatched the handler, and ends it.

// Runs the statements one by one, in order, and skips each one that fails. A rule that depends on it gives each of its
// statements on its own: what a failed statement leaves undone must not take the next one with it.
template <class... Statements>
void SkippingFailures(Statements&&... statements) {
  const auto run = [](auto&& statement) {
    try {
      statement();
    } catch (const Failure&) {
    }
  };
  (run(std::forward<Statements>(statements)), ...);
}

// Reads a test, and counts one that fails as held: the branch behind it runs.
template <class Test>
bool HeldOrFailed(Test&& test) {
  try {
    return test();
  } catch (const Failure&) {
    return true;
  }
}
