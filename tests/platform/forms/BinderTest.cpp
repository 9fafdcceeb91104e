#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/qt/forms/SeekSlider.h"
#include "tests/platform/forms/FormTest.h"
#include "tests/platform/forms/SampleForm.h"

namespace {

class BinderTest : public FormTest {
 protected:
  // Presses, moves or lets go of a mouse button, as the window system tells it to a widget.
  static void Mouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button) {
    const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, widget.mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : button, down,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }

  SampleForm& form = Get<SampleForm>();
  int clicks = 0;
};

TEST_F(BinderTest, AClickOnAButtonIsHeardAndADisabledOneIsNot) {
  form.button.Click.Connect([this] { ++clicks; });
  auto& button = Shown<QPushButton>(form.button);
  button.click();
  form.button.Enabled = false;
  EXPECT_FALSE(button.isEnabled());
  button.click();
  EXPECT_EQ(clicks, 1);
}

TEST_F(BinderTest, ABoxFollowsItsValueSilentlyAndTellsTheOperatorsClick) {
  form.box.Click.Connect([this] { ++clicks; });
  auto& box = Shown<QCheckBox>(form.box);
  form.box.Value = 1;
  EXPECT_TRUE(box.isChecked());
  EXPECT_EQ(clicks, 0);
  box.click();
  EXPECT_EQ(form.box.Value, 0);
  EXPECT_FALSE(box.isChecked());
  EXPECT_EQ(clicks, 1);
}

TEST_F(BinderTest, ATextIsTakenAsItIsTypedAndKeepsTheCaret) {
  auto& edit = Shown<QLineEdit>(form.text);
  QTest::keyClicks(&edit, "Morning");
  EXPECT_EQ(form.text.Text.Get(), "Morning");
  edit.setCursorPosition(2);
  QTest::keyClicks(&edit, "x");
  EXPECT_EQ(form.text.Text.Get(), "Moxrning");
  EXPECT_EQ(edit.cursorPosition(), 3);
  form.text.Text = "näws";
  EXPECT_EQ(edit.text(), QString::fromUtf8("näws"));
}

TEST_F(BinderTest, AComboHoldsTwinItemsAndTakesWhatIsTypedAsItIs) {
  auto& combo = Shown<QComboBox>(form.combo);
  EXPECT_EQ(form.combo.Text.Get(), "Select playlist");
  for (const char* item : {"Day.plt", "Night.plt", "Day.plt"}) form.combo.AddItem(item);
  EXPECT_EQ(combo.count(), 3);
  EXPECT_EQ(combo.currentText(), "Select playlist");
  form.combo.Click.Connect([this] { ++clicks; });
  combo.setCurrentIndex(1);
  emit combo.activated(1);
  EXPECT_EQ(form.combo.Text.Get(), "Night.plt");
  EXPECT_EQ(clicks, 1);
  combo.lineEdit()->selectAll();
  QTest::keyClicks(combo.lineEdit(), "da");
  QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(form.combo.Text.Get(), "da");
  EXPECT_EQ(combo.count(), 3);
}

TEST_F(BinderTest, ATimeIsSetByBothSides) {
  auto& edit = Shown<QDateTimeEdit>(form.time);
  form.time.Value = DateTime{.year = 2026, .month = 11, .day = 15, .hour = 19, .minute = 3, .second = 25};
  EXPECT_EQ(edit.text(), "19:03:25 ");
  form.time.Change.Connect([this] { ++clicks; });
  edit.setTime(QTime(7, 3, 26));
  EXPECT_EQ(form.time.Value.Get(),
            (DateTime{.year = 2026, .month = 11, .day = 15, .hour = 7, .minute = 3, .second = 26}));
  EXPECT_EQ(clicks, 1);
}

TEST_F(BinderTest, ASliderGoesWhereItIsPressedWithAnyButtonAndIsNotMovedUnderTheFinger) {
  auto& slider = Shown<SeekSlider>(form.slider);
  slider.resize(400, 24);
  form.slider.Max = 100;
  form.slider.Value = 10;
  EXPECT_EQ(slider.value(), 10);
  std::vector<int> worked;
  form.slider.Worked.Connect([&] { worked.push_back(form.slider.Value); });
  Mouse(slider, QEvent::MouseButtonPress, {200, 12}, Qt::RightButton);
  EXPECT_EQ(slider.value(), 50);
  form.slider.Value = 11;  // the program goes on telling where the item is
  EXPECT_EQ(slider.value(), 50);
  Mouse(slider, QEvent::MouseMove, {300, 12}, Qt::RightButton);
  const int dragged = slider.value();
  EXPECT_GT(dragged, 70);
  Mouse(slider, QEvent::MouseButtonRelease, {300, 12}, Qt::RightButton);
  EXPECT_EQ(worked, (std::vector<int>{50, dragged, dragged}));
  form.slider.Value = 12;
  EXPECT_EQ(slider.value(), 12);
}

TEST_F(BinderTest, TheWheelNeitherSeeksNorChangesAFieldThatHasNoFocus) {
  auto& slider = Shown<SeekSlider>(form.slider);
  form.slider.Max = 100;
  form.slider.Worked.Connect([this] { ++clicks; });
  QWheelEvent turn(QPointF(5, 5), slider.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&slider, &turn);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(slider.value(), 0);
}

TEST_F(BinderTest, AColourPanelShowsItsColour) {
  form.panel.BackColor = kRed;
  EXPECT_EQ(Shown<QFrame>(form.panel).palette().color(QPalette::Window), QColor(255, 0, 0));
}

TEST_F(BinderTest, AFramesTitleShowsAnAmpersandAsItIs) {
  form.frame.Caption = "Playlist- Rock & Roll";
  EXPECT_EQ(Shown<QGroupBox>(form.frame).title(), "Playlist- Rock && Roll");
}

TEST_F(BinderTest, AMousePressIsHeardByTheControlAndByNoOther) {
  std::vector<MouseButton> pressed;
  form.label.MouseDown.Connect([&](MouseButton button) { pressed.push_back(button); });
  Mouse(Shown<QLabel>(form.label), QEvent::MouseButtonPress, {2, 2}, Qt::RightButton);
  EXPECT_EQ(pressed, std::vector<MouseButton>{MouseButton::kRight});
}

TEST_F(BinderTest, AFormMayBeUnloadedByAClickOnItsOwnButton) {
  form.button.Click.Connect([this] { station.forms.Unload<SampleForm>(); });
  QPointer<QPushButton> button = &Shown<QPushButton>(form.button);
  button->click();
  EXPECT_FALSE(station.forms.Loaded<SampleForm>());
  ASSERT_FALSE(button.isNull()) << "the button must live until its click has returned";
  Settle();
  EXPECT_TRUE(button.isNull());
}

TEST_F(BinderTest, AFormUnloadedWhileItsClickStandsInADialogKeepsItsWidgetsUntilTheClickReturns) {
  QPointer<QPushButton> button = &Shown<QPushButton>(form.button);
  form.button.Click.Connect([&] {
    station.forms.Unload<SampleForm>();
    Settle();  // as the loop of a dialog does
    EXPECT_FALSE(button.isNull());
  });
  button->click();
  Settle();
  EXPECT_TRUE(button.isNull());
}

}  // namespace
