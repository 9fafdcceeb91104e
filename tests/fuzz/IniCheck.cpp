#include "tests/fuzz/IniCheck.h"

#include "platform/CaseFold.h"
#include "platform/Utf8.h"
#include "settings/IniDocument.h"
#include "settings/IniText.h"
#include "tests/fuzz/Require.h"

namespace {

bool IsSame(const IniDocument& left, const IniDocument& right) {
  if (left.Text() != right.Text() || left.SectionCount() != right.SectionCount()) return false;
  for (std::size_t s = 0; s < left.SectionCount(); ++s) {
    const std::string_view section = left.SectionName(s);
    if (section != right.SectionName(s) || left.KeyCount(s) != right.KeyCount(s)) return false;
    if (left.FindSection(section) != right.FindSection(section)) return false;
    for (std::size_t k = 0; k < left.KeyCount(s); ++k) {
      const std::string_view key = left.KeyName(s, k);
      if (key != right.KeyName(s, k) || left.Value(section, key) != right.Value(section, key)) return false;
    }
  }
  return true;
}

// The document that an edit gave must be the one that its text reads as.
void RequireReadsBack(const IniDocument& edited) {
  Require(DecodeIni(edited.Text()) == edited.Text(), "what is written is read as it is");
  Require(IsSame(edited, IniDocument(edited.Text())), "an edited file reads as edited");
}

void CheckWrite(const IniDocument& document, std::string_view section, std::string_view key, std::string_view value) {
  const IniDocument written = document.WithValue(section, key, value);
  Require(written.Value(section, key) == CleanValue(value), "a written value is read back");
  RequireReadsBack(written);
  const std::size_t s = written.FindSection(section);
  const std::size_t k = written.FindKeyOf(s, key);
  Require(k != IniDocument::kNone, "a written key is listed");
  const IniDocument without = written.WithoutKey(s, k);
  Require(without.KeyCount(s) + 1 == written.KeyCount(s), "one key less after a removal");
  RequireReadsBack(without);
}

}  // namespace

void CheckIni(const std::string& bytes) {
  const std::string text = DecodeIni(bytes);
  Require(IsUtf8(text), "the text is UTF-8");
  Require(text.empty() || text.ends_with("\r\n"), "every line ends in CR LF");
  Require(DecodeIni(text) == text || text.starts_with("\xEF\xBB\xBF"), "decoding twice changes nothing");

  const IniDocument document(text);
  const std::size_t third = bytes.size() / 3;
  const std::string first = bytes.substr(0, third);
  const std::string second = bytes.substr(third, third);
  const std::string rest = bytes.substr(2 * third);
  CheckWrite(document, first, second, rest);
  CheckWrite(document, "Output", "Show", "True");
  if (document.SectionCount() == 0) return;
  const std::string section(document.SectionName(document.SectionCount() / 2));
  const std::size_t found = document.FindSection(section);
  Require(found != IniDocument::kNone, "a listed section is found");
  CheckWrite(document, section, second, rest);
  if (document.KeyCount(found) > 0) CheckWrite(document, section, document.KeyName(found, 0), rest);

  const IniDocument without = document.WithoutSection(found);
  Require(without.SectionCount() + 1 == document.SectionCount(), "one section less after a removal");
  RequireReadsBack(without);
  RequireReadsBack(document.WithSection(first));
}
