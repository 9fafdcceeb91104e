#include <gtest/gtest.h>

#include <QPainter>
#include <QProcess>
#include <QQuickWindow>
#include <QScreen>
#include <QTest>

#include "platform/posix/PosixFiles.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/desktop/QtPictures.h"
#include "platform/qt/flash/QtFlash.h"
#include "platform/qt/scene/OnAirWindow.h"
#include "platform/qt/scene/PictureLoader.h"
#include "platform/sim/SimWorld.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "settings/Station.h"
#include "tests/platform/qt/TestMedia.h"
// X's own words come last.
#include <X11/extensions/XTest.h>
#include <X11/extensions/shape.h>

#include "platform/qt/desktop/XWindows.h"

// See-through windows over opaque ones on a real X server, with a compositing manager and without one: what is seen on
// the screen decides.

namespace {

using namespace std::chrono_literals;

constexpr Colour kBlue{0, 0, 255};
constexpr Colour kKey{0xCC, 0xCC, 0xFF};

// 400 by 300 pixels at 100, 100; the left half red, the right half blue.
class frmGround : public Form {
 public:
  explicit frmGround(Station& station) : Form(station.forms, "frmGround", Kind::kOnAir) {
    Left = Top = ToTwips(100);
    Width = ToTwips(400);
    Height = ToTwips(300);
    for (PictureBox* half : {&Right, &All}) half->Height = Height.Get();
    All.Width = Width.Get();
    All.BackColor = kRed;
    Right.Left = ToTwips(200);
    Right.Width = ToTwips(200);
    Right.BackColor = kBlue;
    Visible = true;
  }
  PictureBox Right{*this, "Right"};
  PictureBox All{*this, "All"};
};

class frmGlassBase : public Form {
 public:
  frmGlassBase(Station& station, const char* name) : Form(station.forms, name, Kind::kOnAir) {
    Left = ToTwips(250);
    Top = ToTwips(150);
    Width = Height = ToTwips(100);
    Grip.Width = Flash.Width = Width.Get();
    Grip.Height = Flash.Height = Height.Get();
    Grip.MouseDown.Connect([this](MouseButton) { Window()->DragWindow([] {}); });
    OnTop = true;
    KeyColour = kKey;
    ExtendedStyle = kLayered;
  }
  PaneText Grip{*this, "Grip"};
  FlashBox Flash{*this, "Flash"};
};
class frmGlass : public frmGlassBase {
 public:
  explicit frmGlass(Station& station) : frmGlassBase(station, "frmGlass") {}
};
class frmOtherGlass : public frmGlassBase {
 public:
  explicit frmOtherGlass(Station& station) : frmGlassBase(station, "frmOtherGlass") {}
};

// 100 by 100 pixels: green in the left upper quarter, half-transparent green in the right upper one, nearly nothing in
// the left lower one, nothing in the right lower one.
QImage Quarters() {
  QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.fillRect(0, 0, 50, 50, QColor(0, 255, 0));
  painter.fillRect(50, 0, 50, 50, QColor(0, 255, 0, 150));
  painter.fillRect(0, 50, 50, 50, QColor(0, 255, 0, 50));
  return image;
}

std::string Saved(const std::string& name, const QImage& image) {
  const std::string path = test_media::PathOf(name);
  EXPECT_TRUE(image.save(QString::fromStdString(path)));
  return path;
}

class GlassTest : public testing::Test, public Windows {
 protected:
  static void SetUpTestSuite() {
    manager_ = new QProcess;
    manager_->start("openbox", {});
    ASSERT_TRUE(manager_->waitForStarted());
    // Windows that are there before it are taken down and put up again.
    ASSERT_TRUE(Until([] {
      Display* display = XDisplay();
      return !ReadList(display, DefaultRootWindow(display), "_NET_SUPPORTING_WM_CHECK", XA_WINDOW).empty();
    }));
  }
  static void TearDownTestSuite() {
    manager_->terminate();
    manager_->waitForFinished();
    delete manager_;
  }
  ~GlassTest() override {
    EndCompositor();
    XCloseDisplay(other);
  }

