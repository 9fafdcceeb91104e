#include <QAction>
#include <QFile>
#include <QMenu>
#include <QPushButton>

#include "platform/qt/forms/Texts.h"
#include "platform/qt/forms/look/Icons.h"
#include "tests/platform/forms/FormTest.h"

namespace {

using IconsTest = FormTest;

TEST_F(IconsTest, EveryIconOfTheTableIsAmongTheResourcesInEachSize) {
  for (const IconRow& row : ControlIcons()) {
    for (const int size : {16, 22, 32, 44, 64}) {
      const QPixmap picture = KeptIcon(row.icon).pixmap(size);
      EXPECT_EQ(picture.size(), QSize(size, size)) << row.icon;
    }
  }
}

TEST_F(IconsTest, AControlOfOneFormMayBearAnotherIconThanElsewhere) {
  const auto same = [](const QIcon& one, const QIcon& other) {
    return one.pixmap(16).toImage() == other.pixmap(16).toImage();
  };
  EXPECT_TRUE(same(IconOf("frmAdSett", "btnLoadScorl"), KeptIcon("document-open")));
  EXPECT_TRUE(same(IconOf("frmAbout", "btnLoadScorl"), KeptIcon("dialog-ok")));
  EXPECT_TRUE(same(IconOf("frmMid", "mnuSWF_2"), KeptIcon("draw-text"))) << "a member of a control array has its icon";
  EXPECT_TRUE(IconOf("frmMid", "mnuPlayer").isNull());
}

TEST_F(IconsTest, EveryButtonWithAMeaningBearsAnIcon) {
  for (Form* form : EachForm()) {
    for (const QPushButton* button : WindowOf(*form).Widget().findChildren<QPushButton*>()) {
      const QString name = button->objectName();
      if (name == button->text()) continue;  // "Command1" says nothing
      EXPECT_FALSE(button->icon().isNull()) << form->Name() << " " << Stored(name) << ": add a line to look/Icons.cpp";
    }
  }
}

TEST_F(IconsTest, EveryEntryOfAMenuBearsAnIconOrATick) {
  for (Form* form : EachForm()) {
    for (const QMenu* menu : WindowOf(*form).Widget().findChildren<QMenu*>()) {
      for (const QAction* entry : menu->actions()) {
        if (entry->isSeparator() || entry->menu() != nullptr || entry->isCheckable()) continue;
        EXPECT_FALSE(entry->icon().isNull()) << Stored(entry->objectName()) << ": add a line to look/Icons.cpp";
      }
    }
  }
}

TEST_F(IconsTest, AFileHasTheIconOfItsKind) {
  const auto image = [](const char* file) { return FileIcon(file).pixmap(22).toImage(); };
  EXPECT_EQ(image("Rock & Roll.MP3"), image("a.wav"));
  EXPECT_EQ(image("a.jpg"), KeptIcon("image-x-generic").pixmap(22).toImage());
  EXPECT_NE(image("a.avi"), image("a.wav"));
  EXPECT_EQ(image("no ending"), image("a.avi"));
}

}  // namespace
