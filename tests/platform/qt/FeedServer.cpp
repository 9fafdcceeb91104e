#include "tests/platform/qt/FeedServer.h"

#include <QTcpSocket>

namespace {

constexpr qint64 kLongestQuestion = 64 * 1024;

}  // namespace

FeedServer::FeedServer() {
  if (!server_.listen(QHostAddress::LocalHost)) qFatal("cannot listen");
  QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Serve(); });
}

std::string FeedServer::At(const std::string& path) const {
  return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
}

void FeedServer::Put(const std::string& path, const QByteArray& body, const QByteArray& status) {
  PutRaw(path, "HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) +
                   "\r\n\r\n" + body);
}

void FeedServer::Redirect(const std::string& from, const std::string& to) {
  PutRaw(from, "HTTP/1.1 302 Found\r\nConnection: close\r\nContent-Length: 0\r\nLocation: " +
                   QByteArray::fromStdString(to) + "\r\n\r\n");
}

void FeedServer::Flood(const std::string& path) {
  flooded_ = path;
  PutRaw(path, "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n<rss>");
}

// One question for each connection, which is closed behind the answer; what else a client may have sent on it by then
// it asks again on another one.
void FeedServer::Serve() {
  while (QTcpSocket* socket = server_.nextPendingConnection()) {
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
      const QByteArray question = socket->peek(kLongestQuestion);
      if (!question.contains("\r\n\r\n")) return;
      QObject::disconnect(socket, &QTcpSocket::readyRead, nullptr, nullptr);
      Answer(*socket, question.split(' ').value(1).toStdString());
    });
  }
}

void FeedServer::Answer(QTcpSocket& socket, const std::string& path) {
  asked.append(QString::fromStdString(path));
  const auto found = answers_.find(path);
  const bool isThere = found != answers_.end();
  if (isThere && found->second.isEmpty()) return;
  const QByteArray absent = "HTTP/1.1 404 Not Found\r\nConnection: close\r\nContent-Length: 0\r\n\r\n";
  socket.write(isThere ? found->second : absent);
  if (path != flooded_) return socket.disconnectFromHost();
  const auto more = [&socket] {
    while (socket.bytesToWrite() < 65536) socket.write(QByteArray(65536, ' '));
  };
  QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, more);
  more();
}
