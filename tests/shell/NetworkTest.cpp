// Whether the machine is on line, as the station asks it.
#include "shell/CNetConn.h"
#include "tests/StationTest.h"

using namespace std::chrono_literals;

namespace {

constexpr int kInternetPanel = 9;

// Counts how often it is asked.
class CountingNetwork : public SimNetwork {
 public:
  using SimNetwork::SimNetwork;
  NetworkState Query() const override {
    ++asked;
    return SimNetwork::Query();
  }

  mutable int asked = 0;
};

class NetworkTest : public StationTest {
 protected:
  std::string Internet() { return ControlWindow().Panel.PanelAt(kInternetPanel).text; }

  CNetConn connection{sim.network};
};

// A control window whose network counts.
class NetworkCountTest : public StationTest {
 protected:
  NetworkCountTest() { ConnectRoads(counted); }
  int AskedBy(const std::function<void()>& doing) {
    const int before = network.asked;
    doing();
    return network.asked - before;
  }

  CountingNetwork network{sim.trace};
  World world{sim.time,    sim.time,    sim.files,   sim.media,    sim.flash, sim.browser, sim.pictures,
              sim.windows, sim.dialogs, sim.desktop, sim.monitors, network,   sim.feeds};
  Station counted{world, "/station"};
};

TEST_F(NetworkTest, WithItsCableOutTheMachineIsNotConnectedAndItsFlagSaysOffline) {
  sim.network.SetOnline(false);
  EXPECT_FALSE(connection.IsConnected());
  EXPECT_EQ(connection.ConnType(), 32);
  EXPECT_EQ(connection.ConnTypeDevice(32), "Offline");
  EXPECT_EQ(connection.ConnName(), "");
}

TEST_F(NetworkTest, WithItsCableInItIsConnectedByItsName) {
  EXPECT_TRUE(connection.IsConnected());
  EXPECT_EQ(connection.ConnTypeDevice(connection.ConnType()), "LAN");
  EXPECT_EQ(connection.ConnName(), "eth0");
}

TEST_F(NetworkTest, OfSeveralFlagsLanCountsFirstThenModemThenProxyThenOffline) {
  const std::pair<int, const char*> rows[] = {
      {2 + 4, "LAN"}, {1 + 2 + 4 + 32, "LAN"}, {2, "LAN"},   {1 + 4, "Modem"}, {1 + 32, "Modem"},
      {1, "Modem"},   {4 + 32, "Proxy"},       {4, "Proxy"}, {32, "Offline"},  {8 + 16 + 64, ""},
      {0, ""}};
  for (const auto& [flags, device] : rows) EXPECT_EQ(connection.ConnTypeDevice(flags), device) << flags;
}

TEST_F(NetworkTest, EachCallAsksTheMachineAnew) {
  EXPECT_TRUE(connection.IsConnected());
  sim.network.SetOnline(false);
  EXPECT_FALSE(connection.IsConnected());
  sim.network.state = {true, NetworkState::kModem, "dial-up"};
  EXPECT_EQ(connection.ConnType(), 1);
  EXPECT_EQ(connection.ConnName(), "dial-up");
}

TEST_F(NetworkTest, HangingUpEndsTheConnectionThatThereIs) {
  sim.network.state = {true, NetworkState::kModem, "dial-up"};
  connection.HangUp();
  EXPECT_EQ(sim.trace.Take(), Names{"hang up \"dial-up\""});
}

TEST_F(NetworkTest, ThePanelFollowsTheCableWithTheNextSecond) {
  ControlWindow();
  Advance(1500ms);
  EXPECT_EQ(Internet(), "Internet True");
  sim.network.SetOnline(false);
  EXPECT_EQ(Internet(), "Internet True");
  Advance(1s);
  EXPECT_EQ(Internet(), "Internet False");
  sim.network.SetOnline(true);
  Advance(1s);
  EXPECT_EQ(Internet(), "Internet True");
}

TEST_F(NetworkCountTest, TheMachineIsAskedOnceASecondShownOrHidden) {
  auto& control = counted.forms.Get<frmMid>();
  Advance(500ms);
  EXPECT_EQ(AskedBy([&] { Advance(60s); }), 60);
  control.Show();
  EXPECT_EQ(AskedBy([&] { Advance(60s); }), 60);
}

TEST_F(NetworkCountTest, AnEntryThatNeedsTheNetworkAsksAtEachUseAndTheOthersDoNot) {
  auto& control = counted.forms.Get<frmMid>();
  for (MenuItem* entry : {&control.mnuTeamviewer, &control.mnuQuicksupport, &control.mnuTeamviewer}) {
    EXPECT_EQ(AskedBy([&] { entry->Choose(); }), 1);
  }
  for (MenuItem* entry : {&control.mnuSWF_0, &control.mnuOutputWindow, &control.mnuHelp2, &control.mnuAbout2}) {
    EXPECT_EQ(AskedBy([&] { entry->Choose(); }), 0);
  }
}

}  // namespace
