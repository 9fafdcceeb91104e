#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QFrame>
#include <QLineEdit>

#include "platform/qt/forms/Texts.h"
#include "tests/platform/forms/FormTest.h"
#include "tests/platform/forms/frmOwn.h"

namespace {

class OwnControlsTest : public FormTest {
 protected:
  OwnControlsTest() {
    form.Show();
    Settle();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&WindowOf(form).Widget()));
    const auto tell = [this](const char* event) { return [this, event](auto...) { told.emplace_back(event); }; };
    form.Page.MouseDown.Connect(tell("MouseDown"));
    form.Page.MouseUp.Connect(tell("MouseUp"));
    form.Page.Click.Connect(tell("Click"));
    form.Page.DblClick.Connect(tell("DblClick"));
    form.Page.KeyPress.Connect([this](std::int16_t letter) { told.push_back(std::to_string(letter)); });
    form.Page.KeyDown.Connect([this](std::int16_t code, std::int16_t shift) {
      told.push_back("KeyDown " + std::to_string(code) + " " + std::to_string(shift));
    });
  }

  QComboBox& Box(ComboBox& control) { return Shown<QComboBox>(control); }
  // What a control's layout begins with: its own surface.
  QWidget& Surface(UserControl& control) { return *Shown<QFrame>(control).findChild<QWidget*>(); }
  void Click(QPoint place) {
    QTest::mouseClick(WindowOf(form).Widget().windowHandle(), Qt::LeftButton, {},
                      Surface(form.Page).mapTo(&WindowOf(form).Widget(), place));
  }

  frmOwn& form = Get<frmOwn>();
  std::vector<std::string> told;
};

using Lines = std::vector<std::string>;

TEST_F(OwnControlsTest, EveryLayoutOfAControlIsTestedHere) {
  EXPECT_EQ(QDir(":/controls").entryList(QDir::Files, QDir::Name), (QStringList{"Pre.ui", "TimePicker.ui"}));
}

TEST_F(OwnControlsTest, EveryPartHasItsWidgetAndNoWidgetIsAStranger) {
  EXPECT_EQ(WindowOf(form).Joined().Faults(), Lines{});
}

TEST_F(OwnControlsTest, PartsAreLookedUpInsideTheirOwnControl) {
  form.First.CmbHH.Text = "07";
  form.Second.CmbHH.Text = "08";
  form.CmbHH.Text = "own";
  EXPECT_EQ(Box(form.First.CmbHH).currentText(), "07");
  EXPECT_EQ(Box(form.Second.CmbHH).currentText(), "08");
  EXPECT_EQ(Box(form.CmbHH).currentText(), "own");
  EXPECT_TRUE(Shown<QFrame>(form.First).isAncestorOf(&Box(form.First.CmbHH)));
  EXPECT_TRUE(Shown<QFrame>(form.Second).isAncestorOf(&Box(form.Second.CmbHH)));
}

TEST_F(OwnControlsTest, ATimeIsPickedAndTyped) {
  EXPECT_EQ(Box(form.First.CmbMM).currentText(), "00");
  EXPECT_EQ(Box(form.First.CmbMM).count(), 59);
  WindowOf(form).Widget().activateWindow();
  Box(form.First.CmbHH).setFocus();
  Settle();
  QTest::keyClick(&Box(form.First.CmbHH), Qt::Key_Up);
  EXPECT_EQ(form.First.GetTime(), "11:00:00 AM");
  Box(form.First.cmbSS).setFocus();
  Box(form.First.cmbSS).lineEdit()->selectAll();
  QTest::keyClicks(Box(form.First.cmbSS).lineEdit(), "42");
  EXPECT_EQ(form.First.GetTime(), "11:00:42 AM");
  EXPECT_EQ(form.Second.GetTime(), "12:00:00 AM");
}

TEST_F(OwnControlsTest, TheTabKeyGoesFromTheHoursToTheHalfOfTheDay) {
  WindowOf(form).Widget().activateWindow();
  Box(form.First.CmbHH).setFocus();
  for (ComboBox* next : {&form.First.CmbMM, &form.First.cmbSS, &form.First.cmbAMPM, &form.Second.CmbHH}) {
    QTest::keyClick(WindowOf(form).Widget().focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(WindowOf(form).Widget().focusWidget(), &Box(*next)) << next->Name();
  }
}

TEST_F(OwnControlsTest, WhatCanBeReachedByKeyHasANameForThoseWhoCannotSee) {
  for (QComboBox* box :
       {&Box(form.First.CmbHH), &Box(form.First.CmbMM), &Box(form.First.cmbSS), &Box(form.First.cmbAMPM)}) {
    EXPECT_FALSE(box->accessibleName().isEmpty());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(box->lineEdit())->text(QAccessible::Name), box->accessibleName());
  }
}

