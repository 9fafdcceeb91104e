#include <gtest/gtest.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <vector>

#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/frames/TakesInput.h"
#include "platform/sim/SimWorld.h"
#include "platform/toolkit/BrowserControl.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "settings/Station.h"
#include "tests/platform/qt/LastWindow.h"
#include "tests/platform/qt/TestMedia.h"

// A page in a window on the air: which part of it is seen, and whose the operator's hands are.

namespace {

// A page that is painted by the test, and notes what it is handed, moves of the pointer left out.
class PaintedPage : public QObject, public BrowserSurface, public ShowsFrames, public TakesInput {
 public:
  void Navigate(const std::string&) override {}
  void Reload() override {}
  void SetLooks(const PageLooks&) override {}
  FrameSource& Frames() override { return frames_; }
  void Take(const QEvent& event) override {
    const bool isMove = event.type() == QEvent::MouseMove || event.type() == QEvent::HoverMove;
    if (!isMove) handed.push_back(event.type());
    if (!isMove && event.isPointerEvent()) {
      place = static_cast<const QSinglePointEvent&>(event).position().toPoint();
    }
  }
  // Red, and green below and to the right of that place.
  void PaintWithGreenFrom(int x, int y) { frames_.Paint(x, y); }
  QSize Wanted() const { return frames_.wanted; }

  std::vector<QEvent::Type> handed;
  QPoint place;

 private:
  class Pictures : public FrameSource {
   public:
    void SetTarget(QSize pixels) override { wanted = pixels; }
    std::optional<QImage> Take() override { return std::exchange(next_, std::nullopt); }
    void Paint(int x, int y) {
      QImage picture(wanted, QImage::Format_RGB32);
      picture.fill(Qt::red);
      for (int row = y; row < picture.height(); ++row) {
        for (int column = x; column < picture.width(); ++column) picture.setPixelColor(column, row, Qt::green);
      }
      next_ = picture;
      emit Changed();
    }
    QSize wanted;

   private:
    std::optional<QImage> next_;
  };

  Pictures frames_;
};

// Hands out one page.
class PaintedPages : public BrowserEngine {
 public:
  std::unique_ptr<BrowserSurface> NewSurface(const std::string&, BrowserListener&) override {
    auto made = std::make_unique<PaintedPage>();
    page = made.get();
    return made;
  }
  PaintedPage* page = nullptr;
};

// 100 by 60 pixels, with a page of 400 by 300 that is moved 50 to the left and 30 up.
class frmPeep : public Form {
 public:
  explicit frmPeep(Station& station) : Form(station.forms, "frmPeep", Kind::kOnAir) {
    Width = ToTwips(100);
    Height = ToTwips(60);
    Panel.SeeThrough = true;
    for (Control* control : {static_cast<Control*>(&Panel), static_cast<Control*>(&Web)}) {
      control->Width = ToTwips(400);
      control->Height = ToTwips(300);
    }
    Web.Left = ToTwips(-50);
    Web.Top = ToTwips(-30);
    Behind.Width = ToTwips(400);
    Behind.Height = ToTwips(300);
    Behind.BackColor = kWhite;
    Behind.Enabled = false;
    MouseDown.Connect([this](const MousePlace&) { ++presses; });
    Visible = true;
  }

  PictureBox Panel{*this, "Panel"};
  BrowserControl Web{Panel, "Web"};
  PictureBox Behind{*this, "Behind"};
  int presses = 0;
};

class PageItemTest : public testing::Test, public LastWindow {
 protected:
  PixelSize ScreenSize() const override { return {400, 300}; }

  bool Shows(int x, int y, const QColor& colour) {
    return Until([&] { return window->grabWindow().pixelColor(x, y) == colour; });
  }
  PaintedPage& Page() { return *pages.page; }

  SimWorld sim;
  PaintedPages pages;
  World world{sim.time, scheduler,   sim.files,   sim.media,    sim.flash,   pages,    sim.pictures,
              *this,    sim.dialogs, sim.desktop, sim.monitors, sim.network, sim.feeds};
  Station station{world, test_media::PathOf("station")};
  frmPeep& form = station.forms.Get<frmPeep>();
};

TEST_F(PageItemTest, ThePartThatThePageIsMovedToIsSeen) {
  ASSERT_TRUE(Until([&] { return Page().Wanted() == QSize(400, 300); }));
  Page().PaintWithGreenFrom(80, 50);
  EXPECT_TRUE(Shows(30, 20, Qt::green));
  EXPECT_TRUE(Shows(29, 20, Qt::red));
  EXPECT_TRUE(Shows(30, 19, Qt::red));
  form.Web.Left = ToTwips(-40);
  EXPECT_TRUE(Shows(39, 20, Qt::red));
  EXPECT_TRUE(Shows(40, 20, Qt::green));
}

TEST_F(PageItemTest, WhatStandsBehindIsSeenUntilThePagePaints) {
  ASSERT_TRUE(Shows(30, 20, Qt::white));
  ASSERT_TRUE(Until([&] { return !Page().Wanted().isEmpty(); }));
  Page().PaintWithGreenFrom(0, 0);
  EXPECT_TRUE(Shows(30, 20, Qt::green));
}

TEST_F(PageItemTest, AFormWithPanesStaysOpaqueWhenItsStyleIsLayered) {
  ASSERT_TRUE(Shows(30, 20, Qt::white));
  form.ExtendedStyle = kLayered;
  form.Behind.Visible = false;
  EXPECT_TRUE(Shows(30, 20, Qt::black));
  EXPECT_EQ(window->color().alpha(), 255);
}

TEST_F(PageItemTest, TheHandsReachThePageAtItsOwnMeasures) {
  QTest::mousePress(window, Qt::LeftButton, {}, QPoint(10, 5));
  EXPECT_EQ(Page().place, QPoint(60, 35));
  QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(12, 5));
  EXPECT_EQ(Page().place, QPoint(62, 35));
  window->requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  QTest::keyClick(window, Qt::Key_A);
  EXPECT_EQ(Page().handed,
            (std::vector{QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::KeyPress, QEvent::KeyRelease}));
  EXPECT_EQ(form.presses, 0);
}

TEST_F(PageItemTest, WhileItsPanelIsDisabledTheHandsAreTheForms) {
  form.Panel.Enabled = false;
  QTest::mousePress(window, Qt::LeftButton, {}, QPoint(10, 5));
  QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(10, 5));
  EXPECT_TRUE(Page().handed.empty());
  EXPECT_EQ(form.presses, 1);
  form.Panel.Enabled = true;
  QTest::mousePress(window, Qt::LeftButton, {}, QPoint(10, 5));
  EXPECT_EQ(form.presses, 1);
}

TEST_F(PageItemTest, AWindowWithAPageMayBeTypedInto) {
  EXPECT_FALSE(window->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_TRUE(window->property("_q_showWithoutActivating").toBool()) << "it takes no keyboard by being shown";
}

}  // namespace
