#include "output/Placement.h"
#include "output/frmOutputSett.h"
#include "platform/toolkit/Failure.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

class MonitorsTest : public StationTest {
 protected:
  // The operator's display, and the one that feeds the transmitter at its right.
  void TwoMonitors() {
    sim.monitors.monitors = {{.handle = 11, .name = "DESK", .area = {0, 0, 1920, 1080}, .workArea = {0, 0, 1920, 1040}},
                             {.handle = 22,
                              .name = "AIR",
                              .area = {1920, 0, 3840, 1080},
                              .workArea = {1920, 0, 3840, 1080},
                              .primary = true}};
  }
  void PlaceAt(int left, int top) {
    Output().Left = left * 15;
    Output().Top = top * 15;
  }
  std::pair<double, double> Place() { return {Output().Left / 15, Output().Top / 15}; }
  using At = std::pair<double, double>;
};

TEST_F(MonitorsTest, TheWindowLandsInTheMiddleOfTheOtherMonitorAtItsOwnSize) {
  TwoMonitors();
  PlaceAt(100, 50);
  Output().MoveTo(2);
  EXPECT_EQ(Place(), (At{1920 + (1920 - 1030) / 2, (1080 - 768) / 2}));
  EXPECT_EQ(Output().Width, 15450);
}

TEST_F(MonitorsTest, AWindowThatIsOnItsMonitorAlreadyIsLeftExactlyWhereItIsEvenHalfOutside) {
  TwoMonitors();
  PlaceAt(-400, 700);
  Output().MoveTo(1);
  EXPECT_EQ(Place(), (At{-400, 700}));
}

TEST_F(MonitorsTest, AMonitorThatWasUnpluggedAndIsBackStillCountsAsTheWindowsOwn) {
  TwoMonitors();
  PlaceAt(0, 0);
  Output().MoveTo(2);
  PlaceAt(2000, 10);
  const std::vector<MonitorInfo> both = sim.monitors.monitors;
  sim.monitors.monitors.pop_back();
  sim.monitors.monitors = both;
  Output().MoveTo(2);
  EXPECT_EQ(Place(), (At{2000, 10}));
}

TEST_F(MonitorsTest, AWindowAtNoPlaceOfThisWorldIsOnNoMonitorAndStaysPut) {
  TwoMonitors();
  Output().Left = 1e300;
  Output().MoveTo(2);
  EXPECT_EQ(Output().Left, 1e300);
}

TEST_F(MonitorsTest, AWindowAtANegativeOffsetIsCentredAllTheSame) {
  TwoMonitors();
  PlaceAt(-200, -100);
  Output().MoveTo(2);
  EXPECT_EQ(Place(), (At{1920 + 445, 156}));
}

TEST_F(MonitorsTest, TheWindowCrossesToItsMonitorBeforeItIsMadeNormalThirtyTwoPixelsInsideAtLeast) {
  TwoMonitors();
  sim.monitors.monitors[0].area = {-1920, -1080, 0, 0};  // left of and above the other
  sim.monitors.monitors[0].workArea = {-1920, -1080, 0, -40};
  sim.monitors.monitors[1].area = {0, 0, 1920, 1080};
  struct Crossing {
    At from;  // on the first monitor
    At landed;
  };
  for (const Crossing& one :
       {Crossing{{-1820, -1040}, {100, 40}}, Crossing{{-2120, -1040}, {32, 40}}, Crossing{{-1820, -1180}, {100, 32}},
        Crossing{{-2120, -1180}, {32, 32}}, Crossing{{-1920, -1080}, {0, 0}}, Crossing{{-1921, -1081}, {32, 32}},
        Crossing{{-1919, -1079}, {1, 1}}, Crossing{{-700, -500}, {1220, 580}}}) {
    for (const bool back : {false, true}) {
      const At here = back ? At{one.from.first + 1920, one.from.second + 1080} : one.from;
      const At there = back ? At{one.landed.first - 1920, one.landed.second - 1080} : one.landed;
      // Small enough to lie on its own monitor for the greater part, wherever it stands.
      Output().Width = 600 * 15;
      Output().Height = 400 * 15;
      PlaceAt(static_cast<int>(here.first), static_cast<int>(here.second));
      Output().Maximised = true;
      At crossed;
      const auto watching = Output().Maximised.Changed.Subscribe([&] { crossed = Place(); });
      Output().MoveTo(back ? 1 : 2);
      EXPECT_EQ(crossed, there) << "from " << here.first << ", " << here.second;
      EXPECT_FALSE(Output().Maximised);
    }
  }
}

