#include "platform/toolkit/Wildcards.h"

#include <cstddef>

#include "platform/toolkit/Fold.h"

namespace {

// The star that was met last is the only one that ever has to give way, so the time stays within the product of both
// lengths.
bool FitsOne(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  std::size_t at = 0, in = 0;
  std::size_t star = std::string_view::npos, resume = 0;
  while (at < name.size()) {
    if (in < pattern.size() && pattern[in] == '*') {
      star = in++;
      resume = at;
    } else if (in < pattern.size() && (pattern[in] == '?' || Folded(pattern[in]) == Folded(name[at]))) {
      ++in;
      ++at;
    } else if (star != std::string_view::npos) {
      in = star + 1;
      at = ++resume;
    } else {
      return false;
    }
  }
  while (in < pattern.size() && pattern[in] == '*') ++in;
  return in == pattern.size();
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

}  // namespace

bool FitsPattern(std::string_view name, std::string_view patterns) {
  bool any = false;
  while (!patterns.empty()) {
    const std::size_t end = patterns.find(';');
    const std::string_view one = Trimmed(patterns.substr(0, end));
    patterns.remove_prefix(end == std::string_view::npos ? patterns.size() : end + 1);
    if (one.empty()) continue;
    any = true;
    if (FitsOne(name, one)) return true;
  }
  return !any;
}
