#include <cstddef>
#include <cstdint>

#include "tests/fuzz/IniCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckIni({reinterpret_cast<const char*>(data), size});
  return 0;
}
