#include <QHoverEvent>
#include <QMouseEvent>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <csignal>
#include <filesystem>
#include <map>
#include <vector>

#include "platform/WebAddress.h"
#include "platform/qt/frames/FrameSource.h"
#include "platform/qt/frames/TakesInput.h"
#include "tests/platform/qt/Processes.h"
#include "tests/platform/qt/Worlds.h"

// What a real browser does with real pages. A page turns green when all is as it should be, red when it is not.

namespace {

using namespace std::chrono_literals;

constexpr char kProgram[] = "corvanta-pages";
constexpr QSize kSize(200, 100);

std::string Page(const std::string& script) {
  return "<html><body style='background:#0000ff'><script>"
         "const turn = colour => document.body.style.background = colour;"
         "const good = () => turn('#00ff00'), bad = () => turn('#ff0000');" +
         script + "</script></body></html>";
}
const std::string kGood = Page("good()");

// A server that answers each request with what was put under its path, and counts.
class Server {
 public:
  Server() {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Accept(); });
  }
  void Put(const std::string& path, const std::string& body, const std::string& head = "Content-Type: text/html") {
    answers_[path] = "HTTP/1.1 200 OK\r\n" + head + "\r\nConnection: close\r\nCache-Control: no-store\r\n" +
                     "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
  }
  std::string Address(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
  }
  std::map<std::string, int> asked;

 private:
  void Accept() {
    QTcpSocket* socket = server_.nextPendingConnection();
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
      if (!socket->canReadLine() || socket->property("answered").toBool()) return;
      socket->setProperty("answered", true);
      const std::string path = socket->readLine().split(' ').value(1).toStdString();
      ++asked[path];
      const auto answer = answers_.find(path);
      const bool isThere = answer != answers_.end();
      socket->write((isThere ? answer->second : "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n").c_str());
      socket->disconnectFromHost();
    });
  }

  QTcpServer server_;
  std::map<std::string, std::string> answers_;
};

class Seen : public BrowserListener {
 public:
  explicit Seen(BrowserEngine& browser, QSize size = kSize)
      : surface(browser.NewSurface("seen", *this)), source(dynamic_cast<ShowsFrames&>(*surface).Frames()) {
    source.SetTarget(size);
    QObject::connect(&source, &FrameSource::Changed, &source, [this] {
      if (const auto taken = source.Take()) picture = taken->copy();
    });
  }
  void StatusChanged(const std::string& text) override { status = text; }
  void PageLoaded() override { ++loads; }

  bool Shows(QColor colour) {
    return ::Until([&] { return !picture.isNull() && picture.pixelColor(picture.rect().center()) == colour; });
  }
  bool IsGood() { return Shows(QColor(0, 255, 0)); }

  std::unique_ptr<BrowserSurface> surface;
  FrameSource& source;
  QImage picture;
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
    seen.surface->Navigate(FileAddress(File("site/page.html", Page(script))));
    return seen.IsGood();
  }
  bool IsGoodOnNet(const std::string& script) {
    server.Put("/page", Page(script));
    seen.surface->Navigate(server.Address("/page"));
    return seen.IsGood();
  }

  RealWorld world;
  Server server;
  Seen seen{world.browser};
};

