#include "platform/qt/forms/WindowDrag.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <utility>

WindowDrag::WindowDrag(QWidget& window, std::function<void()> done)
    : window_(&window), grip_(QCursor::pos() - window.pos()), done_(std::move(done)) {
  if (QApplication::mouseButtons() == Qt::NoButton) {
    Finish();
  } else {
    qApp->installEventFilter(this);
  }
}

bool WindowDrag::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    if (window_) window_->move(static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - grip_);
    return true;
  }
  if (event->type() == QEvent::MouseButtonRelease) Finish();
  return false;
}

void WindowDrag::Finish() {
  qApp->removeEventFilter(this);
  deleteLater();
  if (const auto done = std::exchange(done_, {})) done();
}