  std::unique_ptr<FormWindow> Create(Form& form) override {
    auto made = std::make_unique<OnAirWindow>(form, scene);
    windows[&form] = made->Window();
    return made;
  }
  PixelSize ScreenSize() const override { return {1280, 800}; }

  void StartCompositor() {
    compositor_.start("picom", {"--config", "/dev/null", "--backend", "xrender"});
    ASSERT_TRUE(Until([this] { return IsComposited(); }));
    Becomes(150, 150, Qt::red);
  }
  void EndCompositor() {
    if (compositor_.state() == QProcess::NotRunning) return;
    compositor_.terminate();
    compositor_.waitForFinished();
    Until([this] { return !IsComposited(); });
  }
  bool IsComposited() const { return XGetSelectionOwner(other, XInternAtom(other, "_NET_WM_CM_S0", 0)) != 0; }

  static QImage Screen() { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); }
  static bool IsNear(const QColor& one, const QColor& other) {
    return std::abs(one.red() - other.red()) < 4 && std::abs(one.green() - other.green()) < 4 &&
           std::abs(one.blue() - other.blue()) < 4;
  }
  bool Becomes(int x, int y, const QColor& expected) {
    const bool became = Until([&] { return IsNear(Screen().pixelColor(x, y), expected); }, 15s);
    EXPECT_TRUE(became) << x << ", " << y << ": " << Screen().pixelColor(x, y).name().toStdString();
    return became;
  }
  void Put(frmGlassBase& form, const std::string& name, const QImage& image) {
    form.Flash.Movie = Saved(name, image);
    form.Show();
  }
  void PressAt(int x, int y) {
    XTestFakeMotionEvent(other, -1, x, y, 0);
    XTestFakeButtonEvent(other, 1, 1, 0);
    XFlush(other);
  }
  void MoveTo(int x, int y) {
    XTestFakeMotionEvent(other, -1, x, y, 0);
    XFlush(other);
  }
  void Release() {
    XTestFakeButtonEvent(other, 1, 0, 0);
    XFlush(other);
  }

  // The station's windows by their forms, front to back.
  std::vector<std::string> Stack() const {
    std::vector<std::string> names;
    for (const Window window : ReadList(other, DefaultRootWindow(other), "_NET_CLIENT_LIST_STACKING", XA_WINDOW)) {
      for (const auto& [form, shown] : windows) {
        if (shown && shown->winId() == window) names.insert(names.begin(), form->Name());
      }
    }
    return names;
  }

  const QColor mixedWithRed{105, 150, 0};   // the half-transparent green over red
  const QColor mixedWithBlue{0, 150, 105};  // and over blue
  const QColor nearlyRed{205, 50, 0};

  Display* other = XOpenDisplay(nullptr);
  SimWorld sim;
  QtScheduler scheduler;
  PictureLoader loader;
  Scene scene{scheduler, loader};
  PosixFiles files;
  QtFlash flash{loader, MOVIE_PROGRAM};
  QtPictures pictures;
  std::map<Form*, QPointer<QQuickWindow>> windows;
  World world{sim.time, scheduler,   files,       sim.media,    flash,       sim.browser, pictures,
              *this,    sim.dialogs, sim.desktop, sim.monitors, sim.network, sim.feeds};
  Station station{world, test_media::PathOf("station")};
  frmGround& ground = station.forms.Get<frmGround>();
  frmGlass& glass = station.forms.Get<frmGlass>();

 private:
  static inline QProcess* manager_ = nullptr;
  QProcess compositor_;
};

class GlassUnderAnyManager : public GlassTest, public testing::WithParamInterface<bool> {
 protected:
  void SetUp() override {
    if (GetParam()) StartCompositor();
  }
};

INSTANTIATE_TEST_SUITE_P(Compositor, GlassUnderAnyManager, testing::Bool(),
                         [](const auto& one) { return one.param ? "WithCompositor" : "WithoutCompositor"; });

