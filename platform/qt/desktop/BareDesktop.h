#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

// The desktop laid bare: at a key or a button of the window manager's all windows are taken off the screen at once,
// those on the air with them, and come back when it is undone.
class BareDesktop : public QObject, public QAbstractNativeEventFilter {
  Q_OBJECT
 public:
  BareDesktop();

  // Never without X, nor without a window manager.
  bool IsBare() const { return isBare_; }
  // Asks the window manager to bring all windows back.
  void Undo() const;

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 signals:
  // Comes from the message loop.
  void Bared();

 private:
  void Look();

  unsigned long state_ = 0;  // the property that tells it
  bool isBare_ = false;
};
