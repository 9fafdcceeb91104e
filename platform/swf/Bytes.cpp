#include "platform/swf/Bytes.h"

namespace swf {

bool ByteReader::Has(std::size_t count) {
  bitsLeft_ = 0;
  if (Left() < count) failed_ = true;
  return !failed_;
}

std::uint8_t ByteReader::U8() { return Has(1) ? static_cast<std::uint8_t>(bytes_[at_++]) : 0; }

std::uint16_t ByteReader::U16() {
  if (!Has(2)) return 0;
  const unsigned low = U8();
  return static_cast<std::uint16_t>(low | static_cast<unsigned>(U8()) << 8);
}

std::uint32_t ByteReader::U32() {
  if (!Has(4)) return 0;
  const std::uint32_t low = U16();
  return low | static_cast<std::uint32_t>(U16()) << 16;
}

std::string_view ByteReader::Text() {
  if (!Has(0)) return {};
  const std::size_t end = bytes_.find('\0', at_);
  if (end == std::string_view::npos) {
    failed_ = true;
    return {};
  }
  const std::string_view text = bytes_.substr(at_, end - at_);
  at_ = end + 1;
  return text;
}

void ByteReader::Skip(std::size_t count) {
  if (Has(count)) at_ += count;
}

std::uint32_t ByteReader::Bits(int count) {
  std::uint32_t value = 0;
  for (; count > 0; --count) {
    if (bitsLeft_ == 0) {
      if (!Has(1)) return 0;
      ++at_;
      bitsLeft_ = 8;
    }
    value = value << 1 | (static_cast<std::uint8_t>(bytes_[at_ - 1]) >> --bitsLeft_ & 1u);
  }
  return value;
}

std::int32_t ByteReader::SignedBits(int count) {
  const std::uint32_t value = Bits(count);
  if (count == 0 || count >= 32 || (value >> (count - 1) & 1u) == 0) return static_cast<std::int32_t>(value);
  return static_cast<std::int32_t>(value | ~0u << count);
}

ByteWriter& ByteWriter::U8(std::uint32_t value) {
  bitsLeft_ = 0;
  bytes_.push_back(static_cast<char>(value));
  return *this;
}

ByteWriter& ByteWriter::U16(std::uint32_t value) { return U8(value).U8(value >> 8); }

ByteWriter& ByteWriter::U32(std::uint32_t value) { return U16(value).U16(value >> 16); }

ByteWriter& ByteWriter::Text(std::string_view text) { return Raw(text).U8(0); }

ByteWriter& ByteWriter::Raw(std::string_view bytes) {
  bitsLeft_ = 0;
  bytes_ += bytes;
  return *this;
}

ByteWriter& ByteWriter::Bits(std::uint32_t value, int count) {
  while (count-- > 0) {
    if (bitsLeft_ == 0) {
      bytes_.push_back(0);
      bitsLeft_ = 8;
    }
    const unsigned bit = value >> count & 1u;
    bytes_.back() = static_cast<char>(static_cast<unsigned char>(bytes_.back()) | bit << --bitsLeft_);
  }
  return *this;
}

int SignedWidth(std::int32_t value) {
  int width = 1;
  for (std::uint32_t rest = value < 0 ? ~static_cast<std::uint32_t>(value) : static_cast<std::uint32_t>(value);
       rest != 0; rest >>= 1) {
    ++width;
  }
  return width;
}

}  // namespace swf