TEST_P(GlassUnderAnyManager, WhatIsBehindIsSeenAsTheAlphaSays) {
  Put(glass, "quarters.png", Quarters());
  Becomes(275, 175, Qt::green);
  Becomes(325, 175, mixedWithBlue);
  Becomes(275, 225, nearlyRed);
  Becomes(325, 225, Qt::blue);
  glass.Left = ToTwips(230);
  Becomes(290, 175, mixedWithRed);
  Becomes(301, 175, mixedWithBlue);
  ground.Right.BackColor = kWhite;
  Becomes(301, 175, QColor(105, 255, 105));
}

TEST_P(GlassUnderAnyManager, AnEmptyWindowCannotBeSeen) {
  glass.Show();
  Pass(500ms);
  Becomes(275, 175, Qt::red);
  Becomes(325, 175, Qt::blue);
}

TEST_P(GlassUnderAnyManager, APixelOfTheKeysColourInAStillPictureIsSeeThrough) {
  QImage image(100, 100, QImage::Format_RGB32);
  image.fill(QColor(0xCC, 0xCC, 0xFF));
  QPainter(&image).fillRect(0, 0, 50, 100, QColor(0xCC, 0xCC, 0xFE));
  Put(glass, "key.png", image);
  Becomes(275, 175, QColor(0xCC, 0xCC, 0xFE));
  Becomes(325, 175, Qt::blue);
  glass.KeyColour = std::nullopt;
  Becomes(325, 175, QColor(0xCC, 0xCC, 0xFF));
}

TEST_P(GlassUnderAnyManager, AFormThatIsNotSeeThroughIsOpaqueInItsOwnColour) {
  glass.BackColor = Colour{240, 240, 200};
  Put(glass, "quarters.png", Quarters());
  Becomes(275, 175, Qt::green);
  glass.ExtendedStyle = 0;
  Becomes(325, 225, QColor(240, 240, 200));
  Becomes(275, 175, Qt::green);
  Becomes(325, 175, QColor(99, 249, 82));
  glass.ExtendedStyle = kLayered;
  Becomes(325, 225, Qt::blue);
}

TEST_P(GlassUnderAnyManager, TheFrontOfTwoSeeThroughWindowsStandsOverTheOther) {
  frmOtherGlass& front = station.forms.Get<frmOtherGlass>();
  front.Left = ToTwips(200);  // its right half over the left half of the other
  Put(glass, "quarters.png", Quarters());
  QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
  image.fill(QColor(200, 0, 200, 150));
  Put(front, "violet.png", image);
  Becomes(275, 175, QColor(118, 105, 118));
  Becomes(225, 175, QColor(223, 0, 118));
  glass.OnTop = true;
  Becomes(275, 175, Qt::green);
}

TEST_P(GlassUnderAnyManager, ItIsDraggedByAHalfTransparentPixelToo) {
  Put(glass, "quarters.png", Quarters());
  Becomes(325, 175, mixedWithBlue);
  PressAt(340, 190);
  Until([&] { return QGuiApplication::mouseButtons() != Qt::NoButton; }, 5s);
  MoveTo(350, 195);
  MoveTo(360, 200);
  EXPECT_TRUE(Until([&] { return glass.Left == ToTwips(270) && glass.Top == ToTwips(160); }, 15s));
  Release();
  Becomes(295, 185, Qt::green);
  Becomes(345, 185, mixedWithBlue);
  Becomes(255, 155, Qt::red);
}

