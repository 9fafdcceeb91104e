#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

// Whether a compositing manager draws the windows of this screen, so that they may be see-through by their alpha. Such
// a program may start and end at any moment; it is known by the selection that it owns.
class Compositor : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT
 public:
  Compositor();

  // Never without X.
  bool Runs() const { return runs_; }

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 signals:
  // Comes from the message loop.
  void Changed();

 private:
  void Look();

  unsigned long selection_ = 0;
  int eventBase_ = -1;  // below zero: nothing tells of changes
  bool runs_ = false;
};
