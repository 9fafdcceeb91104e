#pragma once

#include <QPointer>

#include "platform/qt/scene/FrameItem.h"

class BrowserControl;
class TakesInput;

// A web page, and nothing behind it until something of it can be seen. While it is enabled, and all that holds it, it
// has the operator's mouse; a press gives it the keys.
class PageItem : public FrameItem {
 public:
  PageItem(BrowserControl& page, QQuickItem& parent, Scene& scene);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void hoverMoveEvent(QHoverEvent* event) override;
  void hoverLeaveEvent(QHoverEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void PassOn(QEvent* event);

  QPointer<QObject> page_;  // gone when its form is unloaded
};
