#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

#include "tests/platform/desktop/Servers.h"

// The calls of the desktop are tried on a real X server without a window manager, and on a real session bus.
int main(int argc, char** argv) {
  const Server screen{"Xvfb", "-displayfd", "%", "-screen", "0", "1280x800x24", "-nolisten", "tcp"};
  const Server bus{"dbus-daemon", "--session", "--nofork", "--print-address", "%"};
  if (screen.Told().empty() || bus.Told().empty()) {
    std::fputs("Xvfb or dbus-daemon did not start\n", stderr);
    return 1;
  }
  qputenv("DISPLAY", (":" + screen.Told()).c_str());
  qputenv("DBUS_SESSION_BUS_ADDRESS", bus.Told().c_str());
  qputenv("QT_QPA_PLATFORM", "xcb");
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
