#include <cstddef>
#include <cstdint>

#include "tests/fuzz/SwfHeaderCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  CheckSwfHeader(std::string(reinterpret_cast<const char*>(bytes), size));
  return 0;
}
