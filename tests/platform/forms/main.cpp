#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/forms/look/Look.h"

// The forms need no screen: they are drawn into memory.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  WearLook(application);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
