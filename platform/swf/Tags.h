#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace swf {

// The tags that are looked at here, by the numbers of the format.
enum TagCode : int {
  kEnd = 0,
  kShowFrame = 1,
  kPlaceObject = 4,
  kDefineButton = 7,
  kSetBackgroundColor = 9,
  kDoAction = 12,
  kDefineSound = 14,
  kSoundStreamBlock = 19,
  kProtect = 24,
  kPlaceObject2 = 26,
  kDefineButton2 = 34,
  kDefineEditText = 37,
  kDefineSprite = 39,
  kProductInfo = 41,
  kExportAssets = 56,
  kImportAssets = 57,
  kDebugId = 63,
  kEnableDebugger2 = 64,
  kScriptLimits = 65,
  kFileAttributes = 69,
  kPlaceObject3 = 70,
  kImportAssets2 = 71,
  kSymbolClass = 76,
  kMetadata = 77,
  kDoAbc = 82,
  kDefineSceneAndFrameLabelData = 86,
  kPlaceObject4 = 94,
};

// One tag. The views are into the movie that it was read from.
struct Tag {
  int code = 0;
  std::string_view body;   // cut where the movie ends
  std::string_view whole;  // with its head
  bool cut = false;        // it says that it is longer than what is there
};

// The tags from `at` on, up to and with the first End or to the end of the bytes.
std::vector<Tag> ReadTags(std::string_view bytes, std::size_t at = 0);

// A tag as it stands in a movie.
std::string WriteTag(int code, std::string_view body = {});

// The tag as it was, its length set right where it was cut.
std::string Mended(const Tag& tag);

}  // namespace swf
