#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace swf {

// Reads bytes, little-endian, and bits, the highest of a byte first. A read beyond the end gives 0, and from then on
// the reader has failed and gives nothing else.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes, std::size_t at = 0) : bytes_(bytes), at_(at) {}

  std::uint8_t U8();
  std::uint16_t U16();
  std::uint32_t U32();
  // Up to a zero byte, which is read too.
  std::string_view Text();
  void Skip(std::size_t count);

  // A field of up to 32 bits. A byte begun by bits is left by the next read of bytes.
  std::uint32_t Bits(int count);
  std::int32_t SignedBits(int count);

  std::size_t At() const { return at_; }
  std::size_t Left() const { return failed_ || at_ > bytes_.size() ? 0 : bytes_.size() - at_; }
  bool Failed() const { return failed_; }

 private:
  bool Has(std::size_t count);

  std::string_view bytes_;
  std::size_t at_;    // the next byte that no read has touched
  int bitsLeft_ = 0;  // of the byte before it
  bool failed_ = false;
};

// Writes what ByteReader reads.
class ByteWriter {
 public:
  ByteWriter& U8(std::uint32_t value);
  ByteWriter& U16(std::uint32_t value);
  ByteWriter& U32(std::uint32_t value);
  // With a zero byte behind it.
  ByteWriter& Text(std::string_view text);
  ByteWriter& Raw(std::string_view bytes);
  ByteWriter& Bits(std::uint32_t value, int count);

  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
  int bitsLeft_ = 0;
};

// Bits that a signed field must have to hold the value.
int SignedWidth(std::int32_t value);

}  // namespace swf
