#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace swf {

// What a movie's header tells. Source: the published SWF file format, version 19, chapter 2.
struct Header {
  int version = 0;
  int frameCount = 0;  // 0 to 65535, as written; the movie itself may hold another number
  double framesPerSecond = 0;
  int width = 0;           // of the stage, in twentieths of a pixel
  int height = 0;          // likewise
  std::size_t tagsAt = 0;  // where the first tag begins in the unpacked movie
};

// Reads the header of a movie, packed or not; the first kHeaderBytes of the file are enough. Nothing when it is no
// movie or cut off before the header's end.
std::optional<Header> ReadHeader(std::string_view file);

inline constexpr std::size_t kHeaderBytes = 64 * 1024;

// The movie unpacked (`FWS`), its length in the header right. A damaged or cut movie gives what there is before the
// damage. Nothing when it is no movie, when not even its header is whole, or when it is larger than `most` bytes.
std::optional<std::string> Unpacked(std::string_view file, std::size_t most);

// The same movie with other tags: its header, and `tags` behind it. `movie` is unpacked and whole as far as `header`.
std::string WithTags(std::string_view movie, const Header& header, std::string_view tags);

}  // namespace swf
