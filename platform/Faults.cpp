#include "platform/Faults.h"

#include <cstdio>
#include <exception>

#include "platform/Clock.h"

namespace {

constexpr std::chrono::minutes kQuiet(1);

}  // namespace

// Without memory of its own: there may be none left.
void TellFault(std::string_view where, std::string_view what) noexcept {
  std::fprintf(stderr, "%.*s: %.*s\n", static_cast<int>(where.size()), where.data(), static_cast<int>(what.size()),
               what.data());
}

void FaultTeller::Tell(std::string_view where, std::string_view what) noexcept {
  try {
    const auto now = clock_.Steady();
    const auto known = told_.find(where);
    if (known != told_.end() && now - known->second < kQuiet) return;
    told_.insert_or_assign(std::string(where), now);
  } catch (const std::exception&) {
    // No memory to remember it by: it is said all the same.
  }
  TellFault(where, what);
}
