#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

#include "tests/platform/desktop/XServer.h"

// The calls of the desktop are tried on a real X server.
int main(int argc, char** argv) {
  const XServer server;
  if (server.Display().empty()) {
    std::fputs("Xvfb did not start\n", stderr);
    return 1;
  }
  qputenv("DISPLAY", server.Display().c_str());
  qputenv("QT_QPA_PLATFORM", "xcb");
  int result = 0;
  {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    result = RUN_ALL_TESTS();
  }
  return result;
}
