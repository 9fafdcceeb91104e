#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

#include "platform/qt/desktop/ScreenPower.h"

// Keeps the screens from blanking, saving and going to sleep: through the desktop's own service, also when that comes
// up later than the station, and through the X server, again and again, since a desktop may put its own times back. The
// operator may darken them meanwhile.
class ScreenAwake : public QObject {
 public:
  explicit ScreenAwake(std::unique_ptr<ScreenPower> power = std::make_unique<ScreenPower>());

  void Keep();
  void Release();
  // Darkens the screens, and leaves them alone until a key or the mouse is touched.
  void Darken();
  // What happens each 30 seconds while the screens are kept: the hold on the server is renewed, unless they are dark.
  void Renew();

 private:
  void ConnectBus();
  void AskService();

  std::unique_ptr<ScreenPower> power_;
  QTimer again_;
  std::optional<QDBusConnection> bus_;  // known once it has answered
  bool wanted_ = false;
  bool darkened_ = false;  // and nobody has been seen to touch anything since
  bool asked_ = false;
  quint32 cookie_ = 0;
};
