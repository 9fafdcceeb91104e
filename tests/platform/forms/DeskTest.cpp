#include <QAction>
#include <QComboBox>
#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>

#include "platform/qt/flash/QtFlash.h"
#include "platform/qt/forms/SeekSlider.h"
#include "platform/qt/frames/FrameWidget.h"
#include "platform/qt/scene/PictureLoader.h"
#include "tests/platform/TemporaryFolder.h"
#include "tests/platform/forms/FormTest.h"
#include "tests/platform/forms/frmDesk.h"

namespace {

// The controls that the desk and the advertising forms have beside those of the playlist manager.
class DeskTest : public FormTest {
 protected:
  DeskTest() { form.Show(), Settle(); }

  template <class W>
  W& Child(const char* name) {
    return *WindowOf(form).Widget().findChild<W*>(name);
  }
  // What the frame of a control shows, in its middle and at its left edge.
  static QColor At(QWidget& frame, QPoint place) { return frame.grab().toImage().pixelColor(place); }
  static bool Becomes(QWidget& frame, QPoint place, const QColor& colour) {
    return QTest::qWaitFor([&] { return At(frame, place) == colour; });
  }
  std::string Picture(const std::string& name, QSize size, const QColor& colour) {
    const std::string path = folder.Path() + "/" + name;
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    image.save(QString::fromStdString(path), "PNG");
    return path;
  }

  TemporaryFolder folder;
  PictureLoader loader;
  QtWindows drawing{[this](Form& one) { return sim.windows.Create(one); }, Surfaces{NewFrameWidget, &loader}};
  QtFlash flash{loader, ""};  // pictures need no program
  World shown{sim.time, sim.time,    sim.files,   sim.media,    flash,       sim.browser, sim.pictures,
              drawing,  sim.dialogs, sim.desktop, sim.monitors, sim.network, sim.feeds};
  Station desk{shown, "/station"};
  frmDesk& form = desk.forms.Get<frmDesk>();
};

TEST_F(DeskTest, EveryControlEntryAndSeparatorHasItsPlaceInTheLayout) {
  EXPECT_EQ(WindowOf(form).Joined().Faults(), std::vector<std::string>{});
  EXPECT_TRUE(Child<QAction>("mnuSpace").isSeparator());
}

TEST_F(DeskTest, AnEntryOfAnArrayIsChosenByItsIndex) {
  int chosen = -1;
  for (int index : {0, 1}) form.mnuSWF[index].Click.Connect([&chosen, index] { chosen = index; });
  Child<QAction>("mnuSWF_1").trigger();
  EXPECT_EQ(chosen, 1);
}

TEST_F(DeskTest, TheTraysMenuIsNotOnTheBarAndOpensAtThePointer) {
  auto& menu = Child<QMenu>("mnuTray");
  EXPECT_FALSE(Child<QMenuBar>("layMenu").actions().contains(menu.menuAction()));
  form.PopUp(form.mnuTray);
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(menu.pos(), QCursor::pos());
  int exits = 0;
  form.mnuTrayExit.Click.Connect([&] { ++exits; });
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&Child<QAction>("mnuTrayExit")).center());
  EXPECT_EQ(exits, 1);
}

TEST_F(DeskTest, PanelsShowTheirTextsAndTheirLamps) {
  form.Panel.SetPanel(1, "07:00:00 AM");
  form.Panel.SetPanel(2, "Show clock True", StatusBar::Lamp::kOn);
  form.Panel.SetPanel(3, "Internet False", StatusBar::Lamp::kOff);
  QStringList texts, lamps;
  for (const QLabel* field : Child<QStatusBar>("Panel").findChildren<QLabel*>()) {
    EXPECT_TRUE(field->isVisible());
    texts.append(field->text());
    lamps.append(field->property("lamp").toString());
  }
  EXPECT_EQ(texts, (QStringList{"07:00:00 AM", "Show clock True", "Internet False"}));
  EXPECT_EQ(lamps, (QStringList{"", "on", "off"}));
}

