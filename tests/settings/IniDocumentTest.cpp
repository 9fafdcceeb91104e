#include <gtest/gtest.h>

#include <cstdint>

#include "platform/CaseFold.h"
#include "settings/IniDocument.h"

namespace {

// "[One]a=1|b=2[Two]", as a walk over sections and keys gives it; the value is the first of its name.
std::string Listed(const IniDocument& document) {
  std::string text;
  for (std::size_t s = 0; s < document.SectionCount(); ++s) {
    text.append("[").append(document.SectionName(s)).append("]");
    for (std::size_t k = 0; k < document.KeyCount(s); ++k) {
      if (k > 0) text += "|";
      text.append(document.KeyName(s, k)).append("=");
      text += document.Value(document.SectionName(s), document.KeyName(s, k));
    }
  }
  return text;
}

TEST(IniDocumentTest, ALineIsAHeaderAKeyOrNothing) {
  const std::pair<const char*, const char*> texts[] = {
      {"", ""},
      {"\r\n\r\n", ""},
      {"[a]\r\n", "[a]"},
      {"  \t[a]\r\n", "[a]"},
      {"[a] ; note\r\nk=v\r\n", "[a]k=v"},
      {"[a]\t \r\n", "[a]"},
      {"[a] note\r\nk=v\r\n", ""},
      {"[a]b]\r\n", "[a]b]"},
      {"[ a ]\r\n", "[ a ]"},
      {"[]\r\nk=v\r\n", "[]k=v"},
      {"[a\r\nk=v\r\n", ""},
      {"k=v\r\n[a]\r\n", "[a]"},
      {"[a]\r\n\r\n \t \r\nk=v\r\n", "[a]k=v"},
      {"[a]\r\n;k=v\r\n \t;l=w\r\n", "[a]"},
      {"[a]\r\nno sign\r\n", "[a]"},
      {"[a]\r\n[k]=v\r\n[k=v\r\nl=w\r\n", "[a]l=w"},
      {"[a]\r\n \tk=v\r\n", "[a]k=v"},
      {"[a]\r\nk=\r\n", "[a]k="},
      {"[a]\r\n=v\r\n", "[a]=v"},
      {"[a]\r\nk=v=w\r\n", "[a]k=v=w"},
      {"[a]\r\nk= v \r\n", "[a]k= v "},
      {"[a]\r\nk = v \t\r\n", "[a]k=v"},
      {"[a]\r\nk\t=\tv w\r\n", "[a]k=v w"},
      {"[a]\r\nk =\r\n", "[a]k="},
      {"[a]\r\n =v \r\n", "[a]=v "},
      {"[a]\r\nk=1\r\nK=2\r\nl=3\r\n", "[a]k=1|K=1|l=3"},
      {"[a]\r\nk=1\r\n[b]\r\nk=2\r\n[A]\r\nk=3\r\nl=4\r\n", "[a]k=1[b]k=2[A]k=1|l="},
  };
  for (const auto& [text, listed] : texts) EXPECT_EQ(Listed(IniDocument(text)), listed) << text;
}

TEST(IniDocumentTest, WhatIsNotThereHasNoPlaceAndNoValue) {
  const IniDocument document("[a]\r\nk=\r\n[b]\r\nl=1\r\n");
  EXPECT_EQ(document.FindSection("c"), IniDocument::kNone);
  EXPECT_EQ(document.FindSection("B"), 1u);
  EXPECT_EQ(document.FindKeyOf(0, "l"), IniDocument::kNone);
  EXPECT_EQ(document.FindKeyOf(1, "L"), 0u);
  EXPECT_EQ(document.Value("a", "l").data(), nullptr);
  EXPECT_EQ(document.Value("b", "k").data(), nullptr);
  EXPECT_NE(document.Value("a", "k").data(), nullptr);
  EXPECT_EQ(IniDocument().FindSection("a"), IniDocument::kNone);
  EXPECT_EQ(IniDocument().Value("a", "k").data(), nullptr);
}

TEST(IniDocumentTest, AnEditTouchesItsOwnLineAlone) {
  const IniDocument document("; top\r\n\r\n[a]\r\nk = 1\r\n; in a\r\n\r\n[b]\r\nl=2\r\n\r\n; end\r\n");
  EXPECT_EQ(document.WithValue("a", "K", "10").Text(),
            "; top\r\n\r\n[a]\r\nk=10\r\n; in a\r\n\r\n[b]\r\nl=2\r\n\r\n; end\r\n");
  EXPECT_EQ(document.WithValue("a", "m", "3").Text(),
            "; top\r\n\r\n[a]\r\nk = 1\r\nm=3\r\n; in a\r\n\r\n[b]\r\nl=2\r\n\r\n; end\r\n");
  EXPECT_EQ(document.WithValue("b", "m", "3").Text(),
            "; top\r\n\r\n[a]\r\nk = 1\r\n; in a\r\n\r\n[b]\r\nl=2\r\nm=3\r\n\r\n; end\r\n");
  EXPECT_EQ(document.WithValue("c", "m", "3").Text(), document.Text() + "\r\n[c]\r\nm=3\r\n");
  EXPECT_EQ(document.WithSection("c").Text(), document.Text() + "\r\n[c]\r\n");
  EXPECT_EQ(document.WithoutSection(0).Text(), "; top\r\n; in a\r\n\r\n[b]\r\nl=2\r\n\r\n; end\r\n");
  EXPECT_EQ(document.WithoutSection(1).Text(), "; top\r\n\r\n[a]\r\nk = 1\r\n; in a\r\n\r\n; end\r\n");
  EXPECT_EQ(document.WithoutKey(1, 0).Text(), "; top\r\n\r\n[a]\r\nk = 1\r\n; in a\r\n\r\n[b]\r\n\r\n; end\r\n");
  EXPECT_EQ(IniDocument("[a]\r\n\r\n").WithSection("b").Text(), "[a]\r\n\r\n[b]\r\n");
  EXPECT_EQ(IniDocument("\r\n").WithSection("b").Text(), "\r\n[b]\r\n");
  EXPECT_EQ(IniDocument("").WithSection("b").Text(), "[b]\r\n");
}

// What a file holds, the plain way.
struct Model {
  struct Section {
    std::string name;
    std::vector<std::pair<std::string, std::string>> keys;
  };
  std::vector<Section> sections;

