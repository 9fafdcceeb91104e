#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "platform/qt/GraphicsChoice.h"
#include "tests/platform/desktop/Servers.h"

// The calls of the desktop are tried on a real X server without a window manager, and on a real session bus. Another
// size of screen than the common one is named by the environment, with its depth: TEST_SCREEN.
int main(int argc, char** argv) {
  const char* size = std::getenv("TEST_SCREEN");
  const Server screen{"Xvfb", "-displayfd", "%", "-screen", "0", size ? size : "1280x800x24", "-nolisten", "tcp"};
  const Server bus{"dbus-daemon", "--session", "--nofork", "--print-address", "%"};
  if (screen.Told().empty() || bus.Told().empty()) {
    std::fputs("Xvfb or dbus-daemon did not start\n", stderr);
    return 1;
  }
  qputenv("DISPLAY", (":" + screen.Told()).c_str());
  qputenv("DBUS_SESSION_BUS_ADDRESS", bus.Told().c_str());
  qputenv("QT_QPA_PLATFORM", "xcb");
  ChooseGraphics();
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
