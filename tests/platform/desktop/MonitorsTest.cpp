#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>
#include <algorithm>
#include <array>
#include <optional>

#include "platform/qt/desktop/QtMonitors.h"
#include "platform/qt/desktop/Xlib.h"

// Two monitors on the one screen of the test's own X server, LEFT and RIGHT, each of 640 by 800.

namespace {

class MonitorsOnXTest : public ::testing::Test {
 protected:
  MonitorsOnXTest() {
    Plug("LEFT", "640/200x800/250+0+0", "screen");
    Plug("RIGHT", "640/200x800/250+640+0", "none");
  }
  ~MonitorsOnXTest() override {
    Unplug("RIGHT");
    Unplug("LEFT");
    XCloseDisplay(other);
  }

  void Plug(const char* name, const char* place, const char* output) {
    EXPECT_EQ(QProcess::execute("xrandr", {"--setmonitor", name, place, output}), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Seen(name).has_value(); })) << name;
  }
  void Unplug(const char* name) {
    EXPECT_EQ(QProcess::execute("xrandr", {"--delmonitor", name}), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Seen(name).has_value(); })) << name;
  }
  std::optional<MonitorInfo> Seen(const std::string& name) const {
    const std::vector<MonitorInfo> list = monitors.List();
    const auto found = std::ranges::find(list, name, &MonitorInfo::name);
    return found == list.end() ? std::nullopt : std::optional(*found);
  }

  // A panel of 40 pixels at the bottom, from one pixel of the desktop to another.
  Window Panel(unsigned long first, unsigned long last) const {
    const auto width = static_cast<unsigned int>(last - first + 1);
    const Window panel =
        XCreateSimpleWindow(other, DefaultRootWindow(other), static_cast<int>(first), 760, width, 40, 0, 0, 0);
    const std::array<unsigned long, 12> strut{0, 0, 0, 40, 0, 0, 0, 0, 0, 0, first, last};
    XChangeProperty(other, panel, XInternAtom(other, "_NET_WM_STRUT_PARTIAL", 0), XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(strut.data()), 12);
    XMapWindow(other, panel);
    XSync(other, 0);
    return panel;
  }

  Display* other = XOpenDisplay(nullptr);
  QtMonitors monitors;
};

TEST_F(MonitorsOnXTest, EachMonitorIsListedWithItsPlaceAndAHandleOfItsOwn) {
  EXPECT_EQ(Seen("LEFT")->area, (PixelRect{0, 0, 640, 800}));
  EXPECT_EQ(Seen("RIGHT")->area, (PixelRect{640, 0, 1280, 800}));
  EXPECT_NE(Seen("LEFT")->handle, Seen("RIGHT")->handle);
  EXPECT_NE(Seen("LEFT")->handle, 0u);
}

TEST_F(MonitorsOnXTest, AMonitorThatIsPluggedInAgainIsTheSameMonitor) {
  const std::uint64_t before = Seen("RIGHT")->handle;
  Unplug("RIGHT");
  Plug("RIGHT", "640/200x800/250+640+0", "none");
  EXPECT_EQ(Seen("RIGHT")->handle, before);
}

TEST_F(MonitorsOnXTest, APanelNarrowsTheWorkAreaOfTheMonitorOnWhichItStands) {
  const Window panel = Panel(640, 1279);
  EXPECT_EQ(Seen("LEFT")->workArea, (PixelRect{0, 0, 640, 800}));
  EXPECT_EQ(Seen("RIGHT")->workArea, (PixelRect{640, 0, 1280, 760}));
  XUnmapWindow(other, panel);
  XSync(other, 0);
  EXPECT_EQ(Seen("RIGHT")->workArea, (PixelRect{640, 0, 1280, 800})) << "a hidden panel takes no room";
}

TEST_F(MonitorsOnXTest, APanelThatTellsItsDepthAloneStandsAlongTheWholeEdge) {
  const Window panel = Panel(0, 1279);
  XDeleteProperty(other, panel, XInternAtom(other, "_NET_WM_STRUT_PARTIAL", 0));
  const std::array<unsigned long, 4> strut{0, 0, 0, 40};
  XChangeProperty(other, panel, XInternAtom(other, "_NET_WM_STRUT", 0), XA_CARDINAL, 32, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(strut.data()), 4);
  XSync(other, 0);
  EXPECT_EQ(Seen("LEFT")->workArea, (PixelRect{0, 0, 640, 760}));
  EXPECT_EQ(Seen("RIGHT")->workArea, (PixelRect{640, 0, 1280, 760}));
}

}  // namespace
