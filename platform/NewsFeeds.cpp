#include "platform/NewsFeeds.h"

#include "platform/Utf8.h"

namespace {

// Blanks, line ends and control characters, those of other scripts too.
bool IsBlank(char32_t point) {
  constexpr char32_t kNoBreak = 0xA0, kLine = 0x2028, kParagraph = 0x2029;
  return point <= ' ' || (point >= 0x7F && point <= kNoBreak) || point == kLine || point == kParagraph;
}

std::string OneLine(const std::string& text) {
  std::string line;
  std::size_t letters = 0;
  bool isApart = false;
  for (std::size_t at = 0; at < text.size() && letters < kMostFeedLetters;) {
    const char32_t point = NextCodePoint(text, at);
    if (IsBlank(point)) {
      isApart = letters > 0;
      continue;
    }
    if (isApart) {
      line += ' ';
      if (++letters == kMostFeedLetters) break;
    }
    isApart = false;
    AppendCodePoint(line, point < kStrayByte ? point : U'\uFFFD');
    ++letters;
  }
  return line;
}

}  // namespace

FeedTitles TidyTitles(const std::vector<std::string>& titles) {
  FeedTitles tidy;
  for (const std::string& title : titles) {
    if (tidy.size() == kMostFeedTitles) break;
    if (std::string line = OneLine(title); !line.empty()) tidy.push_back(std::move(line));
  }
  return tidy;
}
