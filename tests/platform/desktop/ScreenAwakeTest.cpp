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

// Screens that the test darkens and lights.
struct FakeScreens {
  int held = 0;
  bool dark = false;
};

class FakePower : public ScreenPower {
 public:
  explicit FakePower(FakeScreens& screens) : screens_(screens) {}
  void Hold() override {
    ++screens_.held;
    screens_.dark = false;
  }
  void Release() override {}
  void Darken() override { screens_.dark = true; }
  bool Dark() const override { return screens_.dark; }

 private:
  FakeScreens& screens_;
};

TEST(DarkScreensTest, ScreensThatWereDarkenedStayDarkUntilSomethingIsTouchedAndAreKeptLitAfterwards) {
  FakeScreens screens;
  ScreenAwake awake(std::make_unique<FakePower>(screens));
  awake.Keep();
  EXPECT_EQ(screens.held, 1);
  awake.Darken();
  EXPECT_FALSE(screens.dark) << "the hand that chose it lets go of the mouse first";
  ASSERT_TRUE(QTest::qWaitFor([&] { return screens.dark; }));
  awake.Renew();
  awake.Renew();
  EXPECT_TRUE(screens.dark);
  EXPECT_EQ(screens.held, 1);
  screens.dark = false;  // a key
  awake.Renew();
  EXPECT_EQ(screens.held, 2);
  screens.dark = true;  // not by us: the desktop's own times
  awake.Renew();
  EXPECT_FALSE(screens.dark);
}

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
