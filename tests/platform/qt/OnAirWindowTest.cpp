#include <gtest/gtest.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include "platform/posix/PosixFiles.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/desktop/QtPictures.h"
#include "platform/qt/flash/QtFlash.h"
#include "platform/qt/media/MpvEngine.h"
#include "platform/sim/SimWorld.h"
#include "platform/toolkit/FlashBox.h"
#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "platform/toolkit/PlayerControl.h"
#include "settings/Station.h"
#include "tests/platform/qt/LastWindow.h"
#include "tests/platform/qt/TestMedia.h"

namespace {

using namespace std::chrono_literals;

// A form of every kind of pane. 64 by 48 pixels at 10, 20.
class frmProbe : public Form {
 public:
  explicit frmProbe(Station& station) : Form(station.forms, "frmProbe", Kind::kOnAir) {
    Left = 150;
    Top = 300;
    Width = 960;
    Height = 720;
    Front.Width = 300;
    Front.Height = 300;
    Front.BackColor = kRed;
    Back.Left = 150;
    Back.Top = 150;
    Back.Width = 300;
    Back.Height = 300;
    Back.BackColor = kWhite;
    Media.Top = 450;
    Media.Width = 960;
    Media.Height = 270;
    Player.Width = 960;
    Player.Height = 270 + 900;
    Player.stretchToFit = true;
    Visible = true;
  }

  PictureBox Front{*this, "Front"};
  PictureBox Inside{Front, "Inside"};
  FlashBox Movie{*this, "Movie"};
  PaneText Text{*this, "Text"};
  PictureBox Back{*this, "Back"};
  PictureBox Media{*this, "Media"};
  PlayerControl Player{Media, "Player"};
};

class OnAirWindowTest : public testing::Test, public LastWindow {
 protected:
  QColor At(int x, int y) { return window->grabWindow().pixelColor(x, y); }
  bool Becomes(int x, int y, const QColor& expected) {
    return Until([&] { return Distance(At(x, y), expected) < 24; }, 10s);
  }
  static int Distance(const QColor& one, const QColor& other) {
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
  }

  SimWorld sim;
  QtClock clock;
  PosixFiles files;
  MpvEngine media;
  QtFlash flash{loader, MOVIE_PROGRAM};
  QtPictures pictures;
  World world{clock, scheduler,   files,       media,        flash,       sim.browser, pictures,
              *this, sim.dialogs, sim.desktop, sim.monitors, sim.network, sim.feeds};
  Station station{world, test_media::PathOf("station")};
  frmProbe& form = station.forms.Get<frmProbe>();
};

TEST_F(OnAirWindowTest, TheWindowStandsWhereTheFormStands) {
  EXPECT_EQ(window->geometry(), QRect(10, 20, 64, 48));
  EXPECT_TRUE(window->isVisible());
  form.Left = 450;
  form.Width = 1500;
  EXPECT_TRUE(Until([&] { return window->geometry() == QRect(30, 20, 100, 48); }));
  form.Hide();
  EXPECT_FALSE(window->isVisible());
}

TEST_F(OnAirWindowTest, EveryControlHasItsItemInTheScene) {
  for (const char* name : {"Front", "Inside", "Movie", "Text", "Back", "Media", "Player"}) {
    EXPECT_NE(window->contentItem()->findChild<QQuickItem*>(name), nullptr) << name;
  }
}

// A kind of control that no line of the table names.
class Stranger : public Control {
 public:
  using Control::Control;
  std::string_view Kind() const override { return "Stranger"; }
};

class frmStrange : public Form {
 public:
  explicit frmStrange(Station& station) : Form(station.forms, "frmStrange", Kind::kOnAir) {}
  Stranger Unknown{*this, "Unknown"};
  PictureBox Known{*this, "Known"};
};

TEST_F(OnAirWindowTest, AControlThatNothingShowsIsSaidAndTheOthersAreShown) {
  static QString said;
  const auto before =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { said = text; });
  station.forms.Get<frmStrange>();
  qInstallMessageHandler(before);
  EXPECT_EQ(said, "Unknown: nothing on the air shows a Stranger");
  EXPECT_EQ(window->contentItem()->findChild<QQuickItem*>("Unknown"), nullptr);
  EXPECT_NE(window->contentItem()->findChild<QQuickItem*>("Known"), nullptr);
}

TEST_F(OnAirWindowTest, TheWindowNeverMovesThroughThePlacesOfOneHandler) {
  QSignalSpy moves(window.data(), &QWindow::xChanged);
  form.Left = 0;
  form.Left = 300;
  form.Left = 150;
  Pass(50ms);
  EXPECT_EQ(moves.count(), 0);
}

