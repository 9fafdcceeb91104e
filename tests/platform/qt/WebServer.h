#pragma once

#include <QTcpServer>
#include <map>
#include <memory>
#include <string>

// A server of web pages on this machine alone. It answers each request with what was put under its path, and counts.
class WebServer {
 public:
  enum class Kind {
    kPlain,
    kBadCertificate,  // encrypted, with a certificate that nobody vouches for
  };
  explicit WebServer(Kind kind = Kind::kPlain);

  void Put(const std::string& path, const std::string& body, const std::string& head = "Content-Type: text/html");
  // The answer begins with this, and never ends.
  void PutEndless(const std::string& path, const std::string& beginning);
  // No answer ever comes.
  void PutNothing(const std::string& path);
  std::string Address(const std::string& path) const;
  // Nobody answers there any more; and somebody does again.
  void Close();
  void OpenAgain();

  std::map<std::string, int> asked;  // how often, by path

 private:
  void Accept();

  Kind kind_;
  std::unique_ptr<QTcpServer> server_;
  quint16 port_;
  std::map<std::string, std::string> answers_;
  std::map<std::string, std::string> endless_;
};
