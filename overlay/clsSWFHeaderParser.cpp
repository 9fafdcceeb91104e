#include "overlay/clsSWFHeaderParser.h"

#include <charconv>

#include "platform/Files.h"
#include "settings/Numbers.h"

namespace {

constexpr std::size_t kRectAt = 8, kRectBytes = 9, kHeaderBytes = 21;
constexpr std::size_t kSizeDigits = 5;  // how many digits tell the length of a field
constexpr int kTwipsOfMovie = 20;       // to a pixel, in the file's own measure
constexpr std::uint8_t kLastOfOldLayout = 4;

struct Warning {
  const char* text;
  const char* title;
};
constexpr Warning kNotOpened{"File could not be opened.", "Error Opening File"};
constexpr Warning kNotMapped{"Could not create mapping object.", "Error Creating Mapping Object"};
constexpr Warning kNotRead{"Failed to map the file into memory.", "Error Mapping File"};

std::string ByteToBinary(std::uint8_t byte) {
  std::string digits;
  for (int rest = byte; rest > 0; rest /= 2) digits.insert(digits.begin(), rest % 2 == 1 ? '1' : '0');
  return digits;
}

double BinaryToDecimal(const std::string& digits) {
  double sum = 0;
  for (const char digit : digits) sum = 2 * sum + (digit == '1' ? 1 : 0);
  return sum;
}

// What of the text lies within its end.
std::string Digits(const std::string& bits, std::size_t from, std::size_t count) {
  return from < bits.size() ? bits.substr(from, count) : "";
}

std::string HexText(std::uint8_t byte) {
  char text[2];
  const auto end = std::to_chars(text, text + sizeof text, byte, 16).ptr;
  return {text, end};
}

}  // namespace

void clsSWFHeaderParser::OpenFile(const std::string& path) {
  FileStart start = files_.ReadStart(path, kHeaderBytes);
  view_.clear();
  if (start.result == FileStart::kNotOpened) return warn_(kNotOpened.text, kNotOpened.title);
  if (start.result == FileStart::kNotRead) return warn_(kNotRead.text, kNotRead.title);
  if (start.bytes.empty()) return warn_(kNotMapped.text, kNotMapped.title);
  view_ = std::move(start.bytes);
}

std::uint8_t clsSWFHeaderParser::Byte(std::size_t offset) const {
  return offset < view_.size() ? static_cast<std::uint8_t>(view_[offset]) : std::uint8_t{0};
}

bool clsSWFHeaderParser::CompressionState() const { return Byte(0) == 'C'; }

std::uint32_t clsSWFHeaderParser::DecompressedLength() const {
  std::uint32_t length = 0;
  for (std::size_t offset = 8; offset-- > 4;) length = length << 8 | Byte(offset);
  return length;
}

std::string clsSWFHeaderParser::RectBits() const {
  std::string bits;
  for (std::size_t offset = kRectAt; offset < kRectAt + kRectBytes; ++offset) {
    const std::string digits = ByteToBinary(Byte(offset));
    bits.append(8 - digits.size(), '0').append(digits);
  }
  return bits;
}

// A field that runs past the end of the nine bytes is cut off there, and the fields count as unsigned. Meant so.
std::int32_t clsSWFHeaderParser::Extent(std::size_t low, std::size_t high) const {
  const std::string bits = RectBits();
  const auto length = static_cast<std::size_t>(BinaryToDecimal(bits.substr(0, kSizeDigits)));
  const auto field = [&](std::size_t index) {
    return BinaryToDecimal(Digits(bits, kSizeDigits + index * length, length));
  };
  const std::int32_t pixels = RoundHalfEven((field(high) - field(low)) / kTwipsOfMovie);
  return pixels >= INT16_MIN && pixels <= INT16_MAX ? pixels : 0;
}

std::int32_t clsSWFHeaderParser::WidthDimension() const { return Extent(0, 1); }

std::int32_t clsSWFHeaderParser::HeightDimension() const { return Extent(2, 3); }

std::int32_t clsSWFHeaderParser::FrameRate() const { return Byte(Version() > kLastOfOldLayout ? 18 : 17); }

std::int32_t clsSWFHeaderParser::FrameCount() const {
  if (Version() <= kLastOfOldLayout) return Byte(18);
  const std::string text = HexText(Byte(20)) + HexText(Byte(19));
  std::int32_t count = 0;
  std::from_chars(text.data(), text.data() + text.size(), count, 16);
  return count;
}