TEST_F(OnAirWindowTest, ThePaneDeclaredFirstStandsInFront) {
  EXPECT_TRUE(Becomes(15, 15, Qt::red));
  EXPECT_TRUE(Becomes(25, 25, Qt::white));
  EXPECT_TRUE(Becomes(50, 5, Qt::black));
  form.Front.Visible = false;
  EXPECT_TRUE(Becomes(15, 15, Qt::white));
  form.Back.Top = 600;
  EXPECT_TRUE(Becomes(15, 15, Qt::black));
}

TEST_F(OnAirWindowTest, APaneCutsOffWhatItHolds) {
  form.Inside.BackColor = Colour{0, 0, 255};
  form.Inside.Left = -60;
  form.Inside.Top = 75;
  form.Inside.Width = 960;
  form.Inside.Height = 75;
  EXPECT_TRUE(Becomes(5, 7, Qt::blue));
  EXPECT_TRUE(Becomes(40, 7, Qt::black));
}

TEST_F(OnAirWindowTest, APictureIsShownAtItsOwnSizeFromTheLeftTopCorner) {
  form.Front.LoadPicture(test_media::Picture("small.png", Qt::green, {8, 8}));
  EXPECT_TRUE(Becomes(4, 4, Qt::green));
  EXPECT_TRUE(Becomes(12, 12, Qt::red));
  EXPECT_THROW(form.Front.LoadPicture(test_media::PathOf("absent.png")), std::exception);
  Pass(100ms);
  EXPECT_TRUE(Becomes(4, 4, Qt::green)) << "one that cannot be loaded leaves the pane as it was";
  form.Front.LoadPicture("");
  EXPECT_TRUE(Becomes(4, 4, Qt::red));
}

TEST_F(OnAirWindowTest, AVeryWidePictureScrollsToItsEnd) {
  QImage wide(70000, 4, QImage::Format_RGB32);
  wide.fill(Qt::green);
  for (int x = 69990; x < 70000; ++x) {
    for (int y = 0; y < 4; ++y) wide.setPixelColor(x, y, Qt::blue);
  }
  const std::string path = test_media::PathOf("wide.png");
  ASSERT_TRUE(wide.save(QString::fromStdString(path)));
  form.Inside.Width = 70000 * kTwipsPerPixel;
  form.Inside.Height = 4 * kTwipsPerPixel;
  form.Inside.LoadPicture(path);
  EXPECT_TRUE(Becomes(5, 2, Qt::green));
  form.Inside.Left = -69985 * kTwipsPerPixel;
  EXPECT_TRUE(Becomes(3, 2, Qt::green));
  EXPECT_TRUE(Becomes(8, 2, Qt::blue));
  EXPECT_TRUE(Becomes(18, 2, Qt::red));
}

TEST_F(OnAirWindowTest, AFlashSurfaceShowsAPictureOverAllOfItsRectangle) {
  form.Movie.Left = 480;
  form.Movie.Width = 300;
  form.Movie.Height = 150;
  form.Movie.Movie = test_media::Picture("panel.jpg", Qt::green, {3, 3});
  EXPECT_TRUE(Becomes(33, 1, Qt::green));
  EXPECT_TRUE(Becomes(50, 9, Qt::green));
  form.Movie.Width = 450;
  EXPECT_TRUE(Becomes(60, 5, Qt::green));
  form.Movie.Movie = test_media::Text("damaged.swf", "FWS");
  Pass(100ms);
  EXPECT_TRUE(Becomes(50, 5, Qt::green)) << "what cannot be shown leaves what was";
  form.Movie.Movie = "";
  EXPECT_TRUE(Becomes(50, 5, Qt::black));
}

TEST_F(OnAirWindowTest, ATextIsShown) {
  form.Text.Left = 480;
  form.Text.Width = 480;
  form.Text.Height = 300;
  form.Text.Text = "WWWW";
  EXPECT_TRUE(Until([&] {
    const QImage seen = window->grabWindow();
    for (int x = 32; x < 64; ++x) {
      for (int y = 0; y < 20; ++y) {
        if (qGray(seen.pixel(x, y)) > 150) return true;
      }
    }
    return false;
  }));
}

TEST_F(OnAirWindowTest, APlayersPictureFillsWhatItsPaneLetsBeSeen) {
  // 64 by 18 pixels are seen; the 60 below are the place of the transport bar.
  form.Player.URL = test_media::Clip("wide.mp4", Qt::blue, 30, {640, 180});
  EXPECT_TRUE(Becomes(32, 32, Qt::blue));
  EXPECT_TRUE(Becomes(32, 46, Qt::blue));
  EXPECT_TRUE(Becomes(1, 40, Qt::blue));
  form.Player.controls.stop();
  EXPECT_TRUE(Becomes(32, 40, Qt::black));
}

