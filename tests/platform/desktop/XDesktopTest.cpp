#include <gtest/gtest.h>

#include <QCursor>
#include <QTest>
#include <QWidget>
#include <QWindow>
#include <functional>

#include "platform/qt/desktop/QtDesktop.h"
#include "platform/qt/desktop/WindowClass.h"
#include "platform/qt/desktop/Xlib.h"

// After Xlib.h: it needs its types, and two of the words that are taken back there.
#define Bool int
#define Status int
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace {

class XDesktopTest : public ::testing::Test {
 protected:
  XDesktopTest() : other(XOpenDisplay(nullptr)), root(DefaultRootWindow(other)) {}
  ~XDesktopTest() override { XCloseDisplay(other); }

  unsigned int Code(KeySym key) { return XKeysymToKeycode(other, key); }
  void Key(KeySym key, bool down) { XTestFakeKeyEvent(other, Code(key), down, 0); }
  void PressCtrlM() {
    Key(XK_Control_L, true);
    Key(XK_m, true);
    Key(XK_m, false);
    Key(XK_Control_L, false);
    XSync(other, 0);
  }

  // A panel of another program.
  Window Panel() {
    const Window window = XCreateSimpleWindow(other, root, 0, 760, 1280, 40, 0, 0, 0);
    const Atom dock = XInternAtom(other, "_NET_WM_WINDOW_TYPE_DOCK", 0);
    XChangeProperty(other, window, XInternAtom(other, "_NET_WM_WINDOW_TYPE", 0), XA_ATOM, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(&dock), 1);
    XMapWindow(other, window);
    XSync(other, 0);
    return window;
  }
  bool Mapped(Window window) {
    XWindowAttributes seen{};
    XGetWindowAttributes(other, window, &seen);
    return seen.map_state != IsUnmapped;
  }

  Display* other;  // the connection of another program
  Window root;
  int pressed = 0;
  QtDesktop desktop{"/usr"};
};

TEST_F(XDesktopTest, AHotKeyIsHeardWhateverHasTheKeyboardWithCapsAndNumLockOnToo) {
  desktop.RegisterHotKey(0, 'M', [this] { ++pressed; });
  PressCtrlM();
  EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == 1; }));
  for (const KeySym lock : {XK_Caps_Lock, XK_Num_Lock}) {
    Key(lock, true);
    Key(lock, false);
  }
  PressCtrlM();
  EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == 2; }));
  for (const KeySym lock : {XK_Caps_Lock, XK_Num_Lock}) {
    Key(lock, true);
    Key(lock, false);
  }
}

TEST_F(XDesktopTest, AHotKeyThatIsHeldDownCountsOnce) {
  desktop.RegisterHotKey(0, 'M', [this] { ++pressed; });
  Key(XK_Control_L, true);
  Key(XK_m, true);
  XSync(other, 0);
  QTest::qWait(1000);  // the server repeats a key that is held for more than 660 ms
  Key(XK_m, false);
  Key(XK_Control_L, false);
  XSync(other, 0);
  QTest::qWait(50);
  EXPECT_EQ(pressed, 1);
}

TEST_F(XDesktopTest, AKeyThatAnotherProgramHoldsJustDoesNotWork) {
  XGrabKey(other, static_cast<int>(Code(XK_m)), ControlMask, root, 1, GrabModeAsync, GrabModeAsync);
  XSync(other, 0);
  desktop.RegisterHotKey(0, 'M', [this] { ++pressed; });
  PressCtrlM();
  QTest::qWait(50);
  EXPECT_EQ(pressed, 0);
}

TEST_F(XDesktopTest, WhatAHotKeyDoesMayRunALoopOfItsOwn) {
  desktop.RegisterHotKey(0, 'M', [this] {
    if (++pressed > 1) return;
    PressCtrlM();
    EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == 2; }));
  });
  PressCtrlM();
  EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == 2; }));
}

TEST_F(XDesktopTest, ThePanelsGoAndComeBackAndWhatWasHiddenBeforeStaysHidden) {
  const Window shown = Panel(), hidden = Panel();
  XUnmapWindow(other, hidden);
  XSync(other, 0);
  desktop.SetTaskbarVisible(false);
  EXPECT_FALSE(Mapped(shown));
  desktop.SetTaskbarVisible(true);
  EXPECT_TRUE(Mapped(shown));
  EXPECT_FALSE(Mapped(hidden));
}

TEST_F(XDesktopTest, ThePanelsThatAKilledRunHasHiddenComeBackInTheNext) {
  const Window panel = Panel();
  {
    QtDesktop killed("/usr");
    killed.SetTaskbarVisible(false);
  }
  EXPECT_FALSE(Mapped(panel));
  desktop.SetTaskbarVisible(true);
  EXPECT_TRUE(Mapped(panel));
}

TEST_F(XDesktopTest, AFurtherStartOfTheSameStationIsHeardAndOneOfAnotherIsNot) {
  const QtDesktop again("/usr/share/.."), another("/usr/share");
  EXPECT_FALSE(again.TellOtherRun()) << "nobody listens yet";
  int told = 0;
  desktop.WhenStartedAgain([&] { ++told; });
  EXPECT_FALSE(another.TellOtherRun());
  EXPECT_TRUE(again.TellOtherRun());
  EXPECT_TRUE(again.TellOtherRun());
  EXPECT_TRUE(QTest::qWaitFor([&] { return told == 2; }));
}

TEST_F(XDesktopTest, ARunThatIsGoneIsNotFound) {
  {
    QtDesktop("/usr/share").WhenStartedAgain([] {});
  }
  EXPECT_FALSE(QtDesktop("/usr/share").TellOtherRun());
}

TEST_F(XDesktopTest, TheScreenDoesNotBlank) {
  XSetScreenSaver(other, 600, 600, DefaultBlanking, DefaultExposures);
  XSync(other, 0);
  desktop.SetScreenSaverActive(0);
  int timeout = -1, interval = 0, blanking = 0, exposures = 0;
  XGetScreenSaver(other, &timeout, &interval, &blanking, &exposures);
  EXPECT_EQ(timeout, 0);
}

TEST_F(XDesktopTest, TheCursorIsBlankWhileItsCountIsBelowZero) {
  const auto blank = [] {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::BlankCursor;
  };
  desktop.ShowCursor(false);
  desktop.ShowCursor(false);
  EXPECT_TRUE(blank());
  desktop.ShowCursor(true);
  EXPECT_TRUE(blank());
  desktop.ShowCursor(true);
  EXPECT_FALSE(blank());
  desktop.ShowCursor(true);
  desktop.ShowCursor(false);
  EXPECT_FALSE(blank());
}

TEST_F(XDesktopTest, AWindowBearsTheNameOfItsForm) {
  QWidget window;
  window.winId();
  SetWindowClass(*window.windowHandle(), "frmMid");
  QTest::qWait(1);
  XClassHint hint{};
  ASSERT_NE(XGetClassHint(other, window.winId(), &hint), 0);
  EXPECT_STREQ(hint.res_name, "frmMid");
  EXPECT_STREQ(hint.res_class, "Corvanta");
  XFree(hint.res_name);
  XFree(hint.res_class);
}

}  // namespace