TEST_P(GlassUnderAnyManager, ItTakesNoKeyboardAndStandsInNoListOfWindows) {
  Put(glass, "quarters.png", Quarters());
  Becomes(275, 175, Qt::green);
  EXPECT_TRUE(windows[&glass]->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
  for (const char* state : {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_ABOVE"}) {
    const auto has = [&] {
      const auto states = ReadList(other, windows[&glass]->winId(), "_NET_WM_STATE", XA_ATOM);
      return std::ranges::count(states, XInternAtom(other, state, 0)) == 1;
    };
    EXPECT_TRUE(Until(has, 10s)) << state;
  }
}

TEST_P(GlassUnderAnyManager, ItStandsInFrontOfAnOutputThatFillsTheMonitorAndWasPressed) {
  ground.Left = ground.Top = 0;
  ground.Width = ground.All.Width = ToTwips(1280);
  ground.Height = ground.All.Height = ToTwips(800);
  Put(glass, "quarters.png", Quarters());
  Becomes(275, 175, Qt::green);
  Becomes(1000, 700, Qt::red);
  PressAt(1000, 700);
  Release();
  Pass(500ms);
  Becomes(275, 175, Qt::green);
  EXPECT_EQ(Stack(), (std::vector<std::string>{"frmGlass", "frmGround"}));
}

TEST_F(GlassTest, ACompositingManagerMayStartAndEndAtAnyTime) {
  Put(glass, "quarters.png", Quarters());
  Becomes(325, 175, mixedWithBlue);
  EXPECT_FALSE(windows[&glass]->mask().isEmpty());
  StartCompositor();
  EXPECT_TRUE(Until([&] { return windows[&glass]->mask().isEmpty(); }));
  Becomes(325, 175, mixedWithBlue);
  Becomes(325, 225, Qt::blue);
  EndCompositor();
  EXPECT_TRUE(Until([&] { return !windows[&glass]->mask().isEmpty(); }));
  Becomes(325, 175, mixedWithBlue);
  Becomes(325, 225, Qt::blue);
}

TEST_F(GlassTest, AnEmptyWindowDoesNotFlashUp) {
  bool wasSeen = false;
  Becomes(275, 175, Qt::red);
  glass.Show();
  for (int i = 0; i < 60; ++i) {
    Pass(5ms);
    wasSeen = wasSeen || !IsNear(Screen().pixelColor(275, 175), Qt::red);
  }
  EXPECT_FALSE(wasSeen);
}

TEST_F(GlassTest, WhereNoWindowOfTheStationIsBehindAPixelIsSeenOrItIsNot) {
  glass.Left = ToTwips(600);
  Put(glass, "quarters.png", Quarters());
  Becomes(625, 175, Qt::green);
  EXPECT_EQ(windows[&glass]->mask(), QRegion(0, 0, 100, 50));
}

TEST_F(GlassTest, AcrossTheEdgeOfTheWindowBehindEachPartIsShownItsOwnWay) {
  glass.Left = ToTwips(425);  // 75 pixels are over the ground
  Put(glass, "quarters.png", Quarters());
  Becomes(490, 175, mixedWithBlue);
  EXPECT_TRUE(Until([&] { return windows[&glass]->mask() == QRegion(0, 0, 50, 50) + QRegion(75, 0, 25, 50); }));
}

TEST_F(GlassTest, AStripThatStandsBetweenPaintsItToo) {
  class frmStrip : public Form {
   public:
    explicit frmStrip(Station& station) : Form(station.forms, "frmStrip", Kind::kOnAir) {
      Left = ToTwips(100);
      Top = ToTwips(150);
      Width = ToTwips(400);
      Height = ToTwips(40);
      BackColor = kWhite;
      OnTop = true;
      Visible = true;
    }
  };
  station.forms.Get<frmStrip>();
  Put(glass, "quarters.png", Quarters());
  Becomes(325, 175, QColor(105, 255, 105));
  Becomes(325, 195, mixedWithBlue);
  station.forms.Get<frmStrip>().OnTop = true;
  Becomes(325, 175, Qt::white);
  Becomes(275, 175, Qt::white);
  Becomes(325, 195, mixedWithBlue);
}

TEST_P(GlassUnderAnyManager, AWindowThatBecomesSeeThroughPaintsNoOtherAnyMore) {
  frmOtherGlass& behind = station.forms.Get<frmOtherGlass>();
  behind.ExtendedStyle = 0;
  behind.BackColor = kWhite;
  behind.Show();
  Becomes(275, 225, Qt::white);
  Put(glass, "quarters.png", Quarters());
  glass.OnTop = true;
  Becomes(275, 175, Qt::green);
  Becomes(275, 225, QColor(205, 255, 205));
  behind.ExtendedStyle = kLayered;
  Becomes(275, 225, nearlyRed);
  glass.Hide();
  Becomes(275, 175, Qt::red);
  Becomes(325, 175, Qt::blue);
}

TEST_P(GlassUnderAnyManager, AWindowMayBecomeSeeThroughWhileItIsShown) {
  class frmLate : public frmGlassBase {
   public:
    explicit frmLate(Station& station) : frmGlassBase(station, "frmLate") {
      ExtendedStyle = 0;
      BackColor = kWhite;
    }
  };
  frmLate& late = station.forms.Get<frmLate>();
  late.Show();
  Becomes(275, 175, Qt::white);
  late.ExtendedStyle = kLayered;
  Becomes(275, 175, Qt::red);
  Put(late, "quarters.png", Quarters());
  Becomes(275, 225, nearlyRed);
  Becomes(325, 175, mixedWithBlue);
}

// The window manager brings it onto the screen that is left. With the screen it comes back to where it was.
TEST_F(GlassTest, AWindowWhoseScreenIsGoneKeepsItsPlace) {
  Put(glass, "quarters.png", Quarters());
  Becomes(275, 175, Qt::green);
  glass.Left = ToTwips(1920);
  ASSERT_TRUE(Until([&] { return windows[&glass]->x() > 250; }));
  QTest::qWait(1000);
  EXPECT_EQ(ToPixels(glass.Left), 1920);
  glass.Left = ToTwips(250);
  Becomes(275, 175, Qt::green);
}

TEST_F(GlassTest, WhatHasMovedLeavesNothingBehind) {
  QImage left(100, 100, QImage::Format_ARGB32_Premultiplied);
  left.fill(Qt::transparent);
  QImage right = left;
  QPainter(&left).fillRect(0, 0, 60, 100, Qt::green);
  QPainter(&right).fillRect(40, 0, 60, 100, Qt::green);
  Put(glass, "left.png", left);
  Becomes(255, 175, Qt::green);
  Put(glass, "right.png", right);
  Becomes(345, 175, Qt::green);
  Becomes(255, 175, Qt::red);
  // From now on it moves in a part that the window has left to what is behind.
  for (const char* name : {"left.png", "right.png"}) {
    glass.Flash.Movie = test_media::PathOf(name);
    EXPECT_TRUE(Until([&] { return IsNear(Screen().pixelColor(*name == 'l' ? 255 : 345, 175), Qt::green); }));
    EXPECT_TRUE(IsNear(Screen().pixelColor(*name == 'l' ? 345 : 255, 175), *name == 'l' ? Qt::blue : Qt::red)) << name;
  }
}

TEST_F(GlassTest, TheShapeFollowsThePictureAtMostTenTimesASecond) {
  glass.Left = ToTwips(600);
  std::vector<std::string> files;
  for (int width = 1; width <= 30; ++width) {
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(0, 0, width * 3, 100, Qt::green);
    files.push_back(Saved("width" + std::to_string(width) + ".png", image));
  }
  Put(glass, "quarters.png", Quarters());
  Becomes(625, 175, Qt::green);
  Pass(300ms);
  XShapeSelectInput(other, windows[&glass]->winId(), ShapeNotifyMask);
  XSync(other, 1);
  QElapsedTimer time;
  time.start();
  for (const std::string& file : files) {
    glass.Flash.Movie = file;
    Pass(20ms);
  }
  EXPECT_TRUE(Until([&] { return windows[&glass]->mask() == QRegion(0, 0, 90, 100); }));
  const auto most = time.elapsed() / 100 + 2;
  XSync(other, 0);
  EXPECT_LE(XPending(other), most);
  EXPECT_GE(XPending(other), 2);
  Pass(500ms);
  XSync(other, 0);
  EXPECT_LE(XPending(other), most) << "a picture that stands still changes no shape";
}

}  // namespace
