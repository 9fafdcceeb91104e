#pragma once

#include <stdexcept>
#include <string>

// A statement that fails. Whoever runs statements that may be skipped catches it there; where nobody does, the handler
// ends and the operator is told.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& what) : std::runtime_error(what) {}
};
