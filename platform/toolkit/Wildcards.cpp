#include "platform/toolkit/Wildcards.h"

#include <cstddef>

#include "platform/CaseFold.h"

namespace {

// The star that was met last is the only one that ever has to give way, so the time stays within the product of both
// lengths.
bool MatchesFolded(std::string_view name, std::string_view pattern) {
  std::size_t at = 0;
  std::size_t inPattern = 0;
  std::size_t afterStar = std::string_view::npos;
  std::size_t retry = 0;
  while (at < name.size()) {
    if (inPattern < pattern.size() && pattern[inPattern] == '*') {
      afterStar = ++inPattern;
      retry = at;
    } else if (inPattern < pattern.size() && (pattern[inPattern] == '?' || pattern[inPattern] == name[at])) {
      const bool anySign = pattern[inPattern] == '?';
      ++inPattern;
      ++at;
      // One "?" takes a whole sign, however many bytes it has.
      while (anySign && at < name.size() && (static_cast<unsigned char>(name[at]) & 0xC0) == 0x80) ++at;
    } else if (afterStar != std::string_view::npos) {
      inPattern = afterStar;
      at = ++retry;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', inPattern) == std::string_view::npos;
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

}  // namespace

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  return MatchesFolded(FoldCase(name), FoldCase(pattern));
}

bool FitsPattern(std::string_view name, std::string_view patterns) {
  bool any = false;
  while (!patterns.empty()) {
    const std::size_t end = patterns.find(';');
    const std::string_view one = Trimmed(patterns.substr(0, end));
    patterns.remove_prefix(end == std::string_view::npos ? patterns.size() : end + 1);
    if (one.empty()) continue;
    any = true;
    if (one == "*.*" || MatchesPattern(name, one)) return true;
  }
  return !any;
}
