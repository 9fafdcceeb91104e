#include "platform/Utf8.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace {

// Number of bytes that the first byte announces; 0 for a byte that cannot come first.
std::size_t LengthFrom(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 0;
}

constexpr std::array<char32_t, 5> kSmallestOfLength = {0, 0, 0x80, 0x800, 0x10000};

}  // namespace

char32_t NextCodePoint(std::string_view text, std::size_t& at) {
  const auto first = static_cast<unsigned char>(text[at]);
  const std::size_t length = LengthFrom(first);
  if (length == 1) {
    ++at;
    return first;
  }
  if (length == 0 || at + length > text.size()) {
    ++at;
    return kStrayByte + first;
  }
  char32_t point = first & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[at + i]);
    if ((next & 0xC0) != 0x80) {
      ++at;
      return kStrayByte + first;
    }
    point = (point << 6) | (next & 0x3Fu);
  }
  const bool isSurrogate = point >= 0xD800 && point <= 0xDFFF;
  if (point < kSmallestOfLength[length] || isSurrogate || point > 0x10FFFF) {
    ++at;
    return kStrayByte + first;
  }
  at += length;
  return point;
}

void AppendCodePoint(std::string& text, char32_t point) {
  const auto put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (point < 0x80) {
    put(point);
  } else if (point < 0x800) {
    put(0xC0 | (point >> 6));
    put(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    put(0xE0 | (point >> 12));
    put(0x80 | ((point >> 6) & 0x3F));
    put(0x80 | (point & 0x3F));
  } else {
    put(0xF0 | (point >> 18));
    put(0x80 | ((point >> 12) & 0x3F));
    put(0x80 | ((point >> 6) & 0x3F));
    put(0x80 | (point & 0x3F));
  }
}

bool IsUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    // Eight plain bytes at a time: nearly all of what a station stores.
    std::uint64_t eight = 0;
    while (at + sizeof eight <= text.size()) {
      std::memcpy(&eight, text.data() + at, sizeof eight);
      if ((eight & 0x8080808080808080u) != 0) break;
      at += sizeof eight;
    }
    if (at == text.size()) break;
    if (NextCodePoint(text, at) >= kStrayByte) return false;
  }
  return true;
}
