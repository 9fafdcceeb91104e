#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

class Files;

// Reads the header of a Flash movie as it is commonly laid out: uncompressed, with a frame size of nine bytes. It does
// not unpack and does not follow a frame size of another length: of such a movie CompressionState, Version and
// DecompressedLength are right, and all else is a number without meaning. Meant so. The published layout is that of the
// SWF file format.
//
// Of a file that could not be opened, and before OpenFile, every property is 0 or false.
class clsSWFHeaderParser {
 public:
  // Puts a warning before the operator, with a title, and returns at once.
  using Warn = std::function<void(const std::string& text, const std::string& title)>;

  clsSWFHeaderParser(const Files& files, Warn warn) : files_(files), warn_(std::move(warn)) {}

  // Reads the first bytes of the file and lets go of it; what stands beyond the end of a short file reads as zeros.
  // Warns when the file cannot be opened, is empty or cannot be read.
  void OpenFile(const std::string& path);

  bool CompressionState() const;
  std::uint8_t Version() const { return Byte(3); }
  std::uint32_t DecompressedLength() const;
  // Pixels. 0 where the number does not fit in 16 bits with a sign.
  std::int32_t WidthDimension() const;
  std::int32_t HeightDimension() const;
  // Frames a second, without the fraction; of movies up to version 4 the fraction's byte alone. Meant so.
  std::int32_t FrameRate() const;
  // The two bytes of the count are joined as hexadecimal texts without leading zeros: 0x0103 gives &H13, which is 19.
  // Of movies up to version 4 it is one byte. Meant so.
  std::int32_t FrameCount() const;

 private:
  std::uint8_t Byte(std::size_t offset) const;
  // The bits of the frame size, most significant first, as a text.
  std::string RectBits() const;
  // The distance between two of the frame size's four fields, in pixels.
  std::int32_t Extent(std::size_t low, std::size_t high) const;

  const Files& files_;
  Warn warn_;
  std::string view_;
};
