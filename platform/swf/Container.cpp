#include "platform/swf/Container.h"

#include <algorithm>

#include "platform/swf/Bytes.h"
#include "platform/swf/Unpack.h"

namespace swf {

namespace {

constexpr std::size_t kLead = 8;             // signature, version, length
constexpr std::size_t kLzmaProperties = 12;  // behind the length of the packed part
constexpr std::size_t kLzmaStream = 17;
// The longest stage, rate and frame count.
constexpr std::size_t kLongestHeader = 32;

bool IsMovie(std::string_view file) {
  return file.size() >= kLead && file.substr(1, 2) == "WS" && (file[0] == 'F' || file[0] == 'C' || file[0] == 'Z');
}

// What follows the lead, unpacked, up to `most` bytes.
std::optional<std::string> Body(std::string_view file, std::size_t most) {
  switch (file[0]) {
    case 'C':
      return Inflate(file.substr(kLead), most);
    case 'Z': {
      if (file.size() < kLzmaStream) return std::nullopt;
      const std::size_t length = ByteReader(file, 4).U32();
      if (length < kLead) return std::nullopt;
      return UnpackLzma(file.substr(kLzmaProperties, kLzmaStream - kLzmaProperties), file.substr(kLzmaStream),
                        std::min(most, length - kLead));
    }
    default:
      return std::string(file.substr(kLead, most));
  }
}

std::string Lead(char version, std::size_t bodySize) {
  std::string lead = std::string("FWS") + version;
  return lead + ByteWriter().U32(static_cast<std::uint32_t>(kLead + bodySize)).Bytes();
}

}  // namespace

std::optional<Header> ReadHeader(std::string_view file) {
  if (!IsMovie(file)) return std::nullopt;
  const auto body = Body(file, kLongestHeader);
  if (!body) return std::nullopt;
  ByteReader reader(*body);
  Header header;
  header.version = static_cast<unsigned char>(file[3]);
  const int width = static_cast<int>(reader.Bits(5));
  const std::int32_t left = reader.SignedBits(width);
  const std::int32_t right = reader.SignedBits(width);
  const std::int32_t top = reader.SignedBits(width);
  const std::int32_t bottom = reader.SignedBits(width);
  header.width = std::max(right - left, 0);
  header.height = std::max(bottom - top, 0);
  header.framesPerSecond = reader.U16() / 256.0;
  header.frameCount = reader.U16();
  if (reader.Failed()) return std::nullopt;
  header.tagsAt = kLead + reader.At();
  return header;
}

std::optional<std::string> Unpacked(std::string_view file, std::size_t most) {
  if (!ReadHeader(file) || most < kLead) return std::nullopt;
  const std::size_t room = most - kLead;
  auto body = Body(file, room + 1);
  if (!body || body->size() > room) return std::nullopt;
  return Lead(file[3], body->size()) + *body;
}

std::string WithTags(std::string_view movie, const Header& header, std::string_view tags) {
  const std::string_view stage = movie.substr(kLead, header.tagsAt - kLead);
  std::string written = Lead(movie[3], stage.size() + tags.size());
  written.reserve(written.size() + stage.size() + tags.size());
  written += stage;
  written += tags;
  return written;
}

}  // namespace swf
