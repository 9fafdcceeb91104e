#include <gtest/gtest.h>
#include <unistd.h>

#include <QQuickWindow>

#include "platform/qt/Locale.h"
#include "platform/qt/StationApplication.h"

int main(int argc, char** argv) {
  // The browser that plays movies keeps its processes in boxes, which root may not use.
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  SettleLocale();
  testing::InitGoogleTest(&argc, argv);
  const StationApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
