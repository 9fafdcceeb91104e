#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace swf {

// What a packed stream holds, up to `most` bytes; more is not unpacked. A damaged or cut stream gives what there is
// before the damage.
std::string Inflate(std::string_view packed, std::size_t most);

// The same for an LZMA stream without a header of its own. `properties`: its five bytes (coder properties, then the
// size of the dictionary). Nothing when they are none.
std::optional<std::string> UnpackLzma(std::string_view properties, std::string_view packed, std::size_t most);

}  // namespace swf
