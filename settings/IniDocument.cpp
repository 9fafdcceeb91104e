#include "settings/IniDocument.h"

#include <bit>
#include <cstring>

#include "platform/CaseFold.h"
#include "settings/IniText.h"

namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::size_t TableSize(std::size_t names) { return std::bit_ceil(names * 2 + 1); }

}  // namespace

IniDocument::IniDocument(std::string text) : text_(std::move(text)) {
  ReadLinesFrom(0);
  IndexNames();
}

void IniDocument::ReadLinesFrom(std::uint32_t at) {
  while (at < text_.size()) {
    const void* end = std::memchr(text_.data() + at, '\n', text_.size() - at);
    const auto next = end == nullptr ? static_cast<std::uint32_t>(text_.size())
                                     : static_cast<std::uint32_t>(static_cast<const char*>(end) - text_.data() + 1);
    ReadLine({at, next});
    at = next;
  }
}

void IniDocument::ReadLine(Span line) {
  Span content = line;
  while (content.to > content.from && (text_[content.to - 1] == '\n' || text_[content.to - 1] == '\r')) --content.to;
  while (content.from < content.to && IsBlank(text_[content.from])) ++content.from;
  if (content.from == content.to) return;  // blank: `blankStart_` stays where the run of blank lines began

  const char first = text_[content.from];
  const bool isHeader = first == '[' && ReadHeader(line, content);
  if (!isHeader && first != ';' && !sections_.empty()) {
    // A key that began with "[" could turn into a header with its next value, so there is none.
    if (first != '[') ReadKey(line, content);
    sections_.back().bodyEnd = line.to;
  }
  blankStart_ = line.to;
}

bool IniDocument::ReadHeader(Span line, Span content) {
  const std::string_view header = View(content);
  const std::size_t close = header.rfind(']');
  if (close == std::string_view::npos) return false;
  const std::string_view rest = TrimBlanks(header.substr(close + 1));
  if (!rest.empty() && rest.front() != ';') return false;
  Section section;
  section.name = {content.from + 1, content.from + static_cast<std::uint32_t>(close)};
  section.start = blankStart_;
  section.bodyEnd = line.to;
  section.firstKey = static_cast<std::uint32_t>(keys_.size());
  sections_.push_back(section);
  return true;
}

void IniDocument::ReadKey(Span line, Span content) {
  const void* found = std::memchr(text_.data() + content.from, '=', content.to - content.from);
  if (found == nullptr) return;
  const auto equals = static_cast<std::uint32_t>(static_cast<const char*>(found) - text_.data());
  Key key{line, {content.from, equals}, {equals + 1, content.to}};
  // Blanks belong to a value that the station wrote ("Key=Value"); around a sign set apart by hand they do not.
  if (key.name.to > key.name.from && IsBlank(text_[key.name.to - 1])) {
    while (key.name.to > key.name.from && IsBlank(text_[key.name.to - 1])) --key.name.to;
    while (key.value.from < key.value.to && IsBlank(text_[key.value.from])) ++key.value.from;
    while (key.value.to > key.value.from && IsBlank(text_[key.value.to - 1])) --key.value.to;
  }
  keys_.push_back(key);
  ++sections_.back().keyCount;
}

void IniDocument::IndexNames() {
  sectionTable_.assign(TableSize(sections_.size()), 0);
  keyTable_.assign(TableSize(keys_.size()), 0);
  for (std::uint32_t s = 0; s < sections_.size(); ++s) {
    if (!IndexSection(s)) continue;  // a later twin, which no lookup by name may reach
    const Section& section = sections_[s];
    for (std::uint32_t k = section.firstKey; k < section.firstKey + section.keyCount; ++k) IndexKey(s, k);
  }
}

bool IniDocument::IndexSection(std::uint32_t section) {
  const std::string_view name = View(sections_[section].name);
  std::size_t slot = HashIgnoringCase(name, 0) & (sectionTable_.size() - 1);
  while (sectionTable_[slot] != 0) {
    const std::uint32_t other = sectionTable_[slot] - 1;
    if (other == section) return true;
    if (EqualIgnoringCase(View(sections_[other].name), name)) return false;
    slot = (slot + 1) & (sectionTable_.size() - 1);
  }
  sectionTable_[slot] = section + 1;
  return true;
}

void IniDocument::IndexKey(std::uint32_t section, std::uint32_t key) {
  const std::string_view name = View(keys_[key].name);
  std::size_t slot = HashIgnoringCase(name, section + 1) & (keyTable_.size() - 1);
  while (keyTable_[slot] != 0 && !(keyTable_[slot] > sections_[section].firstKey &&
                                   EqualIgnoringCase(View(keys_[keyTable_[slot] - 1].name), name))) {
    slot = (slot + 1) & (keyTable_.size() - 1);
  }
  if (keyTable_[slot] == 0) keyTable_[slot] = key + 1;
}

std::size_t IniDocument::LookUpSection(std::string_view name) const {
  if (sectionTable_.empty()) return kNone;
  for (std::size_t slot = HashIgnoringCase(name, 0);; ++slot) {
    const std::uint32_t entry = sectionTable_[slot & (sectionTable_.size() - 1)];
    if (entry == 0) return kNone;
    if (EqualIgnoringCase(View(sections_[entry - 1].name), name)) return entry - 1;
  }
}

std::size_t IniDocument::LookUpKey(std::size_t section, std::string_view name) const {
  if (keyTable_.empty()) return kNone;
  const std::uint32_t first = sections_[section].firstKey;
  const std::uint32_t last = first + sections_[section].keyCount;
  for (std::size_t slot = HashIgnoringCase(name, section + 1);; ++slot) {
    const std::uint32_t entry = keyTable_[slot & (keyTable_.size() - 1)];
    if (entry == 0) return kNone;
    if (entry > first && entry <= last && EqualIgnoringCase(View(keys_[entry - 1].name), name)) return entry - 1;
  }
}

