#include "tests/platform/qt/LiveSource.h"

#include <QFile>
#include <QTcpSocket>

LiveSource::LiveSource(const std::string& file, Kind kind) : kind_(kind) {
  QFile content(QString::fromStdString(file));
  if (!content.open(QIODevice::ReadOnly)) qFatal("cannot read %s", file.c_str());
  const QByteArray body = content.readAll();
  answer_ = "HTTP/1.1 200 OK\r\nContent-Type: application/octet-stream\r\nConnection: close\r\n";
  if (kind_ == Kind::kWhole) answer_ += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
  answer_ += "\r\n" + body;
  QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Serve(); });
  Mend();
}

std::string LiveSource::Address() const { return "http://127.0.0.1:" + std::to_string(port_) + "/live"; }

void LiveSource::Break() {
  server_.close();
  for (QTcpSocket* socket : server_.findChildren<QTcpSocket*>()) socket->abort();
}

void LiveSource::Mend() {
  if (!server_.listen(QHostAddress::LocalHost, port_)) qFatal("cannot listen on port %d", port_);
  port_ = server_.serverPort();
}

void LiveSource::Serve() {
  while (QTcpSocket* socket = server_.nextPendingConnection()) {
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
      if (!socket->readAll().contains("\r\n\r\n") || kind_ == Kind::kSilent) return;
      socket->write(answer_);
      if (kind_ == Kind::kWhole) socket->disconnectFromHost();
    });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  }
}