TEST_F(MonitorsTest, AWindowLargerThanTheWorkAreaBeginsAtItsCornerAndOverhangs) {
  TwoMonitors();
  Output().Width = 2500 * 15;
  Output().Height = 1400 * 15;
  PlaceAt(-800, 0);
  Output().MoveTo(2);
  EXPECT_EQ(Place(), (At{1920, 0}));
  EXPECT_EQ(Output().Width, 2500 * 15);
}

TEST_F(MonitorsTest, APanelOnTheLeftCountsIntoTheWorkWidthAndPushesTheWindowOffTheMiddle) {
  TwoMonitors();
  sim.monitors.monitors[1].workArea = {2020, 30, 3840, 1080};
  const cMonitor monitor(sim.monitors.monitors[1]);
  EXPECT_EQ(monitor.WorkWidth(), 1920);
  EXPECT_EQ(monitor.WorkHeight(), 1080);
  PlaceAt(0, 0);
  Output().MoveTo(2);
  EXPECT_EQ(Place(), (At{2020 + (1920 - 1030) / 2, 30 + (1080 - 768) / 2}));
}

TEST_F(MonitorsTest, WithASingleMonitorTheWindowStaysPut) {
  PlaceAt(77, 66);
  Output().MoveTo(2);
  EXPECT_EQ(Place(), (At{77, 66}));
}

TEST_F(MonitorsTest, AWindowOutsideAllMonitorsStaysPut) {
  TwoMonitors();
  PlaceAt(9000, 9000);
  Output().MoveTo(2);
  EXPECT_EQ(Place(), (At{9000, 9000}));
}

TEST_F(MonitorsTest, TheOrderIsTheDisplaysOwnAndMonitorOneNeedNotBeThePrimary) {
  TwoMonitors();
  const cMonitors monitors(sim.monitors);
  EXPECT_EQ(monitors.MonitorCount(), 2);
  EXPECT_FALSE(monitors.Monitor(1).IsPrimary());
  EXPECT_TRUE(monitors.Monitor(2).IsPrimary());
  EXPECT_EQ(monitors.Monitor(2).Name(), "AIR");
  EXPECT_THROW(monitors.Monitor(0), Failure);
  EXPECT_THROW(monitors.Monitor(3), Failure);
}

TEST_F(MonitorsTest, TheVirtualScreenSpansAllMonitors) {
  TwoMonitors();
  sim.monitors.monitors[0].area = {-1280, -200, 0, 824};
  const cMonitors monitors(sim.monitors);
  EXPECT_EQ(monitors.VirtualScreenLeft(), -1280);
  EXPECT_EQ(monitors.VirtualScreenTop(), -200);
  EXPECT_EQ(monitors.VirtualScreenWidth(), 3840 + 1280);
  EXPECT_EQ(monitors.VirtualScreenHeight(), 1080 + 200);
  EXPECT_EQ(monitors.MonitorForPoint(-1, 0)->Name(), "DESK");
  EXPECT_FALSE(monitors.MonitorForPoint(0, 2000).has_value());
}

TEST_F(MonitorsTest, AMonitorPluggedInLaterIsSeenByAFreshWindowOnly) {
  PlaceAt(0, 0);
  Output().MoveTo(2);
  TwoMonitors();
  Output().MoveTo(2);
  EXPECT_EQ(Place(), (At{0, 0}));
  station.forms.Unload<frmPlayer>();
  Output().MoveTo(2);
  EXPECT_EQ(Place().first, 1920 + 445);
}

TEST_F(MonitorsTest, AStartSendsTheWindowToMonitorTwoWhenItsKeySaysSo) {
  TwoMonitors();
  Set("Output", "Monitor2", "True");
  ControlWindow();
  EXPECT_TRUE(ControlWindow().OnMonitor2);
  EXPECT_EQ(Place().first, 1920 + 445);
}