TEST_F(OwnControlsTest, ThePageOverhangsItsPanelWhichFillsTheControl) {
  const QSize size = Surface(form.Page).size();
  EXPECT_EQ(form.Page.Width, ToTwips(size.width()));
  EXPECT_EQ(Shown<QFrame>(form.Page.picWeb).geometry(), QRect(QPoint(0, 0), size));
  const QRect page = Shown<QFrame>(form.Page.Web).geometry();
  EXPECT_EQ(page.topLeft(), QPoint(-1, -1));
  EXPECT_EQ(page.size(), QSize(ToPixels(form.Page.Width + 200), ToPixels(form.Page.Height + 250)));
  WindowOf(form).Widget().resize(700, 900);
  Settle();
  EXPECT_NE(Surface(form.Page).size(), size);
  EXPECT_EQ(Shown<QFrame>(form.Page.picWeb).size(), Surface(form.Page).size());
}

TEST_F(OwnControlsTest, ThePanelHasTheColoursAndTheBorderThatItIsGiven) {
  auto& panel = Shown<QFrame>(form.Page.picWeb);
  EXPECT_EQ(panel.palette().color(QPalette::Window), panel.palette().color(QPalette::Base));
  EXPECT_EQ(panel.frameShape(), QFrame::Box);
  form.Page.BackColor = kRed;
  form.Page.BorderStyle = 0;
  EXPECT_EQ(panel.palette().color(QPalette::Window), QColor(Qt::red));
  EXPECT_EQ(panel.frameShape(), QFrame::NoFrame);
}

TEST_F(OwnControlsTest, PressesOnAPartAreThePartsAndOnTheBareSurfaceTheControls) {
  Click({20, 20});
  EXPECT_EQ(told, Lines{});
  form.Page.picWeb.Enabled = false;
  Click({20, 20});
  EXPECT_EQ(told, (Lines{"MouseDown", "MouseUp", "Click"}));
}

TEST_F(OwnControlsTest, KeysAreTheControlsWhileItHasTheKeyboardItself) {
  WindowOf(form).Widget().activateWindow();
  Surface(form.Page).setFocus();
  QTest::keyClick(&Surface(form.Page), Qt::Key_B, Qt::ControlModifier);
  QTest::keyClicks(&Surface(form.Page), "b");
  QTest::keyClick(&Surface(form.Page), Qt::Key_F5);
  QTest::keyClick(&Surface(form.Page), Qt::Key_Left);
  ASSERT_GE(told.size(), 6U);
  EXPECT_EQ(told[0], "KeyDown 17 2") << "Ctrl is a key, too";
  EXPECT_EQ(told[1], "KeyDown 66 2");
  EXPECT_EQ(Lines(told.end() - 4, told.end()), (Lines{"KeyDown 66 0", "98", "KeyDown 116 0", "KeyDown 37 0"}));
  told.clear();
  Shown<QFrame>(form.Page.Web).setFocus();
  QTest::keyClicks(&Shown<QFrame>(form.Page.Web), "b");
  EXPECT_EQ(told, Lines{});
}

TEST_F(OwnControlsTest, ADisabledControlHasNoHands) {
  form.First.Enabled = false;
  EXPECT_FALSE(Box(form.First.CmbHH).isEnabled());
  EXPECT_TRUE(Box(form.Second.CmbHH).isEnabled());
}

TEST_F(OwnControlsTest, AFormThatGoesAtAClickTakesItsControlsAlong) {
  form.Page.picWeb.Enabled = false;
  form.Page.MouseUp.Connect([this](auto...) { station.forms.Unload<frmOwn>(); });
  QPointer<QWidget> window = &WindowOf(form).Widget();
  Click({20, 20});
  Settle();
  EXPECT_FALSE(station.forms.Loaded<frmOwn>());
  EXPECT_EQ(window, nullptr);
}

}  // namespace
