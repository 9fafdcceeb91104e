#include "platform/qt/GraphicsChoice.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

void ChooseGraphics() {
  // A pixel of the station is a pixel of the display, whatever size of text the desktop is set to: what is laid out for
  // the monitor must fill it exactly. Texts of the operator's forms still follow the desktop.
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  qunsetenv("QT_SCALE_FACTOR");
  qunsetenv("QT_SCREEN_SCALE_FACTORS");
  // The media surface hands its pictures over as images, which the software scene takes as they are. Until it can
  // render into OpenGL's own textures, a graphics card would only add a copy of each picture.
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}
