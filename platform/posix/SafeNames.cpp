#include "platform/posix/SafeNames.h"

#include <unistd.h>

#include <atomic>
#include <charconv>
#include <cstdio>

namespace {

constexpr std::string_view kUnfinished = ".unfinished~";
constexpr std::string_view kKept = ".kept~";
constexpr std::string_view kNext = ".next~";
constexpr std::size_t kDigestLength = 16;

std::string DigestText(std::uint64_t digest) {
  char text[kDigestLength + 1];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(digest));
  return text;
}

// Takes ".<digest>" off the end of a name.
bool TakeDigest(std::string_view& name, std::uint64_t& digest) {
  if (name.size() <= kDigestLength || name[name.size() - kDigestLength - 1] != '.') return false;
  const std::string_view text = name.substr(name.size() - kDigestLength);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), digest, 16);
  name.remove_suffix(kDigestLength + 1);
  return error == std::errc() && end == text.data() + text.size();
}

}  // namespace

std::string UnfinishedName(const std::string& folder) {
  static std::atomic<std::uint64_t> count = 0;
  return folder + "/." + std::to_string(getpid()) + "-" + std::to_string(count++) + std::string(kUnfinished);
}

int UnfinishedOwner(std::string_view name) {
  if (!name.starts_with('.') || !name.ends_with(kUnfinished)) return 0;
  int owner = 0;
  const auto [end, error] = std::from_chars(name.data() + 1, name.data() + name.size(), owner);
  return error == std::errc() && *end == '-' ? owner : 0;
}

std::string KeptName::Text() const {
  return "." + file + "." + DigestText(before) + "." + DigestText(now) + std::string(kKept);
}

bool KeptName::Parse(std::string_view name) {
  if (!name.starts_with('.') || !name.ends_with(kKept) || name.size() == kKept.size()) return false;
  name.remove_prefix(1);
  name.remove_suffix(kKept.size());
  if (!TakeDigest(name, now) || !TakeDigest(name, before) || name.empty()) return false;
  file = name;
  return true;
}

std::string NextName(const std::string& file) { return "." + file + std::string(kNext); }

bool IsSafeName(std::string_view name) {
  return name.starts_with('.') && (name.ends_with(kUnfinished) || name.ends_with(kKept) || name.ends_with(kNext));
}

std::uint64_t ContentDigest(std::string_view content) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15u;
  std::uint64_t digest = content.size() * kFactor;
  for (std::size_t at = 0; at < content.size(); at += 8) {
    std::uint64_t eight = 0;
    for (std::size_t i = 0; i < 8 && at + i < content.size(); ++i) {
      eight |= std::uint64_t{static_cast<unsigned char>(content[at + i])} << (8 * i);
    }
    digest = (digest ^ eight) * kFactor;
    digest ^= digest >> 32;
  }
  return digest;
}
