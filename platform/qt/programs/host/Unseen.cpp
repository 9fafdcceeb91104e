#include "platform/qt/programs/host/Unseen.h"

#include <QLoggingCategory>
#include <QQuickWindow>
#include <QSGRendererInterface>

namespace {

// The renderer's threads would each keep a heap of their own, in which what one movie or page after the other leaves
// free is never given back: read by the C library when it begins, and so for the processes that come after this one.
void KeepHeapsSmall() {
  qputenv("MALLOC_ARENA_MAX", "1");
  qputenv("MALLOC_MMAP_THRESHOLD_", "131072");
  qputenv("MALLOC_TRIM_THRESHOLD_", "131072");
}

}  // namespace

void SettleUnseen() {
  KeepHeapsSmall();
  qputenv("QT_QPA_PLATFORM", "offscreen");  // nothing of it is ever on a screen
  qputenv("QT_QPA_OFFSCREEN_NO_GLX", "1");  // which would bring a driver and its compiler with it
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  QLoggingCategory::setFilterRules("qt.webenginecontext*=false\njs*=false\nqt.qml*=false");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}
