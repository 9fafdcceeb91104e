#include "overlay/Headlines.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <string_view>

#include "settings/IniText.h"

namespace {

constexpr char kText[] = "Text";
constexpr char kActive[] = "Active";

// The number that a section's name is, 0 for any other name. "01" is no number: it would be a second 1.
std::size_t NumberOf(std::string_view name) {
  std::size_t number = 0;
  const char* const end = name.data() + name.size();
  const auto [read, error] = std::from_chars(name.data(), end, number);
  return error == std::errc() && read == end && !name.starts_with('0') ? number : 0;
}

bool IsBlank(const std::string& text) { return TrimBlanks(text).empty(); }

IniDocument WithText(const IniDocument& file, const std::string& section, const char* key, const std::string& value) {
  const std::string_view old = file.Value(section, key);
  return old.data() != nullptr && old == value ? file : file.WithValue(section, key, value);
}

// Twins of a section come into their own when the first one goes.
IniDocument WithoutAllOf(IniDocument file, const std::string& name) {
  for (std::size_t at = file.FindSection(name); at != IniDocument::kNone; at = file.FindSection(name)) {
    file = file.WithoutSection(at);
  }
  return file;
}

}  // namespace

Headlines::Headlines(Files& files, const DataFolder& folder) : file_(files) { file_.SetPath(folder.Path("\\rss.ini")); }

std::vector<Headline> Headlines::All() {
  const IniSections sections = file_.Sections();
  std::map<std::size_t, std::string> names;
  for (std::size_t index = 1; index <= sections.Count(); ++index) {
    const std::string name = sections.Item(index).Name();
    if (const std::size_t number = NumberOf(name); number > 0) names.emplace(number, name);
  }
  std::vector<Headline> all;
  all.reserve(names.size());
  for (const auto& [number, name] : names) {
    all.push_back({sections.ReadValue(name, kText, ""), sections.ReadValue(name, kActive, "") == "1"});
  }
  return all;
}

void Headlines::Store(const std::vector<Headline>& headlines) {
  file_.Rewrite([&](const IniDocument& before) {
    IniDocument after = before;
    for (std::size_t row = 0; row < headlines.size(); ++row) {
      const std::string section = std::to_string(row + 1);
      after = WithText(after, section, kText, headlines[row].text);
      after = WithText(after, section, kActive, headlines[row].active ? "1" : "0");
    }
    for (std::size_t index = 0; index < before.SectionCount(); ++index) {
      const std::string name(before.SectionName(index));
      if (NumberOf(name) > headlines.size()) after = WithoutAllOf(std::move(after), name);
    }
    return after;
  });
}

std::optional<std::string> Headlines::NextRSS(const std::vector<std::string>& titles) {
  std::vector<Headline> all = All();
  for (const std::string& title : titles) all.push_back({title, true});
  const std::size_t first = FirstToTry(all);
  for (std::size_t step = 0; step < all.size(); ++step) {
    const std::size_t row = (first + step) % all.size();
    if (!all[row].active || IsBlank(all[row].text)) continue;
    given_ = row + 1;
    text_ = all[row].text;
    return text_;
  }
  return std::nullopt;
}

// The operator moves, deletes and corrects while the strip runs, and the feed brings other titles. The text given last
// may stand elsewhere now; where it is gone, its follower stands in its place, or the same headline with its corrected
// text.
std::size_t Headlines::FirstToTry(const std::vector<Headline>& all) const {
  if (given_ == 0) return 0;
  if (given_ <= all.size() && all[given_ - 1].text == text_) return given_;
  const auto moved = std::ranges::find(all, text_, &Headline::text);
  return moved == all.end() ? given_ - 1 : static_cast<std::size_t>(moved - all.begin()) + 1;
}
