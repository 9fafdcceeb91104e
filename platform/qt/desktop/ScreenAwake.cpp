#include "platform/qt/desktop/ScreenAwake.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QFile>
#include <QPointer>
#include <QThreadPool>
#include <chrono>

namespace {

constexpr char kService[] = "org.freedesktop.ScreenSaver";
constexpr char kPath[] = "/org/freedesktop/ScreenSaver";
// The hand that has chosen the darkness lets go of the mouse first: that would light the screens at once.
constexpr std::chrono::seconds kHandsOff(1);
constexpr std::chrono::seconds kAgain(30);  // less than the shortest time that a screen can be told to blank after

// Asking for a bus where there is none may start one, and takes its time.
bool BusThere() {
  const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
  return !qgetenv("DBUS_SESSION_BUS_ADDRESS").isEmpty() || (!folder.isEmpty() && QFile::exists(folder + "/bus"));
}

QDBusMessage Call(const char* method) { return QDBusMessage::createMethodCall(kService, kPath, kService, method); }

}  // namespace

ScreenAwake::ScreenAwake(std::unique_ptr<ScreenPower> power) : power_(std::move(power)) {
  connect(&again_, &QTimer::timeout, this, &ScreenAwake::Renew);
}

void ScreenAwake::Keep() {
  if (wanted_) return;
  wanted_ = true;
  Renew();
  again_.start(kAgain);
  if (bus_) {
    AskService();
  } else if (!asked_ && BusThere()) {
    asked_ = true;
    ConnectBus();
  }
}

void ScreenAwake::Release() {
  if (!wanted_) return;
  wanted_ = false;
  again_.stop();
  power_->Release();
  if (bus_ && cookie_ != 0) bus_->asyncCall(Call("UnInhibit") << cookie_);
  cookie_ = 0;
}

// The first contact waits for the bus to answer, so it is made on a thread of the pool; what is ready then comes back
// to this one.
void ScreenAwake::ConnectBus() {
  QThreadPool::globalInstance()->start([self = QPointer<ScreenAwake>(this)] {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    QMetaObject::invokeMethod(QCoreApplication::instance(), [self, bus] {
      if (!self) return;
      self->bus_ = bus;
      auto* watch = new QDBusServiceWatcher(kService, bus, QDBusServiceWatcher::WatchForRegistration, self);
      connect(watch, &QDBusServiceWatcher::serviceRegistered, self, [self] { self->AskService(); });
      self->AskService();
    });
  });
}

void ScreenAwake::AskService() {
  if (!wanted_) return;
  auto* waiting = new QDBusPendingCallWatcher(
      bus_->asyncCall(Call("Inhibit") << QString("Corvanta") << QString("The station is on the air")), this);
  connect(waiting, &QDBusPendingCallWatcher::finished, this, [this, waiting] {
    const QDBusPendingReply<quint32> reply = *waiting;
    if (reply.isValid()) cookie_ = reply.value();
    waiting->deleteLater();
  });
}

void ScreenAwake::Darken() {
  QTimer::singleShot(kHandsOff, this, [this] {
    power_->Darken();
    darkened_ = true;
  });
}

void ScreenAwake::Renew() {
  darkened_ = darkened_ && power_->Dark();
  if (!darkened_) power_->Hold();
}
