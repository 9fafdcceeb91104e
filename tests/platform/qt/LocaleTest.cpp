#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <clocale>
#include <cstdlib>
#include <filesystem>

#include "platform/qt/Locale.h"

namespace {

int Threads() {
  const std::filesystem::directory_iterator tasks("/proc/self/task");
  return static_cast<int>(std::distance(begin(tasks), end(tasks)));
}

// A language with decimal commas, made for this test alone.
TEST(LocaleTest, TheLanguageIsTheSessionsAndNumbersArePlainBeforeAnyThreadAndEverAfter) {
  const QTemporaryDir folder;
  const std::string make = "localedef -i de_DE -f UTF-8 " + folder.filePath("de_DE.UTF-8").toStdString();
  ASSERT_EQ(std::system(make.c_str()), 0);
  qputenv("LOCPATH", folder.path().toUtf8());
  qputenv("LC_ALL", "de_DE.UTF-8");
  ASSERT_STREQ(std::setlocale(LC_ALL, ""), "de_DE.UTF-8");
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");

  SettleLocale();
  EXPECT_EQ(Threads(), 1);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  int count = 1;
  char name[] = "locale_tests";
  char* words[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, words);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  EXPECT_STREQ(std::localeconv()->decimal_point, ".");
  EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "de_DE.UTF-8");
}

}  // namespace
