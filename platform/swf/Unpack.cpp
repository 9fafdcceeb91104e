#include "platform/swf/Unpack.h"

#include <lzma.h>
#include <zlib.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace swf {

namespace {

constexpr std::size_t kStep = 256 * 1024;

// Lets `step` fill the text piece by piece until it says that there is no more or `most` is reached. `step` is given
// room, and tells how much of it was used and whether to go on.
template <typename Step>
std::string Filled(std::size_t most, Step step) {
  std::string text;
  for (bool more = true; more && text.size() < most;) {
    const std::size_t before = text.size();
    text.resize(before + std::min(kStep, most - before));
    const std::size_t used = step(text.data() + before, text.size() - before, more);
    text.resize(before + used);
  }
  return text;
}

}  // namespace

std::string Inflate(std::string_view packed, std::size_t most) {
  z_stream stream{};
  if (inflateInit(&stream) != Z_OK) return {};
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
  stream.avail_in = static_cast<uInt>(std::min<std::size_t>(packed.size(), UINT32_MAX));
  std::string text = Filled(most, [&stream](char* room, std::size_t size, bool& more) {
    stream.next_out = reinterpret_cast<Bytef*>(room);
    stream.avail_out = static_cast<uInt>(size);
    const int result = inflate(&stream, Z_NO_FLUSH);
    more = result == Z_OK && stream.avail_out == 0;
    return size - stream.avail_out;
  });
  inflateEnd(&stream);
  return text;
}

std::optional<std::string> UnpackLzma(std::string_view properties, std::string_view packed, std::size_t most) {
  lzma_filter filters[] = {{LZMA_FILTER_LZMA1, nullptr}, {LZMA_VLI_UNKNOWN, nullptr}};
  if (lzma_properties_decode(filters, nullptr, reinterpret_cast<const std::uint8_t*>(properties.data()),
                             properties.size()) != LZMA_OK) {
    return std::nullopt;
  }
  // A dictionary is never looked into further back than what has been unpacked; a file may ask for gigabytes.
  auto& options = *static_cast<lzma_options_lzma*>(filters[0].options);
  const auto enough = static_cast<std::uint32_t>(std::clamp<std::size_t>(most, LZMA_DICT_SIZE_MIN, UINT32_MAX));
  options.dict_size = std::min(options.dict_size, enough);
  lzma_stream stream = LZMA_STREAM_INIT;
  const lzma_ret begun = lzma_raw_decoder(&stream, filters);
  std::free(filters[0].options);
  if (begun != LZMA_OK) return std::nullopt;
  stream.next_in = reinterpret_cast<const std::uint8_t*>(packed.data());
  stream.avail_in = packed.size();
  std::string text = Filled(most, [&stream](char* room, std::size_t size, bool& more) {
    stream.next_out = reinterpret_cast<std::uint8_t*>(room);
    stream.avail_out = size;
    more = lzma_code(&stream, LZMA_RUN) == LZMA_OK && stream.avail_out == 0;
    return size - stream.avail_out;
  });
  lzma_end(&stream);
  return text;
}

}  // namespace swf