TEST_F(OnAirWindowTest, APlayerThatWasHiddenIsSeenAgain) {
  form.Player.URL = test_media::Clip("hidden.mp4", Qt::blue, 30, {640, 180});
  EXPECT_TRUE(Becomes(32, 40, Qt::blue));
  form.Player.controls.pause();
  form.Media.Visible = false;
  EXPECT_TRUE(Becomes(32, 40, Qt::black));
  form.Media.Visible = true;
  EXPECT_TRUE(Becomes(32, 40, Qt::blue));
}

TEST_F(OnAirWindowTest, APlayerBehindAPaneIsSparedItsPicturesAndComesBackWithThem) {
  form.Player.URL = test_media::Clip("behind.mp4", Qt::blue, 60, {640, 180});
  EXPECT_TRUE(Becomes(32, 40, Qt::blue));
  form.Front.Width = 960;
  form.Front.Height = 720;
  EXPECT_TRUE(Becomes(32, 40, Qt::red));
  Pass(200ms);
  int paintings = 0;
  QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] { ++paintings; });
  Pass(500ms);
  EXPECT_LE(paintings, 1);
  form.Front.Visible = false;
  EXPECT_TRUE(Becomes(32, 40, Qt::blue));
  paintings = 0;
  EXPECT_TRUE(Until([&] { return paintings > 5; }));
}

TEST_F(OnAirWindowTest, AMovingPaneAndThePictureUnderItArePaintedTogether) {
  form.Player.URL = test_media::Clip("under.mp4", Qt::blue, 30, {640, 180});
  EXPECT_TRUE(Becomes(32, 40, Qt::blue));
  int ticks = 0;
  int paintings = 0;
  scheduler.Start(1ms, TickPhase::kFromStart, [&] {
    ++ticks;
    form.Front.Left = form.Front.Left == 0.0 ? 15.0 : 0.0;
  });
  QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] { ++paintings; });
  Pass(1500ms);
  EXPECT_GT(paintings, 0);
  EXPECT_LE(paintings, ticks + 1);
}

TEST_F(OnAirWindowTest, APressReachesThePaneUnderThePointer) {
  std::string pressed;
  form.Front.MouseDown.Connect([&](MouseButton) { pressed += "F"; });
  form.Back.MouseDown.Connect([&](MouseButton) { pressed += "B"; });
  form.MouseDown.Connect([&](const MousePlace& place) { pressed += place.Down(MouseButton::kRight) ? "R" : "L"; });
  QTest::mouseClick(window, Qt::LeftButton, {}, {15, 15});
  QTest::mouseClick(window, Qt::LeftButton, {}, {25, 25});
  QTest::mouseClick(window, Qt::RightButton, {}, {50, 5});
  EXPECT_EQ(pressed, "FBR");
}

TEST_F(OnAirWindowTest, APaneFollowsThePointerUntilTheButtonIsLetGo) {
  bool done = false;
  form.Front.MouseDown.Connect([&](MouseButton) { form.Window()->DragPane(form.Front, [&] { done = true; }); });
  QTest::mousePress(window, Qt::LeftButton, {}, {5, 5});
  QTest::mouseMove(window, {12, 9});
  EXPECT_TRUE(Until([&] { return form.Front.Left == 105.0 && form.Front.Top == 60.0; }));
  EXPECT_FALSE(done);
  QTest::mouseRelease(window, Qt::LeftButton, {}, {12, 9});
  EXPECT_TRUE(done);
  QTest::mouseMove(window, {20, 20});
  Pass(20ms);
  EXPECT_EQ(form.Front.Left, 105.0);
}

TEST_F(OnAirWindowTest, TheWindowFollowsThePointerUntilTheButtonIsLetGo) {
  form.MouseDown.Connect([&](const MousePlace&) { form.Window()->DragWindow([] {}); });
  QTest::mousePress(window, Qt::LeftButton, {}, {50, 5});
  QTest::mouseMove(window, {57, 8});
  EXPECT_TRUE(Until([&] { return form.Left == 150.0 + 105.0 && form.Top == 300.0 + 45.0; }));
  QTest::mouseRelease(window, Qt::LeftButton, {}, {57, 8});
}

TEST_F(OnAirWindowTest, AMoveByTheWindowSystemIsTakenOver) {
  window->setGeometry(100, 90, 80, 70);
  EXPECT_TRUE(Until([&] { return form.Left == 1500.0 && form.Height == 1050.0; }));
  EXPECT_EQ(form.Top, 1350.0);
  EXPECT_EQ(form.Width, 1200.0);
}

TEST_F(OnAirWindowTest, AFormMayBeUnloadedByAPressOnIt) {
  form.Front.MouseDown.Connect([&](MouseButton) { station.forms.Unload<frmProbe>(); });
  form.Player.URL = test_media::Clip("going.mp4", Qt::blue, 30);
  QTest::mouseClick(window, Qt::LeftButton, {}, {5, 5});
  EXPECT_FALSE(station.forms.Loaded<frmProbe>());
  EXPECT_TRUE(Until([&] { return window.isNull(); }));
}

}  // namespace
