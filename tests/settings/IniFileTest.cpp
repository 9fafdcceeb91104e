#include <gtest/gtest.h>

#include "platform/sim/SimFiles.h"
#include "platform/toolkit/Failure.h"
#include "settings/IniFile.h"

namespace {

class IniFileTest : public testing::Test {
 protected:
  IniFileTest() {
    files.CreateFolder("/Station");
    ini.SetPath(kPath);
  }

  std::string Content() { return files.Read(kPath).value_or("(absent)"); }
  std::string Read(std::string_view section, std::string_view key) { return ini.ReadValue(section, key, "default"); }

  static constexpr const char* kPath = "/Station/Settings.ini";
  SimFiles files;
  IniFile ini{files};
};

TEST_F(IniFileTest, AKeyOfAMissingSectionReadsAsTheDefault) {
  files.Put(kPath, "[Output]\r\nShow=True\r\n");
  EXPECT_EQ(ini.ReadValue("Playlist", "LastPlay", "7"), "7");
  EXPECT_EQ(ini.ReadValue("Output", "LastPlay", "7"), "7");
}

TEST_F(IniFileTest, AnAbsentFileHasNoSectionsAndReadsAsDefaults) {
  EXPECT_EQ(ini.Sections().Count(), 0u);
  EXPECT_EQ(Read("Output", "Show"), "default");
  EXPECT_EQ(Content(), "(absent)");
}

TEST_F(IniFileTest, AnEmptyPathHasNoSectionsAndTakesNoValue) {
  ini.SetPath("");
  ini.WriteValue("Output", "Show", "True");
  EXPECT_EQ(ini.Sections().Count(), 0u);
  EXPECT_EQ(Read("Output", "Show"), "default");
}

TEST_F(IniFileTest, AWriteToAnAbsentFileCreatesIt) {
  ini.WriteValue("Output", "Show", "True");
  EXPECT_EQ(Content(), "[Output]\r\nShow=True\r\n");
}

TEST_F(IniFileTest, AWriteIntoAMissingFolderLosesTheValueWithoutAWord) {
  ini.SetPath("/Nowhere/Settings.ini");
  ini.WriteValue("Output", "Show", "True");
  EXPECT_EQ(Read("Output", "Show"), "default");
}

TEST_F(IniFileTest, SeveralEditsInOneStepAreAllThereOrNone) {
  const auto exchange = [this] {
    ini.Rewrite([](const IniDocument& file) {
      return file.WithValue("1", "Text", "second").WithValue("2", "Text", "first").WithoutSection(2);
    });
  };
  const std::string before = "[1]\r\nText=first\r\n[2]\r\nText=second\r\n[3]\r\n";
  files.Put(kPath, before);
  files.SetDiskFull(true);
  exchange();
  EXPECT_EQ(Content(), before);
  EXPECT_EQ(Read("1", "Text"), "first");
  files.SetDiskFull(false);
  exchange();
  EXPECT_EQ(Content(), "[1]\r\nText=second\r\n[2]\r\nText=first\r\n");
  EXPECT_EQ(Read("2", "Text"), "first");
}

TEST_F(IniFileTest, EditsOfAFileThatCannotBeReadAreLost) {
  files.Put(kPath, "[1]\r\nText=first\r\n");
  files.SetFault(kPath, FileFault::kUnreadable);
  ini.Rewrite([](const IniDocument&) { return IniDocument("[2]\r\n"); });
  files.SetFault(kPath, FileFault::kNone);
  EXPECT_EQ(Content(), "[1]\r\nText=first\r\n");
}

TEST_F(IniFileTest, SectionsAndKeysAreFoundWhateverTheirCase) {
  ini.WriteValue("Logo", "Width", "300");
  EXPECT_EQ(Read("logo", "WIDTH"), "300");
  EXPECT_EQ(Read("Logo", "Width"), "300");
  ini.WriteValue("LOGO", "width", "400");
  EXPECT_EQ(Content(), "[Logo]\r\nWidth=400\r\n");
  ini.WriteValue("Новости", "Первый", "1");
  EXPECT_EQ(Read("НОВОСТИ", "первый"), "1");
}

TEST_F(IniFileTest, AnExistingKeyWithAnEmptyValueReadsAsEmpty) {
  ini.WriteValue("Output", "Show", "");
  EXPECT_EQ(Read("Output", "Show"), "");
}

TEST_F(IniFileTest, AfterSetPathTheSectionsAreThoseOfTheNewFile) {
  files.Put("/Station/other.ini", "[Two]\r\n[Three]\r\n");
  ini.WriteValue("One", "Key", "1");
  ASSERT_EQ(ini.Sections().Count(), 1u);
  ini.SetPath("/Station/other.ini");
  ASSERT_EQ(ini.Sections().Count(), 2u);
  EXPECT_EQ(ini.Sections().Item(1).Name(), "Two");
  ini.SetPath("/Station/none.ini");
  EXPECT_EQ(ini.Sections().Count(), 0u);
}

TEST_F(IniFileTest, SectionsAndKeysAreListedInFileOrder) {
  files.Put(kPath, "[b]\r\nz=1\r\na=2\r\n[A]\r\n");
  IniSections sections = ini.Sections();
  ASSERT_EQ(sections.Count(), 2u);
  EXPECT_EQ(sections.Item(1).Name(), "b");
  EXPECT_EQ(sections.Item(2).Name(), "A");
  IniKeys keys = sections.Item(1).Keys();
  ASSERT_EQ(keys.Count(), 2u);
  EXPECT_EQ(keys.Item(1).Name, "z");
  EXPECT_EQ(keys.Item(2).Name, "a");
  EXPECT_EQ(sections.Item(2).Keys().Count(), 0u);
}

TEST_F(IniFileTest, AnItemOutOfRangeIsAFailure) {
  files.Put(kPath, "[b]\r\nz=1\r\n");
  EXPECT_THROW(ini.Sections().Item(0), Failure);
  EXPECT_THROW(ini.Sections().Item(2), Failure);
  EXPECT_THROW(ini.Sections().Item(1).Keys().Item(0), Failure);
  EXPECT_THROW(ini.Sections().Item(1).Keys().Item(2), Failure);
}

TEST_F(IniFileTest, AnAddedSectionIsOnDiskAtOnceAndLast) {
  ini.WriteValue("One", "Key", "1");
  ini.Sections().Add("Two");
  EXPECT_EQ(Content(), "[One]\r\nKey=1\r\n\r\n[Two]\r\n");
}

TEST_F(IniFileTest, AddingASectionThatExistsChangesNothing) {
  files.Put(kPath, "[One]\nKey=1");
  ini.Sections().Add("ONE");
  EXPECT_EQ(Content(), "[One]\nKey=1");
}

TEST_F(IniFileTest, ARemovedSectionTakesItsKeysAndTheBlankLineAboveIt) {
  files.Put(kPath, "\r\n[One]\r\nKey=1\r\n\r\n[Two]\r\nKey=2\r\n\r\n[Three]\r\n");
  ini.Sections().Remove("two");
  EXPECT_EQ(Content(), "\r\n[One]\r\nKey=1\r\n\r\n[Three]\r\n");
  ini.Sections().Remove("One");
  ini.Sections().Remove("Three");
  EXPECT_EQ(Content(), "");
}

TEST_F(IniFileTest, RemovingAMissingSectionOrKeyIsNoErrorAndNoWrite) {
  files.Put(kPath, "[One]\nKey=1\n");
  ini.Sections().Remove("Two");
  ini.Sections().Item(1).Keys().Remove("Other");
  EXPECT_EQ(Content(), "[One]\nKey=1\n");
}

TEST_F(IniFileTest, ARemovedKeyIsGoneFromDiskAtOnce) {
  files.Put(kPath, "[One]\r\nA=1\r\nB=2\r\n");
  ini.Sections().Item(1).Keys().Remove("a");
  EXPECT_EQ(Content(), "[One]\r\nB=2\r\n");
}

TEST_F(IniFileTest, CommentsUnknownKeysOrderAndBlankLinesSurviveEveryWrite) {
  files.Put(kPath,
            "; station\r\n\r\n[Two]\r\n; inside\r\nmine = kept\r\nno sign here\r\n\r\n; next\r\n[One]\r\nA=1\r\n\r\n");
  ini.WriteValue("Two", "New", "v");
  ini.WriteValue("One", "A", "2");
  EXPECT_EQ(
      Content(),
      "; station\r\n\r\n[Two]\r\n; inside\r\nmine = kept\r\nno sign here\r\nNew=v\r\n\r\n; next\r\n[One]\r\nA=2\r\n"
      "\r\n");
}

TEST_F(IniFileTest, LinesAreWrittenWithWindowsLineEndsWhateverWasRead) {
  files.Put(kPath, "[One]\nA=1\n\nB=2");
  ini.WriteValue("One", "A", "3");
  EXPECT_EQ(Content(), "[One]\r\nA=3\r\n\r\nB=2\r\n");
}

TEST_F(IniFileTest, OfTwinSectionsTheFirstCountsAndNeitherIsLostAtAWrite) {
  files.Put(kPath, "[One]\r\nA=1\r\n[one]\r\nA=2\r\nB=3\r\n");
  EXPECT_EQ(Read("One", "A"), "1");
  EXPECT_EQ(Read("One", "B"), "default");
  EXPECT_EQ(ini.Sections().Count(), 2u);
  ini.WriteValue("ONE", "A", "9");
  EXPECT_EQ(Content(), "[One]\r\nA=9\r\n[one]\r\nA=2\r\nB=3\r\n");
  ini.Sections().Item(2).Keys().Remove("A");
  EXPECT_EQ(Content(), "[One]\r\nA=9\r\n[one]\r\nB=3\r\n");
  ini.Sections().Remove("One");
  EXPECT_EQ(Content(), "[one]\r\nB=3\r\n");
}

TEST_F(IniFileTest, OfTwinKeysTheFirstCountsAndNeitherIsLostAtAWrite) {
  files.Put(kPath, "[One]\r\nA=1\r\na=2\r\n");
  EXPECT_EQ(Read("One", "a"), "1");
  ini.WriteValue("One", "a", "3");
  EXPECT_EQ(Content(), "[One]\r\nA=3\r\na=2\r\n");
}

TEST_F(IniFileTest, TwoInstancesOfOneFileSeeEachOthersWrites) {
  IniFile other(files);
  other.SetPath(kPath);
  EXPECT_EQ(other.ReadValue("One", "A", ""), "");
  ini.WriteValue("One", "A", "1");
  EXPECT_EQ(other.ReadValue("One", "A", ""), "1");
  other.WriteValue("One", "B", "2");
  EXPECT_EQ(Read("One", "B"), "2");
  EXPECT_EQ(Content(), "[One]\r\nA=1\r\nB=2\r\n");
}

TEST_F(IniFileTest, AChangeByAnybodyElseIsSeenAtOnce) {
  ini.WriteValue("One", "A", "1");
  files.Put(kPath, "[One]\r\nA=2\r\n");
  EXPECT_EQ(Read("One", "A"), "2");
  files.Remove(kPath);
  EXPECT_EQ(Read("One", "A"), "default");
}

TEST_F(IniFileTest, AWriteAfterTheFileWasDeletedMakesItAnewEvenWithTheSameValue) {
  ini.WriteValue("One", "A", "1");
  ini.WriteValue("One", "B", "2");
  files.Remove(kPath);
  ini.WriteValue("One", "A", "1");
  EXPECT_EQ(Content(), "[One]\r\nA=1\r\n");
}

TEST_F(IniFileTest, SectionsAskedForEarlierShowTheFileAsItStoodThen) {
  files.Put(kPath, "[One]\r\nA=1\r\n");
  IniSections sections = ini.Sections();
  ini.WriteValue("One", "A", "2");
  ini.Sections().Add("Two");
  EXPECT_EQ(sections.Count(), 1u);
  EXPECT_EQ(sections.ReadValue("one", "a", ""), "1");
  EXPECT_EQ(sections.ReadValue("one", "b", "none"), "none");
  EXPECT_EQ(ini.Sections().Count(), 2u);
}

TEST_F(IniFileTest, AValueIsGivenBackAsItWasWrittenBlanksIncluded) {
  for (const char* value : {" secret ", "", " ", "a=b", "[x]", "; no comment", "\"quoted\"", "tab\tinside"}) {
    ini.WriteValue("One", "A", value);
    EXPECT_EQ(Read("One", "A"), value);
    ini.WriteValue("Two", "B", "2");
    EXPECT_EQ(Read("One", "A"), value);
  }
}

TEST_F(IniFileTest, BlanksAroundAnEqualsSignSetApartByHandAreNoPartOfTheValue) {
  files.Put(kPath, "  [One]  ; first\r\n  A = True \r\n");
  EXPECT_EQ(Read("One", "A"), "True");
  ini.WriteValue("One", "A", " x ");
  EXPECT_EQ(Read("One", "A"), " x ");
}

TEST_F(IniFileTest, LineEndsAndControlCharactersInAValueBecomeBlanks) {
  ini.WriteValue("One", "A", "x\r\n[Two]\r\nB=1\x01");
  EXPECT_EQ(Read("One", "A"), "x  [Two]  B=1 ");
  EXPECT_EQ(ini.Sections().Count(), 1u);
}

TEST_F(IniFileTest, ASectionNameIsFreeText) {
  for (const char* name : {"", "a]b", "[a]", "a=b", "; x", " blank ", "tail ]", "ünï"}) {
    ini.Sections().Add(name);
    ini.WriteValue(name, "Key", name);
    EXPECT_EQ(ini.ReadValue(name, "Key", "default"), name);
    const IniSections sections = ini.Sections();
    EXPECT_EQ(sections.Item(sections.Count()).Name(), name);
  }
  EXPECT_EQ(ini.Sections().Count(), 8u);
  ini.Sections().Remove("a]b");
  EXPECT_EQ(ini.Sections().Count(), 7u);
}

TEST_F(IniFileTest, ALineEndInASectionNameCannotBreakTheFile) {
  ini.Sections().Add("a\r\n[b");
  ini.Sections().Add("a\r\n[b");
  ini.WriteValue("a\r\n[b", "Key", "1");
  ASSERT_EQ(ini.Sections().Count(), 1u);
  EXPECT_EQ(ini.Sections().Item(1).Name(), "a  [b");
  EXPECT_EQ(Read("a\r\n[b", "Key"), "1");
  ini.Sections().Remove("a\r\n[b");
  EXPECT_EQ(ini.Sections().Count(), 0u);
}

TEST_F(IniFileTest, AKeyNameThatWouldBreakItsLineIsStoredUnderAHarmlessOneAndFoundUnderBoth) {
  const std::pair<const char*, const char*> names[] = {
      {"a=b", "a-b"}, {"[HD] News", "(HD] News"}, {";x", ",x"}, {"two\nlines", "two lines"}, {" blanks ", "blanks"}};
  for (const auto& [asked, stored] : names) {
    ini.WriteValue("One", asked, asked == std::string("a=b") ? "u=v" : "v");
    EXPECT_NE(Read("One", asked), "default") << asked;
    EXPECT_EQ(Read("One", asked), Read("One", stored));
    const IniKeys keys = ini.Sections().Item(1).Keys();
    EXPECT_EQ(keys.Item(keys.Count()).Name, stored);
  }
  EXPECT_EQ(Read("One", "a=b"), "u=v");
  ini.Sections().Item(1).Keys().Remove("a=b");
  EXPECT_EQ(ini.Sections().Item(1).Keys().Count(), 4u);
}

TEST_F(IniFileTest, ALineThatBeginsWithABracketIsNeverAKey) {
  files.Put(kPath, "[One]\r\n[HD] News=http://x\r\n[open\r\nA=1\r\n");
  EXPECT_EQ(ini.Sections().Count(), 1u);
  EXPECT_EQ(ini.Sections().Item(1).Keys().Count(), 1u);
  ini.WriteValue("One", "[HD] News", "http://[::1]");
  EXPECT_EQ(Read("One", "[HD] News"), "http://[::1]");
  EXPECT_EQ(Content(), "[One]\r\n[HD] News=http://x\r\n[open\r\nA=1\r\n(HD] News=http://[::1]\r\n");
}

TEST_F(IniFileTest, AnEmptyKeyNameIsAKeyLikeAnyOther) {
  ini.WriteValue("One", "", "v");
  EXPECT_EQ(Content(), "[One]\r\n=v\r\n");
  EXPECT_EQ(Read("One", ""), "v");
}

TEST_F(IniFileTest, ALineThatIsNoUtf8IsReadAsWindows1252) {
  files.Put(kPath, "[One]\r\nA=caf\xE9 \x80\r\nB=caf\xC3\xA9\r\n");
  EXPECT_EQ(Read("One", "A"), "café €");
  EXPECT_EQ(Read("One", "B"), "café");
  ini.WriteValue("One", "C", "1");
  EXPECT_EQ(Content(), "[One]\r\nA=café €\r\nB=café\r\nC=1\r\n");
}

TEST_F(IniFileTest, AValueThatIsNoUtf8IsStoredAsItWouldBeRead) {
  ini.WriteValue("One\xE9", "A\xE9", "caf\xE9");
  EXPECT_EQ(Content(), "[Oneé]\r\nAé=café\r\n");
  EXPECT_EQ(Read("One\xE9", "A\xE9"), "café");
}

TEST_F(IniFileTest, AByteOrderMarkDoesNotHideTheFirstSection) {
  files.Put(kPath, "\xEF\xBB\xBF[One]\r\nA=1\r\n");
  EXPECT_EQ(Read("One", "A"), "1");
  files.Put(kPath, std::string("\xFF\xFE[\0O\0]\0\r\0\n\0\xE9\0=\0\x31\0", 18));
  EXPECT_EQ(Read("O", "é"), "1");
}

TEST_F(IniFileTest, AFullDiskOrARefusedWriteLosesTheValueAndKeepsTheFile) {
  ini.WriteValue("One", "A", "1");
  files.SetDiskFull(true);
  ini.WriteValue("One", "A", "2");
  ini.Sections().Add("Two");
  EXPECT_EQ(Read("One", "A"), "1");
  files.SetDiskFull(false);
  files.SetFault(kPath, FileFault::kWriteRefused);
  ini.WriteValue("One", "A", "3");
  EXPECT_EQ(Read("One", "A"), "1");
  files.SetFault(kPath, FileFault::kNone);
  ini.WriteValue("One", "A", "4");
  EXPECT_EQ(Content(), "[One]\r\nA=4\r\n");
}

TEST_F(IniFileTest, AnUnreadableFileReadsAsDefaultsAndIsNeverOverwritten) {
  ini.WriteValue("One", "A", "1");
  files.SetFault(kPath, FileFault::kUnreadable);
  EXPECT_EQ(Read("One", "A"), "default");
  EXPECT_EQ(ini.Sections().Count(), 0u);
  ini.WriteValue("One", "B", "2");
  ini.Sections().Add("Two");
  ini.Sections().Remove("One");
  files.SetFault(kPath, FileFault::kNone);
  EXPECT_EQ(Content(), "[One]\r\nA=1\r\n");
}

TEST_F(IniFileTest, AFolderInTheFilesPlaceReadsAsDefaults) {
  files.CreateFolder(kPath);
  ini.WriteValue("One", "A", "1");
  EXPECT_EQ(Read("One", "A"), "default");
  EXPECT_EQ(files.Kind(kPath), FileKind::kFolder);
}

TEST_F(IniFileTest, AFileOfAHundredMegabytesReadsAsDefaultsAndStays) {
  std::string large = "[One]\r\nA=1\r\n";
  large.resize(100u << 20, 'x');
  files.Put(kPath, large);
  EXPECT_EQ(Read("One", "A"), "default");
  ini.WriteValue("One", "A", "2");
  EXPECT_EQ(files.Read(kPath)->size(), large.size());
}

TEST_F(IniFileTest, AValueThatWouldMakeTheFileTooLargeToReadIsNotTaken) {
  ini.WriteValue("One", "A", "1");
  ini.WriteValue("One", "B", std::string(IniFile::kMaxBytes, 'x'));
  EXPECT_EQ(Read("One", "A"), "1");
  EXPECT_EQ(Read("One", "B"), "default");
}

TEST_F(IniFileTest, BinaryRubbishReadsAsDefaultsAndStillTakesValues) {
  std::string rubbish;
  for (std::uint32_t i = 0, x = 1; i < 100'000; ++i) rubbish += static_cast<char>((x = x * 1664525 + 1013904223) >> 24);
  files.Put(kPath, rubbish);
  EXPECT_EQ(Read("Output", "Show"), "default");
  ini.WriteValue("Output", "Show", "True");
  EXPECT_EQ(Read("Output", "Show"), "True");
}

TEST_F(IniFileTest, ASectionOfAMillionKeysIsReadAndWritten) {
  std::string text = "[One]\r\n";
  for (int i = 0; i < 1'000'000; ++i) text.append("Key").append(std::to_string(i)).append("=v\r\n");
  files.Put(kPath, text);
  EXPECT_EQ(Read("one", "KEY999999"), "v");
  EXPECT_EQ(ini.Sections().Item(1).Keys().Count(), 1'000'000u);
  ini.WriteValue("One", "Key500000", "w");
  EXPECT_EQ(Read("One", "Key500000"), "w");
}

TEST_F(IniFileTest, AMillionTwinKeysAreReadInOneGo) {
  std::string text = "[One]\r\n";
  for (int i = 0; i < 1'000'000; ++i) text += "Key=v\r\n[One]\r\n";
  files.Put(kPath, text);
  EXPECT_EQ(Read("one", "key"), "v");
}

}  // namespace
