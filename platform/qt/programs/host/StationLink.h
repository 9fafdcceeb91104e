#pragma once

#include <QCborArray>
#include <functional>

#include "platform/qt/programs/Channel.h"

// The station that started this program. The program ends with it.
class StationLink {
 public:
  // `memory`: what came with the message, if anything.
  using Heard = std::function<void(const QCborArray& message, Descriptor memory)>;

  explicit StationLink(Heard heard);

  void Send(const QCborArray& message);

 private:
  Channel channel_;
};
