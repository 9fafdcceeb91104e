#include "platform/qt/programs/host/Unseen.h"

#include <QLoggingCategory>
#include <QQuickWindow>
#include <QSGRendererInterface>

void SettleUnseen() {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // nothing of it is ever on a screen
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  QLoggingCategory::setFilterRules("qt.webenginecontext*=false\njs*=false\nqt.qml*=false");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}
