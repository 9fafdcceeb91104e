#include "platform/swf/MakeReporting.h"

#include <algorithm>
#include <array>

#include "platform/swf/Actions.h"
#include "platform/swf/Bytes.h"
#include "platform/swf/Container.h"
#include "platform/swf/HelperMovie.h"
#include "platform/swf/ReportClass.h"
#include "platform/swf/Tags.h"

namespace swf {

namespace {

constexpr unsigned kScript3 = 0x08;  // flag of FileAttributes
constexpr char kPlainDocumentClass[] = "flash.display.MovieClip";

bool IsScript3(const std::vector<Tag>& tags) {
  return !tags.empty() && tags[0].code == kFileAttributes && (ByteReader(tags[0].body).U8() & kScript3) != 0;
}

bool IsSound(const Tag& tag) { return tag.code == kDefineSound || tag.code == kSoundStreamBlock; }

// A clip holds no other one; one that does is believed to hold anything.
bool HoldsSounds(const std::vector<Tag>& tags) {
  constexpr std::size_t kClipHead = 4;  // its number and its frames
  const auto isHeard = [](const Tag& tag) { return IsSound(tag) || tag.code == kDefineSprite; };
  return std::ranges::any_of(tags, [&](const Tag& tag) {
    if (tag.code != kDefineSprite) return IsSound(tag);
    return std::ranges::any_of(ReadTags(tag.body, kClipHead), isHeard);
  });
}

// What may stand before the first action of a frame.
bool StandsFirst(int code) {
  constexpr std::array kFirst = {kEnd,          kSetBackgroundColor,
                                 kProtect,      kProductInfo,
                                 kDebugId,      kEnableDebugger2,
                                 kScriptLimits, kFileAttributes,
                                 kMetadata,     kDefineSceneAndFrameLabelData};
  return std::ranges::find(kFirst, code) != kFirst.end();
}

std::string If(const std::string& condition, const std::string& actions) { return condition + Not() + Unless(actions); }

// Told only by what plays as the root, and only in its own frame: a movie may run the actions of another frame, and
// what it loads has actions like these.
std::string Report(int frame) {
  const std::string tell = GetUrl("FSCommand:frame", std::to_string(frame));
  const std::string inFrame = PropertyOf("", kCurrentFrame) + PushNumber(static_cast<float>(frame)) + NumbersEqual();
  const std::string isRoot = PropertyOf("", kTarget) + PushText("/") + TextsEqual();
  const std::string isMovie = PropertyOf("", kUrl) + PropertyOf("_level0", kUrl) + TextsEqual();
  return If(isRoot, If(isMovie, If(inFrame, tell)));
}

// Asks the level itself, so that nothing is left in the movie that it could see. Twice would make the player panic.
std::string LoadHelper(std::string_view address) {
  return PropertyOf(kHelperLevel, kTotalFrames) + Unless(GetUrl(address, kHelperLevel));
}

// Reports stand first in their frame: a movie whose own actions run into a limit has all later ones turned off.
std::string WithReports(const std::vector<Tag>& tags, std::string_view helperAddress, ReportingMovie& movie) {
  TextWrapping wrapping(tags);
  std::string written;
  bool fresh = true;
  for (const Tag& tag : tags) {
    if (fresh && !StandsFirst(tag.code)) {
      fresh = false;
      const std::string helper = movie.frames == 0 ? LoadHelper(helperAddress) : "";
      written += DoActionTag(Report(movie.frames + 1) + helper);
    }
    if (tag.code == kShowFrame) {
      fresh = true;
      ++movie.frames;
    }
    written += wrapping.Replacement(tag).value_or(Mended(tag));
  }
  movie.fields = wrapping.Fields();
  return written;
}

struct SymbolOfRoot {
  std::size_t nameAt = 0;
  std::string name;
};

std::optional<SymbolOfRoot> RootIn(const Tag& tag) {
  if (tag.code != kSymbolClass) return std::nullopt;
  ByteReader reader(tag.body);
  for (int left = reader.U16(); left > 0; --left) {
    const int character = reader.U16();
    const std::size_t at = reader.At();
    const std::string_view name = reader.Text();
    if (reader.Failed()) return std::nullopt;
    if (character == 0) return SymbolOfRoot{at, std::string(name)};
  }
  return std::nullopt;
}

std::string AbcTag(const std::string& documentClass) {
  constexpr std::uint32_t kLazy = 1;
  return WriteTag(kDoAbc, ByteWriter().U32(kLazy).Text("").Raw(ReportClassAbc(documentClass)).Bytes());
}

std::string NewSymbols() {
  return WriteTag(kSymbolClass, ByteWriter().U16(1).U16(0).Text(ReportClassName(kPlainDocumentClass)).Bytes());
}

std::string WithClass(const std::vector<Tag>& tags, ReportingMovie& movie) {
  const bool hasRoot = std::ranges::any_of(tags, [](const Tag& tag) { return RootIn(tag).has_value(); });
  std::string written;
  bool done = false;
  for (const Tag& tag : tags) {
    if (!done && !hasRoot && tag.code == kShowFrame) {
      written += AbcTag(kPlainDocumentClass) + NewSymbols();
      done = true;
    }
    const auto root = done ? std::nullopt : RootIn(tag);
    if (root) {
      std::string body(tag.body);
      body.replace(root->nameAt, root->name.size(), ReportClassName(root->name));
      written += AbcTag(root->name) + WriteTag(kSymbolClass, body);
      done = true;
    } else {
      written += Mended(tag);
    }
    if (tag.code == kShowFrame) ++movie.frames;
  }
  return written;
}

}  // namespace

std::optional<ReportingMovie> MakeReporting(std::string_view movie, std::string_view helperAddress) {
  const auto header = ReadHeader(movie);
  if (!header || movie[0] != 'F') return std::nullopt;
  const std::vector<Tag> tags = ReadTags(movie, header->tagsAt);
  ReportingMovie reporting;
  reporting.script3 = IsScript3(tags);
  reporting.sounds = reporting.script3 || HoldsSounds(tags);
  const std::string written =
      reporting.script3 ? WithClass(tags, reporting) : WithReports(tags, helperAddress, reporting);
  reporting.bytes = WithTags(movie, *header, written);
  return reporting;
}

}  // namespace swf
