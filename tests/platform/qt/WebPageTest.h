#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/WebAddress.h"
#include "tests/platform/qt/Processes.h"
#include "tests/platform/qt/SeenPictures.h"
#include "tests/platform/qt/WebServer.h"
#include "tests/platform/qt/Worlds.h"

// Real pages in a real browser. A page turns green when all is as it should be, red when it is not.

inline constexpr char kPageProgram[] = "corvanta-pages";
inline constexpr QSize kPageSize(200, 100);

inline std::string PageWith(const std::string& script) {
  return "<html><body style='background:#0000ff'><script>"
         "const turn = colour => document.body.style.background = colour;"
         "const good = () => turn('#00ff00'), bad = () => turn('#ff0000');" +
         script + "</script></body></html>";
}
inline const std::string kGood = PageWith("good()");

class SeenPage : public BrowserListener, public SeenPictures {
 public:
  explicit SeenPage(BrowserEngine& browser) { Renew(browser); }
  // Another surface, of which nothing was seen yet.
  void Renew(BrowserEngine& browser) {
    surface = browser.NewSurface("seen", *this);
    Watch(dynamic_cast<ShowsFrames&>(*surface).Frames(), kPageSize);
  }
  void StatusChanged(const std::string& text) override { status = text; }
  void PageLoaded() override { ++loads; }

  // The colours in the middle of all pictures from the present one on until that holds.
  std::vector<QColor> ShownUntil(const std::function<bool()>& holds) {
    middles = {Middle()};
    EXPECT_TRUE(::Until(holds));
    return middles;
  }
  bool IsGood() { return Shows(QColor(0, 255, 0)); }

  std::unique_ptr<BrowserSurface> surface;
  std::string status;
  int loads = 0;
};

class WebPageTest : public testing::Test {
 protected:
  // A file of the folder that pages of the disk lie in.
  static std::string File(const std::string& name, const std::string& content) {
    std::filesystem::create_directories(test_media::PathOf("site/inner"));
    return test_media::Text(name, content);
  }
  bool IsGoodOnDisk(const std::string& script) {
    return TurnsGood(FileAddress(File("site/page.html", PageWith(script))));
  }
  bool IsGoodOnNet(const std::string& script) {
    server.Put("/page", PageWith(script));
    return TurnsGood(server.Address("/page"));
  }

  // Only what is painted from now on counts: the page before may have been good as well.
  bool TurnsGood(const std::string& address) {
    seen.picture = {};
    seen.surface->Navigate(address);
    return seen.IsGood();
  }
  // Until no process of it is left.
  void EndBrowser() {
    seen.surface.reset();
    ASSERT_TRUE(::Until([] { return ProcessesWith(kPageProgram).empty() && ProcessesWith(kBrowser).empty(); }));
  }

  RealWorld world;
  WebServer server;
  SeenPage seen{world.world.browser};
};
