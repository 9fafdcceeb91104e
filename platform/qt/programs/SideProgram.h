#pragma once

#include <QCborArray>
#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "platform/qt/programs/Channel.h"

// A program that plays movies or shows pages, in a process of its own: a browser's faults must not take the station off
// the air, and its work must not hold up the station's thread. Once started it is started again whenever it ends, and
// it ends with this object, or with this process however that ends.
class SideProgram : public QObject {
 public:
  using Heard = std::function<void(const QCborArray& message)>;

  // `begun` is called after each start: the program knows nothing yet.
  SideProgram(std::string path, Heard heard, std::function<void()> begun);
  ~SideProgram() override;

  bool IsRunning() const { return channel_ != nullptr; }
  // Without effect while it is not running.
  void Send(const QCborArray& message, std::shared_ptr<const Descriptor> with = {});
  void Start();
  // Ends it; Start starts it again.
  void Stop();

 private:
  void Ended();

  std::string path_;
  Heard heard_;
  std::function<void()> begun_;
  std::unique_ptr<QProcess> process_;
  std::unique_ptr<Channel> channel_;
  QElapsedTimer sinceStart_;
  QTimer startAgain_;
};
