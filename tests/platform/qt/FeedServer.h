#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTcpServer>
#include <map>
#include <string>

class QTcpSocket;

// Serves what the test puts there, over http on loopback, from the test's own event loop.
class FeedServer {
 public:
  FeedServer();

  // The address of a path; nothing need be there.
  std::string At(const std::string& path) const;
  // A whole answer with this body.
  void Put(const std::string& path, const QByteArray& body, const QByteArray& status = "200 OK");
  // Sends whoever asks for `from` on to an address.
  void Redirect(const std::string& from, const std::string& to);
  // An answer as it goes over the wire; the connection is closed behind it.
  void PutRaw(const std::string& path, const QByteArray& answer) { answers_[path] = answer; }
  // Takes the question, and says nothing.
  void Hang(const std::string& path) { answers_[path] = QByteArray(); }
  // Sends a body that never ends, as fast as it is taken.
  void Flood(const std::string& path);
  void Remove(const std::string& path) { answers_.erase(path); }

  // The paths that were asked for, in their order.
  QStringList asked;

 private:
  void Serve();
  void Answer(QTcpSocket& socket, const std::string& path);

  QTcpServer server_;
  std::map<std::string, QByteArray> answers_;
  std::string flooded_;
};
