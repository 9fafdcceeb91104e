#include "platform/CaseFold.h"

#include "platform/Utf8.h"

namespace {

bool IsIn(char32_t point, char32_t first, char32_t last) { return point >= first && point <= last; }

// Blocks in which a capital stands right before its small letter.
char32_t FoldPair(char32_t point, bool capitalsAreEven) {
  return (point % 2 == 0) == capitalsAreEven ? point + 1 : point;
}

char32_t FoldLatin(char32_t point) {
  if (IsIn(point, 0xC0, 0xDE)) return point == 0xD7 ? point : point + 32;
  if (point == 0x130 || point == 0x131 || point == 0x138 || point == 0x149) return point;
  if (point == 0x178) return 0xFF;
  if (IsIn(point, 0x100, 0x137) || IsIn(point, 0x14A, 0x177)) return FoldPair(point, true);
  if (IsIn(point, 0x139, 0x148) || IsIn(point, 0x179, 0x17E)) return FoldPair(point, false);
  return point;
}

char32_t FoldGreek(char32_t point) {
  if (IsIn(point, 0x391, 0x3AB) && point != 0x3A2) return point + 32;
  if (point == 0x386) return 0x3AC;
  if (IsIn(point, 0x388, 0x38A)) return point + 37;
  if (point == 0x38C) return 0x3CC;
  if (point == 0x38E || point == 0x38F) return point + 63;
  return point;
}

char32_t FoldCyrillic(char32_t point) {
  if (IsIn(point, 0x410, 0x42F)) return point + 32;
  if (IsIn(point, 0x400, 0x40F)) return point + 80;
  if (IsIn(point, 0x460, 0x481) || IsIn(point, 0x48A, 0x4BF) || IsIn(point, 0x4D0, 0x52F)) return FoldPair(point, true);
  if (point == 0x4C0) return 0x4CF;
  if (IsIn(point, 0x4C1, 0x4CE)) return FoldPair(point, false);
  return point;
}

char32_t Fold(char32_t point) {
  if (point < 0x80) return point >= 'A' && point <= 'Z' ? point + 32 : point;
  if (point < 0x180) return FoldLatin(point);
  if (IsIn(point, 0x370, 0x3FF)) return FoldGreek(point);
  if (IsIn(point, 0x400, 0x52F)) return FoldCyrillic(point);
  if (IsIn(point, 0x531, 0x556)) return point + 48;
  if (IsIn(point, 0x1E00, 0x1E95) || IsIn(point, 0x1EA0, 0x1EFF)) return FoldPair(point, true);
  return point;
}

char32_t NextFolded(std::string_view text, std::size_t& at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  if (byte < 0x80) {
    ++at;
    return Fold(byte);
  }
  return Fold(NextCodePoint(text, at));
}

}  // namespace

std::string FoldCase(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const char32_t point = NextFolded(text, at);
    if (point >= kStrayByte) {
      folded += text[start];
    } else {
      AppendCodePoint(folded, point);
    }
  }
  return folded;
}

int CompareIgnoringCase(std::string_view left, std::string_view right) {
  std::size_t leftAt = 0;
  std::size_t rightAt = 0;
  while (leftAt < left.size() && rightAt < right.size()) {
    const char32_t leftPoint = NextFolded(left, leftAt);
    const char32_t rightPoint = NextFolded(right, rightAt);
    if (leftPoint != rightPoint) return leftPoint < rightPoint ? -1 : 1;
  }
  return static_cast<int>(leftAt < left.size()) - static_cast<int>(rightAt < right.size());
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
  return left == right || CompareIgnoringCase(left, right) == 0;
}

bool LessIgnoringCase(const std::string& left, const std::string& right) {
  const int order = CompareIgnoringCase(left, right);
  return order != 0 ? order < 0 : left < right;
}

std::uint64_t HashIgnoringCase(std::string_view text, std::uint64_t seed) {
  std::uint64_t hash = seed ^ 0xCBF29CE484222325u;
  for (std::size_t at = 0; at < text.size();) hash = (hash ^ NextFolded(text, at)) * 0x100000001B3u;
  return hash ^ (hash >> 29);
}
