#include <gtest/gtest.h>

#include <QQuickWindow>
#include <QTest>
#include <algorithm>

#include "platform/Windows.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/desktop/XWindows.h"
#include "platform/qt/scene/OnAirWindow.h"
#include "platform/qt/scene/PictureLoader.h"
#include "platform/sim/SimWorld.h"
#include "platform/toolkit/Form.h"
#include "settings/Station.h"

// What both worlds promise of the windows on the air: which one stands in front, and what the form is told of its size.

namespace {

class frmBase : public Form {
 public:
  frmBase(Station& station, const char* name) : Form(station.forms, name, Kind::kOnAir) {
    Width = 1500;
    Height = 1500;
  }
};
class frmOne : public frmBase {
 public:
  explicit frmOne(Station& station) : frmBase(station, "frmOne") {}
};
class frmTwo : public frmBase {
 public:
  explicit frmTwo(Station& station) : frmBase(station, "frmTwo") {}
};

class VirtualScreen {
 public:
  std::vector<std::string> Stack() const { return sim_.windows.Stack(); }
  static bool Until(const std::function<bool()>& condition) { return condition(); }
  // In pixels.
  std::pair<int, int> Pointer() const {
    const auto [x, y] = sim_.windows.pointerPut.value_or(std::pair(0.0, 0.0));
    return {ToPixels(x), ToPixels(y)};
  }
  static void ResizeFromOutside(Form& form, int width) { form.Width = ToTwips(width); }

 private:
  SimWorld sim_;

 public:
  World& world = sim_.world;
};

class RealScreen : public Windows {
 public:
  RealScreen() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }
  ~RealScreen() override { XCloseDisplay(other_); }

  std::unique_ptr<FormWindow> Create(Form& form) override { return std::make_unique<OnAirWindow>(form, scene_); }
  PixelSize ScreenSize() const override { return {1280, 800}; }

  std::vector<std::string> Stack() const {
    std::vector<std::string> names;
    for (const Window window : Children()) {
      const std::string name = NameOf(window);
      if (!name.empty()) names.insert(names.begin(), name);
    }
    return names;
  }
  static bool Until(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 10'000); }
  std::pair<int, int> Pointer() const {
    Window root = 0, child = 0;
    int x = 0, y = 0, inX = 0, inY = 0;
    unsigned mask = 0;
    XQueryPointer(other_, DefaultRootWindow(other_), &root, &child, &x, &y, &inX, &inY, &mask);
    return {x, y};
  }
  // Another program does it, once the window has the size that the form says: there is no window manager here.
  void ResizeFromOutside(Form& form, int width) const {
    const Window window = Find(form.Name());
    XWindowAttributes seen{};
    const auto follows = [&] {
      return XGetWindowAttributes(other_, window, &seen) != 0 && seen.width == ToPixels(form.Width);
    };
    EXPECT_TRUE(Until(follows));
    XResizeWindow(other_, window, static_cast<unsigned>(width), 100);
    XSync(other_, 0);
  }

 private:
  // Of a window that is on the screen.
  std::string NameOf(Window window) const {
    XClassHint hint{};
    if (!IsMapped(other_, window) || XGetClassHint(other_, window, &hint) == 0) return "";
    std::string name = hint.res_name;
    XFree(hint.res_name);
    XFree(hint.res_class);
    return name;
  }
  Window Find(const std::string& name) const {
    const XWindows all = Children();
    const auto found = std::ranges::find(all, name, [this](Window window) { return NameOf(window); });
    return found == all.end() ? 0 : *found;
  }
  XWindows Children() const {
    Window root = 0, parent = 0, *children = nullptr;
    unsigned count = 0;
    XQueryTree(other_, DefaultRootWindow(other_), &root, &parent, &children, &count);
    XWindows all(children, children + count);
    XFree(children);
    return all;
  }

  Display* other_ = XOpenDisplay(nullptr);
  SimWorld sim_;
  QtScheduler scheduler_;
  PictureLoader loader_;
  Scene scene_{scheduler_, loader_};

 public:
  World world{sim_.time, scheduler_,   sim_.files,   sim_.media,    sim_.flash,   sim_.browser, sim_.pictures,
              *this,     sim_.dialogs, sim_.desktop, sim_.monitors, sim_.network, sim_.feeds};
};

template <class AnyScreen>
class WindowsContractTest : public testing::Test {
 protected:
  bool Stands(const std::vector<std::string>& names) {
    return screen.Until([&] { return screen.Stack() == names; });
  }

  AnyScreen screen;
  Station station{screen.world, "/nowhere"};
  frmOne& one = station.forms.Get<frmOne>();
  frmTwo& two = station.forms.Get<frmTwo>();
};

using Names = std::vector<std::string>;
using Screens = testing::Types<VirtualScreen, RealScreen>;
TYPED_TEST_SUITE(WindowsContractTest, Screens);

TYPED_TEST(WindowsContractTest, AWindowThatIsShownOrShownAgainStandsInFront) {
  this->one.Show();
  this->two.Show();
  EXPECT_TRUE(this->Stands({"frmTwo", "frmOne"}));
  this->one.Show();
  EXPECT_TRUE(this->Stands({"frmOne", "frmTwo"}));
  this->two.Hide();
  EXPECT_TRUE(this->Stands({"frmOne"}));
}

TYPED_TEST(WindowsContractTest, OfTwoWindowsOnTopTheOneThatWasToldLastStandsInFront) {
  this->one.OnTop = true;
  this->two.OnTop = true;
  this->one.Show();
  this->two.Show();
  EXPECT_TRUE(this->Stands({"frmTwo", "frmOne"}));
  this->one.OnTop = true;
  EXPECT_TRUE(this->Stands({"frmOne", "frmTwo"}));
  this->two.OnTop = true;
  EXPECT_TRUE(this->Stands({"frmTwo", "frmOne"}));
}

TYPED_TEST(WindowsContractTest, AHiddenWindowThatIsToldToBeOnTopStaysHidden) {
  this->one.OnTop = true;
  this->two.Show();
  EXPECT_TRUE(this->Stands({"frmTwo"}));
}

TYPED_TEST(WindowsContractTest, ThePointerIsPutWhereTheFormSays) {
  this->one.Left = 3000;
  this->one.Top = 4500;
  this->one.Show();
  ASSERT_TRUE(this->Stands({"frmOne"}));
  for (const auto& [right, down] : {std::pair(0, 0), std::pair(1500, 750), std::pair(-300, 1500)}) {
    this->one.Window()->PutPointer(right, down);
    const std::pair wanted(200 + right / 15, 300 + down / 15);
    EXPECT_TRUE(this->screen.Until([&] { return this->screen.Pointer() == wanted; }));
  }
}

TYPED_TEST(WindowsContractTest, TheFormIsToldWhenItComesOnTheScreenAndOfEachChangeOfItsSize) {
  std::vector<Twips> widths;
  this->one.Resize.Connect([&] { widths.push_back(this->one.Width); });
  this->one.Show();
  EXPECT_EQ(widths, (std::vector<Twips>{1500}));
  this->one.Left = 300;
  this->one.Width = 3000;
  EXPECT_EQ(widths, (std::vector<Twips>{1500, 3000}));
  EXPECT_TRUE(this->Stands({"frmOne"}));
  this->screen.ResizeFromOutside(this->one, 120);
  EXPECT_TRUE(this->screen.Until([&] { return !widths.empty() && widths.back() == ToTwips(120); }));
}

}  // namespace