TEST_F(MonitorsTest, WithoutTheKeyTheWindowStillEndsOnMonitorOne) {
  TwoMonitors();
  sim.files.Put("/station/Window.ini", "[frmPlayer]\r\nLeft=30000\r\nTop=150\r\nWidth=15000\r\nHeight=9000\r\n");
  ControlWindow();
  EXPECT_FALSE(ControlWindow().OnMonitor2);
  EXPECT_EQ(Place(), (At{460, 220}));
}

TEST_F(MonitorsTest, AfterTheRelayoutTheWindowStillStandsOnMonitorTwo) {
  TwoMonitors();
  Set("Output", "Monitor2", "True");
  ControlWindow();
  Advance(5s);
  EXPECT_EQ(Place().first, 1920 + 445);
}

TEST_F(MonitorsTest, ThePressOnTheStripSendsAWindowThatStrayedBack) {
  TwoMonitors();
  ControlWindow();
  PlaceAt(2500, 0);
  ControlWindow().Picture1.PressMouse(MouseButton::kLeft);
  EXPECT_EQ(Place().first, 445);
}

TEST_F(MonitorsTest, SetDisplayAlignsTheWindowToTheWorkAreaAndKeepsItsHeight) {
  TwoMonitors();
  Output().SetDisplay(cMonitor(sim.monitors.monitors[1]));
  EXPECT_EQ(Place(), (At{1920, 0}));
  EXPECT_EQ(Output().Width, 1920 * 15);
  EXPECT_EQ(Output().Height, 11520);
}

TEST_F(MonitorsTest, TheOutputSettingsTryThePlacementOutOnThemselves) {
  TwoMonitors();
  auto& form = station.forms.Get<frmOutputSett>();
  ASSERT_EQ(form.cboMonitors.ListCount(), 2);
  form.cmdMove.Press();
  EXPECT_EQ(form.Left / 15, 1920 + (1920 - 420) / 2);
  form.cboMonitors.Pick(0);
  form.cmdCentre.Press();
  EXPECT_EQ(form.Left / 15, (1920 - 420) / 2);
  EXPECT_EQ(form.Top / 15, (1040 - 200) / 2);
  form.cboMonitors.Pick(1);
  form.cmdMaximise.Press();
  EXPECT_EQ(form.Left / 15, 1920);
  EXPECT_TRUE(form.Maximised);
  form.cmdCentre.Press();
  EXPECT_FALSE(form.Maximised);
}

TEST_F(MonitorsTest, AWindowIsOnTheMonitorThatShowsMostOfItAndOnNoneThatItOnlyTouches) {
  TwoMonitors();
  const cMonitors monitors(sim.monitors);
  const auto on = [&](PixelRect window) {
    const auto monitor = monitors.MonitorForWindow(window);
    return monitor ? monitor->Name() : "none";
  };
  EXPECT_EQ(on({1900, 0, 1939, 10}), "DESK");
  EXPECT_EQ(on({1901, 0, 1940, 10}), "AIR");
  EXPECT_EQ(on({1900, 0, 1940, 10}), "DESK");  // half and half: the first
  EXPECT_EQ(on({1900, -2000, 1940, 1}), "DESK");
  EXPECT_EQ(on({0, 1080, 100, 1200}), "none");
  EXPECT_EQ(on({0, 1079, 100, 1200}), "DESK");
  EXPECT_EQ(on({-100, 0, 0, 100}), "none");
  EXPECT_EQ(on({-100, -100, 1, 1}), "DESK");
  EXPECT_EQ(on({3840, 0, 4000, 100}), "none");
  EXPECT_EQ(on({3839, 0, 4000, 100}), "AIR");
  EXPECT_EQ(on({-100, -100, -1, -1}), "none");  // apart both ways
  EXPECT_EQ(monitors.MonitorForPoint(0, 0)->Name(), "DESK");
  EXPECT_EQ(monitors.MonitorForPoint(1919, 1079)->Name(), "DESK");
  EXPECT_EQ(monitors.MonitorForPoint(1920, 0)->Name(), "AIR");
  EXPECT_FALSE(monitors.MonitorForPoint(0, 1080).has_value());
  EXPECT_FALSE(monitors.MonitorForPoint(3840, 0).has_value());
}

