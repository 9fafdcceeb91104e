#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QTest>

#include "platform/qt/desktop/ScreenAwake.h"

// The desktop's own screen saver service, as far as the station uses it.
class SaverService : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

 public:
  QList<uint> held;

 public slots:
  uint Inhibit(const QString& program, const QString&) {
    EXPECT_EQ(program, "Corvanta");
    held.append(++last_);
    return last_;
  }
  void UnInhibit(uint cookie) { held.removeAll(cookie); }

 private:
  uint last_ = 40;
};

namespace {

class ScreenAwakeTest : public ::testing::Test {
 protected:
  void Appear() {
    ASSERT_TRUE(bus.isConnected());
    ASSERT_TRUE(bus.registerObject("/org/freedesktop/ScreenSaver", &service, QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(bus.registerService("org.freedesktop.ScreenSaver"));
  }
  void TearDown() override {
    bus.unregisterService("org.freedesktop.ScreenSaver");
    bus.unregisterObject("/org/freedesktop/ScreenSaver");
  }

  SaverService service;
  QDBusConnection bus = QDBusConnection::connectToBus(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "saver");
  ScreenAwake awake;
};

TEST_F(ScreenAwakeTest, TheServiceIsHeldUntilItIsReleased) {
  Appear();
  awake.Keep();
  EXPECT_TRUE(QTest::qWaitFor([&] { return service.held == QList<uint>{41}; }));
  QTest::qWait(20);  // the answer is on its way
  awake.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return service.held.isEmpty(); }));
}

TEST_F(ScreenAwakeTest, AServiceThatComesUpLaterIsHeldToo) {
  awake.Keep();
  QTest::qWait(100);
  Appear();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !service.held.isEmpty(); }));
}

}  // namespace

#include "ScreenAwakeTest.moc"
