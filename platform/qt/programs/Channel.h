#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

// A file descriptor that is closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
  Descriptor& operator=(Descriptor&& other) noexcept;
  ~Descriptor();

  int Number() const { return number_; }
  int Release();

 private:
  int number_;
};

// One end of a socket pair over which two programs pass whole messages, some with a descriptor. Never waits for the
// other end: what it does not take yet is kept, in order.
class Channel : public QObject {
 public:
  using Heard = std::function<void(const QByteArray& message, Descriptor descriptor)>;

  // `ended` is called once, when the other end is gone.
  Channel(Descriptor socket, Heard heard, std::function<void()> ended);

  // The other program owns a descriptor that goes with the message; this one may close its own.
  void Send(const QByteArray& message, std::shared_ptr<const Descriptor> with = {});

  // The two ends; nothing when the system has none to give.
  static std::optional<std::pair<Descriptor, Descriptor>> Pair();

 private:
  struct Message {
    QByteArray bytes;
    std::shared_ptr<const Descriptor> with;
  };

  void Read();
  void Write();
  bool WriteOne(const Message& message);
  void End();

  Descriptor socket_;
  Heard heard_;
  std::function<void()> ended_;
  std::deque<Message> waiting_;
  QSocketNotifier readable_;
  QSocketNotifier writable_;
};