  std::size_t Find(const std::string& name) const {
    for (std::size_t i = 0; i < sections.size(); ++i) {
      if (EqualIgnoringCase(sections[i].name, name)) return i;
    }
    return sections.size();
  }
  void Set(const std::string& section, const std::string& key, const std::string& value) {
    const std::size_t at = Find(section);
    if (at == sections.size()) sections.push_back({section, {}});
    for (auto& [name, old] : sections[at].keys) {
      if (!EqualIgnoringCase(name, key)) continue;
      old = value;
      return;
    }
    sections[at].keys.emplace_back(key, value);
  }
  std::string Listed() const {
    std::string text;
    for (const Section& section : sections) {
      text += "[" + section.name + "]";
      for (std::size_t k = 0; k < section.keys.size(); ++k) {
        text += (k > 0 ? "|" : "") + section.keys[k].first + "=" + section.keys[k].second;
      }
    }
    return text;
  }
};

TEST(IniDocumentTest, AfterAnyEditsItHoldsWhatWasEditedAndReadsBackAsIt) {
  for (std::uint32_t seed = 1; seed <= 20; ++seed) {
    std::uint32_t state = seed;
    const auto draw = [&state](std::uint32_t below) {
      state = state * 1664525 + 1013904223;
      return static_cast<std::size_t>((state >> 8) % below);
    };
    IniDocument document("; keep\r\n\r\n[S0]\r\n; keep\r\nK0=v\r\n\r\n; keep\r\n");
    Model model{{{"S0", {{"K0", "v"}}}}};
    for (int edit = 0; edit < 200; ++edit) {
      const std::string section = (draw(2) == 0 ? "S" : "s") + std::to_string(draw(12));
      const std::size_t at = model.Find(section);
      const std::size_t kind = draw(10);
      if (kind == 0 && at == model.sections.size()) {
        document = document.WithSection(section);
        model.sections.push_back({section, {}});
      } else if (kind == 1 && at < model.sections.size()) {
        document = document.WithoutSection(at);
        model.sections.erase(model.sections.begin() + static_cast<std::ptrdiff_t>(at));
      } else if (kind == 2 && at < model.sections.size() && !model.sections[at].keys.empty()) {
        auto& keys = model.sections[at].keys;
        const std::size_t gone = draw(static_cast<std::uint32_t>(keys.size()));
        EXPECT_EQ(document.FindKeyOf(at, keys[gone].first), gone);
        document = document.WithoutKey(at, gone);
        keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(gone));
      } else {
        const std::string key = (draw(2) == 0 ? "K" : "k") + std::to_string(draw(30));
        const std::string value(draw(6), static_cast<char>('a' + draw(26)));
        document = document.WithValue(section, key, value);
        model.Set(section, key, value);
      }
      ASSERT_EQ(Listed(document), model.Listed()) << "seed " << seed << ", edit " << edit;
      ASSERT_EQ(Listed(IniDocument(document.Text())), model.Listed()) << "seed " << seed << ", edit " << edit;
      for (std::size_t s = 0; s < model.sections.size(); ++s) {
        ASSERT_EQ(document.FindSection(model.sections[s].name), s);
      }
      ASSERT_EQ(document.FindSection("S99"), IniDocument::kNone);
    }
    std::size_t kept = 0;
    for (std::size_t at = 0; (at = document.Text().find("; keep\r\n", at)) != std::string::npos; ++at) ++kept;
    EXPECT_GE(kept, 2u);  // the comment inside a section goes with it
  }
}

}  // namespace
