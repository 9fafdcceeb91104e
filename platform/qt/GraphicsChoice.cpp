#include "platform/qt/GraphicsChoice.h"

#include <QQuickWindow>
#include <QSGRendererInterface>

Graphics ChooseGraphics() {
  // The media surface hands its pictures over as images, which the software scene takes as they are. Until it can
  // render into OpenGL's own textures, a graphics card would only add a copy of each picture.
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  return Graphics::kSoftware;
}
