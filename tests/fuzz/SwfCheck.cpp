#include "tests/fuzz/SwfCheck.h"

#include "platform/swf/Bytes.h"
#include "platform/swf/Container.h"
#include "platform/swf/MakeReporting.h"
#include "platform/swf/Tags.h"
#include "tests/fuzz/Require.h"

namespace {

constexpr std::size_t kMost = 1 << 22;

int FramesOf(const std::string& movie, std::size_t at) {
  int frames = 0;
  for (const swf::Tag& tag : swf::ReadTags(movie, at)) frames += tag.code == swf::kShowFrame ? 1 : 0;
  return frames;
}

}  // namespace

void CheckSwf(const std::string& bytes) {
  const auto header = swf::ReadHeader(bytes);
  const auto unpacked = swf::Unpacked(bytes, kMost);
  Require(header || !unpacked, "what has no header is no movie");
  if (!unpacked) return;
  Require(unpacked->size() <= kMost, "nothing unpacks to more than is allowed");
  Require(swf::ByteReader(*unpacked, 4).U32() == unpacked->size(), "the length is right");
  Require(swf::Unpacked(*unpacked, kMost) == unpacked, "unpacking twice changes nothing");

  const auto movie = swf::MakeReporting(*unpacked, "station://helper.swf");
  Require(movie.has_value(), "every unpacked movie can be made to report");
  const auto again = swf::ReadHeader(movie->bytes);
  Require(again && again->frameCount == header->frameCount && again->tagsAt == header->tagsAt, "the header stays");
  Require(swf::ByteReader(movie->bytes, 4).U32() == movie->bytes.size(), "the new length is right");
  const int frames = FramesOf(*unpacked, header->tagsAt);
  Require(movie->frames == frames && FramesOf(movie->bytes, again->tagsAt) == frames, "no frame comes or goes");
}
