#include <QGuiApplication>
#include <QLoggingCategory>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "platform/qt/flash/host/Answers.h"
#include "platform/qt/flash/host/MovieHost.h"

// Plays the movies of the station that started it, which is at the other end of descriptor 3; it ends with it.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // nothing of it is ever on a screen
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  // One process renders all pages.
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--process-per-site");
  QLoggingCategory::setFilterRules("qt.webenginecontext*=false\njs*=false\nqt.qml*=false");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  Answers::RegisterScheme();
  QGuiApplication application(argc, argv);
  MovieHost host{Descriptor(3)};
  return QGuiApplication::exec();
}
