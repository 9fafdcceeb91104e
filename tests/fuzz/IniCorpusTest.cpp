#include <gtest/gtest.h>

#include <filesystem>

#include "tests/fuzz/IniCheck.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

TEST(IniCorpusTest, EveryFileOfTheCorpusKeepsTheStoresPromises) {
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(INI_CORPUS)) {
    SCOPED_TRACE(entry.path().string());
    CheckIni(ReadByOther(entry.path()));
    ++files;
  }
  EXPECT_GE(files, 10);
}

TEST(IniCorpusTest, EveryHarmedCopyOfTheCorpusKeepsTheStoresPromises) {
  for (const auto& entry : std::filesystem::directory_iterator(INI_CORPUS)) {
    SCOPED_TRACE(entry.path().string());
    const std::string whole = ReadByOther(entry.path());
    for (std::size_t at = 0; at < whole.size(); at += 3) {
      CheckIni(whole.substr(0, at));
      std::string harmed = whole;
      for (const char harm : {'\0', '\n', '\r', '[', ']', '=', ';', ' ', '\xE9'}) {
        harmed[at] = harm;
        CheckIni(harmed);
      }
    }
  }
}

}  // namespace