TEST_F(MonitorsTest, TheListIsOfItsLastRefreshAndTheCountOfTheDisplaysOfNow) {
  cMonitors monitors(sim.monitors);
  TwoMonitors();
  EXPECT_EQ(monitors.MonitorCount(), 1);
  EXPECT_EQ(monitors.DisplayMonitorCount(), 2);
  EXPECT_TRUE(monitors.AllMonitorsSame());
  monitors.Refresh();
  EXPECT_EQ(monitors.MonitorCount(), 2);
  sim.monitors.monitors.clear();
  monitors.Refresh();
  EXPECT_EQ(monitors.MonitorCount(), 0);
  EXPECT_EQ(monitors.VirtualScreenLeft(), 0);
  EXPECT_EQ(monitors.VirtualScreenTop(), 0);
  EXPECT_EQ(monitors.VirtualScreenWidth(), 0);
  EXPECT_EQ(monitors.VirtualScreenHeight(), 0);
}

TEST_F(MonitorsTest, AMonitorTellsItsMeasures) {
  const cMonitor monitor(
      {.handle = 5, .name = "HDMI-1", .area = {100, 200, 1000, 800}, .workArea = {110, 220, 970, 760}});
  EXPECT_EQ(monitor.hMonitor(), 5u);
  EXPECT_EQ(monitor.Name(), "HDMI-1");
  EXPECT_FALSE(monitor.IsPrimary());
  EXPECT_EQ((std::vector<int>{monitor.Left(), monitor.Top(), monitor.Width(), monitor.Height()}),
            (std::vector<int>{100, 200, 900, 600}));
  EXPECT_EQ((std::vector<int>{monitor.WorkLeft(), monitor.WorkTop(), monitor.WorkWidth(), monitor.WorkHeight()}),
            (std::vector<int>{110, 220, 870, 560}));
}

TEST_F(MonitorsTest, AWindowsRectangleIsRoundedToWholePixels) {
  frmPlayer& form = Output();
  form.Left = 7;
  form.Top = 8;
  form.Width = 15 * 100 + 7;
  form.Height = 15 * 100 + 8;
  EXPECT_EQ(WindowRect(form), (PixelRect{0, 1, 100, 102}));
}

TEST_F(MonitorsTest, TheOutputSettingsListTheMonitorsAndBeginWithTheFirstInTheMiddleOfTheScreen) {
  TwoMonitors();
  auto& form = station.forms.Get<frmOutputSett>();
  EXPECT_EQ(form.cboMonitors.List(0), "1. DESK");
  EXPECT_EQ(form.cboMonitors.List(1), "2. AIR");
  EXPECT_EQ(form.cboMonitors.Text.Get(), "1. DESK");
  EXPECT_EQ(form.Left + form.Width / 2, 1920 * 15 / 2);
  EXPECT_EQ(form.Top + form.Height / 2, 1080 * 15 / 2);
}

TEST_F(MonitorsTest, MaximisedOnItsOwnMonitorTheOutputSettingsStayAndOnAnotherTheyGoToItsCorner) {
  TwoMonitors();
  sim.monitors.monitors[1].area.top = 90;
  auto& form = station.forms.Get<frmOutputSett>();
  form.Left = 150;
  form.Top = 300;
  form.cmdMaximise.Press();
  EXPECT_TRUE(form.Maximised);
  EXPECT_EQ(form.Left, 150);
  EXPECT_EQ(form.Top, 300);
  form.cboMonitors.Pick(1);
  form.cmdMaximise.Press();
  EXPECT_EQ(form.Left, 1920 * 15);
  EXPECT_EQ(form.Top, 90 * 15);
}

TEST_F(MonitorsTest, WithNoMonitorChosenTheOutputSettingsDoNothingAndSayNothing) {
  auto& form = station.forms.Get<frmOutputSett>();
  form.cboMonitors.Type("7. NONE");
  form.Left = 150;
  sim.trace.Take();
  form.cmdCentre.Press();
  form.cmdMaximise.Press();
  form.cmdMove.Press();  // and there is no second monitor
  EXPECT_EQ(form.Left, 150);
  EXPECT_FALSE(form.Maximised);
  EXPECT_EQ(sim.trace.Take(), Names{});
}

TEST_F(MonitorsTest, WithoutAnyMonitorTheOutputSettingsHaveAnEmptyList) {
  sim.monitors.monitors.clear();
  auto& form = station.forms.Get<frmOutputSett>();
  EXPECT_EQ(form.cboMonitors.ListCount(), 0);
  EXPECT_EQ(form.cboMonitors.Text.Get(), "");
}