TEST_F(WebPageTest, APageIsSeen) {
  EXPECT_TRUE(IsGoodOnDisk("good()"));
  EXPECT_EQ(seen.picture.size(), kSize);
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

TEST_F(WebPageTest, AThousandDialogsStopNobodyAndAreAnsweredWithNo) {
  EXPECT_TRUE(
      IsGoodOnDisk("let yes = 0; for (let i = 0; i < 1000; i++) { alert(i); yes += confirm(i) ? 1 : 0;"
                   " yes += prompt(i) === null ? 0 : 1 } yes ? bad() : good()"));
}

TEST_F(WebPageTest, ANewWindowOpensInPlace) {
  server.Put("/new", kGood);
  EXPECT_TRUE(IsGoodOnNet("window.open('/new')"));
}

TEST_F(WebPageTest, AskingForALeaveIsRefused) {
  EXPECT_TRUE(IsGoodOnNet("navigator.geolocation.getCurrentPosition(bad, e => e.code === 1 ? good() : bad())"));
}

TEST_F(WebPageTest, APageOfTheDiskReachesItsOwnFolderAlone) {
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

TEST_F(WebPageTest, APageOfTheDiskGoesNowhereElseOnTheDisk) {
  const std::string other = File("elsewhere.html", Page("bad()"));
  EXPECT_TRUE(IsGoodOnDisk("location = '" + FileAddress(other) + "'; setTimeout(good, 1500)"));
  world.Pass(500ms);
  EXPECT_TRUE(seen.IsGood());
}

TEST_F(WebPageTest, APageOfTheNetworkReachesNoFile) {
  const std::string script = FileAddress(File("site/own.js", "own = true"));
  EXPECT_TRUE(IsGoodOnNet("const s = document.createElement('script'); s.src = '" + script +
                          "'; s.onload = bad; s.onerror = () => { location = '" + script +
                          "'; setTimeout(good, 1500) }; document.body.append(s)"));
}

TEST_F(WebPageTest, DownloadsAreRefused) {
  server.Put("/file", "content", "Content-Type: application/octet-stream\r\nContent-Disposition: attachment");
  EXPECT_TRUE(IsGoodOnNet("location = '/file'; setTimeout(good, 1500)"));
  EXPECT_EQ(server.asked["/file"], 1);
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
  EXPECT_FALSE(std::filesystem::exists(folder.toStdString() + "/file"));
}

TEST_F(WebPageTest, ARedirectInCirclesEnds) {
  server.Put("/page", "<meta http-equiv=refresh content='0;url=/page'>");
  seen.surface->Navigate(server.Address("/page"));
  ASSERT_TRUE(::Until([&] { return server.asked["/page"] > 3; }));
  EXPECT_TRUE(IsGoodOnDisk("good()")) << "another page is opened all the same";
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
  const QPointF place(40, 30);
  const auto tell = [&] {
    dynamic_cast<TakesInput&>(*seen.surface).Take(QHoverEvent(QEvent::HoverMove, place, place, place));
    world.Pass(100ms);
    return seen.status == "http://news.example/";
  };
  EXPECT_TRUE(::Until(tell));
}

TEST_F(WebPageTest, APageComesBackWhenItsRendererIsKilledAndItsLastPictureStays) {
  ASSERT_TRUE(IsGoodOnNet("good()"));
  const int loads = seen.loads;
  KillTheRenderer();
  ASSERT_TRUE(::Until([&] { return seen.loads > loads; }));
  EXPECT_EQ(seen.picture.pixelColor(kSize.width() / 2, kSize.height() / 2), QColor(0, 255, 0));
  EXPECT_GE(server.asked["/page"], 2);
}

TEST_F(WebPageTest, TheProgramThatShowsPagesComesBackWhenItIsKilled) {
  ASSERT_TRUE(IsGoodOnNet("good()"));
  const int loads = seen.loads;
  for (const pid_t program : ProcessesWith(kProgram)) kill(program, SIGKILL);
  EXPECT_TRUE(::Until([&] { return seen.loads > loads; }));
}

TEST_F(WebPageTest, NoBrowserRunsBeforeTheFirstPageAndNoneAfterTheLastSurface) {
  EXPECT_TRUE(ProcessesWith(kProgram).empty());
  ASSERT_TRUE(IsGoodOnDisk("good()"));
  EXPECT_FALSE(ProcessesWith(kProgram).empty());
  seen.surface.reset();
  EXPECT_TRUE(::Until([] { return ProcessesWith(kProgram).empty() && ProcessesWith(kBrowser).empty(); }));
}

TEST_F(WebPageTest, AProfileThatIsNoFolderIsThrownAway) {
  const std::string profile = test_media::PathOf("profile");
  std::filesystem::remove_all(profile);
  test_media::Text("profile", "no folder");
  EXPECT_TRUE(IsGoodOnDisk("good()"));
  EXPECT_TRUE(std::filesystem::is_directory(profile));
}

TEST_F(WebPageTest, AProfileWithWhichTheBrowserDiesAtOnceIsThrownAway) {
  ASSERT_TRUE(IsGoodOnDisk("good()"));
  const std::string mark = test_media::Text("profile/mark", "of the old profile");
  for (const pid_t program : ProcessesWith(kProgram)) kill(program, SIGKILL);
  EXPECT_TRUE(::Until([&] { return !std::filesystem::exists(mark); }));
}

}  // namespace
