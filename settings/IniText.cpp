#include "settings/IniText.h"

#include <algorithm>
#include <array>

#include "platform/Utf8.h"

namespace {

// Windows-1252 from 0x80 to 0x9F; the five bytes that it leaves open stay what they are.
constexpr std::array<char32_t, 32> kWindows1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                   0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendWindows1252(std::string& text, std::string_view bytes) {
  for (const char sign : bytes) {
    const auto byte = static_cast<unsigned char>(sign);
    AppendCodePoint(text, byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : byte);
  }
}

char32_t Utf16Unit(std::string_view bytes, std::size_t at, bool bigEndian) {
  const auto first = static_cast<unsigned char>(bytes[at]);
  const auto second = static_cast<unsigned char>(bytes[at + 1]);
  return bigEndian ? first * 256u + second : second * 256u + first;
}

std::string FromUtf16(std::string_view bytes, bool bigEndian) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t point = Utf16Unit(bytes, at, bigEndian);
    if (point >= 0xD800 && point < 0xDC00 && at + 3 < bytes.size()) {
      const char32_t low = Utf16Unit(bytes, at + 2, bigEndian);
      if (low >= 0xDC00 && low < 0xE000) {
        point = 0x10000 + ((point - 0xD800) << 10) + (low - 0xDC00);
        at += 2;
      }
    }
    const bool isLoneSurrogate = point >= 0xD800 && point < 0xE000;
    AppendCodePoint(text, isLoneSurrogate ? 0xFFFD : point);
  }
  return text;
}

bool HasOnlyWindowsLineEnds(std::string_view text) {
  if (!text.empty() && text.back() != '\n') return false;
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1)) {
    const bool hasOneReturn = at >= 1 && text[at - 1] == '\r' && (at < 2 || text[at - 2] != '\r');
    if (!hasOneReturn) return false;
  }
  return true;
}

bool IsControl(char sign) {
  const auto byte = static_cast<unsigned char>(sign);
  return (byte < 0x20 && byte != '\t') || byte == 0x7F;
}

}  // namespace

std::string DecodeIni(std::string bytes) {
  const std::string_view all = bytes;
  if (all.starts_with("\xFF\xFE")) return DecodeIni(FromUtf16(all.substr(2), false));
  if (all.starts_with("\xFE\xFF")) return DecodeIni(FromUtf16(all.substr(2), true));
  if (all.starts_with("\xEF\xBB\xBF")) return DecodeIni(bytes.substr(3));
  if (IsUtf8(all) && HasOnlyWindowsLineEnds(all)) return bytes;

  std::string text;
  text.reserve(bytes.size() + bytes.size() / 16 + 2);
  for (std::size_t at = 0; at < all.size();) {
    const std::size_t end = std::min(all.find('\n', at), all.size());
    std::string_view line = all.substr(at, end - at);
    while (line.ends_with('\r')) line.remove_suffix(1);
    if (IsUtf8(line)) {
      text += line;
    } else {
      AppendWindows1252(text, line);
    }
    text += "\r\n";
    at = end + 1;
  }
  return text;
}

std::string CleanValue(std::string_view value) {
  std::string clean;
  if (IsUtf8(value)) {
    clean = value;
  } else {
    AppendWindows1252(clean, value);
  }
  std::replace_if(clean.begin(), clean.end(), IsControl, ' ');
  return clean;
}

std::string CleanSectionName(std::string_view name) { return CleanValue(name); }

std::string CleanKeyName(std::string_view name) {
  const std::string printable = CleanValue(name);
  std::string clean(TrimBlanks(printable));
  std::replace(clean.begin(), clean.end(), '=', '-');
  if (clean.starts_with('[')) clean.front() = '(';
  if (clean.starts_with(';')) clean.front() = ',';
  return clean;
}

bool IsBlank(char sign) { return sign == ' ' || sign == '\t'; }

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}
