#include <QStandardPaths>
#include <algorithm>
#include <fstream>

#include "tests/platform/qt/Processes.h"
#include "tests/platform/qt/WebPageTest.h"

// What pages must not do, and what must not end with them.

namespace {

using namespace std::chrono_literals;

using WebSafetyTest = WebPageTest;

TEST_F(WebSafetyTest, AThousandDialogsStopNobodyAndAreAnsweredWithNo) {
  EXPECT_TRUE(
      IsGoodOnDisk("let yes = 0; for (let i = 0; i < 1000; i++) { alert(i); yes += confirm(i) ? 1 : 0;"
                   " yes += prompt(i) === null ? 0 : 1 } yes ? bad() : good()"));
}

TEST_F(WebSafetyTest, ANewWindowOpensInPlace) {
  server.Put("/new", kGood);
  EXPECT_TRUE(IsGoodOnNet("window.open('/new')"));
}

TEST_F(WebSafetyTest, AnEmptyNewWindowLeavesThePage) {
  EXPECT_TRUE(IsGoodOnNet("window.open(); window.open('about:blank'); good()"));
  world.Pass(500ms);
  EXPECT_TRUE(seen.IsGood());
}

TEST_F(WebSafetyTest, AskingForALeaveIsRefused) {
  EXPECT_TRUE(IsGoodOnNet("navigator.geolocation.getCurrentPosition(bad, e => e.code === 1 ? good() : bad())"));
  EXPECT_TRUE(IsGoodOnNet("Notification.requestPermission().then(a => a === 'denied' ? good() : bad())"));
}

TEST_F(WebSafetyTest, ABadCertificateIsNotOverridden) {
  WebServer server(WebServer::Kind::kBadCertificate);
  server.Put("/page", kGood);
  seen.surface->Navigate(server.Address("/page"));
  ASSERT_TRUE(::Until([&] { return seen.status == "Done"; }));
  world.Pass(500ms);
  EXPECT_EQ(seen.loads, 0);
  EXPECT_TRUE(server.asked.empty());
}

TEST_F(WebSafetyTest, APageThatLoadsForEverIsSeenAsFarAsItHasComeAndAnotherFollowsIt) {
  server.PutEndless("/slow", "<html><body style='background:#00ff00'><p>The beginning</p>");
  seen.surface->Navigate(server.Address("/slow"));
  EXPECT_TRUE(seen.IsGood());
  EXPECT_EQ(seen.status, "Loading..");
  EXPECT_EQ(seen.loads, 0);
  EXPECT_TRUE(IsGoodOnDisk("good()"));
  EXPECT_TRUE(::Until([&] { return seen.loads == 1; }));
}

TEST_F(WebSafetyTest, APageThatNeverAnswersLeavesWhatWasThereBefore) {
  ASSERT_TRUE(IsGoodOnNet("good()"));
  server.PutNothing("/never");
  seen.surface->Navigate(server.Address("/never"));
  ASSERT_TRUE(::Until([&] { return server.asked["/never"] == 1; }));
  world.Pass(8s);
  EXPECT_TRUE(seen.IsGood());
}

TEST_F(WebSafetyTest, APageThatIsNeverIdleHoldsNothingUpAndIsLoadedAgain) {
  SeenPage other(world.world.browser);
  ASSERT_TRUE(IsGoodOnNet("good(); setTimeout(() => { for (;;); }, 200)"));
  ASSERT_TRUE(::Until([&] { return seen.loads == 1; }));
  other.surface->Navigate(FileAddress(File("site/page.html", kGood)));
  EXPECT_TRUE(other.IsGood());
  EXPECT_TRUE(::Until([&] { return seen.loads == 2; }));
}

TEST_F(WebSafetyTest, APageThatIsNeverIdleIsLeftForAnotherOfItsServer) {
  ASSERT_TRUE(IsGoodOnNet("good(); setTimeout(() => { for (;;); }, 200)"));
  ASSERT_TRUE(::Until([&] { return seen.loads == 1; }));
  world.Pass(500ms);
  server.Put("/other", PageWith("turn('#00ffff')"));
  seen.surface->Navigate(server.Address("/other"));
  EXPECT_TRUE(seen.Shows(QColor(0, 255, 255)));
  EXPECT_EQ(server.asked["/page"], 1);
}

TEST_F(WebSafetyTest, APageOfTheDiskReachesItsOwnFolderAlone) {
  File("outside.js", "outside = true");
  File("site/own.js", "own = true");
  File("site/inner/own.js", "inner = true");
  std::filesystem::remove(test_media::PathOf("site/link.js"));
  std::filesystem::create_symlink(test_media::PathOf("outside.js"), test_media::PathOf("site/link.js"));
  EXPECT_TRUE(IsGoodOnDisk(
      "let left = 4, right = true; const load = (name, wanted) => { const s = document.createElement('script');"
      " const told = got => { right = right && got === wanted; if (--left === 0) right ? good() : bad() };"
      " s.src = name; s.onload = () => told(true); s.onerror = () => told(false); document.body.append(s) };"
      " load('own.js', true); load('inner/own.js', true); load('../outside.js', false); load('link.js', false)"));
}

TEST_F(WebSafetyTest, APageOfTheDiskGoesNowhereElseOnTheDisk) {
  const std::string other = File("elsewhere.html", PageWith("bad()"));
  EXPECT_TRUE(IsGoodOnDisk("location = '" + FileAddress(other) + "'; setTimeout(good, 1500)"));
  world.Pass(500ms);
  EXPECT_TRUE(seen.IsGood());
}

TEST_F(WebSafetyTest, APageOfTheNetworkReachesNoFile) {
  const std::string script = FileAddress(File("site/own.js", "own = true"));
  const std::string inner =
      FileAddress(File("site/inner/frame.html", "<script>parent.postMessage('in', '*')</script>"));
  EXPECT_TRUE(IsGoodOnNet("onmessage = bad; const f = document.createElement('iframe'); f.src = '" + inner +
                          "'; document.body.append(f); setTimeout(good, 1500)"));
  EXPECT_TRUE(IsGoodOnNet("const s = document.createElement('script'); s.src = '" + script +
                          "'; s.onload = bad; s.onerror = () => { location = '" + script +
                          "'; setTimeout(good, 1500) }; document.body.append(s)"));
}

TEST_F(WebSafetyTest, DownloadsAreRefused) {
  server.Put("/file", "content", "Content-Type: application/octet-stream\r\nContent-Disposition: attachment");
  EXPECT_TRUE(IsGoodOnNet("location = '/file'; setTimeout(good, 1500)"));
  EXPECT_EQ(server.asked["/file"], 1);
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
  EXPECT_FALSE(std::filesystem::exists(folder.toStdString() + "/file"));
}

TEST_F(WebSafetyTest, ARedirectInCirclesEnds) {
  server.Put("/page", "<meta http-equiv=refresh content='0;url=/page'>");
  seen.surface->Navigate(server.Address("/page"));
  ASSERT_TRUE(::Until([&] { return server.asked["/page"] > 3; }));
  EXPECT_TRUE(IsGoodOnDisk("good()")) << "another page is opened all the same";
}

TEST_F(WebSafetyTest, APageComesBackWhenItsRendererIsKilledAndItsLastPictureStays) {
  ASSERT_TRUE(IsGoodOnNet("good()"));
  ASSERT_TRUE(::Until([&] { return seen.loads == 1; }));
  KillTheRenderer();
  const std::vector<QColor> shown = seen.ShownUntil([&] { return seen.loads == 2; });
  const std::vector<QColor> mayBeShown{QColor(0, 0, 255), QColor(0, 255, 0)};  // the page's first colour and its last
  for (const QColor& colour : shown) EXPECT_TRUE(std::ranges::count(mayBeShown, colour)) << colour.alpha();
  EXPECT_TRUE(seen.IsGood());
  EXPECT_GE(server.asked["/page"], 2);
}

TEST_F(WebSafetyTest, ARendererThatDiesAgainAndAgainComesBackAtGrowingPauses) {
  ASSERT_TRUE(IsGoodOnNet("good()"));
  ASSERT_TRUE(::Until([&] { return seen.loads == 1; }));
  for (auto pause = 250ms; pause <= 1000ms; pause *= 2) {
    const int loads = seen.loads;
    const auto died = std::chrono::steady_clock::now();
    KillTheRenderer();
    ASSERT_TRUE(::Until([&] { return seen.loads > loads; }));
    EXPECT_GE(std::chrono::steady_clock::now() - died, pause);
  }
}

// With what a renderer may hold kept small, or it would take the machine a minute.
TEST_F(WebSafetyTest, APageThatTakesAllMemoryAndItsRendererWithItIsTriedAgainAndLeftForAnother) {
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--js-flags=--max-old-space-size=30");
  server.Put("/page",
             PageWith("good(); const all = []; setTimeout(() => { for (;;) all.push(new Array(99999).fill(0.5)); "
                      "}, 300)"));
  ASSERT_TRUE(TurnsGood(server.Address("/page")));
  ASSERT_TRUE(::Until([&] { return server.asked["/page"] >= 3; }));
  qunsetenv("QTWEBENGINE_CHROMIUM_FLAGS");
  EXPECT_TRUE(IsGoodOnDisk("good()"));
}

TEST_F(WebSafetyTest, ARefreshDoesNotHurryAPageWhoseRendererDies) {
  ASSERT_TRUE(IsGoodOnNet("good()"));
  for (int loads = 1; loads <= 4; ++loads) {
    ASSERT_TRUE(::Until([&] { return seen.loads == loads; }));
    KillTheRenderer();
  }
  const int asked = server.asked["/page"];
  world.Pass(300ms);
  seen.surface->Reload();  // in the pause, which is two seconds long by now
  ASSERT_TRUE(::Until([&] { return seen.loads == 5; }));
  world.Pass(500ms);
  EXPECT_EQ(server.asked["/page"], asked + 1);
}

TEST_F(WebSafetyTest, TheProgramThatShowsPagesComesBackWhenItIsKilled) {
  ASSERT_TRUE(IsGoodOnNet("good()"));
  ASSERT_TRUE(::Until([&] { return seen.loads == 1; }));
  KillAll(kPageProgram);
  EXPECT_TRUE(::Until([&] { return seen.loads == 2; }));
}

TEST_F(WebSafetyTest, AProfileThatIsNoFolderIsThrownAway) {
  const std::string profile = test_media::PathOf("profile");
  std::filesystem::remove_all(profile);
  test_media::Text("profile", "no folder");
  EXPECT_TRUE(IsGoodOnDisk("good()"));
  EXPECT_TRUE(std::filesystem::is_directory(profile));
}

TEST_F(WebSafetyTest, AProfileWithWhichTheBrowserDiesAtOnceIsThrownAway) {
  ASSERT_TRUE(IsGoodOnDisk("good()"));
  const std::string mark = test_media::Text("profile/mark", "of the old profile");
  KillAll(kPageProgram);
  EXPECT_TRUE(::Until([&] { return !std::filesystem::exists(mark); }));
}

TEST_F(WebSafetyTest, AProfileFullOfRubbishIsNoHindrance) {
  const auto visit = [this] {
    return IsGoodOnNet("localStorage.setItem('key', 'value'); document.cookie = 'a=b;max-age=9999'; good()");
  };
  ASSERT_TRUE(visit());
  world.Pass(2s);  // much of it is written a little later
  EndBrowser();
  int spoilt = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(test_media::PathOf("profile"))) {
    if (!entry.is_regular_file()) continue;
    std::ofstream(entry.path(), std::ios::trunc) << std::string(5000, '?');
    ++spoilt;
  }
  EXPECT_GT(spoilt, 3);
  seen.Renew(world.world.browser);
  EXPECT_TRUE(visit());
}

}  // namespace
