#include "platform/qt/desktop/DialogPlace.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QWindow>

#include "platform/qt/desktop/WorkArea.h"

namespace {

// The active window, else any window of the operator's that is on the screen; null when all are hidden.
QWidget* OperatorsWindow() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->isWindow() && !window->isMinimized()) return window;
  }
  return nullptr;
}

// What goes on air is drawn in windows that are no widgets.
bool ShowsAir(const QScreen& screen) {
  for (const QWindow* window : QGuiApplication::topLevelWindows()) {
    // A preview has a frame: it is before the operator itself.
    const bool onAir =
        window->isVisible() && !window->inherits("QWidgetWindow") && window->flags().testFlag(Qt::FramelessWindowHint);
    if (onAir && window->geometry().intersects(screen.geometry())) return true;
  }
  return false;
}

QScreen* BestScreen(const QWidget* operators) {
  QScreen* first = operators != nullptr ? operators->screen() : QGuiApplication::primaryScreen();
  if (!ShowsAir(*first)) return first;
  for (QScreen* screen : QGuiApplication::screens()) {
    if (!ShowsAir(*screen)) return screen;
  }
  return first;
}

}  // namespace

void PlaceBeforeOperator(QDialog& dialog) {
  const QWidget* operators = OperatorsWindow();
  const QScreen* screen = BestScreen(operators);
  dialog.adjustSize();
  const QRect room = WorkArea(*screen);
  QRect place(QPoint(), dialog.size());
  place.moveCenter(operators != nullptr && operators->screen() == screen ? operators->geometry().center()
                                                                         : room.center());
  place.moveLeft(std::clamp(place.left(), room.left(), std::max(room.left(), room.right() + 1 - place.width())));
  place.moveTop(std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() + 1 - place.height())));
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.setWindowFlag(Qt::WindowStaysOnTopHint);  // a box that is covered stops the operator for no reason to be seen
  dialog.move(place.topLeft());
}
