#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "platform/qt/desktop/QtDialogs.h"

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

}  // namespace
