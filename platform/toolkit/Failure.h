#pragma once

#include <stdexcept>
#include <string>

// A statement of a handler that could not be carried out. Rules say statement by statement what a failure does; see
// Failures.h for the two helpers.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& what) : std::runtime_error(what) {}
};
