#include "platform/swf/TextFields.h"

#include <algorithm>
#include <array>
#include <set>

#include "platform/swf/Bytes.h"
#include "platform/swf/Placements.h"

namespace swf {

namespace {

constexpr int kHighestCharacter = 65000;

// The tags whose body begins with the number of a character that they define.
constexpr std::array kDefinitions = {2,  6,  7,  10, 11, 14, 20, 21, 22, 32, 33, 34, 35,
                                     36, 37, 39, 46, 48, 60, 75, 83, 84, 87, 90, 91};

// Flags of a text field, first and second byte.
enum : unsigned {
  kHasText = 0x80,
  kMultiline = 0x20,
  kHasColour = 0x04,
  kHasMaxLength = 0x02,
  kHasFont = 0x01,
  kHasFontClass = 0x80,  // second byte
  kHasLayout = 0x20,     // second byte
};

bool Starts(const std::string& text, std::initializer_list<std::string_view> starts) {
  return std::ranges::any_of(starts, [&text](std::string_view start) { return text.starts_with(start); });
}

// The name by which a clip one level below the root reaches what the root knows as `name`. The form with a colon is
// right in movies of every version.
std::string FromBelow(std::string name) {
  if (Starts(name, {"_root", "_level", "/", "this._root", "_global"})) return name;
  if (name.starts_with("this.")) name.erase(0, 5);
  if (name.find_first_of("/:") != std::string::npos) return "../" + name;
  return (name.find('.') == std::string::npos ? "../:" : "_parent.") + name;
}

// Every character that is used for something, and those that must stay as they are.
struct Uses {
  std::set<int> defined;
  std::set<int> bound;         // part of a sprite or a button, or exported
  std::map<int, bool> onRoot;  // placed there: whether ever with a name
};

void NoteAssets(const Tag& tag, std::set<int>& characters) {
  ByteReader reader(tag.body);
  if (tag.code != kExportAssets) reader.Text();
  if (tag.code == kImportAssets2) reader.U16();
  for (int left = reader.U16(); left > 0 && !reader.Failed(); --left) {
    characters.insert(reader.U16());
    reader.Text();
  }
}

void NoteDefinition(const Tag& tag, Uses& uses) {
  uses.defined.insert(ByteReader(tag.body).U16());
  if (tag.code == kDefineSprite) {
    for (const Tag& inner : ReadTags(tag.body, 4)) {
      const auto placement = ReadPlacement(inner);
      if (placement && placement->character) uses.bound.insert(*placement->character);
    }
  }
  // The records of a button are packed; every pair of bytes that could be a character counts as one.
  if (tag.code == kDefineButton || tag.code == kDefineButton2) {
    for (std::size_t at = 2; at + 2 <= tag.body.size(); ++at) uses.bound.insert(ByteReader(tag.body, at).U16());
  }
}

Uses FindUses(const std::vector<Tag>& tags) {
  Uses uses;
  for (const Tag& tag : tags) {
    if (std::ranges::find(kDefinitions, tag.code) != kDefinitions.end() && tag.body.size() >= 2)
      NoteDefinition(tag, uses);
    if (tag.code == kExportAssets) NoteAssets(tag, uses.bound);
    if (tag.code == kImportAssets || tag.code == kImportAssets2) NoteAssets(tag, uses.defined);
    const auto placement = ReadPlacement(tag);
    if (placement && placement->character) uses.onRoot[*placement->character] |= placement->named;
  }
  return uses;
}

std::string PlaceTag(int character, int depth, std::string_view name) {
  ByteWriter writer;
  writer.U8(name.empty() ? 0x06 : 0x26).U16(static_cast<std::uint32_t>(depth));
  writer.U16(static_cast<std::uint32_t>(character)).U8(0);  // a matrix that changes nothing
  if (!name.empty()) writer.Text(name);
  return WriteTag(kPlaceObject2, writer.Bytes());
}

std::string SpriteTag(int character, const std::string& tags) {
  ByteWriter writer;
  writer.U16(static_cast<std::uint32_t>(character)).U16(1).Raw(tags + WriteTag(kShowFrame) + WriteTag(kEnd));
  return WriteTag(kDefineSprite, writer.Bytes());
}

std::string ClipName(int depth) { return "T" + std::to_string(depth); }

}  // namespace

std::optional<TextField> ReadTextField(const Tag& tag) {
  if (tag.code != kDefineEditText) return std::nullopt;
  ByteReader reader(tag.body);
  TextField field;
  TextLooks& looks = field.looks;
  field.character = reader.U16();
  const int bits = static_cast<int>(reader.Bits(5));
  looks.left = reader.SignedBits(bits);
  looks.width = std::max(reader.SignedBits(bits) - looks.left, 0);
  looks.top = reader.SignedBits(bits);
  looks.height = std::max(reader.SignedBits(bits) - looks.top, 0);
  const unsigned flags = reader.U8();
  const unsigned more = reader.U8();
  looks.multiline = (flags & kMultiline) != 0;
  if ((flags & kHasFont) != 0) reader.U16();
  if ((more & kHasFontClass) != 0) reader.Text();
  if ((flags & kHasFont) != 0 || (more & kHasFontClass) != 0) looks.fontHeight = reader.U16();
  if ((flags & kHasColour) != 0) {
    looks.colour = 0;
    for (int i = 0; i < 4; ++i) looks.colour = looks.colour << 8 | reader.U8();
  }
  if ((flags & kHasMaxLength) != 0) reader.U16();
  if ((more & kHasLayout) != 0) {
    looks.align = reader.U8();
    looks.leftMargin = reader.U16();
    looks.rightMargin = reader.U16();
    reader.Skip(4);  // indent and leading
  }
  field.variableAt = reader.At();
  field.variable = reader.Text();
  if (reader.Failed()) return std::nullopt;
  return field;
}

TextWrapping::TextWrapping(const std::vector<Tag>& tags) {
  const Uses uses = FindUses(tags);
  int next = kHighestCharacter;
  const auto free = [&uses, &next] {
    while (uses.defined.contains(next)) --next;
    return next--;
  };
  for (const Tag& tag : tags) {
    const auto field = ReadTextField(tag);
    if (!field || field->variable.empty() || wraps_.contains(field->character)) continue;
    const auto placed = uses.onRoot.find(field->character);
    if (placed == uses.onRoot.end() || placed->second || uses.bound.contains(field->character)) continue;
    const int own = free();
    const int empty = free();
    if (empty <= 0) return;
    wraps_[field->character] = {own, empty, fields_.size()};
    fields_.push_back({field->variable, {}, field->looks});
  }
}

std::optional<std::string> TextWrapping::Replacement(const Tag& tag) {
  if (const auto field = ReadTextField(tag)) {
    const auto wrap = wraps_.find(field->character);
    return wrap == wraps_.end() ? std::nullopt : std::optional(Definition(tag, *field, wrap->second));
  }
  const auto placement = ReadPlacement(tag);
  if (!placement || !placement->character) return std::nullopt;
  const auto wrap = wraps_.find(*placement->character);
  if (wrap == wraps_.end()) return std::nullopt;
  auto named = WithName(tag, *placement, ClipName(placement->depth));
  std::vector<std::string>& clips = fields_[wrap->second.index].clips;
  const std::string clip = "_level0." + ClipName(placement->depth);
  if (named && std::ranges::find(clips, clip) == clips.end()) clips.push_back(clip);
  return named;
}

// The clip takes the field's number, so that all that places the field places the clip.
std::string TextWrapping::Definition(const Tag& tag, const TextField& field, const Wrap& wrap) const {
  const std::string_view rest = tag.body.substr(field.variableAt + field.variable.size() + 1);
  ByteWriter moved;
  moved.U16(static_cast<std::uint32_t>(wrap.field)).Raw(tag.body.substr(2, field.variableAt - 2));
  moved.Text(FromBelow(field.variable)).Raw(rest);
  return WriteTag(kDefineEditText, moved.Bytes()) + SpriteTag(wrap.empty, {}) +
         SpriteTag(field.character, PlaceTag(wrap.field, 1, {}) + PlaceTag(wrap.empty, 2, "p"));
}

}  // namespace swf
