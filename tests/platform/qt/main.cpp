#include <gtest/gtest.h>

#include <QQuickWindow>

#include "platform/qt/Locale.h"
#include "platform/qt/StationApplication.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  SettleLocale();
  testing::InitGoogleTest(&argc, argv);
  const StationApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
