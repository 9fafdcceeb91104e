#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The text of one INI file, which never changes: an edit gives another document. All lines end in CR LF, and all that
// is not part of an edit stays letter for letter.
//
//   ; a comment            a line whose first sign is ";"
//   [Section]              the last "]" of the line closes the name; a comment may follow
//   Key=Value              the first "=" ends the key, which begins with no "["; the value is all that follows
//   Key = Value            with a blank before "=": the value without the blanks around it
//
// Of sections or keys of the same name, case ignored, the first counts. Other lines mean nothing and are kept.
class IniDocument {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  IniDocument() = default;
  // `text` is UTF-8 with CR LF at the end of every line (see `DecodeIni`) and smaller than 4 GB.
  explicit IniDocument(std::string text);

  const std::string& Text() const { return text_; }

  // Sections are counted from 0, in file order, twins included.
  std::size_t SectionCount() const { return sections_.size(); }
  std::string_view SectionName(std::size_t section) const { return View(sections_[section].name); }
  // The first section of that name, or kNone.
  std::size_t FindSection(std::string_view name) const;

  // Keys are counted from 0 within their section, in file order, twins included.
  std::size_t KeyCount(std::size_t section) const { return sections_[section].keyCount; }
  std::string_view KeyName(std::size_t section, std::size_t key) const;
  // The value of the first such key in the first such section; null data when there is none. Valid as long as the
  // document.
  std::string_view Value(std::string_view section, std::string_view key) const;

  // With the value set; the section and the key are added at their ends where they are missing.
  IniDocument WithValue(std::string_view section, std::string_view key, std::string_view value) const;
  // With an empty section added at the end.
  IniDocument WithSection(std::string_view name) const;
  // Without the section, its keys and the blank lines above it. Comments after its last key stay.
  IniDocument WithoutSection(std::size_t section) const;
  // The first key of that name in the section, by its number there; kNone when there is none.
  std::size_t FindKeyOf(std::size_t section, std::string_view name) const;
  IniDocument WithoutKey(std::size_t section, std::size_t key) const;

 private:
  struct Span {
    std::uint32_t from = 0;
    std::uint32_t to = 0;
  };
  struct Section {
    Span name;
    std::uint32_t start = 0;    // of the header line, or of the blank lines right above it
    std::uint32_t bodyEnd = 0;  // behind the last line that is neither blank nor a comment
    std::uint32_t firstKey = 0;
    std::uint32_t keyCount = 0;
  };
  struct Key {
    Span line;  // with its line end
    Span name;
    Span value;
  };

  std::string_view View(Span span) const { return std::string_view(text_).substr(span.from, span.to - span.from); }
  void ReadLinesFrom(std::uint32_t at);
  void ReadLine(Span line);
  bool ReadHeader(Span line, Span content);
  void ReadKey(Span line, Span content);
  void IndexNames();
  // False for a later twin, which is not entered.
  bool IndexSection(std::uint32_t section);
  void IndexKey(std::uint32_t section, std::uint32_t key);
  std::size_t FindKey(std::size_t section, std::string_view name) const;
  IniDocument WithNewValue(std::size_t section, std::size_t key, std::string_view value) const;
  // `lines` belong to the last section, or begin with the header of a new one.
  IniDocument WithLinesAtEnd(std::string_view lines) const;
  std::string HeaderAtEnd(std::string_view name) const;
  std::size_t LookUpSection(std::string_view name) const;
  std::size_t LookUpKey(std::size_t section, std::string_view name) const;

  std::string text_;
  std::uint32_t blankStart_ = 0;  // where the blank lines at the end begin
  std::vector<Section> sections_;
  std::vector<Key> keys_;
  // Open hash tables of positions + 1; 0 is free, the size is a power of two.
  std::vector<std::uint32_t> sectionTable_;
  std::vector<std::uint32_t> keyTable_;
};
