#include "settings/Helpers.h"

#include <algorithm>
#include <cmath>

#include "platform/toolkit/Wildcards.h"
#include "settings/IniText.h"

namespace {

constexpr char kSeparators[] = "\\/";

// Spreads the bits of a moment over the whole word, so that moments a second apart give unlike numbers.
std::uint64_t Scatter(std::uint64_t value) {
  value += 0x9E3779B97F4A7C15u;
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
  return value ^ (value >> 31);
}

std::uint64_t Seed(const Clock& clock) {
  const DateTime now = clock.Now();
  const int inDay = ((now.hour * 60 + now.minute) * 60 + now.second) * 1000 + now.millisecond;
  const auto steady = static_cast<std::uint64_t>(clock.Steady().count());
  return Scatter(Scatter(static_cast<std::uint64_t>(inDay)) ^ steady);
}

bool EndsWithSeparator(std::string_view path) {
  return !path.empty() && path.find_last_of(kSeparators) == path.size() - 1;
}

bool AnyNameMatches(const Files& files, const std::string& path) {
  const std::size_t slash = path.find_last_of(kSeparators);
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, std::max<std::size_t>(slash, 1));
  const std::string pattern = FileNameOfPath(path);
  for (const FileKind kind : {FileKind::kRegular, FileKind::kFolder}) {
    const std::vector<std::string> names = files.List(folder, kind);
    const bool matches =
        std::any_of(names.begin(), names.end(), [&](const auto& name) { return MatchesPattern(name, pattern); });
    if (matches) return true;
  }
  return false;
}

}  // namespace

void CreateEmptyFile(Files& files, std::string_view path) { files.Replace(std::string(path), ""); }

bool DeleteFolderTree(Files& files, std::string_view path) {
  if (EndsWithSeparator(path)) path.remove_suffix(1);
  const std::string folder(path);
  return files.Kind(folder) == FileKind::kFolder && files.RemoveTree(folder);
}

bool FileExists(const Files& files, std::string_view path) {
  // Behind a separator at the end stands no name.
  if (path.empty() || EndsWithSeparator(path)) return false;
  const std::string whole(path);
  if (files.Kind(whole) != FileKind::kAbsent) return true;
  return FileNameOfPath(whole).find_first_of("*?") != std::string::npos && AnyNameMatches(files, whole);
}

std::string FileNameOfPath(std::string_view path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

std::string StripExtension(std::string_view name) { return std::string(TrimBlanks(name.substr(0, name.rfind('.')))); }

bool IsPlainName(std::string_view name) {
  return name.find_first_of(kSeparators) == std::string_view::npos &&
         name.find_first_not_of('.') != std::string_view::npos;
}

std::int32_t RandomBetween(std::int32_t low, std::int32_t count, const Clock& clock) {
  const double uniform = static_cast<double>(Seed(clock) >> 11) * 0x1p-53;  // from 0 up to 1
  return low + static_cast<std::int32_t>(std::floor(uniform * count));
}
