#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "platform/qt/web/host/PageHost.h"

// Shows the web pages of the station that started it, which is at the other end of descriptor 3; it ends with it.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // nothing of it is ever on a screen
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  QLoggingCategory::setFilterRules("qt.webenginecontext*=false\njs*=false\nqt.qml*=false");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QGuiApplication application(argc, argv);
  PageHost host{Descriptor(3)};
  return QGuiApplication::exec();
}
