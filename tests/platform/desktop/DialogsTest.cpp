#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "platform/qt/desktop/QtDialogs.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

class DialogsTest : public ::testing::Test {
 protected:
  // Runs `act` on the box that stands as soon as one does.
  static void Then(std::function<void(QDialog&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] { act(*StandingBox()); });
  }
  static QDialog* StandingBox() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }

  static void Press(QDialog& box, QMessageBox::StandardButton button) {
    dynamic_cast<QMessageBox&>(box).button(button)->click();
  }

  QtDialogs dialogs;
};

TEST_F(DialogsTest, AQuestionIsAnsweredByItsButtons) {
  Then([](QDialog& box) { Press(box, QMessageBox::Yes); });
  EXPECT_EQ(dialogs.MsgBox("Sure?", "Exit", Buttons::kYesNo), Answer::kYes);
  Then([](QDialog& box) { Press(box, QMessageBox::No); });
  EXPECT_EQ(dialogs.MsgBox("Sure?", "Exit", Buttons::kYesNo), Answer::kNo);
}

TEST_F(DialogsTest, AQuestionIsAnsweredByOneLetter) {
  Then([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Y); });
  EXPECT_EQ(dialogs.MsgBox("Sure?", "Exit", Buttons::kYesNo), Answer::kYes);
}

TEST_F(DialogsTest, ABoxThatIsClosedWithoutAButtonIsAnsweredNoOrOk) {
  Then([](QDialog& box) { box.close(); });
  EXPECT_EQ(dialogs.MsgBox("Sure?", "Exit", Buttons::kYesNo), Answer::kNo);
  Then([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(dialogs.MsgBox("Sure?", "Exit", Buttons::kYesNo), Answer::kNo);
  Then([](QDialog& box) { box.close(); });
  EXPECT_EQ(dialogs.MsgBox("Done", "Playlist", Buttons::kOk), Answer::kOk);
}

TEST_F(DialogsTest, AWarningHasAnExclamationMarkAndAnOkButtonAlone) {
  Then([](QDialog& box) {
    auto& shown = dynamic_cast<QMessageBox&>(box);
    EXPECT_EQ(shown.icon(), QMessageBox::Warning);
    EXPECT_EQ(shown.standardButtons(), QMessageBox::Ok);
    shown.close();
  });
  EXPECT_EQ(dialogs.MsgBox("Lost.", "Disk", Buttons::kOkWarning), Answer::kOk);
}

TEST_F(DialogsTest, EnterAloneDeletesNothing) {
  Then([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
  EXPECT_EQ(dialogs.MsgBox("Delete?", "DELETE", Buttons::kYesNo), Answer::kNo);
}

TEST_F(DialogsTest, TextAndTitleStandAsTheyAreWritten) {
  Then([](QDialog& box) {
    EXPECT_EQ(box.windowTitle(), "A & B");
    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), "<b>x</b> & y");
    EXPECT_EQ(dynamic_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
    box.close();
  });
  dialogs.MsgBox("<b>x</b> & y", "A & B", Buttons::kOk);
}

TEST_F(DialogsTest, SeveralBoxesStandAtOnceAndTheLastIsAnsweredFirst) {
  std::vector<Answer> answers;
  Then([&](QDialog&) {
    QDialog* first = StandingBox();
    Then([&](QDialog& second) {
      EXPECT_NE(&second, first);
      EXPECT_TRUE(first->isVisible());
      Press(second, QMessageBox::Yes);
    });
    answers.push_back(dialogs.MsgBox("second", "", Buttons::kYesNo));
    Press(*first, QMessageBox::No);
  });
  answers.push_back(dialogs.MsgBox("first", "", Buttons::kYesNo));
  EXPECT_EQ(answers, (std::vector<Answer>{Answer::kYes, Answer::kNo}));
}

TEST_F(DialogsTest, ABoxOutlivesTheWindowOverWhichItStands) {
  auto window = std::make_unique<QWidget>();
  window->show();
  window->activateWindow();
  Then([&](QDialog& box) {
    window.reset();
    Press(box, QMessageBox::Yes);
  });
  EXPECT_EQ(dialogs.MsgBox("Sure?", "", Buttons::kYesNo), Answer::kYes);
}

TEST_F(DialogsTest, AnInputBoxGivesWhatWasTypedAndNothingWhenCancelled) {
  const auto type = [](QDialog& box) { QTest::keyClicks(box.findChild<QLineEdit*>(), "Morning"); };
  Then([&](QDialog& box) {
    EXPECT_EQ(box.findChild<QLabel*>()->text(), "Pleasr enter Playlist name");
    type(box);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.InputBox("Pleasr enter Playlist name", "Playlist"), "Morning");
  Then([&](QDialog& box) {
    type(box);
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  EXPECT_EQ(dialogs.InputBox("Pleasr enter Playlist name", "Playlist"), "");
}

TEST_F(DialogsTest, AFolderIsChosenOrNone) {
  Then([](QDialog& box) { QMetaObject::invokeMethod(&box, "accept"); });
  EXPECT_EQ(dialogs.BrowseFolder("Select A Video or Audio Directory", "/usr/share"), "/usr/share");
  Then([](QDialog& box) { box.reject(); });
  EXPECT_EQ(dialogs.BrowseFolder("Select A Video or Audio Directory", "/no/such/folder"), "");
}

// The names that a file dialog offers.
QStringList Offered(QDialog& box) {
  QStringList names;
  const auto* list = box.findChild<QListView*>("listView");
  const QAbstractItemModel& model = *list->model();
  for (int row = 0; row < model.rowCount(list->rootIndex()); ++row) {
    names.append(model.index(row, 0, list->rootIndex()).data().toString());
  }
  return names;
}

TEST_F(DialogsTest, AFileDialogOffersWhatFitsTheFilterInEitherCaseAndStartsWhereItWasLast) {
  const TemporaryFolder folder;
  for (const char* name : {"a.jpg", "B.JPG", "c.SwF", "d.txt"}) WriteByOther(folder.Path() + "/" + name, "x");
  Then([&](QDialog& box) {
    box.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(folder.Path() + "/B.JPG"));
    QMetaObject::invokeMethod(&box, "accept");
  });
  EXPECT_EQ(dialogs.OpenFile("Load Ad's scorl file", "JPG file only|*.jpg;"), folder.Path() + "/B.JPG");
  Then([&](QDialog& box) {
    EXPECT_EQ(box.windowTitle(), "Load Ad's header file");
    // The dialog lists the files as it finds them, and sorts them a moment later.
    const QStringList wanted{"a.jpg", "B.JPG", "c.SwF"};
    EXPECT_TRUE(QTest::qWaitFor([&] { return Offered(box) == wanted; })) << Offered(box).join(' ').toStdString();
    box.reject();
  });
  EXPECT_EQ(dialogs.OpenFile("Load Ad's header file", "JPG or Flash file|*.jpg;*.swf;"), "");
  Then([&](QDialog& box) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Offered(box).contains("d.txt"); }));
    box.reject();
  });
  EXPECT_EQ(dialogs.OpenFile("All", "Video Ad file|"), "");
}

}  // namespace
