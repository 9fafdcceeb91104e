#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "platform/posix/PosixNetwork.h"
#include "platform/sim/SimWorld.h"
#include "tests/platform/TemporaryFolder.h"

// What the network tells, in the virtual and the real world alike; and how the real one reads the kernel's tables.

namespace {

constexpr char kHead4[] = "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";
constexpr char kLocal4[] = "eth0\t0000A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0\n";

std::string Default4(const std::string& device, const std::string& flags = "0003") {
  return device + "\t00000000\t0100A8C0\t" + flags + "\t0\t0\t100\t00000000\t0\t0\t0\n";
}

std::string Default6(const std::string& device, const std::string& flags) {
  const std::string zeros(32, '0');
  return zeros + " 00 " + zeros + " 00 fe800000000000000000000000000001 00000400 00000001 00000000 " + flags + "     " +
         device + "\n";
}

class Tables {
 public:
  Tables() { std::filesystem::create_directories(folder_.Path() + "/proc/net"); }
  void Put4(const std::string& lines) const { WriteByOther(folder_.Path() + "/proc/net/route", kHead4 + lines); }
  void Put6(const std::string& lines) const { WriteByOther(folder_.Path() + "/proc/net/ipv6_route", lines); }

  // Plugs the cable in and out.
  void SetOnline(bool online) const { Put4(online ? kLocal4 + Default4("eth0") : kLocal4); }

 private:
  TemporaryFolder folder_;
  PosixNetwork network_{folder_.Path()};

 public:
  const std::string& root = folder_.Path();
  Network& network = network_;
};

struct VirtualCable {
  void SetOnline(bool online) { sim.network.SetOnline(online); }
  SimWorld sim;
  Network& network = sim.network;
};

template <typename World>
struct NetworkContractTest : testing::Test {
  World world;
};

using Cables = testing::Types<VirtualCable, Tables>;
TYPED_TEST_SUITE(NetworkContractTest, Cables);

TYPED_TEST(NetworkContractTest, APluggedInCableIsALanThatBearsItsDevicesName) {
  this->world.SetOnline(true);
  EXPECT_EQ(this->world.network.Query(), (NetworkState{true, NetworkState::kLan, "eth0"}));
}

TYPED_TEST(NetworkContractTest, ACableThatIsOutIsOfflineAndHasNoName) {
  this->world.SetOnline(false);
  EXPECT_EQ(this->world.network.Query(), (NetworkState{false, NetworkState::kOffline, ""}));
}

TYPED_TEST(NetworkContractTest, EachQuestionIsAskedAnew) {
  for (const bool online : {true, false, true}) {
    this->world.SetOnline(online);
    EXPECT_EQ(this->world.network.Query().connected, online);
  }
}

TEST(PosixNetworkTest, AMachineWithoutTablesIsOffline) {
  const TemporaryFolder empty;
  EXPECT_FALSE(PosixNetwork(empty.Path()).Query().connected);
}

TEST(PosixNetworkTest, ADefaultRouteThatIsDownOrRejectsLeadsNowhere) {
  const Tables tables;
  tables.Put4(Default4("eth0", "0002") + Default4("eth0", "0203"));
  EXPECT_FALSE(tables.network.Query().connected);
}

TEST(PosixNetworkTest, ARouteOfTheNewerProtocolAloneLeadsOutButNotTheOneThatTheKernelAlwaysHas) {
  const Tables tables;
  tables.Put4("");
  tables.Put6(Default6("lo", "00200200") + Default6("lo", "00000001"));
  EXPECT_FALSE(tables.network.Query().connected);
  tables.Put6(Default6("lo", "00200200") + Default6("wlan0", "00000003"));
  EXPECT_EQ(tables.network.Query(), (NetworkState{true, NetworkState::kLan, "wlan0"}));
}

TEST(PosixNetworkTest, ADialledLineIsAModem) {
  const Tables tables;
  tables.Put4(Default4("ppp0", "0001"));
  EXPECT_EQ(tables.network.Query(), (NetworkState{true, NetworkState::kModem, "ppp0"}));
}

TEST(PosixNetworkTest, TornTablesTellNothing) {
  const Tables tables;
  for (const char* text : {"eth0", "eth0\t00000000\n", "\n\n\t\t\n", "eth0 00000000 x zz 0 0 0 00000000\n"}) {
    tables.Put4(text);
    EXPECT_FALSE(tables.network.Query().connected) << text;
  }
}

TEST(PosixNetworkTest, HangingUpTellsTheDaemonOfADialledLineAndOfNoOther) {
  const Tables tables;
  std::filesystem::create_directories(tables.root + "/run");
  const pid_t daemon = fork();
  if (daemon == 0) {
    pause();
    _exit(0);
  }
  WriteByOther(tables.root + "/run/ppp0.pid", std::to_string(daemon) + "\n");
  WriteByOther(tables.root + "/run/eth0.pid", std::to_string(daemon) + "\n");
  Network& network = tables.network;
  network.HangUp("eth0");
  network.HangUp("ppp0/../ppp0");
  network.HangUp("ppp7");
  EXPECT_EQ(waitpid(daemon, nullptr, WNOHANG), 0);
  network.HangUp("ppp0");
  int how = 0;
  EXPECT_EQ(waitpid(daemon, &how, 0), daemon);
  EXPECT_TRUE(WIFSIGNALED(how) && WTERMSIG(how) == SIGHUP);
}

TEST(PosixNetworkTest, ThisMachinesOwnTablesAreReadWithoutWaiting) {
  const NetworkState now = PosixNetwork().Query();
  EXPECT_EQ(now.connected, !now.name.empty());
}

}  // namespace
