#include <QTcpServer>
#include <algorithm>
#include <memory>
#include <vector>

#include "platform/WebAddress.h"
#include "tests/platform/qt/WebServer.h"
#include "tests/platform/qt/Worlds.h"

// What every page surface promises, in the virtual and the real world alike.

namespace {

using namespace std::chrono_literals;

constexpr char kNobody[] = "http://127.0.0.1:1/";  // no server is ever there

class Silent {
 public:
  Silent() { server_.listen(QHostAddress::LocalHost); }
  std::string Address() const { return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + "/"; }

 private:
  QTcpServer server_;
};

std::string PageOf(VirtualWorld& world, const std::string& name) {
  world.sim.browser.SetCannotBeHad(kNobody);
  return FileAddress("/" + name);
}
std::string PageOf(RealWorld&, const std::string& name) {
  return FileAddress(test_media::Text(name, "<html><body style='background:#00ff00'>page</body></html>"));
}
// A server that is not there at first.
class Late {
 public:
  explicit Late(VirtualWorld& world) : world_(&world), address_("http://late.example/") {
    world.sim.browser.SetCannotBeHad(address_);
  }
  explicit Late(RealWorld&) : address_(server_.Address("/")) {
    server_.Put("/", "<html><body>late</body></html>");
    server_.Close();
  }
  const std::string& Address() const { return address_; }
  void Come() {
    if (world_ != nullptr) {
      world_->sim.browser.SetCanBeHad(address_);
    } else {
      server_.OpenAgain();
    }
  }

 private:
  VirtualWorld* world_ = nullptr;
  WebServer server_;
  std::string address_;
};

void MakeSilent(VirtualWorld& world, const std::string& address) { world.sim.browser.SetNeverAnswers(address); }
void MakeSilent(RealWorld&, const std::string&) {}

template <typename AnyWorld>
class BrowserContractTest : public testing::Test, public BrowserListener {
 protected:
  void StatusChanged(const std::string& text) override { told.push_back(text); }
  void PageLoaded() override { ++loads; }

  std::string Page(const std::string& name) { return PageOf(world, name); }
  bool Loads(int count) {
    return world.Until([&] { return loads >= count; });
  }
  bool Says(const std::string& text) {
    return world.Until([&] { return std::ranges::find(told, text) != told.end(); });
  }

  AnyWorld world;
  std::vector<std::string> told;
  int loads = 0;
  std::unique_ptr<BrowserSurface> surface = world.world.browser.NewSurface("surface", *this);
};

TYPED_TEST_SUITE(BrowserContractTest, Worlds);

TYPED_TEST(BrowserContractTest, APageTellsThatItLoadsAndThatItIsThere) {
  this->surface->Navigate(this->Page("first.html"));
  EXPECT_TRUE(this->told.empty()) << "nothing is heard from inside a call";
  ASSERT_TRUE(this->Loads(1));
  EXPECT_EQ(this->told, (std::vector<std::string>{"Loading..", "Done"}));
}

TYPED_TEST(BrowserContractTest, AReloadLoadsThePageOnceMore) {
  this->surface->Reload();
  this->surface->Navigate(this->Page("again.html"));
  ASSERT_TRUE(this->Loads(1));
  this->surface->Reload();
  EXPECT_TRUE(this->Loads(2));
}

TYPED_TEST(BrowserContractTest, NothingIsToldOfTheEmptyAddressOrOfWhatIsNoPage) {
  for (const char* address : {"", "javascript:alert(1)", "about:blank", "mailto:a@b.example"}) {
    this->surface->Navigate(address);
  }
  this->world.Pass(500ms);
  EXPECT_TRUE(this->told.empty());
  EXPECT_EQ(this->loads, 0);
}

TYPED_TEST(BrowserContractTest, OfAPageThatCannotBeHadNoDocumentIsTold) {
  this->Page("any.html");
  this->surface->Navigate(kNobody);
  ASSERT_TRUE(this->Says("Done"));
  EXPECT_EQ(this->loads, 0);
}

TYPED_TEST(BrowserContractTest, APageThatCannotBeHadIsTriedAgainUntilItIsThere) {
  Late late(this->world);
  this->surface->Navigate(late.Address());
  ASSERT_TRUE(this->Says("Done"));
  ASSERT_TRUE(this->world.Until([&] { return std::ranges::count(this->told, "Loading..") == 2; }));
  EXPECT_EQ(this->loads, 0);
  late.Come();
  EXPECT_TRUE(this->Loads(1));
}

TYPED_TEST(BrowserContractTest, APageThatNeverAnswersGoesOnLoadingUntilAnotherIsOpened) {
  const Silent silent;
  MakeSilent(this->world, silent.Address());
  this->surface->Navigate(silent.Address());
  ASSERT_TRUE(this->Says("Loading.."));
  this->world.Pass(500ms);
  EXPECT_EQ(this->told, std::vector<std::string>{"Loading.."});
  this->surface->Navigate(this->Page("other.html"));
  EXPECT_TRUE(this->Loads(1));
}

TYPED_TEST(BrowserContractTest, AListenerMayOpenTheNextPageOrEndTheSurface) {
  class Opens : public BrowserListener {
   public:
    void StatusChanged(const std::string&) override {}
    void PageLoaded() override {
      if (++rounds < 3) {
        surface->Navigate(address);
      } else {
        surface.reset();
      }
    }
    std::unique_ptr<BrowserSurface> surface;
    std::string address;
    int rounds = 0;
  } listener;
  listener.address = this->Page("next.html");
  listener.surface = this->world.world.browser.NewSurface("chained", listener);
  listener.surface->Navigate(listener.address);
  EXPECT_TRUE(this->world.Until([&] { return listener.rounds == 3; }));
  this->world.Pass(300ms);
  EXPECT_EQ(listener.rounds, 3);
}

}  // namespace