TEST_F(DeskTest, AButtonBearsThePictureThatTheProgramGivesIt) {
  auto& button = Child<QPushButton>("btnPlay");
  form.btnPlay.Picture = "imgStop";
  const QImage stop = button.icon().pixmap(22).toImage();
  EXPECT_FALSE(stop.isNull());
  form.btnPlay.Picture = "imgPlay";
  EXPECT_NE(button.icon().pixmap(22).toImage(), stop);
}

TEST_F(DeskTest, ASliderWithALargeChangeIsMovedByItBesideTheThumbAndByThePageKeys) {
  auto& slider = Child<SeekSlider>("SldSpeed");
  form.SldSpeed.Min = 100;
  form.SldSpeed.Max = 5000;
  form.SldSpeed.Value = 100;
  form.SldSpeed.LargeChange = 1000;
  std::string told;
  form.SldSpeed.Scroll.Connect([&] { told += "m" + std::to_string(form.SldSpeed.Value.Get()) + " "; });
  form.SldSpeed.Click.Connect([&] { told += "l" + std::to_string(form.SldSpeed.Value.Get()) + " "; });
  form.SldSpeed.Worked.Connect([&] { told += "worked "; });
  const QPoint far(slider.width() - 2, slider.height() / 2);
  QTest::mousePress(&slider, Qt::LeftButton, {}, far);
  EXPECT_EQ(told, "m1100 ");
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, far);
  EXPECT_EQ(told, "m1100 l1100 ");
  told.clear();
  QTest::keyClick(&slider, Qt::Key_PageUp);
  EXPECT_EQ(told, "m2100 l2100 ");
  QTest::keyClick(&slider, Qt::Key_Left);
  EXPECT_EQ(form.SldSpeed.Value, 2099);
  told.clear();
  QTest::mouseClick(&slider, Qt::RightButton, {}, far);
  EXPECT_EQ(told, "");
}

TEST_F(DeskTest, AThumbThatIsDraggedTellsEachPlaceAndThenWhereItIsLetGoWhateverTheProgramSetsMeanwhile) {
  auto& slider = Child<SeekSlider>("SldSpeed");
  form.SldSpeed.Max = 1000;
  form.SldSpeed.LargeChange = 10;
  int moves = 0, last = 0;
  form.SldSpeed.Scroll.Connect([&] { ++moves; });
  form.SldSpeed.Click.Connect([&] { last = form.SldSpeed.Value; });
  const int middle = slider.height() / 2;
  QTest::mousePress(&slider, Qt::LeftButton, {}, {6, middle});
  for (const int x : {60, 120, 180}) QTest::mouseMove(&slider, {x, middle});
  const int held = slider.value();
  EXPECT_EQ(moves, 3);
  form.SldSpeed.Value = 7;  // the next ad brings its own
  EXPECT_EQ(slider.value(), held);
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, {180, middle});
  EXPECT_GT(held, 200);
  EXPECT_EQ(last, held);
}

TEST_F(DeskTest, WhatTheProgramPutsIntoASliderIsToldToNobodyAndStaysAsItIs) {
  int told = 0;
  form.SldSpeed.LargeChange = 5;
  form.SldSpeed.Scroll.Connect([&] { ++told; });
  form.SldSpeed.Min = 5;
  form.SldSpeed.Max = 200;
  form.SldSpeed.Value = 0;
  form.SldSpeed.Value = 150;
  form.SldSpeed.Value = 0;
  EXPECT_EQ(Child<SeekSlider>("SldSpeed").value(), 5);
  EXPECT_EQ(form.SldSpeed.Value, 0);
  EXPECT_EQ(told, 0);
}

