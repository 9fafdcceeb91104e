#include "platform/swf/Placements.h"

#include <algorithm>
#include <vector>

#include "platform/swf/Bytes.h"

namespace swf {

namespace {

// Flags of PlaceObject2 and, in a second byte, of PlaceObject3 and 4.
enum : unsigned {
  kHasCharacter = 0x02,
  kHasMatrix = 0x04,
  kHasColours = 0x08,
  kHasRatio = 0x10,
  kHasName = 0x20,
  kHasClassName = 0x08,  // second byte
  kHasImage = 0x10,      // second byte
};

void SkipMatrix(ByteReader& reader) {
  const auto skipPair = [&reader] {
    const int width = static_cast<int>(reader.Bits(5));
    reader.Bits(width);
    reader.Bits(width);
  };
  if (reader.Bits(1) != 0) skipPair();  // scale
  if (reader.Bits(1) != 0) skipPair();  // turn
  skipPair();                           // place
  reader.Skip(0);
}

struct Colours {
  bool adds = false;
  bool multiplies = false;
  std::vector<int> values;  // first those that multiply
  int width = 0;
};

Colours ReadColours(ByteReader& reader, int channels) {
  Colours colours;
  colours.adds = reader.Bits(1) != 0;
  colours.multiplies = reader.Bits(1) != 0;
  colours.width = static_cast<int>(reader.Bits(4));
  const int count = channels * (static_cast<int>(colours.adds) + static_cast<int>(colours.multiplies));
  for (int i = 0; i < count; ++i) colours.values.push_back(reader.SignedBits(colours.width));
  reader.Skip(0);
  return colours;
}

// With alpha, which the oldest tag does not have: fully there.
std::string WithAlpha(const Colours& colours) {
  constexpr int kWhole = 256;
  const int width = std::max(colours.width, SignedWidth(kWhole));
  ByteWriter writer;
  writer.Bits(colours.adds, 1).Bits(colours.multiplies, 1).Bits(static_cast<std::uint32_t>(width), 4);
  for (std::size_t i = 0; i < colours.values.size(); ++i) {
    writer.Bits(static_cast<std::uint32_t>(colours.values[i]), width);
    if (i % 3 == 2) writer.Bits(i == 2 && colours.multiplies ? kWhole : 0, width);
  }
  return writer.Bytes();
}

Placement ReadOldest(const Tag& tag) {
  ByteReader reader(tag.body);
  Placement placement;
  placement.character = reader.U16();
  placement.depth = reader.U16();
  return placement;
}

std::optional<std::string> NamedOldest(const Tag& tag, const Placement& placement, std::string_view name) {
  constexpr std::size_t kMatrixAt = 4;
  ByteReader reader(tag.body, kMatrixAt);
  SkipMatrix(reader);
  if (reader.Failed()) return std::nullopt;
  const std::string_view matrix = tag.body.substr(kMatrixAt, reader.At() - kMatrixAt);
  unsigned flags = kHasCharacter | kHasMatrix | kHasName;
  std::string colours;
  if (reader.Left() > 0) {
    const Colours read = ReadColours(reader, 3);
    if (reader.Failed()) return std::nullopt;
    colours = WithAlpha(read);
    flags |= kHasColours;
  }
  ByteWriter writer;
  writer.U8(flags)
      .U16(static_cast<std::uint32_t>(placement.depth))
      .U16(static_cast<std::uint32_t>(*placement.character));
  writer.Raw(matrix).Raw(colours).Text(name);
  return WriteTag(kPlaceObject2, writer.Bytes());
}

}  // namespace

bool IsPlacement(int code) {
  return code == kPlaceObject || code == kPlaceObject2 || code == kPlaceObject3 || code == kPlaceObject4;
}

std::optional<Placement> ReadPlacement(const Tag& tag) {
  if (!IsPlacement(tag.code)) return std::nullopt;
  if (tag.code == kPlaceObject) return tag.body.size() < 4 ? std::nullopt : std::optional(ReadOldest(tag));
  ByteReader reader(tag.body);
  const unsigned flags = reader.U8();
  const unsigned more = tag.code == kPlaceObject2 ? 0 : reader.U8();
  Placement placement;
  placement.depth = reader.U16();
  const bool hasClass = (more & kHasClassName) != 0 || ((more & kHasImage) != 0 && (flags & kHasCharacter) != 0);
  if (hasClass) reader.Text();
  if ((flags & kHasCharacter) != 0) placement.character = reader.U16();
  if ((flags & kHasMatrix) != 0) SkipMatrix(reader);
  if ((flags & kHasColours) != 0) ReadColours(reader, 4);
  if ((flags & kHasRatio) != 0) reader.U16();
  placement.named = (flags & kHasName) != 0;
  placement.nameAt = reader.At();
  if (reader.Failed()) return std::nullopt;
  return placement;
}

std::optional<std::string> WithName(const Tag& tag, const Placement& placement, std::string_view name) {
  if (tag.code == kPlaceObject) return NamedOldest(tag, placement, name);
  std::string body(tag.body);
  body[0] = static_cast<char>(static_cast<unsigned char>(body[0]) | kHasName);
  body.insert(placement.nameAt, std::string(name) + '\0');
  return WriteTag(tag.code, body);
}

}  // namespace swf
