#include "platform/qt/programs/host/StationLink.h"

#include <unistd.h>

#include "platform/qt/programs/Wire.h"

StationLink::StationLink(Heard heard)
    : channel_(
          Descriptor(wire::kStation),
          [heard = std::move(heard)](const QByteArray& message, Descriptor memory) {
            heard(wire::Parts(message), std::move(memory));
          },
          [] { _exit(0); }) {}  // the browser's processes end with this one

void StationLink::Send(const QCborArray& message) { channel_.Send(wire::Message(message)); }
