#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <functional>

// Moves a window with the pointer until the button that is down is let go, then calls `done` and deletes itself. With
// no button down it is done at once.
class WindowDrag : public QObject {
 public:
  WindowDrag(QWidget& window, std::function<void()> done);

  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void Finish();

  QPointer<QWidget> window_;
  QPoint grip_;  // from the window's place to the pointer
  std::function<void()> done_;
};
