#include "tests/platform/qt/WebPageTest.h"

#include <QHoverEvent>
#include <QMouseEvent>

#include "platform/qt/frames/TakesInput.h"
#include "tests/platform/qt/Processes.h"

// What is seen of a page, and how the operator's hands reach it.

namespace {

using namespace std::chrono_literals;

TEST_F(WebPageTest, APageIsSeen) {
  EXPECT_TRUE(IsGoodOnDisk("good()"));
  EXPECT_EQ(seen.picture.size(), kPageSize);
  EXPECT_TRUE(IsGoodOnNet("good()"));
}

TEST_F(WebPageTest, APageWithoutAColourIsWhite) {
  server.Put("/plain", "<html><body></body></html>");
  seen.surface->Navigate(server.Address("/plain"));
  EXPECT_TRUE(seen.Shows(Qt::white));
}

TEST_F(WebPageTest, TheEmptyAddressShowsNothing) {
  ASSERT_TRUE(IsGoodOnDisk("good()"));
  seen.surface->Navigate("");
  EXPECT_TRUE(::Until([&] { return seen.picture.isNull(); }));
}

TEST_F(WebPageTest, WhatMovesByTheDisplaysClockGoesOn) {
  EXPECT_TRUE(
      IsGoodOnDisk("let n = 0; const step = () => { if (++n > 30) good(); else requestAnimationFrame(step) }; step()"));
}

TEST_F(WebPageTest, ThePointerAndItsButtonsReachThePage) {
  ASSERT_TRUE(
      IsGoodOnDisk("good(); document.body.onclick = e => turn(e.clientX === 40 ? '#ffff00' : '#ff0000');"
                   " document.body.style.height = '80px'"));
  auto& hands = dynamic_cast<TakesInput&>(*seen.surface);
  const QPointF place(40, 30);
  hands.Take(QMouseEvent(QEvent::MouseButtonPress, place, place, Qt::LeftButton, Qt::LeftButton, {}));
  hands.Take(QMouseEvent(QEvent::MouseButtonRelease, place, place, Qt::LeftButton, {}, {}));
  EXPECT_TRUE(seen.Shows(QColor(255, 255, 0)));
}

TEST_F(WebPageTest, TheAddressUnderThePointerIsTold) {
  ASSERT_TRUE(
      IsGoodOnDisk("good(); document.body.innerHTML += '<a href=\"http://news.example/\" "
                   "style=\"position:fixed;inset:0\"></a>'"));
  const auto tell = [&, place = QPointF(40, 30)]() mutable {
    place.rx() = place.x() == 40 ? 41 : 40;
    dynamic_cast<TakesInput&>(*seen.surface).Take(QHoverEvent(QEvent::HoverMove, place, place, place));
    world.Pass(100ms);
    return seen.status == "http://news.example/";
  };
  EXPECT_TRUE(::Until(tell));
}

TEST_F(WebPageTest, NoBrowserRunsBeforeTheFirstPageAndNoneAfterTheLastSurface) {
  EXPECT_TRUE(::Until([] { return ProcessesWith(kPageProgram).empty(); })) << "of a test before this one";
  ASSERT_TRUE(IsGoodOnDisk("good()"));
  EXPECT_FALSE(ProcessesWith(kPageProgram).empty());
  EndBrowser();
}

TEST_F(WebPageTest, APageHasScrollBarsUnlessTheyAreOff) {
  const auto open = [this] {
    seen.picture = {};
    File("site/page.html",
         "<html><body style='height:5000px'><script>"
         "document.body.style.background = innerWidth > document.documentElement.clientWidth ?"
         " '#ffff00' : '#00ff00'</script></body></html>");
    seen.surface->Navigate(FileAddress(test_media::PathOf("site/page.html")));
  };
  open();
  ASSERT_TRUE(seen.Shows(QColor(255, 255, 0)));
  seen.surface->SetLooks({.scrollBars = false});
  open();
  EXPECT_TRUE(seen.IsGood());
}

TEST_F(WebPageTest, APageOfFramesHasNoBodyAndLoadsWithoutScrollBarsToo) {
  File("site/inner/left.html", kGood);
  File("site/frames.html", "<html><frameset cols='*'><frame src='inner/left.html'></frameset></html>");
  seen.surface->SetLooks({.scrollBars = false});
  seen.surface->Navigate(FileAddress(test_media::PathOf("site/frames.html")));
  EXPECT_TRUE(seen.IsGood());
  EXPECT_TRUE(::Until([&] { return seen.loads == 1; }));
}

TEST_F(WebPageTest, ThePointerLeavesThePage) {
  ASSERT_TRUE(
      IsGoodOnDisk("good(); document.documentElement.onmouseenter = () => turn('#ffff00');"
                   " document.documentElement.onmouseleave = good"));
  auto& hands = dynamic_cast<TakesInput&>(*seen.surface);
  // A page that has only just come up does not hear the first of it.
  const auto enters = [&](const QPointF& place) {
    hands.Take(QHoverEvent(QEvent::HoverMove, place, place, place));
    world.Pass(100ms);
    return seen.picture.pixelColor(100, 50) == QColor(255, 255, 0);
  };
  ASSERT_TRUE(::Until([&] { return enters({40, 30}) || enters({41, 30}); }));
  hands.Take(QHoverEvent(QEvent::HoverLeave, {-1, -1}, {-1, -1}, {40, 30}));
  EXPECT_TRUE(seen.IsGood());
}

}  // namespace
