#pragma once

#include <cstdint>
#include <string>

inline constexpr std::uint64_t kWrittenKeys = 40;

// The key that the write of that number sets.
inline std::string WrittenKey(std::uint64_t number) { return "Key" + std::to_string(number % kWrittenKeys); }
