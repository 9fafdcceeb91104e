#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "platform/qt/desktop/QtDesktop.h"
#include "platform/sim/SimWorld.h"
#include "tests/platform/TemporaryFolder.h"

// What the desktop's panels for volume and date promise, in the virtual and the real world alike; and which program
// each desktop has for them.

namespace {

using Lines = std::vector<std::string>;

class VirtualPanels {
 public:
  void Install(bool has) { sim_.desktop.hasPanels = has; }
  Lines Opened() { return sim_.trace.Take(); }

 private:
  SimWorld sim_;

 public:
  Desktop& desktop = sim_.desktop;
};

// A desktop whose programs write down how they were started.
class RealPanels {
 public:
  RealPanels() {
    qputenv("PATH", folder_.Path().c_str());
    qunsetenv("XDG_CURRENT_DESKTOP");
  }
  ~RealPanels() {
    qputenv("PATH", path_);
    if (session_.isNull()) {
      qunsetenv("XDG_CURRENT_DESKTOP");
    } else {
      qputenv("XDG_CURRENT_DESKTOP", session_);
    }
  }

  void Program(const std::string& name) const {
    const std::string file = folder_.Path() + "/" + name;
    WriteByOther(file, "#!/bin/sh\necho " + name + " $* > '" + folder_.Path() + "/started'\n");
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
  }
  void Install(bool has) const {
    for (const char* name : {"pavucontrol", "time-admin"}) {
      if (has) {
        Program(name);
      } else {
        std::filesystem::remove(folder_.Path() + "/" + name);
      }
    }
  }
  // Waits for one program that is about to start.
  std::string Started() const {
    const std::string file = folder_.Path() + "/started";
    std::string line;
    if (!QTest::qWaitFor([&] { return (line = ReadByOther(file)).ends_with('\n'); })) return "(nothing)";
    std::filesystem::remove(file);
    return line.substr(0, line.size() - 1);
  }
  Lines Opened() const {
    if (!std::filesystem::exists(folder_.Path() + "/pavucontrol")) {
      QTest::qWait(300);
      return std::filesystem::exists(folder_.Path() + "/started") ? Lines{"something"} : Lines{};
    }
    return {Started().starts_with("pavucontrol") ? "volume panel" : "date panel"};
  }

 private:
  const QByteArray path_ = qgetenv("PATH");
  const QByteArray session_ = qgetenv("XDG_CURRENT_DESKTOP");
  TemporaryFolder folder_;
  QtDesktop desktop_{"/usr"};

 public:
  Desktop& desktop = desktop_;
};

template <typename AnyDesktop>
struct PanelsContractTest : testing::Test {
  AnyDesktop world;
};

using Desktops = testing::Types<VirtualPanels, RealPanels>;
TYPED_TEST_SUITE(PanelsContractTest, Desktops);

TYPED_TEST(PanelsContractTest, EachPanelIsOpened) {
  this->world.Install(true);
  this->world.desktop.OpenVolumePanel();
  EXPECT_EQ(this->world.Opened(), Lines{"volume panel"});
  this->world.desktop.OpenDatePanel();
  EXPECT_EQ(this->world.Opened(), Lines{"date panel"});
}

TYPED_TEST(PanelsContractTest, OnADesktopWithoutThemNothingHappens) {
  this->world.Install(false);
  this->world.desktop.OpenVolumePanel();
  this->world.desktop.OpenDatePanel();
  EXPECT_EQ(this->world.Opened(), Lines{});
}

TEST(PanelsTest, EachDesktopOpensItsOwnOnTheRightPage) {
  const RealPanels here;
  here.Install(true);
  const struct {
    const char* session;
    const char* program;
    const char* volume;
    const char* date;
  } desktops[] = {
      {"ubuntu:GNOME", "gnome-control-center", "gnome-control-center sound", "gnome-control-center datetime"},
      {"KDE", "systemsettings", "systemsettings kcm_pulseaudio", "systemsettings kcm_clock"},
      {"X-Cinnamon", "cinnamon-settings", "cinnamon-settings sound", "cinnamon-settings calendar"},
  };
  for (const auto& row : desktops) {
    here.Program(row.program);
    qputenv("XDG_CURRENT_DESKTOP", row.session);
    here.desktop.OpenVolumePanel();
    EXPECT_EQ(here.Started(), row.volume);
    here.desktop.OpenDatePanel();
    EXPECT_EQ(here.Started(), row.date);
  }
}

TEST(PanelsTest, AnotherDesktopsOwnPanelIsNotOpened) {
  const RealPanels here;
  here.Install(true);
  here.Program("gnome-control-center");
  qputenv("XDG_CURRENT_DESKTOP", "XFCE");
  here.desktop.OpenDatePanel();
  EXPECT_EQ(here.Started(), "time-admin");
}

}  // namespace
