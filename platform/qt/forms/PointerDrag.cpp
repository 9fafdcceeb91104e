#include "platform/qt/forms/PointerDrag.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <utility>

PointerDrag::PointerDrag(QWidget& window, std::function<void(QPoint)> moved, std::function<void()> done)
    : window_(&window), start_(QCursor::pos()), moved_(std::move(moved)), done_(std::move(done)) {
  if (QApplication::mouseButtons() == Qt::NoButton) {
    Finish();
  } else {
    qApp->installEventFilter(this);
  }
}

bool PointerDrag::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    // A window that has been taken off is about to go, with the form that `moved_` refers to.
    if (window_ && window_->isVisible()) moved_(static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - start_);
    return true;
  }
  if (event->type() == QEvent::MouseButtonRelease) Finish();
  return false;
}

void PointerDrag::Finish() {
  qApp->removeEventFilter(this);
  deleteLater();
  if (const auto done = std::exchange(done_, {})) done();
}
