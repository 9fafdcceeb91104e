#pragma once

#include <cmath>
#include <limits>

// The number cut to a whole one of the type; beyond what the type holds its largest or its smallest, and 0 for what is
// no number. For the platform's measures and positions, which take any number: 1e300 may stand in a file that somebody
// has edited. A conversion that is to fail on such a number is StrictNumber's and RoundHalfEven's.
template <class Whole>
Whole CutToWhole(double number) {
  using Limits = std::numeric_limits<Whole>;
  if (std::isnan(number)) return 0;
  // The largest number itself is no double for 64 bits: what is not below its double does not fit.
  if (number >= static_cast<double>(Limits::max())) return Limits::max();
  if (number <= static_cast<double>(Limits::min())) return Limits::min();
  return static_cast<Whole>(number);
}
