#include "platform/posix/MountedMedia.h"

#include <algorithm>
#include <set>

namespace {

constexpr std::string_view kPlaces[] = {"/media/", "/mnt", "/run/media/"};

std::string_view TakeUntil(std::string_view& text, char end) {
  const std::string_view part = text.substr(0, text.find(end));
  text.remove_prefix(std::min(text.size(), part.size() + 1));
  return part;
}

bool IsOctal(std::string_view digits) {
  return digits.size() == 3 && digits.find_first_not_of("01234567") == std::string_view::npos;
}

std::string Unescaped(std::string_view field) {
  std::string text;
  while (!field.empty()) {
    const bool escaped = field.front() == '\\' && IsOctal(field.substr(1, 3));
    const auto digit = [field](std::size_t place) { return field[place] - '0'; };
    text += escaped ? static_cast<char>(digit(1) * 64 + digit(2) * 8 + digit(3)) : field.front();
    field.remove_prefix(escaped ? 4 : 1);
  }
  return text;
}

// One may mount at /mnt itself, but never at /media.
bool IsMedium(std::string_view folder) {
  return std::ranges::any_of(kPlaces, [folder](std::string_view place) {
    return place.ends_with('/') ? folder.starts_with(place) && folder.size() > place.size()
                                : folder == place || folder.starts_with(std::string(place) + "/");
  });
}

}  // namespace

std::vector<std::string> MountedMedia(std::string_view table) {
  std::set<std::string> media;
  while (!table.empty()) {
    std::string_view line = TakeUntil(table, '\n');
    TakeUntil(line, ' ');  // what is mounted
    std::string folder = Unescaped(TakeUntil(line, ' '));
    if (IsMedium(folder)) media.insert(std::move(folder));
  }
  return {media.begin(), media.end()};
}