std::size_t IniDocument::FindSection(std::string_view name) const {
  const std::size_t section = LookUpSection(name);
  if (section != kNone) return section;
  // What was asked to be written under a name that breaks the file stands under the cleaned one.
  const std::string clean = CleanSectionName(name);
  return clean == name ? kNone : LookUpSection(clean);
}

std::size_t IniDocument::FindKey(std::size_t section, std::string_view name) const {
  const std::size_t key = LookUpKey(section, name);
  if (key != kNone) return key;
  const std::string clean = CleanKeyName(name);
  return clean == name ? kNone : LookUpKey(section, clean);
}

std::string_view IniDocument::KeyName(std::size_t section, std::size_t key) const {
  return View(keys_[sections_[section].firstKey + key].name);
}

std::string_view IniDocument::Value(std::string_view section, std::string_view key) const {
  const std::size_t s = FindSection(section);
  if (s == kNone) return {};
  const std::size_t k = FindKey(s, key);
  return k == kNone ? std::string_view{} : View(keys_[k].value);
}

IniDocument IniDocument::WithValue(std::string_view section, std::string_view key, std::string_view value) const {
  const std::size_t s = FindSection(section);
  const std::size_t k = s == kNone ? kNone : FindKey(s, key);
  if (k != kNone) return WithNewValue(s, k, value);
  const std::string line = CleanKeyName(key).append("=").append(CleanValue(value)).append(kLineEnd);
  if (s == kNone) return WithLinesAtEnd(HeaderAtEnd(section).append(line));
  if (sections_[s].bodyEnd == text_.size()) return WithLinesAtEnd(line);
  std::string text = text_;
  text.insert(sections_[s].bodyEnd, line);
  return IniDocument(std::move(text));
}

// An entry added to a long running order is five edits at its end: what has been read of the file stays.
IniDocument IniDocument::WithLinesAtEnd(std::string_view lines) const {
  IniDocument edited = *this;
  const auto end = static_cast<std::uint32_t>(text_.size());
  const auto knownKeys = static_cast<std::uint32_t>(keys_.size());
  edited.text_.append(lines);
  edited.ReadLinesFrom(end);
  const bool fits = edited.sectionTable_.size() >= TableSize(edited.sections_.size()) &&
                    edited.keyTable_.size() >= TableSize(edited.keys_.size());
  if (!fits) {
    edited.IndexNames();
    return edited;
  }
  const auto section = static_cast<std::uint32_t>(edited.sections_.size()) - 1;
  if (edited.IndexSection(section)) {
    for (std::uint32_t k = knownKeys; k < edited.keys_.size(); ++k) edited.IndexKey(section, k);
  }
  return edited;
}

// The edit of every second of a broadcast: what has been read of the file stays and only moves.
IniDocument IniDocument::WithNewValue(std::size_t section, std::size_t key, std::string_view value) const {
  IniDocument edited = *this;
  const Key& old = keys_[key];
  std::string line(View(old.name));
  line.append("=").append(CleanValue(value)).append(kLineEnd);
  edited.text_.replace(old.line.from, old.line.to - old.line.from, line);

  // Unsigned numbers wrap, so that one addition moves both ways.
  const auto shift = static_cast<std::uint32_t>(line.size()) - (old.line.to - old.line.from);
  Key& changed = edited.keys_[key];
  changed.name = {old.line.from, old.line.from + (old.name.to - old.name.from)};
  changed.line.to += shift;
  changed.value = {changed.name.to + 1, changed.line.to - static_cast<std::uint32_t>(kLineEnd.size())};
  const auto move = [shift](Span& span) {
    span.from += shift;
    span.to += shift;
  };
  for (std::size_t k = key + 1; k < edited.keys_.size(); ++k) {
    move(edited.keys_[k].line);
    move(edited.keys_[k].name);
    move(edited.keys_[k].value);
  }
  edited.blankStart_ += shift;
  edited.sections_[section].bodyEnd += shift;
  for (std::size_t s = section + 1; s < edited.sections_.size(); ++s) {
    move(edited.sections_[s].name);
    edited.sections_[s].start += shift;
    edited.sections_[s].bodyEnd += shift;
  }
  return edited;
}

std::string IniDocument::HeaderAtEnd(std::string_view name) const {
  const bool endsBlank = text_.empty() || text_ == kLineEnd || text_.ends_with("\r\n\r\n");
  std::string header(endsBlank ? "" : kLineEnd);
  return header.append("[").append(CleanSectionName(name)).append("]").append(kLineEnd);
}

IniDocument IniDocument::WithSection(std::string_view name) const { return WithLinesAtEnd(HeaderAtEnd(name)); }

IniDocument IniDocument::WithoutSection(std::size_t section) const {
  const Section& gone = sections_[section];
  std::string text = text_;
  text.erase(gone.start, gone.bodyEnd - gone.start);
  return IniDocument(std::move(text));
}

std::size_t IniDocument::FindKeyOf(std::size_t section, std::string_view name) const {
  const std::string clean = CleanKeyName(name);
  for (const std::string_view sought : {name, std::string_view(clean)}) {
    for (std::size_t k = 0; k < KeyCount(section); ++k) {
      if (EqualIgnoringCase(KeyName(section, k), sought)) return k;
    }
  }
  return kNone;
}

IniDocument IniDocument::WithoutKey(std::size_t section, std::size_t key) const {
  const Span line = keys_[sections_[section].firstKey + key].line;
  std::string text = text_;
  text.erase(line.from, line.to - line.from);
  return IniDocument(std::move(text));
}
