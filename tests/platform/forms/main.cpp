#include <gtest/gtest.h>

#include <QApplication>

// The forms need no screen: they are drawn into memory.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
