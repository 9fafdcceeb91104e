#pragma once

#include <string>
#include <utility>
#include <vector>

// What the virtual world was asked to do, line by line, in order.
class SimTrace {
 public:
  void Add(std::string line) { lines_.push_back(std::move(line)); }
  const std::vector<std::string>& Lines() const { return lines_; }
  // Takes the lines so far.
  std::vector<std::string> Take() { return std::exchange(lines_, {}); }

 private:
  std::vector<std::string> lines_;
};
