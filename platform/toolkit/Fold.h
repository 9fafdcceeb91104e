#pragma once

#include <cstddef>
#include <string_view>

// A letter of the Latin alphabet in lower case; every other byte as it is.
constexpr char Folded(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// Whether two texts are the same but for the case of Latin letters.
constexpr bool EqualFolded(std::string_view one, std::string_view other) {
  if (one.size() != other.size()) return false;
  for (std::size_t i = 0; i < one.size(); ++i) {
    if (one[i] != other[i] && Folded(one[i]) != Folded(other[i])) return false;
  }
  return true;
}