TEST_F(DeskTest, AComboIsClearedAndFilledAnewAndShowsWhichOfTwinsItIs) {
  auto& fixed = Child<QComboBox>("CmbFixed");
  for (const char* item : {"1", "2", "1"}) form.CmbFixed.AddItem(item);
  form.CmbFixed.ListIndex = 2;
  EXPECT_EQ(fixed.currentIndex(), 2);
  form.CmbFixed.Text = "2";
  EXPECT_EQ(fixed.currentIndex(), 1);
  form.CmbFixed.Clear();
  EXPECT_EQ(fixed.count(), 0);
  form.CmbFixed.AddItem("9");
  EXPECT_EQ(fixed.currentIndex(), -1);
  auto& typed = Child<QComboBox>("CmbBreak");
  form.CmbBreak.AddItem("1");
  form.CmbBreak.Text = "15";
  form.CmbBreak.Clear();
  EXPECT_EQ(typed.currentText(), "");
  form.CmbBreak.Text = "20";
  form.CmbBreak.AddItem("1");
  EXPECT_EQ(typed.currentText(), "20");
}

TEST_F(DeskTest, APictureStandsWholeInItsProportionsInTheMiddleOfItsFrame) {
  auto& frame = Child<QFrame>("pic");
  const std::string path = Picture("tall.png", {40, 160}, Qt::red);
  sim.pictures.sizes[path] = {40, 160};
  sim.files.Put(path, "picture");
  form.pic.LoadPicture(path);
  const QPoint middle = frame.rect().center();
  EXPECT_TRUE(Becomes(frame, middle, Qt::red));
  EXPECT_EQ(At(frame, {middle.x(), 1}), QColor(Qt::red));
  EXPECT_NE(At(frame, {middle.x() - frame.height() / 4, middle.y()}), QColor(Qt::red));
  form.pic.LoadPicture("");
  EXPECT_TRUE(QTest::qWaitFor([&] { return At(frame, middle) != QColor(Qt::red); }));
}

TEST_F(DeskTest, AFlashBoxShowsAPictureWholeAndNothingForNoFile) {
  auto& frame = Child<QFrame>("Flash");
  const std::string path = Picture("header.jpg", {300, 30}, Qt::blue);
  sim.files.Put(path, "file");
  form.Flash.Movie = path;
  const QPoint middle = frame.rect().center();
  EXPECT_TRUE(Becomes(frame, middle, Qt::blue));
  EXPECT_NE(At(frame, {middle.x(), 1}), QColor(Qt::blue)) << "it is as wide as the frame, and as flat as it is";
  form.Flash.Movie = "";
  EXPECT_TRUE(QTest::qWaitFor([&] { return At(frame, middle) != QColor(Qt::blue); }));
}

TEST_F(DeskTest, APictureFollowsTheSizeOfItsFrame) {
  auto& frame = Child<QFrame>("pic");
  const std::string path = Picture("wide.png", {400, 100}, Qt::green);
  sim.pictures.sizes[path] = {400, 100};
  sim.files.Put(path, "picture");
  form.pic.LoadPicture(path);
  WindowOf(form).Widget().resize(800, 700);
  Settle();
  EXPECT_TRUE(Becomes(frame, {1, frame.height() / 2}, Qt::green));
}

TEST_F(DeskTest, AMousePressOnTheFormTellsItsPlaceAndTheButtons) {
  MousePlace pressed, moved;
  form.MouseDown.Connect([&](const MousePlace& place) { pressed = place; });
  form.MouseMove.Connect([&](const MousePlace& place) { moved = place; });
  QWidget& window = WindowOf(form).Widget();
  QMouseEvent press(QEvent::MouseButtonPress, {20, 10}, window.mapToGlobal(QPointF(20, 10)), Qt::RightButton,
                    Qt::LeftButton | Qt::RightButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &press);
  EXPECT_EQ(pressed.x, 300);
  EXPECT_EQ(pressed.y, 150);
  EXPECT_EQ(pressed.buttons, 3);
  QMouseEvent move(QEvent::MouseMove, {40, 10}, window.mapToGlobal(QPointF(40, 10)), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&window, &move);
  EXPECT_EQ(moved.x, 600);
  EXPECT_EQ(moved.buttons, 1);
}

}  // namespace
