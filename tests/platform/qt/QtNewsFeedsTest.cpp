#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>
#include <QThread>
#include <algorithm>

#include "platform/qt/feeds/QtNewsFeeds.h"
#include "tests/platform/qt/FeedServer.h"
#include "tests/platform/qt/TestMedia.h"

// How far a fetch goes, and what it puts up with.

namespace {

using namespace std::chrono_literals;

QByteArray Feed(const QByteArray& title, const QByteArray& head = {}) {
  return head + "<rss><channel><item><title>" + title + "</title></item></channel></rss>";
}

class QtNewsFeedsTest : public testing::Test {
 protected:
  std::optional<FeedTitles> Fetched(const std::string& address) {
    bool told = false;
    std::optional<FeedTitles> titles;
    const auto fetch = feeds.Fetch(address, [&](const std::optional<FeedTitles>& found) {
      told = true;
      titles = found;
    });
    EXPECT_TRUE(Until([&] { return told; }));
    return titles;
  }
  std::optional<FeedTitles> FetchedBody(const QByteArray& body) {
    server.Put("/feed", body);
    return Fetched(server.At("/feed"));
  }

  FeedServer server;
  QtNewsFeeds feeds{5s};
};

TEST_F(QtNewsFeedsTest, AFewStepsFromAddressToAddressAreFollowed) {
  server.Put("/3", Feed("one"));
  server.Redirect("/2", server.At("/3"));
  server.Redirect("/1", "/2");
  EXPECT_EQ(Fetched(server.At("/1")), FeedTitles{"one"});
}

TEST_F(QtNewsFeedsTest, StepsInACircleAreNotFollowedForEver) {
  server.Redirect("/a", "/b");
  server.Redirect("/b", "/a");
  EXPECT_EQ(Fetched(server.At("/a")), std::nullopt);
  // Where a connection is closed just as the client would use it again, it asks the same once more on another one.
  server.asked.erase(std::unique(server.asked.begin(), server.asked.end()), server.asked.end());
  EXPECT_LE(server.asked.size(), 6);
}

TEST_F(QtNewsFeedsTest, NoStepLeadsToAFileOrToAnotherScheme) {
  const std::string file = test_media::Text("private.xml", Feed("private").toStdString());
  for (const std::string& to : {"file://" + file, std::string("ftp://127.0.0.1/feed"), std::string("data:,<rss/>")}) {
    server.Redirect("/feed", to);
    EXPECT_EQ(Fetched(server.At("/feed")), std::nullopt) << to;
  }
}

TEST_F(QtNewsFeedsTest, APageInThePlaceOfTheFeedIsAFailure) {
  EXPECT_EQ(FetchedBody("<!DOCTYPE html><html><head><title>Sign in</title></head><body><p>No feed<br></body></html>"),
            std::nullopt);
  EXPECT_EQ(FetchedBody("<?xml version=\"1.0\"?><html xmlns=\"http://www.w3.org/1999/xhtml\"><item><title>x</title>"
                        "</item></html>"),
            std::nullopt);
  EXPECT_EQ(FetchedBody(""), std::nullopt);
  EXPECT_EQ(FetchedBody("no feed"), std::nullopt);
}

TEST_F(QtNewsFeedsTest, OnlyAnAnswerThatIsWellCounts) {
  for (const char* status : {"404 Not Found", "500 Internal Server Error", "203 Changed", "204 No Content"}) {
    server.Put("/feed", Feed("error"), status);
    EXPECT_EQ(Fetched(server.At("/feed")), std::nullopt) << status;
  }
}

TEST_F(QtNewsFeedsTest, ABodyThatIsCutOffIsAFailure) {
  const QByteArray body = Feed("one");
  server.PutRaw("/feed", "HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n" + body);
  EXPECT_EQ(Fetched(server.At("/feed")), std::nullopt);
}

TEST_F(QtNewsFeedsTest, ABodyOfAMebibyteIsReadAndALargerOneIsNot) {
  const QByteArray feed = Feed("one");
  const auto padded = [&](qsizetype size) { return feed + QByteArray(size - feed.size(), ' '); };
  EXPECT_EQ(FetchedBody(padded(kMostFeedBytes)), FeedTitles{"one"});
  EXPECT_EQ(FetchedBody(padded(kMostFeedBytes + 1)), std::nullopt);
  const auto file = [&](qsizetype size) { return test_media::Text("large.xml", padded(size).toStdString()); };
  EXPECT_EQ(Fetched("file://" + file(kMostFeedBytes)), FeedTitles{"one"});
  EXPECT_EQ(Fetched("file://" + file(kMostFeedBytes + 1)), std::nullopt);
}

TEST_F(QtNewsFeedsTest, ABodyWithoutAnEndIsGivenUpAtItsBound) {
  server.Flood("/flood");
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(Fetched(server.At("/flood")), std::nullopt);
  EXPECT_LT(clock.elapsed(), 5000) << "before its time is over";
}

TEST_F(QtNewsFeedsTest, ABodyThatIsSmallOnlyWhileItIsPackedIsGivenUpToo) {
  const std::string plain = test_media::Text("bomb", std::string(64 << 20, ' '));
  QProcess gzip;
  gzip.start("gzip", {"-9c", QString::fromStdString(plain)});
  ASSERT_TRUE(gzip.waitForFinished(60'000));
  const QByteArray packed = gzip.readAllStandardOutput();
  ASSERT_LT(packed.size(), qsizetype{kMostFeedBytes});
  server.PutRaw("/feed", "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: " +
                             QByteArray::number(packed.size()) + "\r\n\r\n" + packed);
  EXPECT_EQ(Fetched(server.At("/feed")), std::nullopt);
}

TEST_F(QtNewsFeedsTest, EntitiesThatGrowAreRefused) {
  QByteArray bomb = "<!DOCTYPE rss [<!ENTITY a0 \"ha\">";
  for (int i = 1; i < 30; ++i) {
    const QByteArray last = "&a" + QByteArray::number(i - 1) + ";";
    bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + last + last + "\">";
  }
  EXPECT_EQ(FetchedBody(Feed("&a29;", bomb + "]>")), std::nullopt);
  EXPECT_EQ(FetchedBody(Feed("one", "<!DOCTYPE rss [<!ENTITY a \"harmless\">]>")), std::nullopt);
}

TEST_F(QtNewsFeedsTest, NoDocumentTypeOrEntityIsFetchedFromAnywhere) {
  const std::string file = test_media::Text("private.txt", "private");
  const QByteArray type =
      "<!DOCTYPE rss PUBLIC \"-//x//RSS\" \"" + QByteArray::fromStdString(server.At("/dtd")) + "\">";
  EXPECT_EQ(FetchedBody(Feed("one", type)), FeedTitles{"one"});
  const QByteArray entity = "<!DOCTYPE rss [<!ENTITY x SYSTEM \"file://" + QByteArray::fromStdString(file) + "\">]>";
  EXPECT_EQ(FetchedBody(Feed("&x;", entity)), std::nullopt);
  EXPECT_EQ(server.asked, (QStringList{"/feed", "/feed"}));
}

TEST_F(QtNewsFeedsTest, APipeOrAFolderIsNoFeedAndHoldsNothingUp) {
  const std::string pipe = test_media::PathOf("pipe.xml");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(Fetched("file://" + pipe), std::nullopt);
  EXPECT_EQ(Fetched("file:///"), std::nullopt);
  EXPECT_EQ(Fetched("file:///dev/zero"), std::nullopt);
  EXPECT_EQ(FetchedBody(Feed("one")), FeedTitles{"one"});
}

TEST_F(QtNewsFeedsTest, AFileWithBlanksAndPercentSignsInItsNameIsFound) {
  const std::string path = test_media::Text("my 100% feed.xml", Feed("one").toStdString());
  QString address = QString::fromStdString("file://" + path);
  EXPECT_EQ(Fetched(address.replace("%", "%25").replace(" ", "%20").toStdString()), FeedTitles{"one"});
}

TEST_F(QtNewsFeedsTest, WhatIsFoundIsHandedOverOnTheThreadThatAskedHoweverLargeTheFeed) {
  QByteArray items;
  while (items.size() < qsizetype{kMostFeedBytes} - 200) items += "<item><title>a &amp;lt;b&amp;gt;</title></item>";
  server.Put("/feed", "<rss><channel>" + items + "</channel></rss>");
  QThread* told = nullptr;
  std::size_t count = 0;
  const auto fetch = feeds.Fetch(server.At("/feed"), [&](const std::optional<FeedTitles>& titles) {
    told = QThread::currentThread();
    count = titles.value_or(FeedTitles()).size();
  });
  ASSERT_TRUE(Until([&] { return told != nullptr; }));
  EXPECT_EQ(told, QThread::currentThread());
  EXPECT_EQ(count, kMostFeedTitles);
}

TEST_F(QtNewsFeedsTest, TheFeedsMayGoWhileOneIsBeingFetched) {
  server.Hang("/hangs");
  auto going = std::make_unique<QtNewsFeeds>();
  auto fetch = going->Fetch(server.At("/hangs"), [](const auto&) { FAIL(); });
  Pass(100ms);
  fetch.reset();
  going.reset();
}

// A server whose certificate is signed by nobody but itself.
class SecureServer {
 public:
  explicit SecureServer(const QByteArray& answer) {
    const QString key = QString::fromStdString(test_media::PathOf("key.pem"));
    const QString certificate = QString::fromStdString(test_media::PathOf("certificate.pem"));
    QProcess::execute(
        "openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=localhost", "-addext",
                    "subjectAltName=DNS:localhost,IP:127.0.0.1", "-keyout", key, "-out", certificate, "-batch"});
    QFile keyFile(key);
    if (!keyFile.open(QFile::ReadOnly)) qFatal("no key");
    QSslConfiguration secure;
    certificates = QSslCertificate::fromPath(certificate);
    secure.setLocalCertificateChain(certificates);
    secure.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    server_.setSslConfiguration(secure);
    QObject::connect(&server_, &QSslServer::pendingConnectionAvailable, &server_, [this, answer] {
      QTcpSocket* socket = server_.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket, answer] {
        socket->readAll();
        socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + QByteArray::number(answer.size()) +
                      "\r\n\r\n" + answer);
      });
    });
    if (!server_.listen(QHostAddress::LocalHost)) qFatal("cannot listen");
  }
  std::string Address() const { return "https://127.0.0.1:" + std::to_string(server_.serverPort()) + "/feed"; }

  QList<QSslCertificate> certificates;

 private:
  QSslServer server_;
};

TEST_F(QtNewsFeedsTest, ACertificateThatNobodyVouchesForIsNotPassedOverAndOneThatHoldsIsTaken) {
  const SecureServer secure(Feed("one"));
  EXPECT_EQ(Fetched(secure.Address()), std::nullopt);
  const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
  QSslConfiguration trusting = before;
  trusting.addCaCertificates(secure.certificates);
  QSslConfiguration::setDefaultConfiguration(trusting);
  EXPECT_EQ(Fetched(secure.Address()), FeedTitles{"one"});
  QSslConfiguration::setDefaultConfiguration(before);
}

}  // namespace
