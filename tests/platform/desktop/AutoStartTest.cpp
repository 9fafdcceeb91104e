#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThreadPool>

#include "platform/qt/desktop/AutoStart.h"

namespace {

QString ExecOf(const std::string& program) {
  return AutoStartEntry("My App", program).split('\n').filter("Exec=").value(0);
}

TEST(AutoStart, TheEntryBearsItsNameAndStartsTheProgram) {
  EXPECT_EQ(AutoStartEntry("My App", "/opt/tv/corvanta"),
            "[Desktop Entry]\nType=Application\nName=My App\nExec=\"/opt/tv/corvanta\"\nTerminal=false\n");
}

TEST(AutoStart, APathWithBlanksAndPercentSignsIsOneArgumentAndNoFieldCode) {
  EXPECT_EQ(ExecOf("/srv/My App 100%u/corvanta"), "Exec=\"/srv/My App 100%%u/corvanta\"");
}

TEST(AutoStart, AShellsOwnLettersAreEscapedInBothLayers) {
  EXPECT_EQ(ExecOf("/a\"b`c$d\\e"), R"(Exec="/a\\"b\\`c\\$d\\\\e")");
}

TEST(AutoStart, TheEntryIsWrittenWhereDesktopsLook) {
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  WriteAutoStart("My App", "/opt/tv/corvanta");
  QThreadPool::globalInstance()->waitForDone();
  QFile entry(home.filePath("autostart/My App.desktop"));
  ASSERT_TRUE(entry.open(QFile::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(entry.readAll()), AutoStartEntry("My App", "/opt/tv/corvanta"));
}

}  // namespace
