#include "platform/swf/Tags.h"

#include <algorithm>

#include "platform/swf/Bytes.h"

namespace swf {

namespace {

constexpr unsigned kLongLength = 63;  // this length means: four bytes of length follow

}  // namespace

std::vector<Tag> ReadTags(std::string_view bytes, std::size_t at) {
  std::vector<Tag> tags;
  for (ByteReader reader(bytes, at); reader.Left() >= 2;) {
    const std::size_t begin = reader.At();
    const unsigned head = reader.U16();
    std::size_t length = head & kLongLength;
    if (length == kLongLength) length = reader.U32();
    if (reader.Failed()) break;
    Tag tag;
    tag.code = static_cast<int>(head >> 6);
    tag.cut = length > reader.Left();
    length = std::min(length, reader.Left());
    tag.body = bytes.substr(reader.At(), length);
    reader.Skip(length);
    tag.whole = bytes.substr(begin, reader.At() - begin);
    tags.push_back(tag);
    if (tag.code == kEnd) break;
  }
  return tags;
}

std::string WriteTag(int code, std::string_view body) {
  ByteWriter writer;
  const auto kind = static_cast<std::uint32_t>(code) << 6;
  if (body.size() < kLongLength) {
    writer.U16(kind | static_cast<std::uint32_t>(body.size()));
  } else {
    writer.U16(kind | kLongLength).U32(static_cast<std::uint32_t>(body.size()));
  }
  return writer.Raw(body).Bytes();
}

std::string Mended(const Tag& tag) { return tag.cut ? WriteTag(tag.code, tag.body) : std::string(tag.whole); }

}  // namespace swf
