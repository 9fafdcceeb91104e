#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <string>

// A file served over http on loopback, from the test's own event loop, to each who asks. What comes is sent as fast as
// it is taken.
class LiveSource {
 public:
  enum class Kind {
    kLive,    // without an end or a length: behind its last byte nothing comes, and the connection stays
    kWhole,   // with its length, and an end
    kSilent,  // takes the question, and never answers
  };
  LiveSource(const std::string& file, Kind kind);

  std::string Address() const;
  // Cuts every connection, and refuses new ones.
  void Break();
  void Mend();

 private:
  void Serve();

  QByteArray answer_;
  Kind kind_;
  QTcpServer server_;
  quint16 port_ = 0;
};
