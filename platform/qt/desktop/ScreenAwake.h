#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>
#include <optional>

// Keeps the screens from blanking, saving and going to sleep: through the desktop's own service, also when that comes
// up later than the station, and through the X server, again and again, since a desktop may put its own times back. The
// operator may darken them meanwhile.
class ScreenAwake : public QObject {
 public:
  ScreenAwake();

  void Keep();
  void Release();
  // Darkens the screens, and leaves them alone until a key or the mouse is touched.
  void Darken();

 private:
  void ConnectBus();
  void AskService();
  void HoldServer();
  bool StillDark() const;

  QTimer again_;
  std::optional<QDBusConnection> bus_;  // known once it has answered
  bool wanted_ = false;
  bool dark_ = false;
  bool asked_ = false;
  quint32 cookie_ = 0;
};
