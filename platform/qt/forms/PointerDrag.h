#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <functional>

// Follows the pointer until the button that is down is let go: `moved` is told how far it is from where it was at the
// start. Then it calls `done` and deletes itself. With no button down it is done at once; when the window goes it is
// over without a word.
class PointerDrag : public QObject {
 public:
  PointerDrag(QWidget& window, std::function<void(QPoint)> moved, std::function<void()> done);

  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void Finish();

  QPointer<QWidget> window_;
  QPoint start_;
  std::function<void(QPoint)> moved_;
  std::function<void()> done_;
};
