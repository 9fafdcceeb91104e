#include <QQuickWindow>
#include <QTest>

#include "platform/toolkit/Form.h"
#include "platform/toolkit/Panes.h"
#include "settings/Station.h"
#include "tests/platform/qt/LastWindow.h"
#include "tests/platform/qt/Worlds.h"

namespace {

using namespace std::chrono_literals;

class frmPeek : public Form {
 public:
  explicit frmPeek(Station& station) : Form(station.forms, "frmPeek", Kind::kPreview) {
    ++alive;
    Left = 1500;
    Top = 1500;
    Width = 3000;
    Height = 1500 + kPreviewFrame;
    Cover.Width = 1500;
    Cover.Height = 1500;
  }
  ~frmPeek() override { --alive; }

  inline static int alive = 0;
  PictureBox Cover{*this, "Cover"};
};

class PreviewWindowTest : public testing::Test, public LastWindow {
 protected:
  SimWorld sim;
  World world{sim.time, sim.time,    sim.files,   sim.media,    sim.flash,   sim.browser, sim.pictures,
              *this,    sim.dialogs, sim.desktop, sim.monitors, sim.network, sim.feeds};
  Station station{world, "/station"};
  frmPeek& form = station.forms.Get<frmPeek>();
};

TEST_F(PreviewWindowTest, ThePictureFillsWhatIsInsideTheFrameAndTheFrameEndsWhereTheFormEnds) {
  form.Show();
  EXPECT_FALSE(window->flags().testFlag(Qt::FramelessWindowHint));
  const auto settled = [&] {
    const QRect inside = window->geometry();
    return inside.size() == QSize(200, 100) && inside.left() - window->frameMargins().left() == 100 &&
           inside.bottom() + 1 + window->frameMargins().bottom() == 100 + 100 + 33;
  };
  EXPECT_TRUE(Until(settled, 10s));
  Pass(500ms);
  EXPECT_EQ(form.Top.Get(), 1500) << "what the form says of itself stays as it was";
  EXPECT_EQ(form.Height.Get(), 1500 + kPreviewFrame);
}

TEST_F(PreviewWindowTest, WhereTheOperatorMovesItTheFormStands) {
  form.Show();
  Pass(700ms);
  window->setPosition(window->position() + QPoint(40, 30));
  EXPECT_TRUE(Until([&] { return form.Left == 1500 + 40 * 15; }, 10s));
  EXPECT_EQ(form.Top.Get(), 1500 + 30 * 15);
  EXPECT_EQ(form.Height.Get(), 1500 + kPreviewFrame);
}

TEST_F(PreviewWindowTest, ItsCloseBoxUnloadsTheForm) {
  form.Show();
  window->close();
  EXPECT_FALSE(station.forms.Loaded<frmPeek>());
  EXPECT_EQ(frmPeek::alive, 0);
  Pass(50ms);
  EXPECT_TRUE(window.isNull());
  EXPECT_FALSE(station.forms.Get<frmPeek>().Visible) << "the next one is afresh, hidden";
}

TEST_F(PreviewWindowTest, ItTakesNoKeyboardWhenItPopsUp) {
  EXPECT_TRUE(window->property("_q_showWithoutActivating").toBool());
}

TEST_F(PreviewWindowTest, MovesOfThePointerAreToldWithTheirPlaceWhereTheFormIsBare) {
  form.Show();
  std::vector<MousePlace> moved;
  form.MouseMove.Connect([&](const MousePlace& place) { moved.push_back(place); });
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.data()));
  QTest::mouseMove(window.data(), {50, 50});
  Pass(50ms);
  EXPECT_TRUE(moved.empty()) << "a pane keeps its own";
  QTest::mouseMove(window.data(), {150, 50});
  EXPECT_TRUE(Until([&] { return !moved.empty(); }, 10s));
  EXPECT_EQ(moved.back().x, 150 * 15);
  EXPECT_EQ(moved.back().y, 50 * 15);
  form.Cover.Enabled = false;
  moved.clear();
  QTest::mouseMove(window.data(), {51, 50});
  EXPECT_TRUE(Until([&] { return !moved.empty(); }, 10s)) << "what is switched off lets it through";
  form.Pointer = MousePointer::kSizeWE;
  EXPECT_EQ(window->cursor().shape(), Qt::SizeHorCursor);
}

TEST_F(PreviewWindowTest, TheWindowFollowsThePointerUntilTheButtonIsLetGo) {
  form.Show();
  std::vector<std::pair<Twips, Twips>> pulled;
  form.MouseDown.Connect([&](const MousePlace& place) {
    EXPECT_TRUE(place.Down(MouseButton::kLeft));
    form.Window()->FollowPointer([&](Twips right, Twips down) { pulled.emplace_back(right, down); });
  });
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.data()));
  QTest::mousePress(window.data(), Qt::LeftButton, {}, {150, 50});
  QTest::mouseMove(window.data(), {160, 40});
  QTest::mouseRelease(window.data(), Qt::LeftButton, {}, {160, 40});
  QTest::mouseMove(window.data(), {170, 40});
  Pass(50ms);
  EXPECT_EQ(pulled, (std::vector<std::pair<Twips, Twips>>{{150, -150}}));
}

}  // namespace
