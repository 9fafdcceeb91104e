#pragma once

#include <cstdint>
#include <limits>
#include <string>

// Reads an open file from where it stands to its end; `size` is a guess at how much that is. False when it cannot be
// read or is larger than `maxBytes`; `content` is undefined then.
bool ReadAll(int descriptor, std::uint64_t size, std::string& content,
             std::uint64_t maxBytes = std::numeric_limits<std::uint64_t>::max());
