#pragma once

#include <cstdio>
#include <cstdlib>

// Ends the process where a promise does not hold, as a fuzzer wants it.
inline void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}
